// Frames as arrays for the graphics card.
import assert from "node:assert/strict";
import { test } from "node:test";

import { frameShapes } from "../src/model/FrameShapes";
import { assertNear } from "./Numbers";
import { testBuilding } from "./TestBuilding";

test("frames with their axes and outlines, relative to the centre", () => {
    const shapes = frameShapes(testBuilding({
        nodes: [{ number: 1, at: [0, 0, 0] }, { number: 2, at: [0, 0, 3000] }, { number: 3, at: [8000, 0, 3000] }],
        frames: [
            { number: 1, ends: [1, 2], section: 20, kind: 1 },
            { number: 2, ends: [2, 3], section: 10 },
            { number: 3, ends: [3, 2], section: 20 },
        ],
        sections: [{ number: 10, shape: "SB", values: [600, 300] }, { number: 20, shape: "SR", values: [400] }],
    }));
    assert.deepEqual([...shapes.drawable], [0, 1, 2]);
    assertNear(shapes.ends, [
        -4000, 0, -1500, -4000, 0, 1500,
        -4000, 0, 1500, 4000, 0, 1500,
        4000, 0, 1500, -4000, 0, 1500,
    ], 0);
    assertNear(shapes.axisY, [0, -1, 0, 0, 1, 0, 0, -1, 0], 0);
    assertNear(shapes.axisZ, [1, 0, 0, 0, 0, 1, 0, 0, 1], 0);
    assert.deepEqual([...shapes.outline], [1, 0, 1]);
    assert.deepEqual(shapes.outlines.map(({ height, width }) => [height, width]), [[600, 300], [400, 400]]);
});

test("what cannot be drawn is left out, and what has no shape is a line", () => {
    const shapes = frameShapes(testBuilding({
        nodes: [
            { number: 1, at: [0, 0, 0] }, { number: 2, at: [4, 0, 0] }, { number: 3, at: [NaN, 0, 0] },
            { number: 4, at: [0, 0, 1e300] }, { number: 5, at: [4, 0, 0] },
        ],
        frames: [
            { number: 1, ends: [1, 3] }, { number: 2, ends: [4, 1] }, { number: 3, ends: [2, 5] },
            { number: 4, ends: [1, 9] }, { number: 5, ends: [1, 2], section: 1 },
            { number: 6, ends: [1, 2], section: 2 }, { number: 7, ends: [1, 2], section: 3 },
        ],
        sections: [{ number: 2, shape: "SB", values: [NaN, 1] }, { number: 3, shape: "SB", values: [2, 1] }],
    }));
    assert.deepEqual([...shapes.drawable], [4, 5, 6]);
    assert.deepEqual([...shapes.outline], [-1, -1, 0]);
    assertNear(shapes.ends.subarray(0, 6), [-2, 0, 0, 2, 0, 0], 0);
    assert.equal(shapes.ends.length, 18);
    assert.equal(shapes.axisY.length, 9);
});

test("coordinates far from the origin stay exact", () => {
    const shapes = frameShapes(testBuilding({
        nodes: [{ number: 1, at: [10000000.25, 9999999.5, 0] }, { number: 2, at: [10000006.25, 10000001.5, 3] }],
        frames: [{ number: 1, ends: [1, 2] }],
    }));
    assertNear(shapes.ends, [-3, -1, -1.5, 3, 1, 1.5], 0);
});

test("the drawn ends have the offsets", () => {
    const shapes = frameShapes(testBuilding({
        nodes: [{ number: 1, at: [-6, 0, 0] }, { number: 2, at: [6, 0, 0] }],
        frames: [{ number: 5, ends: [1, 2] }],
        offsets: [{ element: 5, values: [1, 2, 3, -1, 2, 3] }],
    }));
    assertNear(shapes.ends, [-5, 2, 3, 5, 2, 3], 0);
});
