// Which loads are drawn.

import type { Building } from "../model/Building";
import type { LoadChoice } from "../model/Loads";
import type { Actions } from "./Actions";
import { choice, element } from "./Dom";
import { text } from "./Strings";

/** Whether the model has a load of a choice. */
function hasLoads(building: Building, loads: LoadChoice): boolean {
    const { nodal, frame, edge } = building.loads;
    const belongs = (isDead: number): boolean =>
        loads === "dead" ? isDead !== 0 : loads === "live" ? isDead === 0 : isDead !== 2;
    return [nodal, frame, edge].some(({ isDead }) => isDead.some(belongs));
}

export function loadControls({ viewer }: Actions): HTMLElement {
    const { group, show } = choice("loads", text("loadsShown"), [
        ["none", text("noLoads")], ["dead", text("dead")], ["live", text("live")], ["both", text("both")],
    ], (loads) => viewer.change({ loads }));
    const remark = element("p", { class: "remark" });
    viewer.watch(["loads"], ({ loads }) => {
        show(loads);
        const isEmpty = loads !== "none" && !hasLoads(viewer.building, loads);
        remark.textContent = isEmpty ? text("noLoadInCase") : loads === "both" ? text("bothRemark") : "";
        remark.hidden = remark.textContent === "";
    });
    return element("section", {}, element("h2", {}, text("loads")), group, remark);
}
