"""Physical lines of an input file, by the rules of a Windows text stream on every platform.

CR LF is LF, a lone CR stays, byte 0x1A ends the file. One read gives at most 499 characters, so a longer
line comes in pieces, each a line of its own. A NUL ends the text of its piece, not the piece.
"""

import os

PIECE_LIMIT = 499


class CannotOpen(Exception):
    """The path names no regular file that can be read."""


class LineFile:
    """An input file opened for reading; `position` may be noted and set back."""

    def __init__(self, path):
        if not os.path.isfile(path):
            raise CannotOpen(path)
        try:
            file = open(path, "rb")
        except OSError as error:
            raise CannotOpen(path) from error
        with file:
            content = file.read()  # an OSError from here is a read error: it ends the conversion
        self.text = as_text_stream(content)
        self.position = 0

    def read_piece(self):
        """The next piece with its line end, None at the end of the file."""
        if self.position == len(self.text):
            return None
        piece = ""
        while self.position < len(self.text) and len(piece) < PIECE_LIMIT:
            character = self.text[self.position]
            self.position = self.position + 1
            piece = piece + character
            if character == "\n":
                break
        return piece


def as_text_stream(content):
    """What a Windows text stream delivers for the bytes of a file."""
    end = content.find(b"\x1a")
    if end >= 0:
        content = content[:end]
    return content.replace(b"\r\n", b"\n").decode("latin-1")


def text_of_piece(piece):
    """The text of a piece as a zero-terminated string."""
    end = piece.find("\0")
    if end >= 0:
        piece = piece[:end]
    return piece


def count_pieces(path):
    """Number of successful reads over the whole file; a file that cannot be opened counts 0."""
    try:
        file = LineFile(path)
    except CannotOpen:
        return 0
    count = 0
    while file.read_piece() is not None:
        count = count + 1
    return count
