// Loads as arrows and areas.
import assert from "node:assert/strict";
import { test } from "node:test";

import type { Building } from "../src/model/Building";
import { loadScale, loadShapes, usualLoadSize } from "../src/model/LoadShapes";
import { assertNear } from "./Numbers";
import { testBuilding, type TestParts } from "./TestBuilding";

/** A beam from -50 to 50 along x, a column up to 60, and a wall below the beam, 40 high; the centre is the origin. */
function building(loads: Pick<TestParts, "nodalLoads" | "beamLoads" | "edgeLoads">): Building {
    return testBuilding({
        nodes: [
            { number: 1, at: [-50, 0, 0] }, { number: 2, at: [50, 0, 0] }, { number: 3, at: [-50, 0, 60] },
            { number: 4, at: [-50, 0, -60] }, { number: 5, at: [50, 0, -40] }, { number: 6, at: [-50, 0, -40] },
            { number: 8, at: [0, NaN, 0] },
        ],
        frames: [
            { number: 10, ends: [1, 2] }, { number: 11, ends: [1, 3], kind: 1 }, { number: 12, ends: [1, 8] },
            { number: 13, ends: [1, 99] },
        ],
        planars: [
            { number: 20, nodes: [6, 5, 2, 1] }, { number: 21, nodes: [6, 5, 2] }, { number: 22, nodes: [6, 5, 2, 8] },
        ],
        ...loads,
    });
}

const kDown = { element: 10, type: 1 };

test("forces end where they act, and are as long as they are large", () => {
    const shapes = loadShapes(building({
        nodalLoads: [
            { node: 2, values: [0, 0, -30] }, { node: 3, values: [12, 0, -9] }, { node: 1, values: [0, 0, 6] },
        ],
    }), "dead", 10);
    assert.equal(shapes.largestForce, 30);
    assert.deepEqual([...shapes.arrowLoad], [0, 1, 2]);
    assertNear(shapes.arrows, [
        50, 0, 10, 50, 0, 0,
        -54, 0, 63, -50, 0, 60,
        -50, 0, -2, -50, 0, 0,
    ]);
    assert.equal(shapes.moments.length, 0);
    assert.equal(shapes.largestIntensity, 0);
});

test("moments are vectors at their nodes", () => {
    const shapes = loadShapes(building({
        nodalLoads: [{ node: 2, values: [0, 0, 0, 3, -4, 0] }, { node: 1, values: [0, 0, -1, 0, 0, 2.5] }],
    }), "dead", 10);
    assert.equal(shapes.largestMoment, 5);
    assert.deepEqual([...shapes.momentLoad], [0, 1]);
    assertNear(shapes.moments, [50, 0, 0, 6, -8, 0, -50, 0, 0, 0, 0, 5]);
    assertNear(shapes.arrows, [-50, 0, 10, -50, 0, 0]);
    assert.deepEqual([...shapes.arrowLoad], [1]);
});

test("the scale is that of the shapes", () => {
    const own = building({
        nodalLoads: [{ node: 2, values: [0, 3, -4, 0, 0, 6] }, { node: 99, values: [0, 0, -90] }],
        beamLoads: [{ ...kDown, pairs: [[0, -7], [1, 2]] }, { standing: 0, element: 10, type: 0, pairs: [[0.5, -40]] }],
    });
    const scale = { largestForce: 5, largestMoment: 6, largestIntensity: 7, leftOut: 1 };
    assert.deepEqual(loadScale(own, "dead"), scale);
    const { largestForce, largestMoment, largestIntensity, leftOut } = loadShapes(own, "dead", 10);
    assert.deepEqual({ largestForce, largestMoment, largestIntensity, leftOut }, scale);
    assert.deepEqual(loadScale(own, "live"), { largestForce: 40, largestMoment: 0, largestIntensity: 0, leftOut: 0 });
});

test("a concentrated load acts at its fraction of the length", () => {
    const shapes = loadShapes(building({
        nodalLoads: [{ node: 2, values: [0, 0, -10] }],
        beamLoads: [
            { element: 10, type: 0, pairs: [[0.25, -20]] }, { element: 11, type: 0, pairs: [[0.5, 5]] },
            { element: 10, type: 0, pairs: [[1, 0]] },
        ],
    }), "dead", 8);
    assert.deepEqual([...shapes.arrowLoad], [0, 1, 2]);
    assertNear(shapes.arrows, [50, 0, 4, 50, 0, 0, -25, 0, 8, -25, 0, 0, -50, 0, 28, -50, 0, 30]);
    assert.equal(shapes.leftOut, 0);
});

test("a uniform load is a rectangle on top of its line", () => {
    const shapes = loadShapes(building({ beamLoads: [{ ...kDown, pairs: [[0, -8], [1, -8]] }] }), "dead", 30);
    assert.equal(shapes.largestIntensity, 8);
    assertNear(shapes.areas, [-50, 0, 0, 50, 0, 0, 50, 0, 30, -50, 0, 0, 50, 0, 30, -50, 0, 30]);
    assert.deepEqual([...shapes.areaLoad], [0, 0]);
    assertNear(shapes.outlines, [-50, 0, 30, 50, 0, 30, -50, 0, 0, -50, 0, 30, 50, 0, 0, 50, 0, 30]);
    assert.deepEqual([...shapes.outlineLoad], [0, 0, 0]);
});

test("a triangle stands on its part of the line, and fillers draw nothing", () => {
    const pairs: [number, number][] = [[0.25, 0], [0.5, -8], [0.75, 0]];
    const shapes = loadShapes(building({ beamLoads: [{ ...kDown, pairs }] }), "dead", 4);
    assertNear(shapes.areas, [-25, 0, 0, 0, 0, 0, 0, 0, 4, 0, 0, 0, 25, 0, 0, 0, 0, 4]);
    assertNear(shapes.outlines, [
        -25, 0, 0, 0, 0, 4, 0, 0, 0, 0, 0, 4,
        0, 0, 4, 25, 0, 0, 0, 0, 0, 0, 0, 4,
    ]);
});

test("a trapezoid has three pieces", () => {
    const pairs: [number, number][] = [[0, 0], [0.2, -6], [0.8, -6], [1, 0]];
    const shapes = loadShapes(building({ beamLoads: [{ ...kDown, pairs }] }), "dead", 12);
    assertNear(shapes.areas, [
        -50, 0, 0, -30, 0, 0, -30, 0, 12,
        -30, 0, 0, 30, 0, 0, 30, 0, 12, -30, 0, 0, 30, 0, 12, -30, 0, 12,
        30, 0, 0, 50, 0, 0, 30, 0, 12,
    ]);
});

test("a load that acts up hangs below, and one that changes its sign is on both sides", () => {
    const up = loadShapes(building({ beamLoads: [{ ...kDown, pairs: [[0, 3], [1, 3]] }] }), "dead", 6);
    assertNear(up.areas, [-50, 0, 0, 50, 0, 0, 50, 0, -6, -50, 0, 0, 50, 0, -6, -50, 0, -6]);
    const both = loadShapes(building({ beamLoads: [{ ...kDown, pairs: [[0, -3], [1, 1]] }] }), "dead", 6);
    assertNear(both.areas, [25, 0, 0, 50, 0, 0, 50, 0, -2, -50, 0, 0, 25, 0, 0, -50, 0, 6]);
});

test("the loads of a choice share one scale", () => {
    const shapes = loadShapes(building({
        beamLoads: [{ ...kDown, pairs: [[0, -2], [0.5, -2]] }],
        edgeLoads: [{ element: 20, edge: 1, value: -8 }],
    }), "dead", 40);
    assertNear(shapes.areas.subarray(0, 9), [-50, 0, 0, 0, 0, 0, 0, 0, 10]);
    assertNear(shapes.areas.subarray(18, 27), [-50, 0, -40, 50, 0, -40, 50, 0, 0]);
    assert.deepEqual([...shapes.areaLoad], [0, 0, 1, 1]);
});

test("each edge of a wall lies between its corners", () => {
    const from = [1, 2, 3, 4].map((edge) => {
        const shapes = loadShapes(building({ edgeLoads: [{ element: 20, edge, value: -5 }] }), "dead", 1);
        return [...shapes.areas.subarray(0, 6)];
    });
    assert.deepEqual(from, [
        [-50, 0, -40, 50, 0, -40], [50, 0, -40, 50, 0, 0], [50, 0, 0, -50, 0, 0], [-50, 0, 0, -50, 0, -40],
    ]);
    const plate = loadShapes(building({ edgeLoads: [{ element: 21, edge: 3, value: -5 }] }), "dead", 1);
    assertNear(plate.areas.subarray(0, 6), [50, 0, 0, -50, 0, -40]);
});

test("a few arrows stand in an area", () => {
    const shapes = loadShapes(building({ beamLoads: [{ ...kDown, pairs: [[0, -8], [1, -8]] }] }), "dead", 50);
    assertNear(shapes.areaArrows, [-50, 0, 50, -50, 0, 0, 0, 0, 50, 0, 0, 0, 50, 0, 50, 50, 0, 0]);
    assert.deepEqual([...shapes.areaArrowLoad], [0, 0, 0]);
    const many = loadShapes(building({ beamLoads: [{ ...kDown, pairs: [[0, -8], [1, -8]] }] }), "dead", 1);
    assert.equal(many.areaArrowLoad.length, 12);
    const slope = loadShapes(building({ beamLoads: [{ ...kDown, pairs: [[0, 0], [1, -8]] }] }), "dead", 40);
    assertNear(slope.areaArrows.filter((_, i) => i % 6 === 2), [40 / 3, 80 / 3, 40]);
});

test("loads act on the drawn line of a frame with offsets", () => {
    const shapes = loadShapes(testBuilding({
        nodes: [{ number: 1, at: [-50, 0, 0] }, { number: 2, at: [50, 0, 0] }],
        frames: [{ number: 10, ends: [1, 2] }],
        offsets: [{ element: 10, values: [0, 20, 0, 0, 20, 0] }],
        beamLoads: [{ element: 10, type: 0, pairs: [[0.5, -1]] }],
    }), "dead", 5);
    assertNear(shapes.arrows, [0, 20, 5, 0, 20, 0]);
});

test("a choice has its own loads", () => {
    const nodalLoads = [0, 1, 2].map((standing) => ({ standing, node: 2, values: [0, 0, -1] }));
    const chosen = (choice: "dead" | "live" | "both"): number[] =>
        [...loadShapes(building({ nodalLoads }), choice, 1).arrowLoad];
    assert.deepEqual(chosen("dead"), [1, 2]);
    assert.deepEqual(chosen("live"), [0]);
    assert.deepEqual(chosen("both"), [0, 1]);
});

test("what cannot be drawn is left out and counted", () => {
    const shapes = loadShapes(building({
        nodalLoads: [
            { node: 99, values: [0, 0, -1] }, { node: 8, values: [0, 0, -1] }, { node: 2, values: [0, 0, NaN] },
            { node: 2, values: [Infinity, 0, -1] }, { node: 2, values: [0, 0, -1, 0, NaN] },
        ],
        beamLoads: [
            { element: 99, type: 0, pairs: [[0.5, -1]] }, { element: 12, type: 0, pairs: [[0.5, -1]] },
            { element: 13, type: 0, pairs: [[0.5, -1]] }, { element: 10, type: 0, pairs: [[NaN, -1]] },
            { element: 10, type: 0, pairs: [[-1e300, -1]] }, { ...kDown, pairs: [[0, -1], [1, NaN]] },
            { ...kDown, pairs: [[0, -1], [Infinity, -1]] },
        ],
        edgeLoads: [
            { element: 99, edge: 1, value: -1 }, { element: 20, edge: 0, value: -1 },
            { element: 20, edge: 5, value: -1 }, { element: 21, edge: 4, value: -1 },
            { element: 20, edge: 1, value: NaN }, { element: 22, edge: 3, value: -1 },
        ],
    }), "both", 1);
    assert.equal(shapes.leftOut, 18);
    assert.equal(shapes.arrowLoad.length + shapes.momentLoad.length + shapes.areaLoad.length, 0);
    assert.equal(shapes.areaArrowLoad.length + shapes.outlineLoad.length, 0);
});

test("loads of 0, and of no length, draw nothing and are not left out", () => {
    const shapes = loadShapes(building({
        nodalLoads: [{ node: 2, values: [0, -0, 0] }],
        beamLoads: [
            { element: 10, type: 0, pairs: [[0.5, -0]] }, { ...kDown, pairs: [[0, 0], [1, 0]] },
            { ...kDown, pairs: [[0.5, -3], [0.5, -3]] },
        ],
        edgeLoads: [{ element: 20, edge: 3, value: 0 }],
    }), "dead", 1);
    assert.equal(shapes.leftOut, 0);
    assert.equal(shapes.arrowLoad.length + shapes.areaLoad.length + shapes.outlineLoad.length, 0);
});

test("very large loads keep their size", () => {
    const shapes = loadShapes(building({
        nodalLoads: [{ node: 2, values: [3e299, 0, -4e299] }],
        beamLoads: [{ ...kDown, pairs: [[0, -1e300], [1, 0]] }],
    }), "dead", 10);
    assertNear(shapes.arrows, [44, 0, 8, 50, 0, 0]);
    assertNear(shapes.areas, [-50, 0, 0, 50, 0, 0, -50, 0, 10]);
});

test("the usual size is a third of a frame, or a sixth of the radius where that is less", () => {
    const beam = (length: number): Building => testBuilding({
        nodes: [{ number: 1, at: [0, 0, 0] }, { number: 2, at: [length, 0, 0] }, { number: 3, at: [0, 240, 0] }],
        frames: [{ number: 1, ends: [1, 2] }, { number: 2, ends: [1, 9] }],
    });
    assert.equal(usualLoadSize(beam(15)), 5);
    assertNear([usualLoadSize(beam(100))], [Math.hypot(50, 120) / 6], 1e-12);
    assert.equal(usualLoadSize(testBuilding({})), 1 / 6);
});
