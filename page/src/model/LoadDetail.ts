// One load, for those who tell about it.
import type { Building } from "./Building";
import { itemOfPlanar } from "./Items";
import { type FrameLoads, isDistributed, pairCount, Standing } from "./Loads";

export interface LoadDetail {
    kind: "nodal" | "concentrated" | "distributed" | "edge";
    isDead: boolean;
    /** The loaded item, or -1: the load is on a node, or its element is missing. */
    item: number;
    /** The index of the loaded node, or -1: the load is on an element, or its node is missing. */
    node: number;
    /** The number of the loaded element or node, also of a missing one. */
    number: number;
    /** Of an edge load the edge, from 1; otherwise 0. */
    edge: number;
    /** nodal: fx, fy, fz, mx, my, mz; concentrated and edge: one value; distributed: one for each place. */
    values: number[];
    /** Fractions of the length from end i; none for nodal and edge loads. */
    places: number[];
}

function nodalDetail({ loads: { nodal } }: Building, index: number): LoadDetail {
    return {
        kind: "nodal",
        isDead: nodal.standing[index] !== Standing.LiveLoad,
        item: -1,
        node: nodal.node[index],
        number: nodal.nodeNumber[index],
        edge: 0,
        values: [...nodal.values.subarray(6 * index, 6 * index + 6)],
        places: [],
    };
}

function frameDetail(loads: FrameLoads, index: number): LoadDetail {
    const [from, to] = [4 * index, 4 * index + pairCount(loads, index)];
    return {
        kind: isDistributed(loads, index) ? "distributed" : "concentrated",
        isDead: loads.standing[index] !== Standing.LiveLoad,
        item: loads.frame[index],
        node: -1,
        number: loads.elementNumber[index],
        edge: 0,
        values: [...loads.values.subarray(from, to)],
        places: [...loads.places.subarray(from, to)],
    };
}

function edgeDetail(building: Building, index: number): LoadDetail {
    const { edge } = building.loads;
    return {
        kind: "edge",
        isDead: edge.standing[index] !== Standing.LiveLoad,
        item: edge.planar[index] < 0 ? -1 : itemOfPlanar(building, edge.planar[index]),
        node: -1,
        number: edge.elementNumber[index],
        edge: edge.edge[index],
        values: [edge.value[index]],
        places: [],
    };
}

export function loadDetail(building: Building, load: number): LoadDetail {
    const { nodal, frame } = building.loads;
    if (load < nodal.count) {
        return nodalDetail(building, load);
    }
    return load < nodal.count + frame.count
        ? frameDetail(frame, load - nodal.count)
        : edgeDetail(building, load - nodal.count - frame.count);
}
