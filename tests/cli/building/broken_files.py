"""Defects of the files themselves. Each takes a source of chance and both files, plainly written, as lists of lines,
and returns both as bytes with what has to be told: code, file (0 structure, 1 loads), line of each loss and doubt."""

from building.told import NoPlace

def joined(lines):
    return b"".join(line + b"\n" for line in lines)


def first_load(chance, lines):
    """The place of some load line: what stands behind the first count."""
    if lines[0] == b"0":
        raise NoPlace
    return chance.randint(1, int(lines[0]))


def byte_order_mark(chance, structure, load):
    """In front of a count that is 0 anyhow. The count, which the mark spoils, is told as well."""
    if load[0] != b"0":
        raise NoPlace
    return joined(structure), b"\xEF\xBB\xBF" + joined(load), [("byte-order-mark", 1, 1), ("not-a-number", 1, 1)]


def utf_16(chance, structure, load):
    """Nothing of the file can be read but zeros of the first line, so no load is, and the next block never comes."""
    told = [("utf-16", 1, 1), ("not-a-number", 1, 1), ("nul-byte", 1, 1)]
    if int(structure[0].split()[0]) > 1:
        told.append(("ends-early", 1, len(load) + 1))  # the other half of the last line end
    return joined(structure), b"\xFF\xFE" + joined(load).decode("ascii").encode("utf-16-le"), told


def no_line_end(chance, structure, load):
    """The last value has digits to lose."""
    load = with_last_load(structure, load, b"12 1 0 0 12500.75")
    return joined(structure), joined(load)[:-1], [("no-line-end", 1, len(load))]


def with_last_load(structure, load, words):
    """On the first support."""
    count = count_places(load)[-1]
    support = structure[1 + 2 * int(structure[0].split()[1])].split()[1]
    return [*load[:count], b"%d" % (int(load[count]) + 1), *load[count + 1:], b"1 " + support + b" " + words]


def count_places(load):
    places, place = [], 0
    while place < len(load):
        places.append(place)
        place += 1 + int(load[place])
    return places


def end_mark(chance, structure, load):
    return joined(structure), joined(load) + b"\x1Arest", [("end-mark", 1, len(load) + 1)]


def nul_byte(chance, structure, load):
    place = first_load(chance, load)
    load[place] += b" \0 behind it"
    return joined(structure), joined(load), [("nul-byte", 1, place + 1)]


def long_line(chance, structure, load):
    place = first_load(chance, load)
    load[place] = load[place].ljust(chance.randint(510, 990))
    return joined(structure), joined(load), [("long-line", 1, place + 1)]


def rest_not_read(chance, structure, load):
    if chance.random() < 0.5:
        return joined([*structure, b"", b"1 2 3"]), joined(load), [("rest-not-read", 0, len(structure) + 2)]
    return joined(structure), joined([*load, b"C nothing", b"1 2 3", b"4"]), [("rest-not-read", 1, len(load) + 2)]


def ends_early_by_lines(chance, structure, load):
    last = count_places(load)[-1]
    if load[last] == b"0":
        raise NoPlace
    load = load[:chance.randint(last + 1, len(load) - 1)]
    return joined(structure), joined(load), [("ends-early", 1, len(load))]


def ends_early_by_count(chance, structure, load):
    last = count_places(load)[-1]
    load[last] = b"%d" % (int(load[last]) + chance.choice([1, 1000000]))
    return joined(structure), joined(load), [("ends-early", 1, len(load))]


def not_a_number(chance, structure, load):
    """A letter for a digit in the first value, which is 6 then."""
    place = first_load(chance, load)
    words = load[place].split()
    words[4] = b"6O00"
    load[place] = b" ".join(words)
    return joined(structure), joined(load), [("not-a-number", 1, place + 1)]


def fused_numbers(chance, structure, load):
    place = first_load(chance, load)
    words = load[place].split()
    load[place] = b"9 9, " + b", ".join(words[1:])
    return joined(structure), joined(load), [("fused-numbers", 1, place + 1)]


def number_out_of_range(chance, structure, load):
    load = with_last_load(structure, load, b"12 1 0 1e999 0")
    return joined(structure), joined(load), [("number-out-of-range", 1, len(load))]
