// The canvas with what stands on it: how much is shown, the scale bar, the resultants of the loads, the load under the
// pointer.

import type { Simplification } from "../stage/Stage";
import type { Actions } from "./Actions";
import { element } from "./Dom";
import { loadTip } from "./LoadTip";
import { resultantList } from "./ResultantList";
import { scaleBar } from "./ScaleBar";
import { notDrawnTexts, shownLine } from "./ShownLine";
import { type StringKey, text } from "./Strings";

const kSimplifications: Readonly<Record<Simplification, StringKey>> = {
    antialiasing: "antialiasing",
    sections: "sectionBoxes",
    transparency: "transparency",
};

export class PictureFrame {
    readonly frame: HTMLElement;
    private readonly scale = scaleBar();
    private readonly tip;
    private readonly status = element("p", { class: "status", role: "status", hidden: true });

    constructor(private readonly actions: Actions, canvas: HTMLCanvasElement) {
        const { viewer } = actions;
        this.tip = loadTip(viewer.building);
        canvas.setAttribute("aria-label", text("pictureHelp"));
        this.frame = element(
            "main", { class: "picture", "aria-label": text("picture") }, canvas, this.corner(), resultantList(viewer),
            this.scale.bar, this.tip.tip, this.status,
        );
    }

    /** Says something in the middle of the picture. */
    say(words: string): void {
        this.status.textContent = words;
        this.status.hidden = false;
    }

    showLoad(load: number, x: number, y: number): void {
        this.tip.show(load, x, y);
    }

    /** After a frame was drawn. */
    update(): void {
        if (this.actions.stage !== undefined) {
            this.scale.update(this.actions.stage);
        }
    }

    private corner(): HTMLElement {
        const { viewer, stage } = this.actions;
        const simpler = stage?.simplifications().map((what) => text(kSimplifications[what])) ?? [];
        const list = simpler.length > 0 ? simpler.reduce((some, one) => text("listed", some, one)) : "";
        const remarks = [...notDrawnTexts(this.actions), ...(list === "" ? [] : [text("simplified", list)])];
        return element("div", { class: "shown" }, shownLine(viewer), ...remarks.map((one) => element("p", {}, one)));
    }
}
