// Supports, hinges and rigid links.
import assert from "node:assert/strict";
import { test } from "node:test";

import { marks } from "../src/model/Marks";
import { assertNear } from "./Numbers";
import { testBuilding } from "./TestBuilding";

test("supports stand at their nodes", () => {
    const made = marks(testBuilding({
        nodes: [
            { number: 5, at: [0, 0, 0] }, { number: 6, at: [8, 0, 2] }, { number: 7, at: [NaN, 0, 0] },
            { number: 5, at: [4, 0, 0] },
        ],
        supports: [6, 7, 99, 5],
    }));
    assert.deepEqual([...made.supportNode], [1, 3]);
    assertNear(made.supports, [4, 0, 1, 0, 0, -1], 0);
});

test("hinges are a little inside their ends", () => {
    const made = marks(testBuilding({
        nodes: [
            { number: 1, at: [-50, 0, 0] }, { number: 2, at: [50, 0, 0] }, { number: 3, at: [50, 0, 0] },
            { number: 4, at: [0, NaN, 0] },
        ],
        frames: [
            { number: 1, ends: [1, 2] }, { number: 2, ends: [1, 2] }, { number: 3, ends: [2, 1] },
            { number: 4, ends: [1, 2] }, { number: 5, ends: [2, 3] }, { number: 6, ends: [1, 4] },
        ],
        releases: [[1, 1], [2, 2], [3, 1], [3, 2], [4, 0], [5, 3], [6, 3], [99, 3]],
    }));
    assert.deepEqual([...made.hingeFrame], [0, 1, 2, 2]);
    assertNear(made.hinges, [-45, 0, 0, 45, 0, 0, 45, 0, 0, -45, 0, 0]);
});

test("links lead from nodes to offset ends", () => {
    const made = marks(testBuilding({
        nodes: [{ number: 1, at: [-50, 0, 0] }, { number: 2, at: [50, 0, 0] }],
        frames: [{ number: 1, ends: [1, 2] }, { number: 2, ends: [1, 2] }, { number: 3, ends: [1, 7] }],
        offsets: [
            { element: 2, values: [0, 10, 0, 0, 0, -7] }, { element: 1, values: [0, 0, 0, -5, 0, 0] },
            { element: 3, values: [1, 1, 1, 1, 1, 1] },
        ],
    }));
    assert.deepEqual([...made.linkFrame], [0, 1, 1]);
    assertNear(made.links, [
        50, 0, 0, 45, 0, 0,
        -50, 0, 0, -50, 10, 0,
        50, 0, 0, 50, 0, -7,
    ], 0);
});
