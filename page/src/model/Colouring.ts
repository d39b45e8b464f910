// Colours of items by what they are, and the legend that tells them.
import type { Building } from "./Building";
import { distinctColour, kDistinctColours, rampColour } from "./Colours";
import { isFrame, itemKind, itemMaterial, itemStory, planarOfItem } from "./Items";

export type ColourBy = "kind" | "story" | "section" | "material" | "thickness";

export interface LegendEntry {
    /** What the entry stands for: one value; all values beyond the most used ones; or items that have none. */
    what: ColourBy | "others" | "none";
    /** kind: an ItemKind; story: its index; otherwise the number in the model; others: how many values; none: 0. */
    value: number;
    /** 0xrrggbb. */
    colour: number;
    /** How many items have it. */
    count: number;
}

export interface Legend {
    entries: LegendEntry[];
    /** Index of the entry for each item. */
    entryOf: Int32Array;
}

/** By ItemKind. Plates, which are most of what is seen, step back; all can be told apart without red or green cones. */
const kKindColours = {
    light: [0x255a94, 0xc2781e, 0x357466, 0x37383a, 0x664c0c, 0x7f8d9f],
    dark: [0x77b1ff, 0xdc8d43, 0x8ac6b0, 0xe3e7f0, 0x986b3d, 0x858ea1],
};
const kOthersColour = { light: 0x555555, dark: 0xc4c4c4 };
const kNoneColour = { light: 0x8c8c8c, dark: 0x7a7a7a };

/** undefined: the item has no such value. */
function valueOf(building: Building, item: number, by: ColourBy): number | undefined {
    switch (by) {
        case "kind":
            return itemKind(building, item);
        case "story": {
            const story = itemStory(building, item);
            return story < 0 ? undefined : story;
        }
        case "material":
            return itemMaterial(building, item);
        case "section":
            return isFrame(building, item) ? building.frames.section[item] : undefined;
        case "thickness":
            return isFrame(building, item) ? undefined : building.planars.thickness[planarOfItem(building, item)];
    }
}

function countValues(building: Building, by: ColourBy): Map<number | undefined, number> {
    const counts = new Map<number | undefined, number>();
    for (let item = 0; item < building.itemCount; ++item) {
        const value = valueOf(building, item, by);
        counts.set(value, (counts.get(value) ?? 0) + 1);
    }
    return counts;
}

/** The values that get entries of their own, in their order: all kinds and stories, the most used of the numbers. */
function ownValues(counts: Map<number | undefined, number>, by: ColourBy): number[] {
    const values = [...counts.keys()].filter((value) => value !== undefined);
    if (by === "kind" || by === "story") {
        return values.sort((a, b) => a - b);
    }
    const countOf = (value: number): number => counts.get(value) ?? 0;
    const mostUsed = values.sort((a, b) => countOf(b) - countOf(a) || a - b).slice(0, kDistinctColours);
    return mostUsed.sort((a, b) => a - b);
}

function colourOf(building: Building, by: ColourBy, value: number, index: number, dark: boolean): number {
    switch (by) {
        case "kind":
            return kKindColours[dark ? "dark" : "light"][value];
        case "story":
            return rampColour(value, building.stories.length, dark);
        default:
            return distinctColour(index, dark);
    }
}

/** Colours that can be told apart, on a light or dark ground. Entries stand in the order of their values. */
export function legend(building: Building, by: ColourBy, dark: boolean): Legend {
    const counts = countValues(building, by);
    const values = ownValues(counts, by);
    const entries = values.map((value, index): LegendEntry => ({
        what: by,
        value,
        colour: colourOf(building, by, value, index, dark),
        count: counts.get(value) ?? 0,
    }));
    const ground = dark ? "dark" : "light";
    const none = counts.get(undefined) ?? 0;
    const others = counts.size - values.length - (none > 0 ? 1 : 0);
    if (others > 0) {
        const count = entries.reduce((rest, entry) => rest - entry.count, building.itemCount - none);
        entries.push({ what: "others", value: others, colour: kOthersColour[ground], count });
    }
    if (none > 0) {
        entries.push({ what: "none", value: 0, colour: kNoneColour[ground], count: none });
    }
    const indexOf = new Map<number | undefined, number>(values.map((value, index) => [value, index]));
    indexOf.set(undefined, entries.length - 1);
    const entryOf = new Int32Array(building.itemCount).map((_, item) =>
        indexOf.get(valueOf(building, item, by)) ?? values.length);
    return { entries, entryOf };
}

/** Red, green and blue of each item, from 0 to 255. */
export function itemColours({ entries, entryOf }: Legend): Uint8Array {
    const colours = new Uint8Array(3 * entryOf.length);
    for (let item = 0; item < entryOf.length; ++item) {
        const { colour } = entries[entryOf[item]];
        colours[3 * item] = colour >> 16;
        colours[3 * item + 1] = colour >> 8;
        colours[3 * item + 2] = colour;
    }
    return colours;
}
