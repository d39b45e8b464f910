// Which of two files is which.
import assert from "node:assert/strict";
import { test } from "node:test";

import { FileKind } from "../src/convert/ConverterModule";
import { exchanged, looksExchanged, looksRight, placeOf } from "../src/convert/Pair";

test("two files are told apart where one is a structure file and the other may be a load file", () => {
    const kinds: [FileKind, FileKind, "right" | "exchanged" | "unknown"][] = [
        [FileKind.Structure, FileKind.Load, "right"],
        [FileKind.Load, FileKind.Structure, "exchanged"],
        [FileKind.Structure, FileKind.Structure, "unknown"],
        [FileKind.Load, FileKind.Load, "unknown"],
        [FileKind.Structure, FileKind.Neither, "unknown"],
        [FileKind.Neither, FileKind.Load, "unknown"],
        [FileKind.Neither, FileKind.Structure, "unknown"],
        [FileKind.Load, FileKind.Neither, "unknown"],
        [FileKind.Neither, FileKind.Neither, "unknown"],
    ];
    for (const [structure, load, told] of kinds) {
        const pair = { structure, load };
        assert.deepEqual(
            [looksRight(pair), looksExchanged(pair)], [told === "right", told === "exchanged"], `${structure} ${load}`,
        );
    }
});

test("exchanged files are in each other's place", () => {
    assert.deepEqual(exchanged({ structure: "a", load: "b" }), { structure: "b", load: "a" });
});

test("one file goes to the place that its kind tells", () => {
    assert.equal(placeOf(FileKind.Structure), "structure");
    assert.equal(placeOf(FileKind.Load), "load");
    assert.equal(placeOf(FileKind.Neither), undefined);
});
