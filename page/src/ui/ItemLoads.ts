// The loads on an item and on its nodes, in words.

import type { Building } from "../model/Building";
import { isFrame, planarOfItem } from "../model/Items";
import { type LoadDetail, loadDetail } from "../model/LoadDetail";
import { numberText } from "./Numbers";
import { type StringKey, text } from "./Strings";

const kComponents = ["Fx", "Fy", "Fz", "Mx", "My", "Mz"];
const kKinds: Readonly<Record<LoadDetail["kind"], StringKey>> = {
    nodal: "nodalLoad",
    concentrated: "concentratedLoad",
    distributed: "distributedLoad",
    edge: "edgeLoad",
};

function placesText(values: readonly number[], places: readonly number[]): string {
    return values.map((value, i) => `${numberText(value)} @ ${numberText(places[i])}`).join("; ");
}

/** What a load is and how large: `Concentrated`, `-8 @ 0.5`. Values act along global Z, upward is positive. */
export function loadWords(detail: LoadDetail): { kind: string; values: string } {
    const kind = detail.kind === "edge" ? text("edgeLoad", detail.edge) : text(kKinds[detail.kind]);
    if (detail.kind === "nodal") {
        const named = detail.values.map((value, i) => `${kComponents[i]} ${numberText(value)}`);
        const loaded = named.filter((_, i) => detail.values[i] !== 0);
        return { kind, values: (loaded.length > 0 ? loaded : ["Fz 0"]).join("; ") };
    }
    const values = detail.kind === "edge"
        ? numberText(detail.values[0])
        : placesText(detail.values, detail.places);
    return { kind, values };
}

/** The case whose load it is: a dead load stands in both load cases of the model. */
export function caseText(detail: LoadDetail): string {
    return text(detail.isDead ? "deadLoad" : "liveLoad");
}

/** Indexes of the loads on an item itself. */
export function loadsOnItem(building: Building, item: number): number[] {
    const { nodal, frame, edge } = building.loads;
    const of = isFrame(building, item) ? item : planarOfItem(building, item);
    const targets = isFrame(building, item) ? frame.frame : edge.planar;
    const first = nodal.count + (isFrame(building, item) ? 0 : frame.count);
    return indexesOf(targets, of).map((index) => first + index);
}

/** Indexes of the loads on a node. */
export function loadsOnNode(building: Building, node: number): number[] {
    return node < 0 ? [] : indexesOf(building.loads.nodal.node, node);
}

export function loadDetails(building: Building, loads: readonly number[]): LoadDetail[] {
    return loads.map((load) => loadDetail(building, load));
}

function indexesOf(values: Int32Array, wanted: number): number[] {
    const found: number[] = [];
    for (let at = values.indexOf(wanted); at >= 0; at = values.indexOf(wanted, at + 1)) {
        found.push(at);
    }
    return found;
}
