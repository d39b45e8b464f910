"""Reads the picture out of a page: its columns by their names, integers, reals and texts (as bytes) in lists."""

import base64
import itertools
import re
import struct


class Bytes:
    """Little-endian values, one behind the other."""

    def __init__(self, data):
        self.data, self.at = data, 0

    def take(self, count):
        taken = self.data[self.at:self.at + count]
        if len(taken) != count:
            raise ValueError(f"{count} bytes are wanted at {self.at}, {len(taken)} are there")
        self.at += count
        return taken

    def values(self, letter, count):
        form = f"<{count}{letter}"
        return list(struct.unpack(form, self.take(struct.calcsize(form))))

    def value(self, letter):
        return self.values(letter, 1)[0]


def sums(steps):
    return [(total + 2**31) % 2**32 - 2**31 for total in itertools.accumulate(steps)]


def by_index(data, letter, count):
    values = data.values("d", data.value("I"))
    return [values[index] for index in data.values(letter, count)]


FORMS = {
    1: lambda data, count: data.values("b", count),
    2: lambda data, count: data.values("h", count),
    3: lambda data, count: data.values("i", count),
    4: lambda data, count: sums(data.values("b", count)),
    5: lambda data, count: sums(data.values("h", count)),
    6: lambda data, count: data.values("d", count),
    7: lambda data, count: by_index(data, "B", count),
    8: lambda data, count: by_index(data, "H", count),
    9: lambda data, count: [data.take(length) for length in data.values("I", count)],
    10: lambda data, count: data.values("i", 1) * count,
    11: lambda data, count: data.values("d", 1) * count,
}


def columns_of(page):
    """The columns of a page, given as bytes."""
    picture = re.findall(rb'<script id="picture" type="text/plain">([^<]*)</script>', page)
    if len(picture) != 1:
        raise ValueError(f"{len(picture)} pictures in the page")
    data = Bytes(base64.b64decode(picture[0], validate=True))
    if (data.take(4), data.value("I")) != (b"SATV", 1):
        raise ValueError("no picture of this version")
    columns = {}
    while data.at < len(data.data):
        name = data.take(data.value("B")).decode("ascii")
        form, count = data.value("B"), data.value("I")
        columns[name] = FORMS[form](data, count)
    return columns
