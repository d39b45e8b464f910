// Rows of the tables: what the building has of each story, section, thickness and material.
import type { Building } from "./Building";
import { itemKind, itemMaterial, itemOfPlanar, itemStory, kItemKindCount } from "./Items";
import { frameLength, planarArea } from "./Measures";
import { sectionArea, type SectionArea } from "./SectionArea";

export interface StoryRow {
    /** Index of the story. */
    story: number;
    /** How many items of each ItemKind. */
    counts: number[];
    /** How many nodes of its own. */
    nodes: number;
}

export interface SectionRow {
    number: number;
    /** False: frames name the section, but the model has no record of it. */
    exists: boolean;
    count: number;
    length: number;
    /** How many of these frames have no length, for want of a place. */
    unmeasured: number;
}

export interface ThicknessRow {
    number: number;
    /** NaN: walls or plates name the thickness, but the model has no record of it. */
    value: number;
    count: number;
    area: number;
    /** How many of these have no area, for want of a place. */
    unmeasured: number;
}

export interface MaterialRow {
    number: number;
    /** False: items name the material, but the model has no record of it. */
    exists: boolean;
    count: number;
    /** Of the whole members; of those with a composite section the concrete, without the steel in it. */
    volume: number;
    /** Of the steel of members with a composite section. */
    steelVolume: number;
    /** How many of these items have no volume, for want of a place, an area or a thickness. */
    unmeasured: number;
}

export function storyRows(building: Building): StoryRow[] {
    const rows = building.stories.map((_, story): StoryRow => ({
        story,
        counts: new Array<number>(kItemKindCount).fill(0),
        nodes: 0,
    }));
    for (let item = 0; item < building.itemCount; ++item) {
        const row = rows[itemStory(building, item)];
        if (row !== undefined) {
            ++row.counts[itemKind(building, item)];
        }
    }
    building.nodes.story.forEach((story) => {
        if (story >= 0) {
            ++rows[story].nodes;
        }
    });
    return rows;
}

/** Rows by number: of all records, and of numbers that are used without one. */
class RowsByNumber<Row extends { number: number }> {
    private readonly rows = new Map<number, Row>();

    constructor(numbers: Iterable<number>, private readonly empty: (number: number) => Row) {
        for (const number of numbers) {
            this.row(number);
        }
    }

    row(number: number): Row {
        let row = this.rows.get(number);
        if (row === undefined) {
            row = this.empty(number);
            this.rows.set(number, row);
        }
        return row;
    }

    inOrder(): Row[] {
        return [...this.rows.values()].sort((a, b) => a.number - b.number);
    }
}

/** Counts an item of a size. False: the size is none, and cannot be added to a sum. */
function countItem(row: { count: number; unmeasured: number }, size: number): boolean {
    ++row.count;
    if (Number.isFinite(size)) {
        return true;
    }
    ++row.unmeasured;
    return false;
}

/** In the order of their numbers. */
export function sectionRows(building: Building): SectionRow[] {
    const { sections, frames } = building;
    const rows = new RowsByNumber(sections.keys(), (number): SectionRow => ({
        number, exists: sections.has(number), count: 0, length: 0, unmeasured: 0,
    }));
    for (let frame = 0; frame < frames.count; ++frame) {
        const row = rows.row(frames.section[frame]);
        const length = frameLength(building, frame);
        if (countItem(row, length)) {
            row.length += length;
        }
    }
    return rows.inOrder();
}

/** In the order of their numbers. */
export function thicknessRows(building: Building): ThicknessRow[] {
    const { thicknesses, planars } = building;
    const rows = new RowsByNumber(thicknesses.keys(), (number): ThicknessRow => ({
        number, value: thicknesses.get(number) ?? NaN, count: 0, area: 0, unmeasured: 0,
    }));
    for (let planar = 0; planar < planars.count; ++planar) {
        const row = rows.row(planars.thickness[planar]);
        const area = planarArea(building, planar);
        if (countItem(row, area)) {
            row.area += area;
        }
    }
    return rows.inOrder();
}

const kUnknown: SectionArea = { area: NaN, steel: NaN };

function sectionAreas({ sections }: Building): Map<number, SectionArea> {
    return new Map([...sections].map(([number, section]) => [number, sectionArea(section) ?? kUnknown]));
}

/** What a wall or plate holds for each unit of its area. */
function thicknessContent({ planars, thicknesses }: Building, planar: number): SectionArea {
    const thickness = thicknesses.get(planars.thickness[planar]) ?? NaN;
    return thickness >= 0 ? { area: thickness, steel: 0 } : kUnknown;
}

/** In the order of their numbers. */
export function materialRows(building: Building): MaterialRow[] {
    const { materials, frames } = building;
    const areas = sectionAreas(building);
    const rows = new RowsByNumber(materials.keys(), (number): MaterialRow => ({
        number, exists: materials.has(number), count: 0, volume: 0, steelVolume: 0, unmeasured: 0,
    }));
    const add = (item: number, size: number, content: SectionArea): void => {
        const row = rows.row(itemMaterial(building, item));
        if (countItem(row, content.area * size)) {
            row.volume += content.area * size;
            row.steelVolume += content.steel * size;
        }
    };
    for (let frame = 0; frame < frames.count; ++frame) {
        add(frame, frameLength(building, frame), areas.get(frames.section[frame]) ?? kUnknown);
    }
    for (let planar = 0; planar < building.planars.count; ++planar) {
        add(itemOfPlanar(building, planar), planarArea(building, planar), thicknessContent(building, planar));
    }
    return rows.inOrder();
}
