// What the page draws, as numbers: the frame by hand, and larger buildings against the text of the model file.

import assert from "node:assert/strict";
import { execFileSync } from "node:child_process";
import { readFileSync } from "node:fs";
import { after, before, test } from "node:test";

import { Building, launch, OpenPage } from "./Browser.mjs";

let browser;
before(async () => { browser = await launch(); });
after(() => browser.close());

async function sceneOf(building) {
    const opened = await OpenPage.open(browser, building.page());
    const scene = await opened.scene();
    assert.deepEqual(opened.complaints, []);
    await opened.close();
    return scene;
}

const rounded = (value) => JSON.parse(JSON.stringify(value, (_, part) =>
    typeof part === "number" ? Math.round(part * 100) / 100 + 0 : part));

// By hand, from samples/frame: beams 300 wide and 600 high, one of them 100 beside its nodes, one an H of 400 by 200;
// columns of 500 by 500 whose height lies along X; a slab of 120.
test("the frame", async () => {
    const building = new Building().sample("frame");
    const scene = rounded(await sceneOf(building));
    building.remove();

    assert.deepEqual(scene.frames.map(({ number, ends }) => [number, ...ends]), [
        [1, [0, 0, 3600], [6000, 0, 3600]],
        [2, [6000, 0, 3600], [6000, 5000, 3600]],
        [3, [6000, 5100, 3600], [0, 5100, 3600]],
        [4, [0, 5000, 3600], [0, 0, 3600]],
        [5, [0, 0, 0], [0, 0, 3600]],
        [6, [6000, 0, 0], [6000, 0, 3600]],
        [7, [6000, 5000, 0], [6000, 5000, 3600]],
        [8, [0, 5000, 0], [0, 5000, 3600]],
    ]);
    assert.deepEqual(scene.frames.map(({ axisY, axisZ }) => [axisY, axisZ]), [
        [[0, 1, 0], [0, 0, 1]], [[-1, 0, 0], [0, 0, 1]], [[0, -1, 0], [0, 0, 1]], [[1, 0, 0], [0, 0, 1]],
        ...Array(4).fill([[0, -1, 0], [1, 0, 0]]),
    ]);
    const sorted = (loop) => loop.map(String).sort();
    assert.deepEqual(sorted(scene.frames[0].outline[0].loops[0].j),
                     sorted([[6000, -150, 3300], [6000, -150, 3900], [6000, 150, 3300], [6000, 150, 3900]]));
    const half = (x, z) => [[x, 5000, 3600 + z], [-x, 5000, 3600 + z]];
    assert.deepEqual(sorted(scene.frames[3].outline[0].loops[0].i),
                     sorted([half(100, 200), half(100, 187), half(4, 187), half(4, -187), half(100, -187),
                             half(100, -200)].flat()));
    assert.deepEqual(sorted(scene.frames[4].outline[0].loops[0].i),
                     sorted([[-250, -250, 0], [-250, 250, 0], [250, -250, 0], [250, 250, 0]]));

    const [at5, at6, at7, at8] = [[0, 0, 3600], [6000, 0, 3600], [6000, 5000, 3600], [0, 5000, 3600]];
    assert.deepEqual(scene.planars, [
        { number: 9, corners: [at5, at6, at7, at7], thickness: 120 },
        { number: 10, corners: [at5, at7, at8, at8], thickness: 120 },
    ]);
    assert.deepEqual(scene.supports.map(({ number, at }) => [number, ...at]),
                     [[1, 0, 0, 0], [2, 6000, 0, 0], [3, 6000, 5000, 0], [4, 0, 5000, 0]]);
    assert.deepEqual(scene.hinges.map(({ number }) => number), [4, 4]);
    assert.deepEqual(scene.links, [
        { number: 3, from: at7, to: [6000, 5100, 3600] }, { number: 3, from: at8, to: [0, 5100, 3600] },
    ]);
    assert.deepEqual([scene.lost, scene.lostLoads], [[], []]);
});

// Down is downward: a head stands on its node or beam, the tail above it. Of the forces 40000, 30000, 10000 and 8000 the
// largest of a choice is drawn full, the others in proportion; the force on node 7 has 5000 along x, too.
test("the loads of the frame", async () => {
    const building = new Building().sample("frame");
    const { loads } = await sceneOf(building);
    building.remove();

    const full = loads.dead.arrows[0].tail[2] - loads.dead.arrows[0].head[2];
    assert.ok(full > 0);
    const heights = (choice) => loads[choice].arrows.map(({ tail, head }) => [...rounded(head),
        Math.round((tail[2] - head[2]) / full * 1000) / 1000]);
    assert.deepEqual(heights("dead"), [[0, 0, 3600, 1]]);
    assert.deepEqual(heights("both").filter(([, , , height]) => height > 0.1), [
        [0, 0, 3600, 1], [6000, 5000, 3600, 0.25], [6000, 2500, 3600, 0.75], [0, 3750, 3600, 0.2],
    ]);
    const slanted = loads.live.arrows.filter(({ tail, head }) => Math.abs(head[0] - tail[0]) > 1);
    assert.deepEqual(slanted.map(({ tail, head }) => rounded((head[0] - tail[0]) / (tail[2] - head[2]))), [0.5]);

    // The trapezoid of 12 on beam 1 is the highest, the triangle of 8 on beam 3 two thirds of it.
    const top = (choice, y) => Math.max(...loads[choice].areas.flatMap(({ corners }) => corners)
        .filter((corner) => Math.abs(corner[1] - y) < 1).map((corner) => corner[2] - 3600));
    assert.ok(Math.abs(top("dead", 5100) / top("dead", 0) - 8 / 12) < 1e-3);
    const xs = loads.dead.areas.flatMap(({ corners }) => corners).filter(([, y]) => Math.abs(y - 5100) < 1)
        .map(([x]) => x);
    assert.deepEqual(rounded([Math.min(...xs), Math.max(...xs)]), [1500, 4500]);
});

/** Nodes, frame elements and planar elements of a model file, without a word of the page's code. */
function modelOf(text) {
    const lines = text.split("\n");
    const fields = (line) => line.split(",").map(Number);
    const start = lines.indexOf("; iNO, X, Y, Z") + 1;
    const nodes = new Map(lines.slice(start, lines.indexOf("", start)).map(fields)
        .map(([number, ...at]) => [number, at]));
    const elements = (type) => lines.filter((line) => line.includes(`, ${type}, `) && /^ {2}\d/.test(line))
        .map((line) => fields(line.replace(`${type},`, "")));
    const offsets = new Map(lines.filter((line) => line.includes("GLOBAL"))
        .map((line) => fields(line.replace("GLOBAL,", ""))).map(([number, ...values]) => [number, values.slice(0, 6)]));
    return { nodes, offsets, frames: elements("BEAM"), walls: elements("WALL"), plates: elements("PLATE") };
}

/** Holds a scene against the model file of its building. */
function expectModelDrawn(building, scene) {
    execFileSync(process.env.SATWECVT, ["convert", "-q", "-o", building.path("m.vkm"), "--log",
        building.path("m.msg"), building.path("structure.sat"), building.path("load.sat")], { stdio: "pipe" });
    const model = modelOf(readFileSync(building.path("m.vkm"), "latin1"));
    assert.deepEqual(scene.nodes.map(({ number, at }) => [number, ...at]),
                     [...model.nodes].map(([number, at]) => [number, ...at]));
    const moved = (node, by) => model.nodes.get(node).map((value, axis) => value + by[axis]);
    const none = Array(6).fill(0);
    assert.deepEqual(rounded(scene.frames.map(({ number, ends }) => [number, ...ends])),
        rounded(model.frames.map(([number, , , i, j]) => {
            const offset = model.offsets.get(number) ?? none;
            return [number, moved(i, offset.slice(0, 3)), moved(j, offset.slice(3))];
        })));
    const planars = new Map(scene.planars.map(({ number, corners }) => [number, corners]));
    assert.equal(planars.size, model.walls.length + model.plates.length);
    for (const [number, , , ...nodes] of [...model.walls, ...model.plates]) {
        const corners = nodes.slice(0, nodes[3] === 0 ? 3 : 4).map((node) => model.nodes.get(node));
        assert.deepEqual(rounded(planars.get(number).slice(0, corners.length)), rounded(corners));
    }
}

for (const bays of [[], ["--stories", "3", "--bays-x", "9", "--bays-y", "4"],
    ["--stories", "25", "--bays-x", "4", "--bays-y", "3"]]) {
    test(`a tower ${bays.join(" ")}`, async () => {
        const building = new Building().tower(...bays);
        const scene = await sceneOf(building);
        expectModelDrawn(building, scene);
        assert.deepEqual(scene.lost.map(({ corners }) => corners.length), [4]);
        building.remove();
    });
}
