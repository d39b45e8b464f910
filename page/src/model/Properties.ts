// Materials, sections and thicknesses, by their numbers in the model.
import type { Columns } from "../data/Columns";
import { Records } from "../data/Records";

export const enum MaterialType {
    Concrete = 0,
    Steel = 1,
    Composite = 2,
}

export interface Material {
    number: number;
    type: MaterialType;
    name: string;
    /** Grade of the concrete, as C30; empty for steel. */
    concrete: string;
    /** Grade of the steel, as 16Mn; empty for concrete. */
    steel: string;
}

export const enum SectionType {
    /** Given by its values, such as the area, and drawn as a square. */
    Value = 0,
    /** Given by the dimensions of its shape. */
    User = 1,
    /** A shape of several steel parts. */
    Combined = 2,
    /** Steel and concrete. */
    Composite = 3,
}

export interface Section {
    number: number;
    type: SectionType;
    /** The word for the shape, as SB or H2T. */
    shape: string;
    /** D1 to D6; of a combined section D11 to D15, D21 to D24. */
    values: Float64Array;
    /** Of a composite section the ratios that follow its shape. */
    composite: Float64Array;
    /** The second line: of a section by values its area and moments, of a composite one its dimensions. */
    further: Float64Array;
}

export function readMaterials(columns: Columns): Map<number, Material> {
    const records = new Records(columns, "material", "number");
    const type = records.integers("type");
    const name = records.texts("name");
    const concrete = records.texts("concrete");
    const steel = records.texts("steel");
    const materials = new Map<number, Material>();
    records.integers("number").forEach((number, i) => {
        materials.set(number, { number, type: type[i], name: name[i], concrete: concrete[i], steel: steel[i] });
    });
    return materials;
}

export function readSections(columns: Columns): Map<number, Section> {
    const records = new Records(columns, "section", "number");
    const type = records.integers("type");
    const shape = records.texts("shape");
    const values = records.reals("values", 9);
    const composite = records.reals("composite", 4);
    const further = records.reals("further", 8);
    const sections = new Map<number, Section>();
    records.integers("number").forEach((number, i) => {
        sections.set(number, {
            number,
            type: type[i],
            shape: shape[i],
            values: values.subarray(9 * i, 9 * i + 9),
            composite: composite.subarray(4 * i, 4 * i + 4),
            further: further.subarray(8 * i, 8 * i + 8),
        });
    });
    return sections;
}

export function readThicknesses(columns: Columns): Map<number, number> {
    const records = new Records(columns, "thickness", "number");
    const value = records.reals("value");
    const thicknesses = new Map<number, number>();
    records.integers("number").forEach((number, i) => thicknesses.set(number, value[i]));
    return thicknesses;
}
