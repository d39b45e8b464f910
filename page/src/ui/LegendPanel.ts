// What the colours mean. Each entry switches its items on and off.

import type { ColourBy, LegendEntry } from "../model/Colouring";
import type { Actions } from "./Actions";
import { button, checkbox, element, option, select } from "./Dom";
import { legendText } from "./ItemText";
import { countText } from "./Numbers";
import { type StringKey, text } from "./Strings";

const kColourings: readonly (readonly [ColourBy, StringKey])[] = [
    ["kind", "kind"], ["story", "story"], ["section", "section"], ["material", "material"],
    ["thickness", "thickness"],
];

export const cssColour = (colour: number): string => `#${colour.toString(16).padStart(6, "0")}`;

/** Dimensions break behind their crosses where the line is too short for them. */
function breakable(label: string): HTMLElement {
    const parts = label.split(/(?<=\u00d7)/).flatMap((part) => [element("wbr"), part]);
    return element("span", {}, ...parts.slice(1));
}

function entryRow({ viewer }: Actions, entry: LegendEntry, index: number): HTMLElement {
    const label = legendText(viewer.building, entry);
    const swatch = element("span", { class: "swatch" });
    swatch.style.backgroundColor = cssColour(entry.colour);
    const { row, box } = checkbox(breakable(label), (checked) => {
        const others = [...viewer.state.hidden].filter((other) => other !== index);
        viewer.change({ hidden: new Set(checked ? others : [...others, index]) });
    }, element("span", { class: "count" }, countText(entry.count)));
    row.title = label;
    box.after(swatch);
    box.checked = !viewer.state.hidden.has(index);
    const showOnly = (): void => {
        const hidden = new Set(viewer.legend().entries.keys());
        hidden.delete(index);
        viewer.change({ hidden });
    };
    const only = button(text("only"), showOnly, { class: "only", "aria-label": text("onlyThis", label) });
    return element("li", {}, row, only);
}

export function legendPanel(actions: Actions): HTMLElement {
    const { viewer } = actions;
    const options = kColourings.map(([value, label]) => option(value, text(label)));
    const colourBy = select(text("colourBy"), options, (value) =>
        viewer.change({ colourBy: value as ColourBy, hidden: new Set() }));
    const showAll = button(text("showAllEntries"), () => viewer.change({ hidden: new Set() }));
    const list = element("ul", { class: "legend" });
    viewer.watch(["colourBy", "dark"], (state) => {
        colourBy.value = state.colourBy;
        const { entries } = viewer.legend();
        list.replaceChildren(...entries.map((entry, i) => entryRow(actions, entry, i)));
    });
    viewer.watch(["hidden"], ({ hidden }) => {
        showAll.hidden = hidden.size === 0;
        list.querySelectorAll("input").forEach((box, index) => { box.checked = !hidden.has(index); });
    });
    return element(
        "section", {}, element("h2", {}, text("colours")),
        element("label", { class: "field" }, element("span", {}, text("colourBy")), colourBy),
        list, showAll,
    );
}
