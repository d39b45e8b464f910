// The controls of the picture, in groups.

import type { Actions } from "./Actions";
import { element } from "./Dom";
import { legendPanel } from "./LegendPanel";
import { loadControls } from "./LoadControls";
import { markControls } from "./MarkControls";
import { planeControls } from "./PlaneControls";
import { storyControls } from "./StoryControls";
import { text } from "./Strings";
import { viewControls } from "./ViewControls";

export function toolbar(actions: Actions): HTMLElement {
    return element(
        "section", { class: "toolbar", "aria-label": text("controls") },
        viewControls(actions), storyControls(actions), loadControls(actions), legendPanel(actions),
        markControls(actions), planeControls(actions),
    );
}
