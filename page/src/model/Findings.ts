// What the program found about the building, and the shapes and loads that did not come into the model.
import type { Columns } from "../data/Columns";
import { Records } from "../data/Records";

export const enum Severity {
    Loss = 0,
    Doubt = 1,
    Note = 2,
}

export const enum FindingSource {
    StructureFile = 0,
    LoadFile = 1,
    Model = 2,
}

export const enum FindingObject {
    None = 0,
    Beam = 1,
    Column = 2,
    Brace = 3,
    Wall = 4,
    Plate = 5,
    Node = 6,
    Section = 7,
    Story = 8,
    Load = 9,
}

/** A code that occurs, such as "wall-not-upright". */
export interface FindingCode {
    name: string;
    /** How many findings have it, also those that are not told. */
    total: number;
}

export interface Finding {
    /** The word of the code. */
    code: string;
    severity: Severity;
    source: FindingSource;
    /** Line of the source; 0: none. */
    line: number;
    object: FindingObject;
    /** Index of the story; -1: none. */
    story: number;
    /** Key of the object, or number of the node; 0: none. */
    key: number;
    /** Number in the model, or the one that a lost element would have; 0: none. */
    element: number;
    /** A sentence, as the program tells it elsewhere. */
    text: string;
}

/** A wall, triangle or opening that is not in the model. */
export interface LostShape {
    /** Index of its finding. */
    finding: number;
    /** x, y, z of two to four corners, absolute; they may be no numbers. */
    corners: Float64Array;
}

/** A load that is not in the model. */
export interface LostLoad {
    /** Index of its finding. */
    finding: number;
    /** x, y, z of both ends, absolute, equal for a force at a point; they may be no numbers. */
    ends: Float64Array;
    /** In global Z at both ends; NaN: unknown. */
    values: [number, number];
}

export function readFindingCodes(columns: Columns): FindingCode[] {
    const records = new Records(columns, "findingCode", "total");
    const total = records.integers("total");
    return records.texts("name").map((name, i) => ({ name, total: total[i] }));
}

export function readFindings(columns: Columns, codes: FindingCode[]): Finding[] {
    const records = new Records(columns, "finding", "code");
    const code = records.integers("code");
    const severity = records.integers("severity");
    const source = records.integers("source");
    const line = records.integers("line");
    const object = records.integers("object");
    const story = records.integers("story");
    const key = records.integers("key");
    const element = records.integers("element");
    return records.texts("text").map((text, i) => ({
        code: codes[code[i]].name,
        severity: severity[i],
        source: source[i],
        line: line[i],
        object: object[i],
        story: story[i],
        key: key[i],
        element: element[i],
        text,
    }));
}

export function readLostShapes(columns: Columns): LostShape[] {
    const records = new Records(columns, "lost", "finding");
    const points = records.integers("points");
    const [x, y, z] = ["lost.x", "lost.y", "lost.z"].map((name) => columns.reals(name));
    let next = 0;
    return Array.from(records.integers("finding"), (finding, i) => {
        const corners = new Float64Array(3 * points[i]);
        for (let k = 0; k < points[i]; ++k, ++next) {
            corners.set([x[next], y[next], z[next]], 3 * k);
        }
        return { finding, corners };
    });
}

export function readLostLoads(columns: Columns): LostLoad[] {
    const records = new Records(columns, "lostLoad", "finding");
    const ends = records.reals("ends", 6);
    const values = records.reals("values", 2);
    return Array.from(records.integers("finding"), (finding, i) => ({
        finding,
        ends: ends.subarray(6 * i, 6 * i + 6),
        values: [values[2 * i], values[2 * i + 1]],
    }));
}
