"""Buildings with something wrong in them: the cases and the frame sample, changed in the ways that a hand, a program or a
disk changes files. Environment: SATWECVT_ROOT is the project."""

import os
import pathlib

ROOT = pathlib.Path(os.environ["SATWECVT_ROOT"])

HOSTILE_TOKENS = [b"0", b"-1", b"2147483647", b"1e20", b"-1e20", b"nan", b"-inf", b"1e999", b"0x1p3", b"1D5", b"3*-2",
                  b"1/0", b"2+3*4", b"-0", b"1e-310", b"0.1", b"1,2", b",", b"N=3", b"=", b"c", b"\t", b"12345678901"]
HOSTILE_BYTES = [b"\x00", b"\r", b"\x1a", b"\n", b"\r\n", b",", b"=", b" ", b"-", b"*", b"E", b"\xff"]


def read(path):
    try:
        return pathlib.Path(path).read_bytes()
    except FileNotFoundError:
        return None


def damage(rng, content):
    """One to four random changes of the kinds that a hand, a program or a disk makes."""
    for _ in range(rng.choice([1, 1, 1, 2, 3, 4])):
        lines = content.split(b"\n")
        at = rng.randrange(len(lines))
        kind = rng.randrange(9)
        if kind < 4:
            tokens = lines[at].split(b" ")
            tokens[rng.randrange(len(tokens))] = rng.choice(HOSTILE_TOKENS)
            lines[at] = b" ".join(tokens)
        elif kind == 4:
            where = rng.randrange(len(lines[at]) + 1)
            lines[at] = lines[at][:where] + rng.choice(HOSTILE_BYTES) + lines[at][where:]
        elif kind == 5:
            lines.insert(at, lines[rng.randrange(len(lines))])
        elif kind == 6:
            del lines[at]
        elif kind == 7:
            lines[at] = b" ".join([lines[at]] * rng.choice([2, 5, 40]))
        else:
            other = rng.randrange(len(lines))
            lines[at], lines[other] = lines[other], lines[at]
        content = b"\n".join(lines)
        if not content:
            break
        if rng.random() < 0.05:
            content = content[: rng.randrange(len(content) + 1)]
    return content


def inputs_of(folder):
    return read(folder / "structure.sat"), read(folder / "load.sat")


def starting_points():
    """Small inputs, so that a damage meets something that counts."""
    cases = [inputs_of(folder) for folder in sorted((ROOT / "tests" / "cases").iterdir())]
    whole = [case for case in cases if None not in case and all(len(part) < 6000 for part in case)]
    return whole + [inputs_of(ROOT / "samples" / "frame")] * (len(whole) // 4)


def damaged_buildings(rng, count):
    """Pairs of a structure and a load file; None stands for a missing one."""
    points = starting_points()
    for _ in range(count):
        structure, load = rng.choice(points)
        if rng.random() < 0.75 and structure:
            structure = damage(rng, structure)
        else:
            load = damage(rng, load)
        yield structure, load
