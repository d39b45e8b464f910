// The frame elements of the building (beams, columns, braces) as typed arrays: one index an element.
import type { Columns } from "../data/Columns";
import { Records } from "../data/Records";
import type { Nodes } from "./Nodes";
import { numberIndex, type NumberIndex } from "./NumberIndex";

/** Bits of `Frames.hinges`. */
export const enum Hinge {
    AtI = 1,
    AtJ = 2,
}

export interface Frames {
    count: number;
    number: Int32Array;
    /** 0 beam, 1 column, 2 brace, 3 unknown: the first values of ItemKind. */
    kind: Int32Array;
    /** Indexes of the stories; -1: unknown. */
    story: Int32Array;
    /** Keys in the structure file. */
    key: Int32Array;
    /** Lines of the structure file; 0: unknown. */
    line: Int32Array;
    /** Numbers of materials and sections, whose records may be missing. */
    material: Int32Array;
    section: Int32Array;
    /** Indexes of the nodes; -1: the node is missing. */
    nodeI: Int32Array;
    nodeJ: Int32Array;
    /** Numbers of the nodes. */
    numberI: Int32Array;
    numberJ: Int32Array;
    /** Degrees by which the section is turned about the element. */
    angle: Float64Array;
    /** Bits of Hinge. */
    hinges: Uint8Array;
    /** For each element the index of its end offsets; -1: it has none. */
    offset: Int32Array;
    /** Six for each index: x, y, z at end i, then at end j, in global directions. */
    offsetValues: Float64Array;
    /** The index of the element that a number means. */
    indexOf: NumberIndex;
}

function readHinges(columns: Columns, count: number, indexOf: NumberIndex): Uint8Array {
    const releases = new Records(columns, "release", "element");
    const element = releases.integers("element");
    const ends = releases.integers("ends");
    const hinges = new Uint8Array(count);
    for (let i = 0; i < releases.count; ++i) {
        const frame = indexOf(element[i]);
        if (frame >= 0) {
            hinges[frame] |= ends[i];
        }
    }
    return hinges;
}

function readOffsets(columns: Columns, count: number, indexOf: NumberIndex): Pick<Frames, "offset" | "offsetValues"> {
    const offsets = new Records(columns, "offset", "element");
    const offset = new Int32Array(count).fill(-1);
    offsets.integers("element").forEach((element, i) => {
        const frame = indexOf(element);
        if (frame >= 0) {
            offset[frame] = i;
        }
    });
    return { offset, offsetValues: offsets.reals("values", 6) };
}

export function readFrames(columns: Columns, nodes: Nodes): Frames {
    const records = new Records(columns, "frame", "number");
    const number = records.integers("number");
    const numberI = records.integers("nodeI");
    const numberJ = records.integers("nodeJ");
    const indexOf = numberIndex(number);
    return {
        count: records.count,
        number,
        kind: records.integers("kind"),
        story: records.integers("story"),
        key: records.integers("key"),
        line: records.integers("line"),
        material: records.integers("material"),
        section: records.integers("section"),
        nodeI: numberI.map(nodes.indexOf),
        nodeJ: numberJ.map(nodes.indexOf),
        numberI,
        numberJ,
        angle: records.reals("angle"),
        hinges: readHinges(columns, records.count, indexOf),
        ...readOffsets(columns, records.count, indexOf),
        indexOf,
    };
}
