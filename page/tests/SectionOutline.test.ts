// The outline of every shape, and dimensions that make none. Points are y, z.
import assert from "node:assert/strict";
import { test } from "node:test";

import { type Section, SectionType } from "../src/model/Properties";
import { type Outline, sectionOutline } from "../src/model/SectionOutline";
import { assertNear } from "./Numbers";

function section(shape: string, values: number[], further: number[] = [], type = SectionType.User): Section {
    const padded = (numbers: number[], size: number): Float64Array => {
        const all = new Float64Array(size);
        all.set(numbers);
        return all;
    };
    return {
        number: 1, type, shape, values: padded(values, 9), composite: new Float64Array(4), further: padded(further, 8),
    };
}

function composite(shape: string, further: number[]): Section {
    return section(shape, [], further, SectionType.Composite);
}

/** The outline, asserted to be there. */
function outline(of: Section): Outline {
    const found = sectionOutline(of);
    assert.ok(found !== undefined, `${of.shape} has no outline`);
    return found;
}

/** Asserts the extents and the loops of the only part. */
function assertWhole(of: Section, height: number, width: number, ...loops: number[][]): void {
    const found = outline(of);
    assert.equal(found.height, height);
    assert.equal(found.width, width);
    assert.equal(found.parts.length, 1);
    assert.equal(found.parts[0].role, "whole");
    assertLoops(found.parts[0].loops, loops);
}

function assertLoops(actual: Float64Array[], expected: number[][]): void {
    assert.equal(actual.length, expected.length);
    expected.forEach((loop, i) => assertNear(actual[i], loop, 1e-12));
}

function assertNone(...sections: Section[]): void {
    for (const one of sections) {
        assert.equal(sectionOutline(one), undefined, `${one.shape} ${[...one.values, ...one.further].join(" ")}`);
    }
}

test("a rectangle is as high as D1 and as wide as D2", () => {
    assertWhole(section("SB", [600, 300]), 600, 300, [-150, -300, 150, -300, 150, 300, -150, 300]);
});

test("a section by values is a square of its two values", () => {
    assertWhole(section("SB", [20, 20], [400, 0, 0, 1, 2, 3], SectionType.Value), 20, 20,
        [-10, -10, 10, -10, 10, 10, -10, 10]);
});

test("an H with different flanges", () => {
    assertWhole(section("H", [400, 200, 8, 13, 300, 17]), 400, 300, [
        -150, -200, 150, -200, 150, -183, 4, -183, 4, 187, 100, 187,
        100, 200, -100, 200, -100, 187, -4, 187, -4, -183, -150, -183,
    ]);
});

test("an H in metres", () => {
    assertWhole(section("H", [0.5, 0.25, 0.0625, 0.125, 0.25, 0.125]), 0.5, 0.25, [
        -0.125, -0.25, 0.125, -0.25, 0.125, -0.125, 0.03125, -0.125, 0.03125, 0.125, 0.125, 0.125,
        0.125, 0.25, -0.125, 0.25, -0.125, 0.125, -0.03125, 0.125, -0.03125, -0.125, -0.125, -0.125,
    ]);
});

test("an H without a lower flange is a T", () => {
    const t = [4, -200, 4, 187, 100, 187, 100, 200, -100, 200, -100, 187, -4, 187, -4, -200];
    for (const lower of [[0, 0], [300, 0]]) {
        const found = outline(section("H", [400, 200, 8, 13, ...lower]));
        assert.equal(found.width, 200);
        assertNear(found.parts[0].loops[0], t, 1e-12);
    }
});

test("a channel has its web at -y, and its box in the middle", () => {
    assertWhole(section("C", [300, 90, 10, 15, 70, 12]), 300, 90, [
        -45, -150, 25, -150, 25, -138, -35, -138, -35, 135, 45, 135, 45, 150, -45, 150,
    ]);
});

test("a channel whose lower flange is only its web is an angle", () => {
    assertWhole(section("C", [300, 90, 10, 15, 10, 12]), 300, 90, [
        -45, -150, -35, -150, -35, 135, 45, 135, 45, 150, -45, 150,
    ]);
});

test("a box with different flanges has its hole off the middle", () => {
    assertWhole(section("B", [500, 300, 10, 20, 0, 40]), 500, 300,
        [-150, -250, 150, -250, 150, 250, -150, 250],
        [-140, 230, 140, 230, 140, -210, -140, -210]);
});

test("a box in metres", () => {
    assertWhole(section("B", [0.5, 0.25, 0.0625, 0.125, 0, 0.125]), 0.5, 0.25,
        [-0.125, -0.25, 0.125, -0.25, 0.125, 0.25, -0.125, 0.25],
        [-0.0625, 0.125, 0.0625, 0.125, 0.0625, -0.125, -0.0625, -0.125]);
});

test("a box whose webs fill it has no hole", () => {
    assertWhole(section("B", [500, 300, 150, 20, 0, 40]), 500, 300, [-150, -250, 150, -250, 150, 250, -150, 250]);
});

test("a circle has 24 corners, counter-clockwise from +y", () => {
    const found = outline(section("SR", [500]));
    const [loop] = found.parts[0].loops;
    assert.deepEqual([found.height, found.width, loop.length], [500, 500, 48]);
    const half = 125 * Math.sqrt(3);
    assertNear(loop.subarray(0, 2), [250, 0], 1e-12);
    assertNear(loop.subarray(4, 6), [2 * 125 * Math.sqrt(0.75), 125], 1e-12);
    assertNear(loop.subarray(8, 10), [125, half], 1e-12);
    assertNear(loop.subarray(12, 14), [0, 250], 1e-12);
    assertNear(loop.subarray(24, 26), [-250, 0], 1e-12);
    assertNear(loop.subarray(36, 38), [0, -250], 1e-12);
});

test("a pipe has a round hole, clockwise", () => {
    const [outer, inner, ...more] = outline(section("P", [400, 10])).parts[0].loops;
    assert.deepEqual(more, []);
    assertNear(outer.subarray(0, 2), [200, 0], 1e-12);
    assertNear(outer.subarray(12, 14), [0, 200], 1e-12);
    assertNear(inner.subarray(46, 48), [190, 0], 1e-12);
    assertNear(inner.subarray(34, 36), [0, 190], 1e-12);
    assertNear(inner.subarray(10, 12), [0, -190], 1e-12);
});

test("a pipe whose wall is its radius is solid", () => {
    assert.equal(outline(section("P", [400, 200])).parts[0].loops.length, 1);
});

test("a double channel is two channels with a gap between their backs", () => {
    const found = outline(section("2C", [200, 70, 8, 12, 20]));
    assert.deepEqual([found.height, found.width], [200, 160]);
    assert.deepEqual(found.parts.map(({ role, loops }) => [role, loops.length]), [["whole", 1], ["whole", 1]]);
    assertNear(found.parts[0].loops[0], [
        -10, 100, -80, 100, -80, 88, -18, 88, -18, -88, -80, -88, -80, -100, -10, -100,
    ], 1e-12);
    assertNear(found.parts[1].loops[0], [
        10, -100, 80, -100, 80, -88, 18, -88, 18, 88, 80, 88, 80, 100, 10, 100,
    ], 1e-12);
});

test("channels of a double channel may touch", () => {
    const [left, right] = outline(section("2C", [200, 70, 8, 12, 0])).parts;
    const ys = (loop: Float64Array): Float64Array => loop.filter((_, i) => i % 2 === 0);
    assertNear([Math.max(...ys(left.loops[0])), Math.min(...ys(right.loops[0]))], [0, 0], 0);
});

test("a combined section is an H with a T on each side", () => {
    // H 400 high, flanges 200 x 20, web 12; Ts 150 deep, flanges 180 x 16, webs 10.
    const found = outline(section("H2T", [400, 200, 12, 20, 0, 150, 180, 10, 16], [], SectionType.Combined));
    assert.deepEqual([found.height, found.width], [400, 312]);
    const right = [
        100, -200, 100, -180, 6, -180, 6, -5, 140, -5, 140, -90, 156, -90,
        156, 90, 140, 90, 140, 5, 6, 5, 6, 180, 100, 180, 100, 200,
    ];
    const left = [
        -100, 200, -100, 180, -6, 180, -6, 5, -140, 5, -140, 90, -156, 90,
        -156, -90, -140, -90, -140, -5, -6, -5, -6, -180, -100, -180, -100, -200,
    ];
    assertNear(found.parts[0].loops[0], [...right, ...left], 1e-12);
});

test("a cross of one leg and two arms", () => {
    // Leg 200 thick and 800 deep; arms 250 thick and 300 long.
    const found = outline(section("H2T", [800, 200, 200, 200, 0, 300, 250, 250, 250], [], SectionType.Combined));
    assert.deepEqual([found.height, found.width], [800, 800]);
    assertNear(found.parts[0].loops[0], [
        100, -400, 100, -125, 400, -125, 400, 125, 100, 125, 100, 400,
        -100, 400, -100, 125, -400, 125, -400, -125, -100, -125, -100, -400,
    ], 1e-12);
});

test("a filled pipe is steel around concrete", () => {
    const found = outline(composite("EPC", [480, 0, 500, 10]));
    assert.deepEqual([found.height, found.width], [500, 500]);
    const [steel, concrete, ...more] = found.parts;
    assert.deepEqual([steel.role, concrete.role, more], ["steel", "concrete", []]);
    assertNear(steel.loops.map((loop) => Math.max(...loop)), [250, 240], 1e-12);
    assertNear(concrete.loops.map((loop) => Math.max(...loop)), [240], 1e-12);
});

test("concrete around an H has a hole of its shape", () => {
    const found = outline(composite("RHB", [700, 500, 400, 200, 8, 13]));
    assert.deepEqual([found.height, found.width], [700, 500]);
    const [concrete, steel, ...more] = found.parts;
    assert.deepEqual([concrete.role, steel.role, more], ["concrete", "steel", []]);
    const h = [
        -100, -200, 100, -200, 100, -187, 4, -187, 4, 187, 100, 187,
        100, 200, -100, 200, -100, 187, -4, 187, -4, -187, -100, -187,
    ];
    const back = Array.from({ length: 12 }, (_, i) => h.slice(22 - 2 * i, 24 - 2 * i)).flat();
    assertLoops(concrete.loops, [[-250, -350, 250, -350, 250, 350, -250, 350], back]);
    assertLoops(steel.loops, [h]);
});

test("concrete around a box", () => {
    const [concrete, steel] = outline(composite("RBC", [700, 500, 400, 300, 10, 20])).parts;
    assertLoops(concrete.loops, [
        [-250, -350, 250, -350, 250, 350, -250, 350], [-150, 200, 150, 200, 150, -200, -150, -200],
    ]);
    assertLoops(steel.loops, [
        [-150, -200, 150, -200, 150, 200, -150, 200], [-140, 180, 140, 180, 140, -180, -140, -180],
    ]);
});

test("an unknown shape has no outline", () => {
    assertNone(section("XX", [100, 100, 10, 10, 10, 10]), section("", []));
});

test("dimensions of 0 or less, or no numbers, have no outline", () => {
    const good: [Section, number][] = [
        [section("SB", [600, 300]), 2], [section("SR", [500]), 1], [section("P", [400, 10]), 2],
        [section("2C", [200, 70, 8, 12, 20]), 1], [section("H", [400, 200, 8, 13, 200, 13]), 1],
        [section("C", [300, 90, 10, 15, 70, 12]), 1],
    ];
    for (const [{ shape, values }, count] of good) {
        for (const bad of [0, -1, NaN, Infinity, -Infinity, 1e300]) {
            for (let i = 0; i < count; ++i) {
                assertNone(section(shape, [...values.slice(0, i), bad, ...values.slice(i + 1)]));
            }
        }
    }
});

test("walls, webs and flanges that do not fit have no outline", () => {
    assertNone(
        section("P", [400, 201]),
        section("B", [500, 300, 151, 20, 0, 40]),
        section("B", [500, 300, 10, 300, 0, 201]),
        section("B", [500, 300, 0, 20, 0, 40]),
        section("H", [400, 200, 8, 200, 200, 200]),
        section("H", [400, 200, 8, -13, 200, 13]),
        section("C", [300, 90, 10, 15, 70, NaN]),
        section("2C", [200, 70, 8, 12, -1]),
        section("2C", [200, 70, 8, 100, 20]),
    );
});

test("a combined section whose parts overlap has no outline", () => {
    const parts = [400, 200, 12, 20, 0, 150, 180, 10, 16];
    const changed: [number, number][] = [
        [0, 0], [2, 0], [5, 0], [7, 0], [3, -1], [8, -1], [5, NaN], [1, 1e300], [3, 196], [8, 151], [1, 300],
    ];
    for (const [index, value] of changed) {
        const others = [...parts];
        others[6] = index === 1 ? 380 : others[6];
        others[index] = value;
        assertNone(section("H2T", others, [], SectionType.Combined));
    }
});

test("steel that concrete does not cover has no outline", () => {
    assertNone(
        composite("RHB", [400, 500, 400, 200, 8, 13]),
        composite("RHB", [700, 200, 400, 200, 8, 13]),
        composite("RBC", [700, 300, 400, 300, 10, 20]),
        composite("RBC", [700, 500, 400, 300, 151, 20]),
        composite("EPC", [500, 0, 500, 10]),
        composite("EPC", [0, 0, 500, 10]),
    );
});
