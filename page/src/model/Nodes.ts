// The nodes of the building, as typed arrays: one index a node, in the order of the model text file.
import type { Columns } from "../data/Columns";
import { Records } from "../data/Records";
import { numberIndex, type NumberIndex } from "./NumberIndex";

export interface Nodes {
    count: number;
    number: Int32Array;
    x: Float64Array;
    y: Float64Array;
    z: Float64Array;
    /** Indexes of the stories; -1: the node belongs to no story, as supports do. */
    story: Int32Array;
    /** Lines of the structure file; 0: unknown. */
    line: Int32Array;
    /** The index of the node that a number means. */
    indexOf: NumberIndex;
}

export function readNodes(columns: Columns): Nodes {
    const records = new Records(columns, "node", "number");
    const number = records.integers("number");
    return {
        count: records.count,
        number,
        x: records.reals("x"),
        y: records.reals("y"),
        z: records.reals("z"),
        story: records.integers("story"),
        line: records.integers("line"),
        indexOf: numberIndex(number),
    };
}
