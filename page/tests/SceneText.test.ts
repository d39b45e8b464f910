// Everything that is drawn, as numbers in absolute coordinates.
import assert from "node:assert/strict";
import { test } from "node:test";

import { sceneText } from "../src/model/SceneText";
import { testBuilding } from "./TestBuilding";

const kBuilding = testBuilding({
    nodes: [
        { number: 1, at: [100, 0, 0] }, { number: 2, at: [100, 0, 40] }, { number: 3, at: [200, 0, 40] },
        { number: 4, at: [200, 80, 40] }, { number: 9, at: [NaN, 0, 0] },
    ],
    frames: [
        { number: 1, ends: [2, 3], section: 1 }, { number: 2, ends: [1, 2], section: 2, kind: 1 },
        { number: 3, ends: [1, 9], section: 1 },
    ],
    planars: [{ number: 4, nodes: [2, 3, 4], thickness: 1 }, { number: 5, nodes: [2, 3, 9] }],
    sections: [{ number: 1, shape: "SB", values: [20, 10] }],
    thicknesses: [[1, 3]],
    supports: [1],
    releases: [[1, 2]],
    offsets: [{ element: 2, values: [8, 0, 0, 8, 0, 0] }],
    nodalLoads: [
        { standing: 1, node: 3, values: [0, 0, -2] }, { standing: 0, node: 3, values: [0, 0, 0, 5, 0, 0] },
        { standing: 1, node: 1, values: [0, 0, 1, 0, 0, -5] },
    ],
    beamLoads: [{ standing: 0, element: 1, type: 1, pairs: [[0, -4], [0.5, 0]] }],
    findings: [{}],
    lost: [{ finding: 0, corners: [[1, 2, 3], [4, 5, 6]] }, { finding: 0, corners: [[1, 2, 3], [NaN, 5, 6]] }],
    lostLoads: [
        { finding: 0, ends: [1, 2, 3, 4, 5, 6], values: [-7, NaN] },
        { finding: 0, ends: [1, 2, 3, 4, 5, Infinity], values: [-7, -7] },
    ],
});

/** Text of numbers that is the same whatever the last bits are. */
function rounded(value: unknown): unknown {
    return JSON.parse(JSON.stringify(value, (_, part: unknown) =>
        typeof part === "number" ? Math.round(part * 1000) / 1000 + 0 : part));
}

test("nodes, supports, hinges and links", () => {
    const scene = sceneText(kBuilding);
    assert.deepEqual(scene.nodes, [
        { number: 1, at: [100, 0, 0] }, { number: 2, at: [100, 0, 40] }, { number: 3, at: [200, 0, 40] },
        { number: 4, at: [200, 80, 40] },
    ]);
    assert.deepEqual(scene.supports, [{ number: 1, at: [100, 0, 0] }]);
    assert.deepEqual(rounded(scene.hinges), [{ number: 1, at: [195, 0, 40] }]);
    assert.deepEqual(scene.links, [
        { number: 2, from: [100, 0, 0], to: [108, 0, 0] }, { number: 2, from: [100, 0, 40], to: [108, 0, 40] },
    ]);
});

test("frames with their outlines at both ends", () => {
    const { frames } = sceneText(kBuilding);
    assert.deepEqual(frames[0], {
        number: 1,
        ends: [[100, 0, 40], [200, 0, 40]],
        axisY: [0, 1, 0],
        axisZ: [0, 0, 1],
        outline: [{
            role: "whole",
            loops: [{
                i: [[100, -5, 30], [100, 5, 30], [100, 5, 50], [100, -5, 50]],
                j: [[200, -5, 30], [200, 5, 30], [200, 5, 50], [200, -5, 50]],
            }],
        }],
    });
    assert.deepEqual(rounded(frames.slice(1)), [
        { number: 2, ends: [[108, 0, 0], [108, 0, 40]], axisY: [0, -1, 0], axisZ: [1, 0, 0], outline: [] },
    ]);
});

test("plates with their thickness", () => {
    const { planars } = sceneText(kBuilding);
    const corners = [[100, 0, 40], [200, 0, 40], [200, 80, 40], [200, 80, 40]];
    assert.deepEqual(planars, [{ number: 4, corners, thickness: 3 }]);
});

test("loads of each choice", () => {
    // The centre is 150, 40, 20; the radius, sqrt(50² + 40² + 20²), is 67.082; a sixth of it 11.180.
    const { dead, live, both } = sceneText(kBuilding).loads;
    const down = { load: 0, tail: [200, 0, 51.18], head: [200, 0, 40] };
    const up = { load: 2, tail: [100, 0, -5.59], head: [100, 0, 0] };
    const liveMoment = { load: 1, at: [200, 0, 40], vector: [11.18, 0, 0] };
    const deadMoment = { load: 2, at: [100, 0, 0], vector: [0, 0, -11.18] };
    const area = { load: 3, corners: [[100, 0, 40], [150, 0, 40], [100, 0, 51.18]] };
    assert.deepEqual(rounded(dead), { arrows: [down, up], moments: [deadMoment], areas: [] });
    assert.deepEqual(rounded(live), { arrows: [], moments: [liveMoment], areas: [area] });
    assert.deepEqual(rounded(both), { arrows: [down, up], moments: [liveMoment, deadMoment], areas: [area] });
});

test("what was lost, as far as it has a place", () => {
    const { lost, lostLoads } = sceneText(kBuilding);
    assert.deepEqual(lost, [{ finding: 0, corners: [[1, 2, 3], [4, 5, 6]] }]);
    assert.deepEqual(lostLoads, [{ finding: 0, from: [1, 2, 3], to: [4, 5, 6], values: [-7, null] }]);
});

test("the text of a hostile building has no number that JSON does not have", () => {
    const text = JSON.stringify(sceneText(testBuilding({
        nodes: [{ number: 1, at: [0, 0, 0] }, { number: 2, at: [1e11, 0, 0] }, { number: 3, at: [0, Infinity, NaN] }],
        frames: [{ number: 1, ends: [1, 2], section: 1 }, { number: 2, ends: [2, 3] }, { number: 3, ends: [1, 1] }],
        planars: [{ number: 4, nodes: [1, 1, 2, 2] }, { number: 5, nodes: [1, 2, 3] }],
        sections: [{ number: 1, shape: "H", values: [1e12, NaN, 1, 1, 1, 1] }],
        nodalLoads: [{ node: 1, values: [1e300, NaN, 0] }, { node: 2, values: [1e-300, 0, 1e300, 5e-324, 0, 0] }],
        beamLoads: [{ element: 1, type: 1, pairs: [[0, 5e-324], [1, 1e300], [-1e300, 3]] }],
    })));
    assert.equal(text.includes("null"), false);
    assert.ok(text.includes('"frames":[{"number":1,'));
});
