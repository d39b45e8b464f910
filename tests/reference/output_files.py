"""The two output files, and the one way to write a line into either."""

import os


class FileError(Exception):
    """A file that cannot be created or written; its text names file and cause."""


class OutputFile:
    def __init__(self, path, inputPaths):
        self.path = path
        self.inputPaths = inputPaths
        self.file = None
        self.openError = None

    def open(self):
        """Create or empty the file; a failure is kept until somebody asks or writes."""
        for inputPath in self.inputPaths:
            if os.path.exists(self.path) and os.path.samefile(self.path, inputPath):
                self.openError = FileError("%s: is an input file of this conversion" % self.path)
                return
        try:
            self.file = open(self.path, "wb")
        except OSError as error:
            self.openError = FileError("%s: %s" % (self.path, error.strerror))

    def write(self, text):
        if self.file is None:
            raise self.openError
        try:
            self.file.write(text.encode("ascii"))
        except OSError as error:
            raise FileError("%s: %s" % (self.path, error.strerror)) from error

    def close(self):
        if self.file is None:
            return
        try:
            self.file.close()
        except OSError as error:
            raise FileError("%s: %s" % (self.path, error.strerror)) from error


def output_path(structurePath):
    """The structure path cut at its last point, wherever that stands, with the extension of the model text."""
    point = structurePath.rfind(".")
    if point >= 0:
        structurePath = structurePath[:point]
    return structurePath + ".vkm"
