// What the start of the converter says.
import assert from "node:assert/strict";
import { test } from "node:test";

import type { Failure } from "../src/convert/Failure";
import { sizeText } from "../src/start/FileSize";
import { failureNote } from "../src/start/Notes";
import { file } from "./FakeConverter";

const kFiles = { structure: file("structure.sat", ""), load: file("load.sat", "") };
const kSentence = "the file ends here (story line 1 of story block 1)";

test("each failure has its sentence", () => {
    const sentences: [Failure, string][] = [
        [{ kind: "refused", place: "structure", line: 30, sentence: kSentence, remarks: [] }, `structure.sat:30: ${kSentence}`],
        [{ kind: "refused", place: "load", line: 0, sentence: "is empty", remarks: [] }, "load.sat: is empty"],
        [{ kind: "refused", place: undefined, line: 0, sentence: "not enough memory", remarks: [] }, "not enough memory"],
        [{ kind: "unreadable", place: "load" }, "load.sat: the browser cannot read this file any more. It was moved, "
            + "deleted or changed: choose it again."],
        [{ kind: "memory" }, "The browser has not enough memory for these files. The program satwecvt converts them."],
        [{ kind: "cancelled" }, "Cancelled; nothing was converted."],
        [{ kind: "broken", reason: "x" }, "The converter stopped unexpectedly: x"],
        [{ kind: "broken", reason: "" }, "The converter stopped unexpectedly: the browser does not say why"],
    ];
    for (const [failure, sentence] of sentences) {
        const note = failureNote(failure, kFiles);
        assert.equal(note.sentence(), sentence);
        assert.equal(note.role, failure.kind === "cancelled" ? "status" : "alert");
    }
});

test("what else was noticed stands below", () => {
    const failure: Failure = {
        kind: "refused", place: "structure", line: 30, sentence: kSentence,
        remarks: [{ place: "structure", line: 0, sentence: "looks like a load file" },
            { place: "load", line: 4, sentence: "is odd" }, { place: undefined, line: 0, sentence: "so is this" }],
    };
    assert.deepEqual(failureNote(failure, kFiles).remarks?.(),
                     ["structure.sat: looks like a load file", "load.sat:4: is odd", "so is this"]);
});

test("names are shown without folders, and never read as more than text", () => {
    const name = "C:\\a\\<b>$1{0}.sat";
    const refused: Failure = { kind: "refused", place: "structure", line: 1, sentence: "{1} $& <i>", remarks: [] };
    assert.equal(failureNote(refused, { ...kFiles, structure: file(name, "") }).sentence(), "<b>$1{0}.sat:1: {1} $& <i>");
});

test("sizes have units that a person compares", () => {
    const sizes: [number, string][] = [
        [0, "0 B"], [9_999, "9,999 B"], [57_312, "57.3 kB"], [120_400, "120 kB"], [12_345_678, "12.3 MB"],
        [1_208_000_000, "1,208 MB"],
    ];
    for (const [bytes, text] of sizes) {
        assert.equal(sizeText(bytes), text);
    }
});
