// Legends and their colours.
import assert from "node:assert/strict";
import { test } from "node:test";

import { type ColourBy, itemColours, legend, type LegendEntry } from "../src/model/Colouring";
import { type TestFrame, testBuilding } from "./TestBuilding";

const kBuilding = testBuilding({
    stories: [1, 2, 3],
    frames: [
        { number: 1, ends: [1, 2], kind: 1, section: 7, material: 2, story: 0 },
        { number: 2, ends: [1, 2], kind: 0, section: 5, material: 1, story: 2 },
        { number: 3, ends: [1, 2], kind: 0, section: 7, material: 2, story: 2 },
    ],
    planars: [
        { number: 4, nodes: [1, 2, 3, 4], thickness: 9, material: 1, story: -1 },
        { number: 5, nodes: [1, 2, 3], thickness: 8, material: 1, story: 0 },
    ],
});

/** What, value and count of each entry. */
function told(entries: LegendEntry[]): [string, number, number][] {
    return entries.map(({ what, value, count }) => [what, value, count]);
}

const kLegends: Record<ColourBy, { entries: [string, number, number][]; entryOf: number[] }> = {
    kind: { entries: [["kind", 0, 2], ["kind", 1, 1], ["kind", 4, 1], ["kind", 5, 1]], entryOf: [1, 0, 0, 2, 3] },
    story: { entries: [["story", 0, 2], ["story", 2, 2], ["none", 0, 1]], entryOf: [0, 1, 1, 2, 0] },
    section: { entries: [["section", 5, 1], ["section", 7, 2], ["none", 0, 2]], entryOf: [1, 0, 1, 2, 2] },
    material: { entries: [["material", 1, 3], ["material", 2, 2]], entryOf: [1, 0, 1, 0, 0] },
    thickness: { entries: [["thickness", 8, 1], ["thickness", 9, 1], ["none", 0, 3]], entryOf: [2, 2, 2, 1, 0] },
};

for (const [by, expected] of Object.entries(kLegends)) {
    test(`the legend by ${by}`, () => {
        const { entries, entryOf } = legend(kBuilding, by as ColourBy, false);
        assert.deepEqual(told(entries), expected.entries);
        assert.deepEqual([...entryOf], expected.entryOf);
    });
}

test("an empty building has empty legends", () => {
    for (const by of Object.keys(kLegends)) {
        const { entries, entryOf } = legend(testBuilding({}), by as ColourBy, true);
        assert.deepEqual([entries.length, entryOf.length], [0, 0]);
    }
});

/** Frames with the sections 1 to `count`, section k as often as `times` tells. */
function framesOf(count: number, times: (section: number) => number): TestFrame[] {
    const sections = Array.from({ length: count }, (_, i) => new Array<number>(times(i + 1)).fill(i + 1)).flat();
    return sections.map((section, i) => ({ number: i + 1, ends: [1, 2], section }));
}

test("the 24 most used sections have entries of their own, the others share one", () => {
    const frames = framesOf(27, (section) => (section === 2 || section === 5 || section === 27 ? 1 : 2));
    const planars = [{ number: 99, nodes: [1, 2, 3] }];
    const { entries, entryOf } = legend(testBuilding({ frames, planars }), "section", false);
    assert.deepEqual(entries.slice(0, 24).map(({ value }) => value), [
        1, 3, 4, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20, 21, 22, 23, 24, 25, 26,
    ]);
    assert.deepEqual(told(entries.slice(24)), [["others", 3, 3], ["none", 0, 1]]);
    assert.deepEqual([entryOf[0], entryOf[2], entryOf[3], entryOf.at(-2), entryOf.at(-1)], [0, 24, 1, 24, 25]);
});

test("a single other section has an entry, too", () => {
    const { entries, entryOf } = legend(testBuilding({ frames: framesOf(25, () => 1) }), "section", false);
    assert.deepEqual(told(entries.slice(23)), [["section", 24, 1], ["others", 1, 1]]);
    assert.equal(entryOf[24], 24);
});

test("24 sections need no entry for others", () => {
    const { entries } = legend(testBuilding({ frames: framesOf(24, () => 1) }), "section", false);
    assert.deepEqual([entries.length, entries[23].what], [24, "section"]);
});

test("the colours of items are those of their entries", () => {
    const { entries, entryOf } = legend(kBuilding, "kind", false);
    const colours = itemColours({ entries, entryOf });
    assert.equal(colours.length, 15);
    const [column] = [entries[1].colour];
    assert.deepEqual([...colours.subarray(0, 3)], [column >> 16, (column >> 8) & 255, column & 255]);
    assert.deepEqual([...colours.subarray(3, 6)], [...colours.subarray(6, 9)]);
});

/** Linear red, green and blue, from 0 to 1. */
function linear(colour: number): number[] {
    return [colour >> 16, (colour >> 8) & 255, colour & 255].map((channel) => {
        const part = channel / 255;
        return part <= 0.04045 ? part / 12.92 : ((part + 0.055) / 1.055) ** 2.4;
    });
}

function contrast(colour: number, ground: number): number {
    const [darker, lighter] = [colour, ground].map((one) => {
        const [red, green, blue] = linear(one);
        return 0.2126 * red + 0.7152 * green + 0.0722 * blue + 0.05;
    }).sort((a, b) => a - b);
    return lighter / darker;
}

/** Coordinates in which distances are perceived about evenly. */
function perceived(rgb: number[]): number[] {
    const cones = [
        [0.4122214708, 0.5363325363, 0.0514459929], [0.2119034982, 0.6806995451, 0.1073969566],
        [0.0883024619, 0.2817188376, 0.6299787005],
    ].map((row) => Math.cbrt(row.reduce((sum, part, i) => sum + part * rgb[i], 0)));
    return [
        [0.2104542553, 0.793617785, -0.0040720468], [1.9779984951, -2.428592205, 0.4505937099],
        [0.0259040371, 0.7827717662, -0.808675766],
    ].map((row) => row.reduce((sum, part, i) => sum + part * cones[i], 0));
}

/** What those see of linear red, green and blue who lack no cones, the green, or the red ones. */
const kEyes = [
    [[1, 0, 0], [0, 1, 0], [0, 0, 1]],
    [[0.367322, 0.860646, -0.227968], [0.280085, 0.672501, 0.047413], [-0.01182, 0.04294, 0.968881]],
    [[0.152286, 1.052583, -0.204868], [0.114503, 0.786281, 0.099216], [-0.003882, -0.048116, 1.051998]],
];

function leastDistance(colours: number[], eye: number[][]): number {
    const seen = colours.map((colour) => {
        const rgb = linear(colour);
        return perceived(eye.map((row) =>
            Math.min(Math.max(row.reduce((sum, part, i) => sum + part * rgb[i], 0), 0), 1)));
    });
    const distance = (a: number[], b: number[]): number => Math.hypot(...a.map((value, k) => value - b[k]));
    return Math.min(...seen.flatMap((a, i) => seen.slice(0, i).map((b) => distance(a, b))));
}

const kManySections = testBuilding({ frames: framesOf(30, () => 1), planars: [{ number: 99, nodes: [1, 2, 3] }] });
const kAllKinds = testBuilding({
    frames: [0, 1, 2, 3].map((kind) => ({ number: kind, kind, ends: [1, 2] })),
    planars: [{ number: 8, nodes: [1, 2, 3, 4] }, { number: 9, nodes: [1, 2, 3] }],
});
const kEightStories = testBuilding({
    stories: [1, 2, 3, 4, 5, 6, 7, 8],
    frames: Array.from({ length: 8 }, (_, story) => ({ number: story, ends: [1, 2], story })),
});

for (const [dark, ground] of [[false, 0xf4f6f8], [true, 0x12171d]] as const) {
    test(`colours on a ${dark ? "dark" : "light"} ground stand out from it and from each other`, () => {
        const colours = (entries: LegendEntry[]): number[] => entries.map(({ colour }) => colour);
        const sections = colours(legend(kManySections, "section", dark).entries);
        const kinds = colours(legend(kAllKinds, "kind", dark).entries);
        const stories = colours(legend(kEightStories, "story", dark).entries);
        assert.deepEqual([sections.length, kinds.length, stories.length], [26, 6, 8]);
        for (const colour of [...sections, ...kinds, ...stories]) {
            assert.ok(contrast(colour, ground) >= 3, `${colour.toString(16)} ${contrast(colour, ground)}`);
        }
        for (const eye of kEyes) {
            assert.ok(leastDistance(sections.slice(0, 24), eye) > 0.05);
            assert.ok(leastDistance(kinds, eye) > 0.1);
            assert.ok(leastDistance(stories, eye) > 0.03);
        }
    });
}
