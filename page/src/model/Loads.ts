// The loads of the building as typed arrays. A load is known by one index: first the nodal loads, then the loads on
// frame elements, then those on edges of walls.
import type { Columns } from "../data/Columns";
import { Records } from "../data/Records";
import type { Frames } from "./Frames";
import type { Nodes } from "./Nodes";
import type { Planars } from "./Planars";

/** "both" is what the load case LiveLoad of the model holds: the live loads and the dead ones. */
export type LoadChoice = "dead" | "live" | "both";

/** Values of `standing`: in which of the model's load cases a line stands. LiveLoad holds the dead loads again. */
export const enum Standing {
    LiveLoad = 0,
    Both = 1,
    DeadLoad = 2,
}

export interface NodalLoads {
    count: number;
    standing: Int32Array;
    /** Indexes of the nodes; -1: the node is missing. */
    node: Int32Array;
    nodeNumber: Int32Array;
    /** fx, fy, fz, mx, my, mz of each load, in global directions. */
    values: Float64Array;
}

export interface FrameLoads {
    count: number;
    standing: Int32Array;
    /** Indexes of the frame elements; -1: the element is missing. */
    frame: Int32Array;
    elementNumber: Int32Array;
    /** 0 concentrated, 1 distributed. */
    type: Int32Array;
    /** Four places for each load, as fractions of the length from end i. */
    places: Float64Array;
    /** Four values for each load, in global Z: negative is downward. */
    values: Float64Array;
}

export interface EdgeLoads {
    count: number;
    standing: Int32Array;
    /** Indexes of the planar elements; -1: the element is missing. */
    planar: Int32Array;
    elementNumber: Int32Array;
    /** From 1: edge k lies between the corners k and k + 1, the last between the last corner and the first. */
    edge: Int32Array;
    /** In global Z for each length: negative is downward. */
    value: Float64Array;
}

export interface Loads {
    count: number;
    nodal: NodalLoads;
    frame: FrameLoads;
    edge: EdgeLoads;
}

export function isDistributed(loads: FrameLoads, index: number): boolean {
    return loads.type[index] === 1;
}

/** How many pairs of place and value a load on a frame element has; those behind them, 0 and 0, only fill its line. */
export function pairCount(loads: FrameLoads, index: number): number {
    if (!isDistributed(loads, index)) {
        return 1;
    }
    let count = 4;
    while (count > 2 && loads.places[4 * index + count - 1] === 0 && loads.values[4 * index + count - 1] === 0) {
        --count;
    }
    return count;
}

/** Whether a load belongs to a choice. */
export function isChosen(standing: Standing, choice: LoadChoice): boolean {
    switch (choice) {
        case "dead":
            return standing !== Standing.LiveLoad;
        case "live":
            return standing === Standing.LiveLoad;
        case "both":
            return standing !== Standing.DeadLoad;
    }
}

/** The order of the values of a nodal load. */
const kNodalValues = ["fx", "fy", "fz", "mx", "my", "mz"];
const kPairs = ["1", "2", "3", "4"];

/** One list of columns that stand beside each other: all values of the first record, then of the second. */
function interleaved(columns: Float64Array[], count: number): Float64Array {
    const values = new Float64Array(columns.length * count);
    columns.forEach((column, k) => column.forEach((value, i) => (values[columns.length * i + k] = value)));
    return values;
}

function readNodalLoads(columns: Columns, nodes: Nodes): NodalLoads {
    const records = new Records(columns, "nodalLoad", "node");
    const nodeNumber = records.integers("node");
    return {
        count: records.count,
        standing: records.integers("standing"),
        node: nodeNumber.map(nodes.indexOf),
        nodeNumber,
        values: interleaved(kNodalValues.map((name) => records.reals(name)), records.count),
    };
}

function readFrameLoads(columns: Columns, frames: Frames): FrameLoads {
    const records = new Records(columns, "beamLoad", "element");
    const elementNumber = records.integers("element");
    return {
        count: records.count,
        standing: records.integers("standing"),
        frame: elementNumber.map(frames.indexOf),
        elementNumber,
        type: records.integers("type"),
        places: interleaved(kPairs.map((pair) => records.reals(`d${pair}`)), records.count),
        values: interleaved(kPairs.map((pair) => records.reals(`p${pair}`)), records.count),
    };
}

function readEdgeLoads(columns: Columns, planars: Planars): EdgeLoads {
    const records = new Records(columns, "edgeLoad", "element");
    const elementNumber = records.integers("element");
    return {
        count: records.count,
        standing: records.integers("standing"),
        planar: elementNumber.map(planars.indexOf),
        elementNumber,
        edge: records.integers("edge"),
        value: records.reals("value"),
    };
}

export function readLoads(columns: Columns, nodes: Nodes, frames: Frames, planars: Planars): Loads {
    const nodal = readNodalLoads(columns, nodes);
    const frame = readFrameLoads(columns, frames);
    const edge = readEdgeLoads(columns, planars);
    return { count: nodal.count + frame.count + edge.count, nodal, frame, edge };
}
