// The building as a whole, also what should not be in one.
import assert from "node:assert/strict";
import { test } from "node:test";

import { readBuilding } from "../src/model/Building";
import {
    ItemKind, itemKey, itemKind, itemLine, itemMaterial, itemNodeNumbers, itemNumber, itemStory,
} from "../src/model/Items";
import { frameLength, planarArea } from "../src/model/Measures";
import { ColumnBytes } from "./ColumnBytes";
import { assertNear } from "./Numbers";
import { testBuilding, testColumns } from "./TestBuilding";

test("an empty building", () => {
    const building = testBuilding({});
    assert.equal(building.itemCount, 0);
    assert.deepEqual(building.stories, []);
    assert.deepEqual(building.centre, [0, 0, 0]);
    assert.equal(building.radius, 1);
    assert.equal(building.nodes.indexOf(0), -1);
    assert.equal(building.version, "1.2.3");
    assert.deepEqual(building.files, { structure: "a/structure.sat", load: "a/load.sat" });
});

test("one node is the centre, with a radius that is not 0", () => {
    const building = testBuilding({ nodes: [{ number: 1, at: [5, 6, 7] }] });
    assert.deepEqual(building.centre, [5, 6, 7]);
    assert.equal(building.radius, 1);
});

test("the box, the centre and the radius are those of the nodes that have a place", () => {
    const building = testBuilding({
        nodes: [
            { number: 1, at: [10000000, 0, 0] }, { number: 2, at: [10000006, 4, 12] },
            { number: 3, at: [NaN, 0, 0] }, { number: 4, at: [0, -Infinity, 0] }, { number: 5, at: [0, 0, 1e300] },
        ],
    });
    assert.deepEqual(building.box, { min: [10000000, 0, 0], max: [10000006, 4, 12] });
    assert.deepEqual(building.centre, [10000003, 2, 6]);
    assert.equal(building.radius, 7);
});

test("nodes that are no places alone leave a building without extent", () => {
    const building = testBuilding({ nodes: [{ number: 1, at: [NaN, NaN, NaN] }] });
    assert.equal(building.box, undefined);
    assert.deepEqual([...building.centre, building.radius], [0, 0, 0, 1]);
});

test("items are frames, then walls and plates", () => {
    const building = testBuilding({
        stories: [3, 4],
        frames: [0, 1, 2, 3].map((kind) => ({
            number: 11 + kind, kind, ends: [5, 6], story: 1, key: 7 + kind, line: 90 + kind, material: 2,
        })),
        planars: [
            { number: 21, nodes: [1, 2, 3, 4], story: 0, key: 8, line: 95, material: 3 },
            { number: 22, nodes: [1, 2, 3], story: 1, key: 9, line: 96, material: 4 },
        ],
    });
    const items = [0, 1, 2, 3, 4, 5];
    assert.equal(building.itemCount, 6);
    assert.deepEqual(items.map((item) => itemKind(building, item)), [
        ItemKind.Beam, ItemKind.Column, ItemKind.Brace, ItemKind.Frame, ItemKind.Wall, ItemKind.Plate,
    ]);
    assert.deepEqual(items.map((item) => itemNumber(building, item)), [11, 12, 13, 14, 21, 22]);
    assert.deepEqual(items.map((item) => itemStory(building, item)), [1, 1, 1, 1, 0, 1]);
    assert.deepEqual(items.map((item) => itemKey(building, item)), [7, 8, 9, 10, 8, 9]);
    assert.deepEqual(items.map((item) => itemLine(building, item)), [90, 91, 92, 93, 95, 96]);
    assert.deepEqual(items.map((item) => itemMaterial(building, item)), [2, 2, 2, 2, 3, 4]);
    assert.deepEqual([0, 4, 5].map((item) => itemNodeNumbers(building, item)), [[5, 6], [1, 2, 3, 4], [1, 2, 3]]);
});

test("of nodes and elements with one number the last is meant", () => {
    const building = testBuilding({
        nodes: [{ number: 1, at: [0, 0, 0] }, { number: 2, at: [3, 0, 0] }, { number: 1, at: [0, 4, 0] }],
        frames: [{ number: 5, ends: [1, 2] }, { number: 5, ends: [2, 1] }],
        planars: [{ number: 5, nodes: [1, 2, 1, 2] }],
        releases: [[5, 2]],
        offsets: [{ element: 5, values: [1, 2, 3, 4, 5, 6] }],
        supports: [1, 7],
    });
    assert.equal(building.frames.nodeI[0], 2);
    assert.equal(frameLength(building, 0), 5);
    assert.deepEqual([...building.planars.nodes], [2, 1, 2, 1]);
    assert.deepEqual([...building.frames.hinges], [0, 2]);
    assert.deepEqual([...building.frames.offset.slice(0, 2)], [-1, 0]);
    assert.deepEqual([...building.frames.offsetValues.slice(0, 6)], [1, 2, 3, 4, 5, 6]);
    assert.deepEqual([...building.supports], [2]);
});

test("missing nodes have no index, and a plate no fourth node", () => {
    const building = testBuilding({
        nodes: [{ number: 0, at: [0, 0, 0] }, { number: 4, at: [1, 0, 0] }],
        frames: [{ number: 1, ends: [4, 9] }, { number: 2, ends: [-4, 0] }],
        planars: [{ number: 3, nodes: [4, 0, 9] }, { number: 4, nodes: [4, 4, 4, 0] }],
    });
    assert.deepEqual([...building.frames.nodeI], [1, -1]);
    assert.deepEqual([...building.frames.nodeJ], [-1, 0]);
    assert.deepEqual([...building.planars.nodes], [1, 0, -1, -1, 1, 1, 1, 0]);
    assert.ok(Number.isNaN(frameLength(building, 0)));
    assert.ok(Number.isNaN(planarArea(building, 0)));
});

test("lengths and areas", () => {
    const building = testBuilding({
        nodes: [
            { number: 1, at: [0, 0, 0] }, { number: 2, at: [6, 0, 0] }, { number: 3, at: [6, 0, 4] },
            { number: 4, at: [0, 0, 4] }, { number: 5, at: [0, 3, 4] },
        ],
        frames: [{ number: 1, ends: [1, 3] }, { number: 2, ends: [2, 2] }],
        planars: [{ number: 3, nodes: [1, 2, 3, 4] }, { number: 4, nodes: [4, 3, 5] }, { number: 5, nodes: [1, 1, 2] }],
        offsets: [{ element: 1, values: [0, 0, 1, 0, 0, 1] }],
    });
    assertNear([frameLength(building, 0), frameLength(building, 1)], [Math.sqrt(52), 0], 1e-12);
    assert.deepEqual([0, 1, 2].map((planar) => planarArea(building, planar)), [24, 9, 0]);
});

test("a story reaches from its lowest to its highest node", () => {
    const building = testBuilding({
        stories: [1, 2, 3],
        nodes: [
            { number: 1, at: [0, 0, -2] }, { number: 2, at: [0, 0, 3] }, { number: 3, at: [0, 0, NaN] },
            { number: 4, at: [0, 0, 9] },
        ],
        frames: [{ number: 1, ends: [1, 2], story: 0 }, { number: 2, ends: [2, 3], story: 1 }],
        planars: [{ number: 3, nodes: [2, 3, 99], story: 1 }, { number: 4, nodes: [2, 4, 2], story: -1 }],
    });
    assert.deepEqual(building.stories, [
        { key: 1, number: 10, line: 100, level: [-2, 3] }, { key: 2, number: 20, line: 200, level: [3, 3] },
        { key: 3, number: 30, line: 300, level: undefined },
    ]);
});

test("a node without a story is shown with the lowest one that uses it", () => {
    const building = testBuilding({
        stories: [1, 2, 3],
        nodes: [1, 2, 3, 4].map((number) => ({ number, at: [0, 0, number], story: number === 4 ? 2 : -1 })),
        frames: [{ number: 1, ends: [1, 4], story: 2 }, { number: 2, ends: [1, 2], story: 1 }],
        planars: [{ number: 3, nodes: [2, 4, 1], story: 0 }, { number: 4, nodes: [3, 3, 3], story: -1 }],
    });
    assert.deepEqual([...building.nodeStory], [0, 0, -1, 2]);
    assert.deepEqual([...building.nodes.story], [-1, -1, -1, 2]);
});

test("materials, sections and thicknesses go by their numbers", () => {
    const building = testBuilding({
        materials: [{ number: 4, type: 2, name: "SRC1" }],
        sections: [{ number: 9, shape: "SB", values: [6, 3] }, { number: 2, shape: "P", further: [1, 2, 3] }],
        thicknesses: [[3, 120], [1, 200]],
    });
    assert.deepEqual(building.materials.get(4), { number: 4, type: 2, name: "SRC1", concrete: "C30", steel: "16Mn" });
    assert.deepEqual([...(building.sections.get(9)?.values ?? [])], [6, 3, 0, 0, 0, 0, 0, 0, 0]);
    assert.deepEqual([...(building.sections.get(2)?.further ?? [])], [1, 2, 3, 0, 0, 0, 0, 0]);
    assert.equal(building.sections.get(2)?.shape, "P");
    assert.deepEqual([...building.thicknesses], [[3, 120], [1, 200]]);
});

test("findings, lost shapes and lost loads", () => {
    const building = testBuilding({
        findings: [
            { code: "wall-opening", object: 4, story: 0, key: 3, element: 12 }, { code: "load-type", object: 9 },
        ],
        lost: [
            { finding: 1, corners: [[1, 2, 3], [4, 5, 6]] }, { finding: 0, corners: [[7, 8, 9], [0, 1, 2], [3, 4, 5]] },
        ],
        lostLoads: [{ finding: 1, ends: [1, 2, 3, 4, 5, 6], values: [-7, NaN] }],
    });
    assert.deepEqual(building.findingCodes, [{ name: "wall-opening", total: 5 }, { name: "load-type", total: 5 }]);
    assert.deepEqual(building.findings[0], {
        code: "wall-opening", severity: 1, source: 0, line: 1, object: 4, story: 0, key: 3, element: 12,
        text: "finding 0",
    });
    assert.deepEqual(building.lost.map(({ finding, corners }) => [finding, ...corners]), [
        [1, 1, 2, 3, 4, 5, 6], [0, 7, 8, 9, 0, 1, 2, 3, 4, 5],
    ]);
    assert.deepEqual([...building.lostLoads[0].ends], [1, 2, 3, 4, 5, 6]);
    assert.deepEqual([building.lostLoads[0].finding, ...building.lostLoads[0].values], [1, -7, NaN]);
});

test("a missing column, or one of another length, is an error", () => {
    assert.throws(() => readBuilding(new ColumnBytes().columns()), /no column story.key/);
    const longer = testColumns({}).reals("node.x", [1]).columns();
    assert.throws(() => readBuilding(longer), /node.x has 1 values instead of 0/);
    const odd = testColumns({}).integers("planar.nodes", [1, 2, 3]).columns();
    assert.throws(() => readBuilding(odd), /planar.nodes has 3 values instead of 0/);
});
