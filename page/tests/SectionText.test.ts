// Sections on one line: different sections have different names.
import assert from "node:assert/strict";
import { test } from "node:test";

import { SectionType } from "../src/model/Properties";
import { sectionDimensions, sectionText } from "../src/ui/SectionText";
import { testBuilding, type TestSection } from "./TestBuilding";

function nameOf(section: Omit<TestSection, "number">): string {
    const made = testBuilding({ sections: [{ number: 1, ...section }] }).sections.get(1);
    assert.ok(made);
    return sectionText(made);
}

test("flanges that are alike are written once", () => {
    assert.equal(nameOf({ shape: "H", values: [400, 200, 8, 13, 200, 13] }), "H 400×200×8×13");
    assert.equal(nameOf({ shape: "C", values: [200, 75, 9, 11, 75, 11] }), "C 200×75×9×11");
    assert.equal(nameOf({ shape: "B", values: [300, 250, 10, 12, 0, 12] }), "B 300×250×10×12");
});

test("flanges that differ are all written, also one that is missing", () => {
    assert.equal(nameOf({ shape: "H", values: [400, 200, 8, 13] }), "H 400×200×8×13×0×0");
    assert.equal(nameOf({ shape: "H", values: [400, 200, 8, 13, 150, 13] }), "H 400×200×8×13×150×13");
    assert.equal(nameOf({ shape: "C", values: [200, 0, 9, 0, 75, 11] }), "C 200×0×9×0×75×11");
    assert.equal(nameOf({ shape: "B", values: [300, 250, 10, 12, 0, 14] }), "B 300×250×10×12×14");
});

test("a combined section has all of its eight dimensions", () => {
    const values = [600, 0, 12, 0, 0, 294, 0, 12, 0];
    assert.equal(nameOf({ type: SectionType.Combined, shape: "H2T", values }), "H2T 600×0×12×0×294×0×12×0");
});

test("a composite section has the dimensions of its further line", () => {
    const section = { type: SectionType.Composite, shape: "EPC", further: [380, 0, 400, 10] };
    assert.equal(nameOf(section), "EPC 380×400×10");
});

test("of an unknown shape the values that are not 0 are told", () => {
    assert.equal(nameOf({ shape: "XX", values: [7, 0, 0.5] }), "XX 7×0.5");
    assert.equal(nameOf({ shape: "constructor" }), "constructor");
});

test("bad numbers are told as they are", () => {
    assert.equal(nameOf({ shape: "SB", values: [Number.NaN, Number.POSITIVE_INFINITY] }), "SB nan×inf");
});

test("a section by values has its properties, too", () => {
    const { sections } = testBuilding({
        sections: [{ number: 1, type: SectionType.Value, shape: "SB", values: [2, 3], further: [6, 0, 0, 7, 8, 9] }],
    });
    const [section] = sections.values();
    assert.deepEqual(sectionDimensions(section).map(({ name, value }) => `${name} ${value}`), [
        "height 2", "width 3", "area 6", "inertiaX 7", "inertiaY 8", "inertiaZ 9",
    ]);
});
