// What the page knows about an item or a node, as rows of a label and a text.

import type { Building } from "../model/Building";
import { FindingSource } from "../model/Findings";
import { type Frames, Hinge } from "../model/Frames";
import {
    isFrame, itemKey, itemKind, itemLine, itemMaterial, itemNumber, itemStory, planarOfItem,
} from "../model/Items";
import { frameLength, planarArea } from "../model/Measures";
import { wholeMember } from "../model/Places";
import { sourceText } from "./FileName";
import { kindText, materialText, sectionNumberText, storyText, thicknessText } from "./ItemText";
import { numberText } from "./Numbers";
import { sectionDimensions } from "./SectionText";
import { type StringKey, text } from "./Strings";

export type Fact = readonly [label: string, value: string];

const fact = (label: StringKey, value: string | number): Fact => [text(label), String(value)];

function hingeText(hinges: number): string {
    const ends = [hinges & Hinge.AtI ? "i" : "", hinges & Hinge.AtJ ? "j" : ""].filter((end) => end !== "");
    return ends.length > 0 ? text("hingesAt", ends.join(", ")) : text("none");
}

function offsetFacts({ offset, offsetValues }: Frames, frame: number): Fact[] {
    const first = offset[frame] * 6;
    const at = (from: number): string => Array.from(offsetValues.slice(from, from + 3), numberText).join(", ");
    return first < 0
        ? [fact("offsets", text("none"))]
        : [fact("offsetI", at(first)), fact("offsetJ", at(first + 3))];
}

function frameFacts(building: Building, frame: number): Fact[] {
    const { angle, hinges, section } = building.frames;
    const record = building.sections.get(section[frame]);
    const dimensions = record === undefined ? [] : sectionDimensions(record);
    return [
        fact("section", sectionNumberText(building, section[frame])),
        ...dimensions.map(({ name, value }) => fact(name, value)),
        fact("material", materialText(building, itemMaterial(building, frame))),
        fact("length", numberText(frameLength(building, frame))),
        fact("angle", `${numberText(angle[frame])}\u00b0`),
        fact("hinges", hingeText(hinges[frame])),
        ...offsetFacts(building.frames, frame),
    ];
}

/** A plate is one of the triangles into which a slab was cut. */
function slabFacts(building: Building, item: number): Fact[] {
    const triangles = wholeMember(building, item);
    const area = triangles.reduce((sum, one) => sum + planarArea(building, planarOfItem(building, one)), 0);
    return triangles.length > 1 ? [fact("slab", text("slabOf", triangles.length, numberText(area)))] : [];
}

function planarFacts(building: Building, planar: number, item: number): Fact[] {
    return [
        fact("thickness", thicknessText(building, building.planars.thickness[planar])),
        fact("material", materialText(building, itemMaterial(building, item))),
        fact("area", numberText(planarArea(building, planar))),
        ...slabFacts(building, item),
    ];
}

/** An item: what it is, where it comes from, and its properties. */
export function itemFacts(building: Building, item: number): Fact[] {
    const planar = isFrame(building, item) ? -1 : planarOfItem(building, item);
    return [
        fact("numberInModel", itemNumber(building, item)),
        fact("kind", kindText(itemKind(building, item))),
        fact("story", storyText(building, itemStory(building, item))),
        fact("keyInInput", itemKey(building, item)),
        fact("source", sourceText(building, FindingSource.StructureFile, itemLine(building, item))),
        ...(planar < 0 ? frameFacts(building, item) : planarFacts(building, planar, item)),
    ];
}

/** A node: its place, its story, and whether it is supported. */
export function nodeFacts(building: Building, node: number): Fact[] {
    const { number, x, y, z, story, line } = building.nodes;
    return [
        fact("numberInModel", number[node]),
        fact("story", storyText(building, story[node])),
        fact("source", sourceText(building, FindingSource.StructureFile, line[node])),
        ["x", numberText(x[node])],
        ["y", numberText(y[node])],
        ["z", numberText(z[node])],
        fact("support", text(building.supports.includes(node) ? "yes" : "no")),
    ];
}
