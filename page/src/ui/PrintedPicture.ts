// The picture on paper: as it is seen, with what its colours mean, what it shows and what it does not.

import type { SectionPlane } from "../stage/SectionPlane";
import type { Actions } from "./Actions";
import { element } from "./Dom";
import { legendText } from "./ItemText";
import { cssColour } from "./LegendPanel";
import { loadRemarks } from "./LoadRemarks";
import { numberText } from "./Numbers";
import { resultantTables } from "./ResultantList";
import { notDrawnTexts, shownText } from "./ShownLine";
import { type StringKey, text } from "./Strings";
import { stageColours } from "./Theme";
import type { ViewState } from "./ViewState";
import type { Viewer } from "./Viewer";

const kPaper = 0xffffff;
/** More hidden legend entries are only counted. */
const kMostNamed = 10;

const kLoads: Readonly<Record<ViewState["loads"], StringKey>> = {
    none: "noLoads", dead: "deadLoads", live: "liveLoads", both: "bothLoads",
};

function legendList(viewer: Viewer): HTMLElement {
    const { entries } = viewer.legend();
    const shown = entries.filter((_, index) => !viewer.state.hidden.has(index));
    return element("ul", { class: "legend" }, ...shown.map((entry) => {
        const swatch = element("span", { class: "swatch" });
        swatch.style.backgroundColor = cssColour(entry.colour);
        return element("li", {}, swatch, legendText(viewer.building, entry));
    }));
}

function hiddenText(viewer: Viewer): string {
    const { hidden } = viewer.state;
    if (hidden.size > kMostNamed) {
        return text("entryCount", hidden.size);
    }
    const entries = viewer.legend().entries.filter((_, index) => hidden.has(index));
    return entries.map((entry) => legendText(viewer.building, entry)).reduce((some, one) => text("listed", some, one));
}

/** The side of the plane that is left. */
function planeText({ axis, at, flipped }: SectionPlane): string {
    return `${axis} ${flipped ? "\u2265" : "\u2264"} ${numberText(at)}`;
}

function captions(actions: Actions): HTMLElement[] {
    const { viewer } = actions;
    const { building, state: { loads, hidden, plane } } = viewer;
    const labelled = (label: StringKey, words: string): string => text("labelled", text(label), words);
    return [
        shownText(viewer),
        ...notDrawnTexts(actions),
        ...(hidden.size > 0 ? [labelled("hiddenEntries", hiddenText(viewer))] : []),
        ...(plane === undefined ? [] : [labelled("sectionPlane", planeText(plane))]),
        labelled("loadsShown", text(kLoads[loads])),
        ...loadRemarks(building, loads),
    ].map((words) => element("p", {}, words));
}

/** The picture stands on white paper, whatever the theme of the page. None: the browser cannot draw it. */
export function printedPicture(actions: Actions): HTMLElement[] {
    const { viewer, stage } = actions;
    if (stage === undefined) {
        return [];
    }
    const { dark } = viewer.state;
    viewer.change({ dark: false });
    stage.setTheme({ ...stageColours(false), background: kPaper });
    const picture = element("img", { src: stage.picture(), alt: text("picture") });
    const legend = legendList(viewer);
    viewer.change({ dark });
    stage.setTheme(stageColours(dark));
    return [picture, legend, ...captions(actions), ...resultantTables(viewer)];
}
