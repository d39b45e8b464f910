// A bar of a round length, at the scale of the middle of the picture.

import type { Stage } from "../stage/Stage";
import { element } from "./Dom";
import { numberText } from "./Numbers";
import { text } from "./Strings";

export interface ScaleBar {
    bar: HTMLElement;
    /** Draws it anew after the picture has changed. */
    update(stage: Stage): void;
}

export function scaleBar(): ScaleBar {
    const label = element("span");
    const rule = element("span", { class: "rule" });
    const bar = element("div", { class: "scale", title: text("scaleBar") }, label, rule);
    const update = (stage: Stage): void => {
        const { length, pixels } = stage.scale();
        bar.hidden = !(Number.isFinite(pixels) && pixels > 0);
        label.textContent = numberText(length);
        rule.style.width = `${bar.hidden ? 0 : pixels}px`;
    };
    return { bar, update };
}
