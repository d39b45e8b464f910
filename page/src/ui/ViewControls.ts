// How the building is looked at: lines or solids, the projection, the standard views.

import type { ViewName } from "../stage/Stage";
import type { Actions } from "./Actions";
import { button, choice, element } from "./Dom";
import { type StringKey, text } from "./Strings";

/** In the order of their keys, 1 to 7. */
export const kViews: readonly (readonly [ViewName, StringKey])[] = [
    ["isometric", "isometric"], ["front", "front"], ["back", "back"], ["left", "left"], ["right", "right"],
    ["top", "top"], ["bottom", "bottom"],
];

export function viewControls(actions: Actions): HTMLElement {
    const { viewer } = actions;
    const style = choice(
        "style", text("style"), [["solid", text("solid")], ["line", text("line")]], (value) =>
            viewer.change({ style: value }),
    );
    const projection = choice(
        "projection", text("projection"), [["perspective", text("perspective")], ["parallel", text("parallel")]],
        (value) => viewer.change({ projection: value }),
    );
    viewer.watch(["style"], (state) => style.show(state.style));
    viewer.watch(["projection"], (state) => projection.show(state.projection));
    const views = kViews.map(([name, label]) => button(text(label), () => actions.stage?.view(name)));
    return element(
        "section", {}, element("h2", {}, text("view")), style.group, projection.group,
        element("div", { class: "views" }, ...views, button(text("fit"), () => actions.fit())),
    );
}
