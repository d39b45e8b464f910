"""A second, slow and plain implementation of the whole conversion, to compare the real one with.

    python3 reference.py STRUCTURE LOAD [--cancel-at N]

Writes the model text file beside the structure file and satwecvt.msg into the working folder, and prints
one JSON object that tells the result and what the user would have seen. `--cancel-at N` cancels at the
N-th poll of the progress window. `convert` does the same for a caller in this process.
"""

import argparse
import json
import os
import sys

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))

from c_values import InvalidArgument
from physical_lines import count_pieces
from read_model import Reader
from records import Model
from write_model import Writer


class Progress:
    """What the user sees: the progress window's texts and the message boxes."""

    def __init__(self, cancelAt):
        self.cancelAt = cancelAt
        self.stages = ["!!! Read Data File !!!"]
        self.messages = []
        self.steps = 0

    def step_line(self, lineCounter):
        self.steps = self.steps + 1
        if self.steps == self.cancelAt:
            return 0
        return 1

    def set_stage_text(self, text):
        self.stages.append("!!! %s !!!" % text)

    def show_message(self, text):
        self.messages.append(text)


def convert(structure_path, load_path, cancel_at=None):
    """Convert and tell what happened; see the head of this file."""
    total = count_pieces(structure_path) + count_pieces(load_path)
    progress = Progress(cancel_at)
    model = Model()
    reader = Reader(model, progress)
    try:
        result = run(reader, Writer(model, progress), structure_path, load_path)
    except (InvalidArgument, OSError):
        result = 1 if reader.cancelled else -1
    return {
        "result": result,
        "messages": progress.messages,
        "stages": progress.stages,
        "total": total,
        "lineCounter": reader.lineCounter,
        "steps": progress.steps,
    }


def run(reader, writer, structurePath, loadPath):
    """0 written, 1 cancelled, -1 failed."""
    success = reader.read_structure_file(structurePath, loadPath)
    if success and not reader.cancelled and writer.write_model_file(structurePath, loadPath):
        return 0
    if reader.cancelled:
        return 1
    return -1


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("structure")
    parser.add_argument("load")
    parser.add_argument("--cancel-at", type=int)
    arguments = parser.parse_args()
    print(json.dumps(convert(arguments.structure, arguments.load, arguments.cancel_at)))


if __name__ == "__main__":
    main()
