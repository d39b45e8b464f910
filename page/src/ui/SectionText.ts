// A section in words and numbers: its shape and its dimensions.

import { type Section, SectionType } from "../model/Properties";
import { numberText } from "./Numbers";
import type { StringKey } from "./Strings";

/** A dimension and the place of its number among the section's values or, for composite sections, its further ones. */
type Dimension = readonly [StringKey, number];

const kChannel: readonly Dimension[] = [
    ["height", 0], ["topFlangeWidth", 1], ["webThickness", 2], ["topFlangeThickness", 3],
    ["bottomFlangeWidth", 4], ["bottomFlangeThickness", 5],
];

const kValues: Readonly<Record<string, readonly Dimension[]>> = {
    SB: [["height", 0], ["width", 1]],
    SR: [["diameter", 0]],
    H: kChannel,
    C: kChannel,
    B: [["height", 0], ["width", 1], ["webThickness", 2], ["topFlangeThickness", 3], ["bottomFlangeThickness", 5]],
    P: [["diameter", 0], ["wallThickness", 1]],
    "2C": [["height", 0], ["flangeWidth", 1], ["webThickness", 2], ["flangeThickness", 3], ["gap", 4]],
    H2T: [
        ["height", 0], ["flangeWidth", 1], ["webThickness", 2], ["flangeThickness", 3],
        ["sideDepth", 5], ["sideFlangeWidth", 6], ["sideWebThickness", 7], ["sideFlangeThickness", 8],
    ],
};

const kSteelInside: readonly Dimension[] = [
    ["concreteHeight", 0], ["concreteWidth", 1], ["steelHeight", 2], ["steelWidth", 3], ["webThickness", 4],
    ["flangeThickness", 5],
];

const kFurther: Readonly<Record<string, readonly Dimension[]>> = {
    EPC: [["coreDiameter", 0], ["diameter", 2], ["wallThickness", 3]],
    RHB: kSteelInside,
    RBC: kSteelInside,
};

const kProperties: readonly Dimension[] = [["area", 0], ["inertiaX", 3], ["inertiaY", 4], ["inertiaZ", 5]];

export interface DimensionText {
    name: StringKey;
    value: string;
}

/** The dimensions of the shape, none where it is unknown; and the values in which they stand. */
function shapeDimensions({ type, shape, values, further }: Section): [readonly Dimension[], Float64Array] {
    const isComposite = type === SectionType.Composite;
    const table = isComposite ? kFurther : kValues;
    return [Object.hasOwn(table, shape) ? table[shape] : [], isComposite ? further : values];
}

/** The dimensions of a section that the model gives, by their names. */
export function sectionDimensions(section: Section): DimensionText[] {
    const named = (dimensions: readonly Dimension[], values: Float64Array): DimensionText[] =>
        dimensions.map(([name, at]) => ({ name, value: numberText(values[at]) }));
    const own = named(...shapeDimensions(section));
    return section.type === SectionType.Value ? [...own, ...named(kProperties, section.further)] : own;
}

/** Whether the lower flange of an H, a channel or a box is like the upper one: then nobody writes it. */
function hasLikeFlanges({ shape, values }: Section): boolean {
    const [, width, , thickness, lowerWidth, lowerThickness] = values;
    const isFlanged = shape === "H" || shape === "C" || shape === "B";
    return isFlanged && thickness === lowerThickness && (shape === "B" || width === lowerWidth);
}

/** A section on one line, as H 400x200x8x13: the shape and its dimensions, of an unknown shape those that are not 0. */
export function sectionText(section: Section): string {
    const [dimensions, values] = shapeDimensions(section);
    const written = hasLikeFlanges(section) ? dimensions.slice(0, 4) : dimensions;
    const sizes = (dimensions.length > 0
        ? written.map(([, at]) => values[at])
        : Array.from(values).filter((value) => value !== 0)
    ).map(numberText);
    return sizes.length > 0 ? `${section.shape} ${sizes.join("\u00d7")}` : section.shape;
}
