// What is told about one load.
import assert from "node:assert/strict";
import { test } from "node:test";

import { loadDetail } from "../src/model/LoadDetail";
import { testBuilding } from "./TestBuilding";

const kBuilding = testBuilding({
    stories: [1, 2],
    nodes: [
        { number: 1, at: [0, 0, 0] }, { number: 2, at: [9, 0, 0], story: 1 }, { number: 3, at: [9, 0, 3], story: 1 },
        { number: 4, at: [0, 0, 3] },
    ],
    frames: [{ number: 10, ends: [1, 2], story: 1 }],
    planars: [{ number: 20, nodes: [1, 2, 3, 4], story: 0 }],
    nodalLoads: [
        { standing: 0, node: 2, values: [1, 2, 3, 4, 5, 6] }, { node: 77, values: [0, 0, -1] },
        { node: 1, values: [0, 0, -1] },
    ],
    beamLoads: [
        { standing: 1, element: 10, type: 0, pairs: [[0.25, -7]] },
        { standing: 2, element: 10, type: 1, pairs: [[0, 0], [0.5, -8], [1, 0]] },
        { standing: 0, element: 88, type: 1, pairs: [[0, -1], [1, -2], [0, 0], [0, 3]] },
        { standing: 0, element: 10, type: 1, pairs: [[0, 0], [0, 0]] },
    ],
    edgeLoads: [{ standing: 1, element: 20, edge: 3, value: -15 }, { standing: 0, element: 10, edge: 1, value: 2 }],
});

test("loads are told in the order of nodes, frames, edges", () => {
    assert.equal(kBuilding.loads.count, 9);
    assert.deepEqual(loadDetail(kBuilding, 0), {
        kind: "nodal", isDead: false, item: -1, node: 1, number: 2, edge: 0, values: [1, 2, 3, 4, 5, 6], places: [],
    });
    assert.deepEqual(loadDetail(kBuilding, 1), {
        kind: "nodal", isDead: true, item: -1, node: -1, number: 77, edge: 0, values: [0, 0, -1, 0, 0, 0], places: [],
    });
    assert.deepEqual(loadDetail(kBuilding, 3), {
        kind: "concentrated", isDead: true, item: 0, node: -1, number: 10, edge: 0, values: [-7], places: [0.25],
    });
    assert.deepEqual(loadDetail(kBuilding, 7), {
        kind: "edge", isDead: true, item: 1, node: -1, number: 20, edge: 3, values: [-15], places: [],
    });
});

test("a distributed load has its pairs without the fillers", () => {
    const { kind, isDead, values, places } = loadDetail(kBuilding, 4);
    assert.deepEqual([kind, isDead, places, values], ["distributed", true, [0, 0.5, 1], [0, -8, 0]]);
    assert.deepEqual(loadDetail(kBuilding, 5).values, [-1, -2, 0, 3]);
    assert.deepEqual(loadDetail(kBuilding, 6).places, [0, 0]);
});

test("a missing element is told by its number alone, also where another kind has it", () => {
    assert.deepEqual([loadDetail(kBuilding, 5).item, loadDetail(kBuilding, 5).number], [-1, 88]);
    assert.deepEqual([loadDetail(kBuilding, 8).item, loadDetail(kBuilding, 8).number], [-1, 10]);
});
