// Where things are: what a finding is about, and the boxes around items, nodes and stories.
import { type Box, BoxAround } from "./Box";
import type { Building } from "./Building";
import { type Finding, FindingObject } from "./Findings";
import { emptyFrameAxes, frameEnds } from "./FrameAxes";
import {
    isFrame, ItemKind, itemKey, itemKind, itemStory, itemsWithKey, itemsWithNumber, planarOfItem,
} from "./Items";

/** What a finding or a search leads to. */
export type Place =
    | { kind: "items"; items: number[] }
    | { kind: "lostShapes"; lost: number[] }
    | { kind: "lostLoads"; lost: number[] }
    | { kind: "node"; node: number }
    | { kind: "story"; story: number }
    | { kind: "nowhere" };

/** The items that the object of a finding can be; undefined: any. */
const kKinds = new Map([
    [FindingObject.Beam, [ItemKind.Beam, ItemKind.Frame]],
    [FindingObject.Column, [ItemKind.Column, ItemKind.Frame]],
    [FindingObject.Brace, [ItemKind.Brace, ItemKind.Frame]],
    [FindingObject.Wall, [ItemKind.Wall]],
    [FindingObject.Plate, [ItemKind.Plate]],
]);

/** The whole slab that a plate is a triangle of; another item alone. */
export function wholeMember(building: Building, item: number): number[] {
    const story = itemStory(building, item);
    if (itemKind(building, item) !== ItemKind.Plate || story < 0) {
        return [item];
    }
    const alike = itemsWithKey(building, story, itemKey(building, item));
    return alike.filter((other) => itemKind(building, other) === ItemKind.Plate);
}

function findingItems(building: Building, { element, object }: Finding): number[] {
    if (element === 0) {
        return [];
    }
    const kinds = kKinds.get(object);
    const item = itemsWithNumber(building, element).find((one) => kinds?.includes(itemKind(building, one)) ?? true);
    return item === undefined ? [] : wholeMember(building, item);
}

function lostOf(lost: { finding: number }[], finding: number): number[] {
    return lost.flatMap((one, index) => (one.finding === finding ? [index] : []));
}

/** What a finding is about: its element (of a slab all triangles), else its lost parts, else its node or story. */
export function findingPlace(building: Building, finding: number): Place {
    const { object, key, story } = building.findings[finding];
    const items = findingItems(building, building.findings[finding]);
    if (items.length > 0) {
        return { kind: "items", items };
    }
    const shapes = lostOf(building.lost, finding);
    if (shapes.length > 0) {
        return { kind: "lostShapes", lost: shapes };
    }
    const loads = lostOf(building.lostLoads, finding);
    if (loads.length > 0) {
        return { kind: "lostLoads", lost: loads };
    }
    const node = object === FindingObject.Node ? building.nodes.indexOf(key) : -1;
    if (node >= 0) {
        return { kind: "node", node };
    }
    return story >= 0 ? { kind: "story", story } : { kind: "nowhere" };
}

function addNode(building: Building, node: number, around: BoxAround): void {
    if (node >= 0) {
        around.add(building.nodes.x[node], building.nodes.y[node], building.nodes.z[node]);
    }
}

/** Uses `ends` for the drawn ends of a frame: whoever adds many items gives the same one for all. */
function addItem(building: Building, item: number, around: BoxAround, ends = emptyFrameAxes()): void {
    const { frames, planars } = building;
    if (isFrame(building, item)) {
        ends.endI.fill(NaN);
        ends.endJ.fill(NaN);
        frameEnds(building, item, ends);
        addNode(building, frames.nodeI[item], around);
        addNode(building, frames.nodeJ[item], around);
        around.addAll(ends.endI);
        around.addAll(ends.endJ);
        return;
    }
    const first = 4 * planarOfItem(building, item);
    planars.nodes.subarray(first, first + 4).forEach((node) => addNode(building, node, around));
}

function addStories(building: Building, from: number, to: number, around: BoxAround): void {
    const ends = emptyFrameAxes();
    const isMeant = (story: number): boolean => story >= from && story <= to;
    for (let item = 0; item < building.itemCount; ++item) {
        if (isMeant(itemStory(building, item))) {
            addItem(building, item, around, ends);
        }
    }
    building.nodeStory.forEach((story, node) => {
        if (isMeant(story)) {
            addNode(building, node, around);
        }
    });
}

/** undefined: nothing of it has a place. */
export function placeBox(building: Building, place: Place): Box | undefined {
    const around = new BoxAround();
    switch (place.kind) {
        case "items":
            place.items.forEach((item) => addItem(building, item, around));
            break;
        case "lostShapes":
            place.lost.forEach((index) => around.addAll(building.lost[index].corners));
            break;
        case "lostLoads":
            place.lost.forEach((index) => around.addAll(building.lostLoads[index].ends));
            break;
        case "node":
            addNode(building, place.node, around);
            break;
        case "story":
            addStories(building, place.story, place.story, around);
            break;
        case "nowhere":
            break;
    }
    return around.box();
}

export function itemBox(building: Building, item: number): Box | undefined {
    return placeBox(building, { kind: "items", items: [item] });
}

export function nodeBox(building: Building, node: number): Box | undefined {
    return placeBox(building, { kind: "node", node });
}

/** Around the items and the nodes of a story, or of a range of stories. */
export function storyBox(building: Building, from: number, to = from): Box | undefined {
    const around = new BoxAround();
    addStories(building, from, to, around);
    return around.box();
}

export function findingBox(building: Building, finding: number): Box | undefined {
    return placeBox(building, findingPlace(building, finding));
}
