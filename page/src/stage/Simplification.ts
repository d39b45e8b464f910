// What very large buildings are drawn without.
import type { Building } from "../model/Building";

/** Smooth edges; true shapes of sections, which are drawn as their outer boxes; slabs that let one see through. */
export type Simplification = "antialiasing" | "sections" | "transparency";

/** Beyond these, a frame takes seconds where no graphics card helps. */
const kSmoothItems = 60_000;
const kSeeThroughPanels = 60_000;

export function hasSmoothEdges(building: Building): boolean {
    return building.itemCount <= kSmoothItems;
}

export function hasSeeThroughSlabs(building: Building): boolean {
    return building.planars.count <= kSeeThroughPanels;
}

/** `areBoxes`: whether sections are drawn as boxes. */
export function simplificationsOf(building: Building, areBoxes: boolean): Simplification[] {
    const all: [Simplification, boolean][] = [
        ["antialiasing", !hasSmoothEdges(building)],
        ["sections", areBoxes],
        ["transparency", !hasSeeThroughSlabs(building)],
    ];
    return all.flatMap(([what, applies]) => (applies ? [what] : []));
}
