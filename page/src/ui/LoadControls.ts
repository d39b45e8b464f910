// Which loads are drawn.

import type { Actions } from "./Actions";
import { choice, element } from "./Dom";
import { loadRemarks } from "./LoadRemarks";
import { text } from "./Strings";

export function loadControls({ viewer }: Actions): HTMLElement {
    const { group, show } = choice("loads", text("loadsShown"), [
        ["none", text("noLoads")], ["dead", text("dead")], ["live", text("live")], ["both", text("both")],
    ], (loads) => viewer.change({ loads }));
    const remarks = element("div");
    viewer.watch(["loads"], ({ loads }) => {
        show(loads);
        const sentences = loadRemarks(viewer.building, loads);
        remarks.replaceChildren(...sentences.map((sentence) => element("p", { class: "remark" }, sentence)));
    });
    return element("section", {}, element("h2", {}, text("loads")), group, remarks);
}
