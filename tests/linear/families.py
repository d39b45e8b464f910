"""Hostile inputs of any length: each family puts much of one thing where a careless converter would look at all of it
again and again. A family is a function of the number of lines to make; it yields the two files in pieces."""

import itertools

LINE = 498  # without its newline: the longest line that is not taken in pieces
OFTEN = 20  # a long line stands for so many usual ones


def header(stories=1, sections=1, nodes=1):
    return f"{stories} {sections} {nodes} 0 0\n"


SECTION = "1 1 6 0 300 600 0 0 0 0\n0 0 0 0\n"
STEEL_SECTION = "2 1 5 0 300 600 0 0 0 0\n0 0 0 0\n"
SUPPORT = "1 1 0 0 0 0\n"
GRADES = "3600 30 40 30 25 16\n"
START = header() + SECTION + SUPPORT + "1 1 0\n1\n" + GRADES
NO_LOADS = "0\n"


def corners():
    """Four nodes that any plate or beam may stand on."""
    return "1 11 0 0 0 3600\n2 12 0 6000 0 3600\n3 13 0 6000 5000 3600\n4 14 0 0 5000 3600\n"


def join(*parts):
    return itertools.chain(*([part] if isinstance(part, str) else part for part in parts))


def thicknesses(lines):
    """Every plate has a thickness of its own."""
    plates = (f"{key} 3 0 {key}.5 11 12 13\n" for key in range(1, lines + 1))
    return join(START, f"4 0 0 0 0 {lines}\n", corners(), plates), NO_LOADS


def wall_thicknesses(lines):
    """Every wall has a thickness of its own, and leans, so that each has its line in the log."""
    count = lines // 2
    walls = (f"{key} 2 0 0 0 {key}.5 0 0 0 0\n11 12 13 14\n" for key in range(1, count + 1))
    return join(START, f"4 0 0 0 {count} 0\n", corners(), walls), NO_LOADS


def sections(lines):
    """Every beam has a section of its own, and takes the last definition first."""
    count = lines // 3
    definitions = (f"{key} 1 6 0 {key} 600 0 0 0 0\n0 0 0 0\n" for key in range(1, count + 1))
    beams = (f"{key} 11 12 {count + 1 - key} 0 0 0\n" for key in range(1, count + 1))
    start = join(header(sections=count), definitions, SUPPORT, "1 1 0\n1\n", GRADES, f"4 {count} 0 0 0 0\n", corners())
    return join(start, beams), NO_LOADS


def materials(lines):
    """Every story has a grade of its own for its beam, and a steel member with it."""
    count = lines // 7
    stories = (f"{key} {key} 0\n1\n3600 {key} 40 30 25 16\n1 2 0 0 0 0\n1 {key + 10} 0 0 0 {key}\n"
               f"1 1 {key + 10} 1 0 0 0\n2 1 {key + 10} 2 0 0 0\n" for key in range(1, count + 1))
    return join(header(stories=count, sections=2), SECTION, STEEL_SECTION, SUPPORT, stories), NO_LOADS


def stories(lines):
    """Very many stories, in descending order, with a load for each."""
    count = lines // 6
    blocks = (f"{key} {key} 0\n1\n{GRADES}1 1 0 0 0 0\n1 {key + 10} 0 0 0 {key}\n1 1 {key + 10} 1 0 0 0\n"
              for key in range(count, 0, -1))
    return join(header(stories=count), SECTION, SUPPORT, blocks), ("1\n1 1 1 0 5 1\n" for _ in range(count))


def plate_over_many_lines(lines, tail="", last_tail=""):
    points = (f" {11 + number % 4}{last_tail if number == lines - 1 else ''}\n" for number in range(lines))
    return join(START, "4 0 0 0 0 1\n", corners(), f"1 {lines} 0 120{tail}\n", points), NO_LOADS


def plate_with_tail(lines):
    """The tail stands on the last line of the plate and takes nothing of what was before it."""
    return plate_over_many_lines(lines, last_tail=" NOTE=last")


def plate_cut_by_its_tail(lines):
    """The tail on the first line takes all further lines: the corners never come."""
    return plate_over_many_lines(lines, tail=" NOTE=first")


def plate_with_tail_that_takes_nothing(lines):
    """No blank in front of the sign but the line's first: nothing is cut, and every line asks again."""
    points = (f"\t{11 + number % 4}\tx=1\n" for number in range(lines))
    return join(START, "4 0 0 0 0 1\n", corners(), f"1\t{2 * lines}\t0\t120\n", points), NO_LOADS


def plate_with_commas(lines):
    """One comma rules all lines of the plate together."""
    points = (f",{11 + number % 4}\n" for number in range(lines))
    return join(START, "4 0 0 0 0 1\n", corners(), f"1,{lines},0,120\n", points), NO_LOADS


def story_line_3_repeated(lines):
    return join(START, (GRADES for _ in range(lines)), "1 0 0 0 0 0\n1 11 0 0 0 3600\n"), NO_LOADS


def loads_on_one_story(lines):
    """Every load asks for its beam or wall, the last one first; node loads are among them."""
    count = lines // 3
    beams = (f"{2 * key} 11 12 1 0 0 0\n" for key in range(1, count + 1))
    walls = (f"{2 * key} 2 0 0 0 200 0 0 0 0\n11 12 13 14\n" for key in range(7, count + 1, 7))
    loads = (f"{key} {2 * key} {(22, 1, 2, 3, 4, 11, 12)[key % 7]} {key % 2} 5 100 200 300\n"
             for key in range(count, 0, -1))
    return join(START, f"4 {count} 0 0 {count // 7} 0\n", corners(), beams, walls), join(f"{count}\n", loads)


def one_giant_story(lines):
    """Nodes, beams, columns that are cut in two, braces, walls and plates in one story."""
    count = lines // 9
    numbers = range(1, count + 1)
    return join(
        START, f"{count + 1} {count} {count} {count} {count} {count}\n",
        (f"{key} {key + 10} 0 {key % 300} {key // 300} 3600\n" for key in range(1, count + 2)),
        (f"{key} {key + 10} -{key + 11} 1 {key % 5} 0 0\n0 1 0 0 1 0\n" for key in numbers),
        (f"{key} -1 {key + 10} 1 0 0 0\n0 {count + 12 - key}\n" for key in numbers),
        (f"{key} {key + 10} {count + 12 - key} 1 4 0 0\n" for key in numbers),
        (f"{key} 2 0 0 0 200 0 0 0 0\n{key + 10} {key + 11} 1 1\n" for key in numbers),
        (f"{key} 3 0 120 {key + 10} {key + 11} 1\n" for key in numbers)), NO_LOADS


def comments(lines):
    return ("C nothing but comments\n" for _ in range(lines)), ("c nothing but comments\n" for _ in range(lines))


def full_lines(lines):
    """Lines as long as a line may be, of tokens as short as a token may be."""
    count = lines // OFTEN
    fill = ("5 " * LINE)[:LINE - len("1 11 12 0 ")]
    return (join(START, "4 0 0 0 0 0\n", corners()),
            join(f"{count}\n", (f"1 11 12 0 {fill}\n" for _ in range(count))))


def operators(lines):
    """Every number is a calculation with hundreds of operators."""
    count = lines // OFTEN
    fill = ("1+1*1-1/" * LINE)[:LINE - len("1 11 12 0 ") - 1] + "1"
    return (join(START, "4 0 0 0 0 0\n", corners()),
            join(f"{count}\n", (f"1 11 12 0 {fill}\n" for _ in range(count))))


def reversed_keys(lines):
    """Nodes, beams and plates in descending order of their keys."""
    count = lines // 3
    numbers = range(count, 0, -1)
    return join(START, f"{count} {count} 0 0 0 {count}\n",
                (f"{key} {key + 10} 0 {key % 300} {key // 300} 3600\n" for key in numbers),
                (f"{key} {key + 10} {count + 11 - key} 1 0 0 0\n" for key in numbers),
                (f"{key} 3 0 120 {key + 10} 11 12\n" for key in numbers)), NO_LOADS


FAMILIES = [thicknesses, wall_thicknesses, sections, materials, stories, plate_over_many_lines, plate_with_tail,
            plate_cut_by_its_tail, plate_with_tail_that_takes_nothing, plate_with_commas, story_line_3_repeated,
            loads_on_one_story, one_giant_story, comments, full_lines, operators, reversed_keys]
