// The section plane: what lies beyond it is cut away.

import type { Building } from "../model/Building";
import type { SectionPlane } from "../stage/SectionPlane";
import type { Actions } from "./Actions";
import { checkbox, choice, element } from "./Dom";
import { numberText } from "./Numbers";
import { text } from "./Strings";

type Axis = SectionPlane["axis"];

const kSteps = 200;

/** From the lowest to the highest node along an axis. */
function extent({ box }: Building, axis: Axis): readonly [number, number] {
    const at = { x: 0, y: 1, z: 2 }[axis];
    return box === undefined ? [0, 0] : [box.min[at], box.max[at]];
}

export function planeControls({ viewer }: Actions): HTMLElement {
    const slider = element("input", { type: "range", "aria-label": text("planePosition") });
    const position = element("output");
    const cut = (part: Partial<SectionPlane>): void => {
        const { plane } = viewer.state;
        viewer.change({ plane: plane && { ...plane, ...part } });
    };
    const axes = [["none", text("off")], ["x", "x"], ["y", "y"], ["z", "z"]] as const;
    const axis = choice("plane", text("cutAlong"), axes, (value) => {
        if (value === "none") {
            viewer.change({ plane: undefined });
            return;
        }
        const [from, to] = extent(viewer.building, value);
        viewer.change({ plane: { axis: value, at: (from + to) / 2, flipped: viewer.state.plane?.flipped ?? false } });
    });
    slider.addEventListener("input", () => cut({ at: slider.valueAsNumber }));
    const flip = checkbox(text("flip"), (flipped) => cut({ flipped }));
    const details = element("div", { class: "cut" }, slider, position, flip.row);
    viewer.watch(["plane"], ({ plane }) => {
        axis.show(plane?.axis ?? "none");
        details.hidden = plane === undefined;
        flip.box.checked = plane?.flipped ?? false;
        if (plane !== undefined) {
            const [from, to] = extent(viewer.building, plane.axis);
            Object.assign(slider, { min: String(from), max: String(to), step: String((to - from) / kSteps || 1) });
            slider.value = String(plane.at);
            position.textContent = `${plane.axis} = ${numberText(plane.at)}`;
        }
    });
    return element("section", {}, element("h2", {}, text("sectionPlane")), axis.group, details);
}
