// The walls and plates of the building as typed arrays: one index an element. A slab is several plates of one key.
import type { Columns } from "../data/Columns";
import { Records } from "../data/Records";
import type { Nodes } from "./Nodes";
import { numberIndex, type NumberIndex } from "./NumberIndex";

export const enum PlanarType {
    Wall = 0,
    Plate = 1,
}

export interface Planars {
    count: number;
    /** PlanarType. */
    type: Int32Array;
    number: Int32Array;
    /** Indexes of the stories; -1: unknown. */
    story: Int32Array;
    /** Keys in the structure file. */
    key: Int32Array;
    /** Lines of the structure file; 0: unknown. */
    line: Int32Array;
    /** Numbers of materials and thicknesses, whose records may be missing. */
    material: Int32Array;
    thickness: Int32Array;
    /** Four indexes of nodes for each element; -1: the node is missing, or is the fourth of a plate. */
    nodes: Int32Array;
    /** Four numbers of nodes for each element. */
    nodeNumbers: Int32Array;
    /** The index of the element that a number means. */
    indexOf: NumberIndex;
}

/** How many corners a wall or plate has. */
export function cornerCount(planars: Planars, planar: number): number {
    return planars.type[planar] === PlanarType.Wall ? 4 : 3;
}

function nodeIndexes(type: Int32Array, numbers: Int32Array, indexOf: NumberIndex): Int32Array {
    const nodes = numbers.map(indexOf);
    for (let i = 0; i < type.length; ++i) {
        if (type[i] === PlanarType.Plate) {
            nodes[4 * i + 3] = -1;
        }
    }
    return nodes;
}

export function readPlanars(columns: Columns, nodes: Nodes): Planars {
    const records = new Records(columns, "planar", "number");
    const number = records.integers("number");
    const type = records.integers("type");
    const nodeNumbers = records.integers("nodes", 4);
    return {
        count: records.count,
        type,
        number,
        story: records.integers("story"),
        key: records.integers("key"),
        line: records.integers("line"),
        material: records.integers("material"),
        thickness: records.integers("thickness"),
        nodes: nodeIndexes(type, nodeNumbers, nodes.indexOf),
        nodeNumbers,
        indexOf: numberIndex(number),
    };
}
