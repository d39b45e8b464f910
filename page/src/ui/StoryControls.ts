// Which stories are shown: all, a range, or one at a time.

import type { Actions } from "./Actions";
import { button, element, option, select } from "./Dom";
import { storyText } from "./ItemText";
import { text } from "./Strings";
import { showsAllStories } from "./ViewState";

/** Buttons that go one story down and up. */
export function storySteps(actions: Actions): HTMLElement[] {
    const step = (sign: string, name: string, by: 1 | -1): HTMLElement =>
        button(sign, () => actions.stepStory(by), { "aria-label": name, title: name });
    return [step("\u25bc", text("storyDown"), -1), step("\u25b2", text("storyUp"), 1)];
}

export function storyControls(actions: Actions): HTMLElement {
    const { viewer } = actions;
    const { building } = viewer;
    const options = (): HTMLOptionElement[] =>
        building.stories.map((_, story) => option(story, storyText(building, story))).reverse();
    const from = select(text("fromStory"), options(), (value) => {
        viewer.change({ stories: [Number(value), Math.max(Number(value), viewer.state.stories[1])] });
    });
    const to = select(text("toStory"), options(), (value) => {
        viewer.change({ stories: [Math.min(Number(value), viewer.state.stories[0]), Number(value)] });
    });
    const all = button(text("allStories"), () => actions.showAllStories());
    viewer.watch(["stories"], ({ stories }) => {
        from.value = String(stories[0]);
        to.value = String(stories[1]);
        all.setAttribute("aria-pressed", String(showsAllStories(building, stories)));
    });
    return element(
        "section", { hidden: building.stories.length === 0 }, element("h2", {}, text("stories")),
        element("div", { class: "range" }, from, element("span", { "aria-hidden": "true" }, "\u2013"), to),
        element("div", { class: "row" }, all, ...storySteps(actions)),
    );
}
