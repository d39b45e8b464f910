// How much of the building is shown: "All stories, 825 of 825 elements".

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

export function shownLine(viewer: Viewer): HTMLElement {
    const line = element("p");
    const total = countText(viewer.building.itemCount);
    viewer.watch(["stories", "hidden", "colourBy"], () => {
        const shown = viewer.visible().reduce((sum, one) => sum + one, 0);
        line.textContent = `${storiesText(viewer)} \u00b7 ${text("elementsShown", countText(shown), total)}`;
    });
    return line;
}
