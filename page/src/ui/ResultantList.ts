// The resultant of each story beside the building, the highest story at the top, in the case whose loads are drawn.

import { type Resultant, resultants } from "../model/Balance";
import type { Building } from "../model/Building";
import { element } from "./Dom";
import { storyText } from "./ItemText";
import { forceText } from "./Numbers";
import { text } from "./Strings";
import type { Viewer } from "./Viewer";
import { showsAllStories } from "./ViewState";

function row(building: Building, { story, fx, fy, fz }: Resultant, hasSideways: boolean): HTMLElement {
    const forces = hasSideways ? [fz, fx, fy] : [fz];
    return element(
        "tr", {}, element("th", { scope: "row" }, storyText(building, story)),
        ...forces.map((force) => element("td", { class: "number" }, forceText(force))),
    );
}

/** The table for the loads and stories that are shown now; none: there is nothing to tell. */
export function resultantTables({ building, state: { loads, stories: [from, to] } }: Viewer): HTMLElement[] {
    const all = loads === "none" ? [] : resultants(building.balance, loads);
    const isShown = ({ story }: Resultant): boolean => (story >= from && story <= to);
    const own = showsAllStories(building, [from, to]) ? all : all.filter(isShown);
    const hasSideways = own.some(({ fx, fy }) => fx !== 0 || fy !== 0);
    const heads = hasSideways ? ["Fz \u2193", "Fx", "Fy"] : ["Fz \u2193"];
    own.sort((a, b) => b.story - a.story);
    return own.length === 0 ? [] : [element(
        "table", {}, element("caption", {}, text("resultants")),
        element("thead", {}, element("tr", {}, element("td"),
            ...heads.map((head) => element("th", { scope: "col", class: "number" }, head)))),
        element("tbody", {}, ...own.map((resultant) => row(building, resultant, hasSideways))),
    )];
}

export function resultantList(viewer: Viewer): HTMLElement {
    const list = element(
        "div", { class: "resultants", tabindex: 0, role: "region", "aria-label": text("resultants") },
    );
    viewer.watch(["loads", "stories"], () => {
        list.replaceChildren(...resultantTables(viewer));
        list.hidden = list.childElementCount === 0;
    });
    return list;
}
