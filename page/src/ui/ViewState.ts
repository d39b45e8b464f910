// What the page shows at a moment: everything that a control, a key or a click can change.

import type { Building } from "../model/Building";
import type { ColourBy } from "../model/Colouring";
import type { LoadChoice } from "../model/Loads";
import type { MarkChoice } from "../stage/MarkLayer";
import type { SectionPlane } from "../stage/SectionPlane";

export type Selection =
    | { kind: "nothing" }
    | { kind: "items"; items: readonly number[] }
    | { kind: "node"; node: number };

export const kNothing: Selection = { kind: "nothing" };

export type Tab = "findings" | "element" | "tables" | "help";
export type TableName = "balance" | "stories" | "sections" | "thicknesses" | "materials";

export interface ViewState {
    style: "line" | "solid";
    projection: "perspective" | "parallel";
    colourBy: ColourBy;
    /** Legend entries whose items are hidden. */
    hidden: ReadonlySet<number>;
    /** Indexes of the lowest and the highest story that is shown. */
    stories: readonly [number, number];
    marks: MarkChoice;
    loads: "none" | LoadChoice;
    lost: boolean;
    plane: SectionPlane | undefined;
    selection: Selection;
    /** Index of the finding that is shown; -1: none. */
    finding: number;
    /** Severities whose findings are listed. */
    severities: ReadonlySet<number>;
    tab: Tab;
    table: TableName;
    dark: boolean;
}

/** All stories of a building. */
export function allStories(building: Building): readonly [number, number] {
    return [0, Math.max(0, building.stories.length - 1)];
}

export function showsAllStories(building: Building, stories: readonly [number, number]): boolean {
    const [from, to] = allStories(building);
    return stories[0] <= from && stories[1] >= to;
}

/** How a page begins. */
export function firstState(building: Building, dark: boolean): ViewState {
    return {
        style: "solid",
        projection: "perspective",
        colourBy: "kind",
        hidden: new Set(),
        stories: allStories(building),
        marks: { supports: true, hinges: true, offsets: false, axes: true },
        loads: "none",
        lost: true,
        plane: undefined,
        selection: kNothing,
        finding: -1,
        severities: new Set([0, 1, 2]),
        tab: "findings",
        table: "balance",
        dark,
    };
}
