// Areas of sections, worked out from their dimensions.
import { test } from "node:test";
import assert from "node:assert/strict";

import { SectionType } from "../src/model/Properties";
import { sectionArea } from "../src/model/SectionArea";
import { assertNear } from "./Numbers";

function area(shape: string, values: number[], type = SectionType.User): number[] | undefined {
    const dimensions = Float64Array.from([...values, 0, 0, 0, 0, 0, 0, 0, 0]);
    const found = sectionArea({
        number: 1, type, shape, values: dimensions, composite: new Float64Array(4), further: dimensions,
    });
    return found && [found.area, found.steel];
}

const kAreas: [string, number[], number][] = [
    ["SB", [600, 300], 180000],
    ["SR", [500], Math.PI * 62500],
    ["P", [400, 10], Math.PI * (200 * 200 - 190 * 190)],
    ["H", [400, 200, 8, 13, 300, 17], 200 * 13 + 300 * 17 + 8 * 370],
    ["C", [300, 90, 10, 15, 70, 12], 90 * 15 + 70 * 12 + 10 * 273],
    ["B", [500, 300, 10, 20, 0, 40], 500 * 300 - 280 * 440],
    ["2C", [200, 70, 8, 12, 20], 2 * (2 * 70 * 12 + 8 * 176)],
    ["H2T", [400, 200, 12, 20, 0, 150, 180, 10, 16], 2 * 200 * 20 + 12 * 360 + 2 * (180 * 16 + 10 * 134)],
];

for (const [shape, values, expected] of kAreas) {
    test(`the area of ${shape}`, () => assertNear(area(shape, values) ?? [], [expected, 0], 1e-12));
}

test("composite sections have concrete and steel", () => {
    const pipe = area("EPC", [480, 0, 500, 10], SectionType.Composite);
    assertNear(pipe ?? [], [Math.PI * 240 * 240, Math.PI * (250 * 250 - 240 * 240)], 1e-12);
    const h = 2 * 200 * 13 + 8 * 374;
    assertNear(area("RHB", [700, 500, 400, 200, 8, 13], SectionType.Composite) ?? [], [350000 - h, h], 1e-12);
    const box = area("RBC", [700, 500, 400, 300, 10, 20], SectionType.Composite);
    assertNear(box ?? [], [350000 - 120000, 120000 - 280 * 360], 1e-12);
});

test("a section by values tells its area", () => {
    assert.deepEqual(area("SB", [12345, 7], SectionType.Value), [12345, 0]);
    for (const bad of [0, -1, NaN, Infinity]) {
        assert.equal(area("SB", [bad], SectionType.Value), undefined);
    }
});

test("a section without an outline has no area", () => {
    assert.equal(area("XX", [1, 2, 3]), undefined);
    assert.equal(area("SB", [600, 0]), undefined);
});
