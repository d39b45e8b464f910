// What findings are about, where things are, and what a query finds.
import assert from "node:assert/strict";
import { test } from "node:test";

import { findingBox, findingPlace, itemBox, nodeBox, placeBox, storyBox } from "../src/model/Places";
import { findItem } from "../src/model/Search";
import { testBuilding } from "./TestBuilding";

const kBuilding = testBuilding({
    stories: [3, 4],
    nodes: [
        { number: 1, at: [0, 0, 0] }, { number: 2, at: [6, 0, 0], story: 0 }, { number: 3, at: [6, 5, 0], story: 0 },
        { number: 4, at: [0, 5, 3], story: 1 }, { number: 5, at: [NaN, 0, 0] }, { number: 6, at: [-9, 0, 0], story: 1 },
    ],
    frames: [
        { number: 10, ends: [1, 2], key: 12 }, { number: 11, ends: [2, 5], key: 13, kind: 1 },
        { number: 12, ends: [5, 99], key: 14 }, { number: 30, ends: [3, 4], key: 12, story: 1, kind: 2 },
    ],
    planars: [
        { number: 20, nodes: [1, 2, 3], key: 12 }, { number: 21, nodes: [1, 3, 4], key: 12 },
        { number: 22, nodes: [1, 2, 3, 4], key: 12 }, { number: 30, nodes: [1, 2, 3], key: 12, story: 1 },
    ],
    offsets: [{ element: 10, values: [0, 0, 1, 0, 0, 2] }],
    findings: [
        { object: 1, element: 10 }, { object: 5, element: 21 }, { object: 3, element: 30 }, { object: 4, element: 25 },
        { object: 1, element: 0 }, { object: 6, key: 3 }, { object: 6, key: 77, story: 1 }, { object: 0 },
        { object: 9, element: 22 }, { object: 4, element: 30, story: 0 }, { object: 8, story: 1 },
    ],
    lost: [{ finding: 3, corners: [[1, 1, 1], [2, 3, 4]] }, { finding: 3, corners: [[0, 9, 0], [NaN, 0, 0]] }],
    lostLoads: [{ finding: 4, ends: [1, 2, 3, 1, 2, 5], values: [-1, -1] }],
});

test("a finding goes to its element, a plate's to its whole slab", () => {
    assert.deepEqual(findingPlace(kBuilding, 0), { kind: "items", items: [0] });
    assert.deepEqual(findingPlace(kBuilding, 1), { kind: "items", items: [4, 5] });
    assert.deepEqual(findingPlace(kBuilding, 2), { kind: "items", items: [3] });
    assert.deepEqual(findingPlace(kBuilding, 8), { kind: "items", items: [6] });
});

test("a finding without its element goes to what was lost, its node, its story or nowhere", () => {
    assert.deepEqual(findingPlace(kBuilding, 3), { kind: "lostShapes", lost: [0, 1] });
    assert.deepEqual(findingPlace(kBuilding, 4), { kind: "lostLoads", lost: [0] });
    assert.deepEqual(findingPlace(kBuilding, 5), { kind: "node", node: 2 });
    assert.deepEqual(findingPlace(kBuilding, 6), { kind: "story", story: 1 });
    assert.deepEqual(findingPlace(kBuilding, 7), { kind: "nowhere" });
    assert.deepEqual(findingPlace(kBuilding, 9), { kind: "story", story: 0 }, "another kind has the number");
    assert.deepEqual(findingPlace(kBuilding, 10), { kind: "story", story: 1 });
});

test("boxes of items hold nodes and drawn ends", () => {
    assert.deepEqual(itemBox(kBuilding, 0), { min: [0, 0, 0], max: [6, 0, 2] });
    assert.deepEqual(itemBox(kBuilding, 1), { min: [6, 0, 0], max: [6, 0, 0] });
    assert.equal(itemBox(kBuilding, 2), undefined);
    assert.deepEqual(itemBox(kBuilding, 5), { min: [0, 0, 0], max: [6, 5, 3] });
    assert.deepEqual(placeBox(kBuilding, { kind: "items", items: [0, 3] }), { min: [0, 0, 0], max: [6, 5, 3] });
});

test("boxes of nodes, stories and findings", () => {
    assert.deepEqual(nodeBox(kBuilding, 3), { min: [0, 5, 3], max: [0, 5, 3] });
    assert.equal(nodeBox(kBuilding, 4), undefined);
    assert.equal(nodeBox(kBuilding, -1), undefined);
    assert.deepEqual(storyBox(kBuilding, 0), { min: [0, 0, 0], max: [6, 5, 3] });
    assert.deepEqual(storyBox(kBuilding, 1), { min: [-9, 0, 0], max: [6, 5, 3] });
    assert.equal(storyBox(kBuilding, 7), undefined);
    assert.deepEqual(storyBox(kBuilding, 0, 1), { min: [-9, 0, 0], max: [6, 5, 3] });
    assert.deepEqual(storyBox(kBuilding, 1, 9), storyBox(kBuilding, 1));
    assert.equal(storyBox(kBuilding, 1, 0), undefined);
    assert.deepEqual(findingBox(kBuilding, 3), { min: [0, 1, 0], max: [2, 9, 4] });
    assert.deepEqual(findingBox(kBuilding, 4), { min: [1, 2, 3], max: [1, 2, 5] });
    assert.equal(findingBox(kBuilding, 7), undefined);
});

test("a query finds elements by number, also when several have it", () => {
    assert.deepEqual(findItem(kBuilding, "10"), { kind: "items", items: [0] });
    assert.deepEqual(findItem(kBuilding, "  30 "), { kind: "items", items: [3, 7] });
    assert.equal(findItem(kBuilding, "99"), undefined);
    assert.equal(findItem(kBuilding, "99999999999999999999"), undefined);
});

test("a query finds nodes", () => {
    assert.deepEqual(findItem(kBuilding, "n3"), { kind: "node", node: 2 });
    assert.deepEqual(findItem(kBuilding, " N 5"), { kind: "node", node: 4 });
    assert.equal(findItem(kBuilding, "n77"), undefined);
});

test("a query finds all with a key in a story", () => {
    assert.deepEqual(findItem(kBuilding, "3/12"), { kind: "items", items: [0, 4, 5, 6] });
    assert.deepEqual(findItem(kBuilding, "4 / 12"), { kind: "items", items: [3, 7] });
    assert.equal(findItem(kBuilding, "3/99"), undefined);
    assert.equal(findItem(kBuilding, "0/12"), undefined);
});

test("other texts find nothing", () => {
    for (const text of ["", " ", "n", "x10", "10a", "1.5", "3/", "/12", "3/12/1", "-10", "１0"]) {
        assert.equal(findItem(kBuilding, text), undefined, text);
    }
});
