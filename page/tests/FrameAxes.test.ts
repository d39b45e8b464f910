// Ends and axes of frames in all directions.
import assert from "node:assert/strict";
import { test } from "node:test";

import { emptyFrameAxes, frameAxes } from "../src/model/FrameAxes";
import { assertNear } from "./Numbers";
import { testBuilding } from "./TestBuilding";

type Three = [number, number, number];

/** Axes x, y, z of a frame between two places, as one list. */
function axesOf(from: Three, to: Three, angle = 0): number[] | undefined {
    const building = testBuilding({
        nodes: [{ number: 1, at: from }, { number: 2, at: to }],
        frames: [{ number: 1, ends: [1, 2], angle }],
    });
    const axes = emptyFrameAxes();
    return frameAxes(building, 0, axes) ? [...axes.axisX, ...axes.axisY, ...axes.axisZ] : undefined;
}

const kRoot = Math.SQRT1_2;

const kFrames: [string, Three, Three, number, number[]][] = [
    ["along x", [0, 0, 0], [6000, 0, 0], 0, [1, 0, 0, 0, 1, 0, 0, 0, 1]],
    ["along -x", [0, 0, 0], [-5, 0, 0], 0, [-1, 0, 0, 0, -1, 0, 0, 0, 1]],
    ["along y", [0, 0, 3], [0, 4, 3], 0, [0, 1, 0, -1, 0, 0, 0, 0, 1]],
    ["along a diagonal of the plan", [0, 0, 0], [1, 1, 0], 0, [kRoot, kRoot, 0, -kRoot, kRoot, 0, 0, 0, 1]],
    ["upward along x", [0, 0, 0], [4, 0, 3], 0, [0.8, 0, 0.6, 0, 1, 0, -0.6, 0, 0.8]],
    ["downward along y", [0, 0, 3], [0, 4, 0], 0, [0, 0.8, -0.6, -1, 0, 0, 0, 0.6, 0.8]],
    ["vertical, upward", [1, 2, 0], [1, 2, 3600], 0, [0, 0, 1, 0, -1, 0, 1, 0, 0]],
    ["vertical, downward", [1, 2, 3600], [1, 2, 0], 0, [0, 0, -1, 0, 1, 0, 1, 0, 0]],
    ["along x, turned by 90", [0, 0, 0], [6000, 0, 0], 90, [1, 0, 0, 0, 0, 1, 0, -1, 0]],
    ["along x, turned by -90", [0, 0, 0], [6000, 0, 0], -90, [1, 0, 0, 0, 0, -1, 0, 1, 0]],
    ["along x, turned by 30", [0, 0, 0], [1, 0, 0], 30, [1, 0, 0, 0, 0.75 ** 0.5, 0.5, 0, -0.5, 0.75 ** 0.5]],
    ["vertical, turned by 90", [0, 0, 0], [0, 0, 1], 90, [0, 0, 1, 1, 0, 0, 0, 1, 0]],
    ["vertical, turned by 360090", [0, 0, 0], [0, 0, 1], 360090, [0, 0, 1, 1, 0, 0, 0, 1, 0]],
];

for (const [name, from, to, angle, expected] of kFrames) {
    test(`a frame ${name}`, () => assertNear(axesOf(from, to, angle) ?? [], expected, 1e-12));
}

test("a frame counts as vertical below a millionth of its length", () => {
    assertNear(axesOf([0, 0, 0], [0, 0.9e-3, 1000]) ?? [], [0, 0.9e-6, 1, 0, -1, 0, 1, 0, 0], 1e-9);
    assertNear(axesOf([0, 0, 0], [0, 1.1e-3, 1000]) ?? [], [0, 1.1e-6, 1, -1, 0, 0, 0, -1, 1.1e-6], 1e-9);
});

test("offsets move the ends, and the axes follow them", () => {
    const building = testBuilding({
        nodes: [{ number: 1, at: [0, 0, 0] }, { number: 2, at: [6000, 0, 0] }],
        frames: [{ number: 7, ends: [1, 2] }, { number: 8, ends: [1, 2] }],
        offsets: [{ element: 7, values: [100, 0, 50, -900, 3000, 4050] }],
    });
    const axes = emptyFrameAxes();
    assert.ok(frameAxes(building, 0, axes));
    assertNear(axes.endI, [100, 0, 50], 0);
    assertNear(axes.endJ, [5100, 3000, 4050], 0);
    const root = Math.sqrt(2);
    assertNear(axes.axisX, [1 / root, 0.6 / root, 0.8 / root], 1e-12);
    assert.ok(frameAxes(building, 1, axes));
    assertNear([...axes.endI, ...axes.endJ], [0, 0, 0, 6000, 0, 0], 0);
});

test("what cannot be drawn has no axes", () => {
    for (const bad of [NaN, Infinity, -Infinity, 1e300]) {
        assert.equal(axesOf([bad, 0, 0], [1, 0, 0]), undefined);
        assert.equal(axesOf([0, 0, 0], [1, bad, 0]), undefined);
    }
    assert.equal(axesOf([1, 2, 3], [1, 2, 3]), undefined, "no length");
    assert.equal(axesOf([0, 0, 0], [1, 0, 0], NaN), undefined);
    assert.equal(axesOf([0, 0, 0], [1, 0, 0], Infinity), undefined);
    assertNear(axesOf([0, 0, 0], [1e11, 0, 0]) ?? [], [1, 0, 0, 0, 1, 0, 0, 0, 1], 0);
});

test("a frame without a node, or with a bad offset, has no axes", () => {
    const building = testBuilding({
        nodes: [{ number: 1, at: [0, 0, 0] }, { number: 2, at: [6, 0, 0] }],
        frames: [{ number: 1, ends: [1, 3] }, { number: 2, ends: [3, 2] }, { number: 3, ends: [1, 2] }],
        offsets: [{ element: 3, values: [0, 0, 0, 0, 0, NaN] }],
    });
    for (const frame of [0, 1, 2]) {
        assert.equal(frameAxes(building, frame, emptyFrameAxes()), false);
    }
});
