"""Reads a dialog template of the extended kind, DLGTEMPLATEEX, as it lies in the resources of a .dll or an .exe.

Every field is kept and every byte accounted for, so that two templates with equal fields make the same dialog.
"""

import collections
import struct

DS_SETFONT = 0x40
VERSION_AND_SIGNATURE = (1, 0xFFFF)  # of the extended kind
NUMBER_FOLLOWS = 0xFFFF

Font = collections.namedtuple("Font", "size weight italic charset face")
Dialog = collections.namedtuple(
    "Dialog", "help_id extended_style style x y width height menu window_class title font controls")
Control = collections.namedtuple(
    "Control", "help_id extended_style style x y width height id window_class title extra")


class Bits(int):
    """A style, shown as it is written in the headers of Windows."""

    def __repr__(self):
        return f"{self:#010x}"


class NoTemplate(Exception):
    pass


class Reader:
    def __init__(self, data):
        self.data = data
        self.offset = 0

    def take(self, layout):
        layout = "<" + layout
        if self.offset + struct.calcsize(layout) > len(self.data):
            raise NoTemplate(f"ends within a field, at {self.offset}")
        values = struct.unpack_from(layout, self.data, self.offset)
        self.offset += struct.calcsize(layout)
        return values if len(values) > 1 else values[0]

    def align(self):
        """Skips the padding before what begins at a multiple of four."""
        while self.offset % 4 != 0 and self.offset < len(self.data):
            if self.take("B") != 0:
                raise NoTemplate(f"padding that is not empty, at {self.offset - 1}")

    def text(self):
        units = []
        while (unit := self.take("H")) != 0:
            units.append(unit)
        return struct.pack(f"<{len(units)}H", *units).decode("utf-16-le")

    def text_or_number(self):
        """Names a menu, a window class or a title. "" is also the lack of one: the bytes are the same."""
        start = self.offset
        if self.take("H") == NUMBER_FOLLOWS:
            return self.take("H")
        self.offset = start
        return self.text()

    def window_class(self):
        """In small letters: Windows does not tell classes apart by case, and windres writes capitals."""
        name = self.text_or_number()
        return name.lower() if isinstance(name, str) else name


def read_dialog(data):
    reader = Reader(data)
    if reader.take("HH") != VERSION_AND_SIGNATURE:
        raise NoTemplate("not of the extended kind")
    help_id, extended_style, style = reader.take("III")
    count, *place = reader.take("Hhhhh")
    menu, window_class, title = reader.text_or_number(), reader.window_class(), reader.text()
    font = None
    if style & DS_SETFONT:
        font = Font(*reader.take("HHBB"), reader.text())
    controls = [read_control(reader) for _ in range(count)]
    reader.align()
    if reader.offset != len(data):
        raise NoTemplate(f"goes on after its last control, at {reader.offset}")
    return Dialog(help_id, Bits(extended_style), Bits(style), *place, menu, window_class, title, font, controls)


def read_control(reader):
    reader.align()
    help_id, extended_style, style = reader.take("III")
    *place, control_id = reader.take("hhhhi")
    window_class, title = reader.window_class(), reader.text_or_number()
    extra = bytes(reader.take("B") for _ in range(reader.take("H")))
    return Control(help_id, Bits(extended_style), Bits(style), *place, control_id, window_class, title, extra)
