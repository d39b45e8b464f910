// Marks on the building: supports, hinges, offsets, local axes, and what was lost.

import { Severity } from "../model/Findings";
import type { MarkChoice } from "../stage/MarkLayer";
import type { Actions } from "./Actions";
import { checkbox, element } from "./Dom";
import { findingGroups, honestCount, severityCount } from "./FindingGroups";
import { countText } from "./Numbers";
import { type StringKey, text } from "./Strings";

export function markControls({ viewer }: Actions): HTMLElement {
    const { supports, frames, lost, lostLoads } = viewer.building;
    const hinged = frames.hinges.reduce((sum, bits) => sum + (bits !== 0 ? 1 : 0), 0);
    const shifted = frames.offset.reduce((sum, index) => sum + (index >= 0 ? 1 : 0), 0);
    const countOf = (words: string): HTMLElement => element("span", { class: "count" }, words);
    const count = (value: number): HTMLElement => countOf(countText(value));
    const losses = severityCount(findingGroups(viewer.building), Severity.Loss);
    const isExact = losses.isExact && losses.held === losses.total;
    const mark = (name: keyof MarkChoice, label: StringKey, ...counts: HTMLElement[]): HTMLElement => {
        const { row, box } = checkbox(text(label), (checked) => {
            viewer.change({ marks: { ...viewer.state.marks, [name]: checked } });
        }, ...counts);
        viewer.watch(["marks"], ({ marks }) => { box.checked = marks[name]; });
        return row;
    };
    const lostMark = checkbox(text("lostShapes"), (checked) => viewer.change({ lost: checked }),
        countOf(honestCount({ total: lost.length + lostLoads.length, isExact })));
    const remark = text("lostHeld", countText(losses.held), honestCount(losses));
    viewer.watch(["lost"], (state) => { lostMark.box.checked = state.lost; });
    return element(
        "section", {}, element("h2", {}, text("marks")),
        mark("supports", "supports", count(supports.length)),
        mark("hinges", "hinges", count(hinged)),
        mark("offsets", "offsets", count(shifted)),
        mark("axes", "axes"),
        lostMark.row,
        ...(isExact ? [] : [element("p", { class: "remark" }, remark)]),
    );
}
