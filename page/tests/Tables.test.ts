// Rows of the tables.
import assert from "node:assert/strict";
import { test } from "node:test";

import { materialRows, sectionRows, storyRows, thicknessRows } from "../src/model/Tables";
import { testBuilding } from "./TestBuilding";

const kBuilding = testBuilding({
    stories: [1, 2],
    nodes: [
        { number: 1, at: [0, 0, 0] }, { number: 2, at: [6, 0, 0], story: 0 }, { number: 3, at: [6, 0, 4], story: 0 },
        { number: 4, at: [0, 0, 4], story: 1 }, { number: 5, at: [NaN, 0, 0], story: -1 },
    ],
    frames: [
        { number: 1, ends: [1, 2], section: 3, material: 1, story: 0 },
        { number: 2, ends: [2, 3], section: 3, material: 1, story: 0, kind: 1 },
        { number: 3, ends: [1, 5], section: 3, material: 1, story: 1, kind: 2 },
        { number: 4, ends: [1, 2], section: 8, material: 4, story: 1, kind: 3 },
        { number: 5, ends: [1, 2], section: 2, material: 3, story: -1 },
    ],
    planars: [
        { number: 6, nodes: [1, 2, 3, 4], thickness: 2, material: 1, story: 0 },
        { number: 7, nodes: [1, 2, 3], thickness: 2, material: 1, story: 1 },
        { number: 8, nodes: [1, 2, 5], thickness: 7, material: 1, story: 1 },
        { number: 9, nodes: [1, 2, 3], thickness: 4, material: 5, story: 1 },
    ],
    materials: [{ number: 3, type: 2 }, { number: 1 }, { number: 2 }],
    sections: [
        { number: 3, shape: "SB", values: [0.5, 0.2] },
        { number: 2, type: 3, shape: "RBC", further: [10, 8, 4, 4, 1, 1] }, { number: 1, shape: "XX" },
    ],
    thicknesses: [[2, 0.25], [1, 0.5], [4, Infinity]],
});

test("stories count their items by kind, and their own nodes", () => {
    assert.deepEqual(storyRows(kBuilding), [
        { story: 0, counts: [1, 1, 0, 0, 1, 0], nodes: 2 }, { story: 1, counts: [0, 0, 1, 1, 0, 3], nodes: 1 },
    ]);
});

test("sections count their frames and sum their lengths", () => {
    assert.deepEqual(sectionRows(kBuilding), [
        { number: 1, exists: true, count: 0, length: 0, unmeasured: 0 },
        { number: 2, exists: true, count: 1, length: 6, unmeasured: 0 },
        { number: 3, exists: true, count: 3, length: 10, unmeasured: 1 },
        { number: 8, exists: false, count: 1, length: 6, unmeasured: 0 },
    ]);
});

test("thicknesses count walls and plates and sum their areas", () => {
    assert.deepEqual(thicknessRows(kBuilding), [
        { number: 1, value: 0.5, count: 0, area: 0, unmeasured: 0 },
        { number: 2, value: 0.25, count: 2, area: 36, unmeasured: 0 },
        { number: 4, value: Infinity, count: 1, area: 12, unmeasured: 0 },
        { number: 7, value: NaN, count: 1, area: 0, unmeasured: 1 },
    ]);
});

test("materials sum volumes, composite ones concrete and steel", () => {
    const rows = materialRows(kBuilding);
    assert.deepEqual(rows, [
        { number: 1, exists: true, count: 6, volume: 0.1 * 10 + 0.25 * 36, steelVolume: 0, unmeasured: 2 },
        { number: 2, exists: true, count: 0, volume: 0, steelVolume: 0, unmeasured: 0 },
        { number: 3, exists: true, count: 1, volume: (80 - 16) * 6, steelVolume: (16 - 4) * 6, unmeasured: 0 },
        { number: 4, exists: false, count: 1, volume: 0, steelVolume: 0, unmeasured: 1 },
        { number: 5, exists: false, count: 1, volume: 0, steelVolume: 0, unmeasured: 1 },
    ]);
});

test("an empty building has no rows", () => {
    const empty = testBuilding({});
    const tables = [storyRows, sectionRows, thicknessRows, materialRows];
    assert.deepEqual(tables.map((rows) => rows(empty)), [[], [], [], []]);
});
