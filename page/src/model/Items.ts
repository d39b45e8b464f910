// What an item of the building is, for all who list, draw or tell it. Frame elements are the items from 0 on, walls and
// plates those behind them.
import type { Building } from "./Building";
import { cornerCount, PlanarType } from "./Planars";

/** In the order in which legends name them. */
export const enum ItemKind {
    Beam = 0,
    Column = 1,
    Brace = 2,
    /** A frame element of which nothing more is known. */
    Frame = 3,
    Wall = 4,
    Plate = 5,
}

export const kItemKindCount = 6;

export function isFrame(building: Building, item: number): boolean {
    return item < building.frames.count;
}

/** Index into building.planars of an item that is no frame. */
export function planarOfItem(building: Building, item: number): number {
    return item - building.frames.count;
}

export function itemOfPlanar(building: Building, planar: number): number {
    return building.frames.count + planar;
}

/** What frames and planars both tell. */
type Shared = "number" | "story" | "key" | "line" | "material";

function shared(building: Building, item: number, name: Shared): number {
    return isFrame(building, item)
        ? building.frames[name][item]
        : building.planars[name][planarOfItem(building, item)];
}

export function itemKind(building: Building, item: number): ItemKind {
    if (isFrame(building, item)) {
        return building.frames.kind[item];
    }
    return building.planars.type[planarOfItem(building, item)] === PlanarType.Wall ? ItemKind.Wall : ItemKind.Plate;
}

/** The number of the element in the model. */
export function itemNumber(building: Building, item: number): number {
    return shared(building, item, "number");
}

/** Index of the story; -1: unknown. */
export function itemStory(building: Building, item: number): number {
    return shared(building, item, "story");
}

/** Key in the structure file. */
export function itemKey(building: Building, item: number): number {
    return shared(building, item, "key");
}

/** Line of the structure file; 0: unknown. */
export function itemLine(building: Building, item: number): number {
    return shared(building, item, "line");
}

/** Number of the material, whose record may be missing. */
export function itemMaterial(building: Building, item: number): number {
    return shared(building, item, "material");
}

/** Numbers of the nodes in the model: two of a frame, four of a wall, three of a plate. */
export function itemNodeNumbers(building: Building, item: number): number[] {
    const { frames, planars } = building;
    if (isFrame(building, item)) {
        return [frames.numberI[item], frames.numberJ[item]];
    }
    const planar = planarOfItem(building, item);
    return [...planars.nodeNumbers.subarray(4 * planar, 4 * planar + cornerCount(planars, planar))];
}

function itemsWhere(building: Building, isMeant: (item: number) => boolean): number[] {
    const items: number[] = [];
    for (let item = 0; item < building.itemCount; ++item) {
        if (isMeant(item)) {
            items.push(item);
        }
    }
    return items;
}

/** All items with a number, normally one. */
export function itemsWithNumber(building: Building, number: number): number[] {
    return itemsWhere(building, (item) => itemNumber(building, item) === number);
}

/** All items, of whatever kind, with a key in a story (its index). A slab has one for each triangle. */
export function itemsWithKey(building: Building, story: number, key: number): number[] {
    return itemsWhere(building, (item) => itemKey(building, item) === key && itemStory(building, item) === story);
}
