// The plans of the stories, one at a time, for browsers that cannot draw the building.

import type { Building } from "../model/Building";
import { itemStory } from "../model/Items";
import type { Actions } from "./Actions";
import { element, option, select } from "./Dom";
import { storyText } from "./ItemText";
import { storySteps } from "./StoryControls";
import { text } from "./Strings";
import type { ViewState } from "./ViewState";

/** The address of a drawing that stands in the page. As an image it can run no script. */
function imageAddress(svg: string): string {
    return `data:image/svg+xml;charset=utf-8,${encodeURIComponent(svg)}`;
}

function planControls(actions: Actions): HTMLElement {
    const { viewer } = actions;
    const options = viewer.building.plans.map((_, story) => option(story, storyText(viewer.building, story))).reverse();
    const story = select(text("story"), options, (value) => viewer.change({ stories: [Number(value), Number(value)] }));
    viewer.watch(["stories"], ({ stories }) => { story.value = String(stories[0]); });
    return element("div", { class: "row" }, story, ...storySteps(actions));
}

/** Index of the story of what is selected, or of the finding that is shown; -1: none. */
function storyOf(building: Building, { selection, finding }: ViewState): number {
    if (selection.kind === "items" && selection.items.length > 0) {
        return itemStory(building, selection.items[0]);
    }
    if (selection.kind === "node") {
        return building.nodeStory[selection.node];
    }
    return finding < 0 ? -1 : building.findings[finding].story;
}

/** The story of what one selects or finds comes up by itself. */
function followSelection({ viewer }: Actions): void {
    viewer.watchChanges(["selection", "finding"], (state) => {
        const story = storyOf(viewer.building, state);
        if (story >= 0) {
            viewer.change({ stories: [story, story] });
        }
    });
}

/** `reason` is why there is no picture. */
export function plans(actions: Actions, reason: string): HTMLElement {
    const { viewer } = actions;
    const why = element("p", { class: "warning", title: reason }, text("noWebGl"));
    if (viewer.building.plans.length === 0) {
        return element("main", { class: "plans" }, why, element("p", {}, text("noPlans")));
    }
    const image = element("img");
    viewer.change({ stories: [viewer.state.stories[0], viewer.state.stories[0]] });
    followSelection(actions);
    viewer.watch(["stories"], ({ stories: [story] }) => {
        image.src = imageAddress(viewer.building.plans[story] ?? "");
        image.alt = text("planOf", storyText(viewer.building, story));
    });
    return element("main", { class: "plans" }, why, planControls(actions), image);
}
