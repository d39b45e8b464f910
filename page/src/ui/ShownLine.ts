// How much of the building is shown: "All stories, 825 of 825 elements", and what cannot be drawn at all.

import type { Actions } from "./Actions";
import { element } from "./Dom";
import { storyText } from "./ItemText";
import { countText } from "./Numbers";
import { text } from "./Strings";
import type { Viewer } from "./Viewer";
import { showsAllStories } from "./ViewState";

function storiesText({ building, state }: Viewer): string {
    if (showsAllStories(building, state.stories)) {
        return text("allStories");
    }
    const names = [...new Set(state.stories)].map((story) => storyText(building, story));
    return names.join(" \u2013 ");
}

/** The stories and the number of elements that are shown now. */
export function shownText(viewer: Viewer): string {
    const shown = viewer.visible().reduce((sum, one) => sum + one, 0);
    const total = countText(viewer.building.itemCount);
    return `${storiesText(viewer)} \u00b7 ${text("elementsShown", countText(shown), total)}`;
}

/** Tells of elements that no picture can show; none: it can show all of them. */
export function notDrawnTexts({ viewer, stage }: Actions): string[] {
    const count = stage === undefined ? 0 : viewer.building.itemCount - stage.drawableCount;
    return count > 0 ? [text("elementsNotDrawn", countText(count))] : [];
}

export function shownLine(viewer: Viewer): HTMLElement {
    const line = element("p");
    viewer.watch(["stories", "hidden", "colourBy"], () => { line.textContent = shownText(viewer); });
    return line;
}
