// The building as the model text file has it.
import type { Columns } from "../data/Columns";
import { type BalanceRow, readBalance } from "./Balance";
import { type Box, BoxAround } from "./Box";
import {
    type Finding, type FindingCode, type LostLoad, type LostShape, readFindingCodes, readFindings, readLostLoads,
    readLostShapes,
} from "./Findings";
import { type Frames, readFrames } from "./Frames";
import { type Loads, readLoads } from "./Loads";
import { type Nodes, readNodes } from "./Nodes";
import { nodeStories, setLevels } from "./NodeStories";
import { type Planars, readPlanars } from "./Planars";
import { type Material, readMaterials, readSections, readThicknesses, type Section } from "./Properties";
import { readStories, type Story } from "./Stories";

export interface Building {
    /** Version of the program. */
    version: string;
    /** Paths as they were given. */
    files: { structure: string; load: string };
    stories: Story[];
    nodes: Nodes;
    frames: Frames;
    planars: Planars;
    /** Frame elements are the items from 0 on, walls and plates those behind them. */
    itemCount: number;
    materials: Map<number, Material>;
    sections: Map<number, Section>;
    thicknesses: Map<number, number>;
    /** Indexes of the nodes that are supported. */
    supports: Int32Array;
    /** Index of the story with which a node is shown: its own, or the lowest of an item that ends there; else -1. */
    nodeStory: Int32Array;
    loads: Loads;
    balance: BalanceRow[];
    findings: Finding[];
    findingCodes: FindingCode[];
    lost: LostShape[];
    lostLoads: LostLoad[];
    /** An SVG plan for each story, or none. */
    plans: string[];
    /** Around the nodes that have a place; undefined: none has. */
    box: Box | undefined;
    /** Middle of this box. */
    centre: [number, number, number];
    /** From the centre to a corner of this box; never 0. */
    radius: number;
}

/** The box around all nodes that have a place, its middle, and how far from it its corners are. */
function extent(nodes: Nodes): Pick<Building, "box" | "centre" | "radius"> {
    const around = new BoxAround();
    for (let i = 0; i < nodes.count; ++i) {
        around.add(nodes.x[i], nodes.y[i], nodes.z[i]);
    }
    const box = around.box();
    const { min, max } = box ?? { min: [0, 0, 0], max: [0, 0, 0] };
    return {
        box,
        centre: [(min[0] + max[0]) / 2, (min[1] + max[1]) / 2, (min[2] + max[2]) / 2],
        radius: Math.hypot(max[0] - min[0], max[1] - min[1], max[2] - min[2]) / 2 || 1,
    };
}

function readFindingParts(columns: Columns): Pick<Building, "findings" | "findingCodes" | "lost" | "lostLoads"> {
    const findingCodes = readFindingCodes(columns);
    return {
        findings: readFindings(columns, findingCodes),
        findingCodes,
        lost: readLostShapes(columns),
        lostLoads: readLostLoads(columns),
    };
}

/** Throws an Error where a column is missing, or has not as many values as the others of its kind. */
export function readBuilding(columns: Columns): Building {
    const stories = readStories(columns);
    const nodes = readNodes(columns);
    const frames = readFrames(columns, nodes);
    const planars = readPlanars(columns, nodes);
    const [structure, load] = columns.texts("file.names");
    setLevels(stories, nodes, frames, planars);
    return {
        version: columns.texts("program.version")[0],
        files: { structure, load },
        stories,
        nodes,
        frames,
        planars,
        itemCount: frames.count + planars.count,
        materials: readMaterials(columns),
        sections: readSections(columns),
        thicknesses: readThicknesses(columns),
        supports: columns.integers("support.node").map(nodes.indexOf).filter((node) => node >= 0),
        nodeStory: nodeStories(nodes, frames, planars),
        loads: readLoads(columns, nodes, frames, planars),
        balance: readBalance(columns, stories),
        ...readFindingParts(columns),
        plans: columns.texts("plan.svg"),
        ...extent(nodes),
    };
}
