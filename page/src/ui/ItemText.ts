// How items, stories, materials and legend entries are called on the page.

import type { Building } from "../model/Building";
import type { LegendEntry } from "../model/Colouring";
import { ItemKind, itemKind, itemNumber, itemStory } from "../model/Items";
import { numberText } from "./Numbers";
import { sectionText } from "./SectionText";
import { type StringKey, text } from "./Strings";

const kKinds: Readonly<Record<ItemKind, StringKey>> = {
    [ItemKind.Beam]: "beam",
    [ItemKind.Column]: "column",
    [ItemKind.Brace]: "brace",
    [ItemKind.Frame]: "frame",
    [ItemKind.Wall]: "wall",
    [ItemKind.Plate]: "plate",
};

export function kindText(kind: ItemKind): string {
    return text(kKinds[kind]);
}

/** "Story 3": stories are named by their keys, as in the findings. */
export function storyText(building: Building, story: number): string {
    return story >= 0 && story < building.stories.length
        ? text("storyNumber", building.stories[story].key)
        : text("noStory");
}

/** "Beam 123", with its number in the model. */
export function itemText(building: Building, item: number): string {
    return `${kindText(itemKind(building, item))} ${itemNumber(building, item)}`;
}

/** "Beam 123, Story 3". */
export function itemPlaceText(building: Building, item: number): string {
    return text("listed", itemText(building, item), storyText(building, itemStory(building, item)));
}

/** A material's number and name; a number without a record says that it is missing. */
export function materialText(building: Building, number: number): string {
    const material = building.materials.get(number);
    return material === undefined ? text("missingNumber", number) : `${number}: ${material.name}`;
}

/** A section's shape and dimensions. */
export function sectionName(building: Building, number: number): string {
    const section = building.sections.get(number);
    return section === undefined ? text("missing") : sectionText(section);
}

export function sectionNumberText(building: Building, number: number): string {
    const exists = building.sections.has(number);
    return exists ? `${number}: ${sectionName(building, number)}` : text("missingNumber", number);
}

export function thicknessText(building: Building, number: number): string {
    const value = building.thicknesses.get(number);
    return value === undefined ? text("missingNumber", number) : numberText(value);
}

export function legendText(building: Building, entry: LegendEntry): string {
    switch (entry.what) {
        case "kind":
            return kindText(entry.value);
        case "story":
            return storyText(building, entry.value);
        case "section":
            return sectionNumberText(building, entry.value);
        case "material":
            return materialText(building, entry.value);
        case "thickness":
            return thicknessText(building, entry.value);
        case "others":
            return text("otherValues", entry.value);
        default:
            return text("without");
    }
}
