// Tells the load under the pointer.

import type { Building } from "../model/Building";
import { loadDetail } from "../model/LoadDetail";
import { element } from "./Dom";
import { caseText, loadWords } from "./ItemLoads";
import { text } from "./Strings";

export interface LoadTip {
    tip: HTMLElement;
    /** Shows a load beside a place of the picture; -1: none. */
    show(load: number, x: number, y: number): void;
}

function content(building: Building, load: number): HTMLElement[] {
    const detail = loadDetail(building, load);
    const { kind, values } = loadWords(detail);
    const on = text(detail.kind === "nodal" ? "nodeNumber" : "elementNumber", detail.number);
    return [
        element("b", {}, text("listed", caseText(detail), on)),
        element("span", {}, text("labelled", kind, values)),
    ];
}

export function loadTip(building: Building): LoadTip {
    const tip = element("div", { class: "tip", role: "tooltip", hidden: true });
    const show = (load: number, x: number, y: number): void => {
        tip.hidden = load < 0;
        if (load < 0) {
            return;
        }
        tip.replaceChildren(...content(building, load));
        const { clientWidth = 0, clientHeight = 0 } = tip.parentElement ?? {};
        const inside = (at: number, size: number, room: number): string =>
            `${Math.max(4, Math.min(at, room - size - 4))}px`;
        tip.style.left = inside(x + 14, tip.offsetWidth, clientWidth);
        tip.style.top = inside(y + 16, tip.offsetHeight, clientHeight);
    };
    return { tip, show };
}
