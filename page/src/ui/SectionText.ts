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

/** The dimensions of a section that the model gives, by their names. */
export function sectionDimensions(section: Section): DimensionText[] {
    const isComposite = section.type === SectionType.Composite;
    const table = isComposite ? kFurther : kValues;
    const from = isComposite ? section.further : section.values;
    const named = (dimensions: readonly Dimension[], values: Float64Array): DimensionText[] =>
        dimensions.map(([name, at]) => ({ name, value: numberText(values[at]) }));
    const own = named(Object.hasOwn(table, section.shape) ? table[section.shape] : [], from);
    return section.type === SectionType.Value ? [...own, ...named(kProperties, section.further)] : own;
}

/** Without a lower flange that is like the upper one, which nobody writes. */
function writtenValues({ shape, values }: Section): Float64Array {
    const [, width, , thickness, lowerWidth, lowerThickness] = values;
    const isFlanged = shape === "H" || shape === "C" || shape === "B";
    const isAlike = thickness === lowerThickness && (shape === "B" || width === lowerWidth);
    return isFlanged && isAlike ? values.slice(0, 4) : values;
}

/** A section on one line, as H 400x200x8x13: the shape, and its dimensions as far as they are not zero. */
export function sectionText(section: Section): string {
    const values = section.type === SectionType.Composite ? section.further : writtenValues(section);
    const sizes = Array.from(values).filter((value) => value !== 0).map(numberText);
    return sizes.length > 0 ? `${section.shape} ${sizes.join("\u00d7")}` : section.shape;
}
