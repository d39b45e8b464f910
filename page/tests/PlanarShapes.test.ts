// Walls and plates as arrays for the graphics card.
import assert from "node:assert/strict";
import { test } from "node:test";

import { planarShapes } from "../src/model/PlanarShapes";
import { assertNear } from "./Numbers";
import { testBuilding } from "./TestBuilding";

const kCube = [
    { number: 1, at: [0, 0, 0] as [number, number, number] }, { number: 2, at: [6, 0, 0] as [number, number, number] },
    { number: 3, at: [6, 0, 4] as [number, number, number] }, { number: 4, at: [0, 0, 4] as [number, number, number] },
    { number: 5, at: [0, 8, 4] as [number, number, number] },
];

test("a wall and a plate, relative to the centre", () => {
    const shapes = planarShapes(testBuilding({
        nodes: kCube,
        planars: [{ number: 1, nodes: [1, 2, 3, 4], thickness: 1 }, { number: 2, nodes: [4, 3, 5], thickness: 2 }],
        thicknesses: [[1, 200], [2, 120]],
    }));
    assert.deepEqual([...shapes.drawable], [0, 1]);
    assertNear(shapes.corners, [
        -3, -4, -2, 3, -4, -2, 3, -4, 2, -3, -4, 2,
        -3, -4, 2, 3, -4, 2, -3, 4, 2, -3, 4, 2,
    ], 0);
    assertNear(shapes.normals, [0, -1, 0, 0, 0, 1], 0);
    assertNear(shapes.halfThickness, [100, 60], 0);
});

test("what cannot be drawn is left out", () => {
    const shapes = planarShapes(testBuilding({
        nodes: [
            ...kCube, { number: 6, at: [3, 0, 0] }, { number: 7, at: [0, Infinity, 0] }, { number: 0, at: [9, 9, 9] },
        ],
        planars: [
            { number: 1, nodes: [1, 2, 3, 99] }, { number: 2, nodes: [1, 2, 7] }, { number: 3, nodes: [1, 6, 2] },
            { number: 4, nodes: [1, 2, 1, 2] }, { number: 5, nodes: [1, 1, 1] }, { number: 6, nodes: [1, 2, 3] },
        ],
    }));
    assert.deepEqual([...shapes.drawable], [5]);
    assert.equal(shapes.corners.length, 12);
    assert.equal(shapes.halfThickness.length, 1);
});

test("a wall of which two corners are one is still drawn", () => {
    const shapes = planarShapes(testBuilding({ nodes: kCube, planars: [{ number: 1, nodes: [1, 2, 3, 3] }] }));
    assert.deepEqual([...shapes.drawable], [0]);
    assertNear(shapes.normals, [0, -1, 0], 0);
});

test("a thickness that is none leaves a surface", () => {
    const shapes = planarShapes(testBuilding({
        nodes: kCube,
        planars: [1, 2, 3, 4, 5, 6].map((thickness) => ({ number: thickness, nodes: [1, 2, 3], thickness })),
        thicknesses: [[1, 0], [2, -5], [3, NaN], [4, Infinity], [5, 3]],
    }));
    assert.equal(shapes.drawable.length, 6);
    assertNear(shapes.halfThickness, [0, 0, 0, 0, 1.5, 0], 0);
});
