// What is printed: the picture as it is seen, what its colours mean, the balance of the loads, and the findings.

import type { Actions } from "./Actions";
import { balanceTables } from "./BalanceTable";
import { element } from "./Dom";
import { legendText } from "./ItemText";
import { cssColour } from "./LegendPanel";
import { text } from "./Strings";
import { stageColours } from "./Theme";
import type { Viewer } from "./Viewer";

const kPaper = 0xffffff;
const sheet = element("section", { class: "print-only" });

/** The picture stands on white paper, whatever the theme of the page. */
function picture({ viewer, stage }: Actions): HTMLElement[] {
    if (stage === undefined) {
        return [];
    }
    const { dark } = viewer.state;
    viewer.change({ dark: false });
    stage.setTheme({ ...stageColours(false), background: kPaper });
    const shown = [element("img", { src: stage.picture(), alt: text("picture") }), legend(viewer)];
    viewer.change({ dark });
    stage.setTheme(stageColours(dark));
    return shown;
}

function legend(viewer: Viewer): HTMLElement {
    const { entries } = viewer.legend();
    const shown = entries.filter((_, index) => !viewer.state.hidden.has(index));
    return element("ul", { class: "legend" }, ...shown.map((entry) => {
        const swatch = element("span", { class: "swatch" });
        swatch.style.backgroundColor = cssColour(entry.colour);
        return element("li", {}, swatch, legendText(viewer.building, entry));
    }));
}

function fillSheet(actions: Actions): void {
    sheet.replaceChildren(...picture(actions), balanceTables(actions.viewer.building));
}

/** Where the sheet stands in the page; the findings are printed as the panel has them. */
export function printSheet(): HTMLElement {
    return sheet;
}

/** Prints when the picture of the sheet can be painted. */
export async function printPage(actions: Actions): Promise<void> {
    fillSheet(actions);
    await sheet.querySelector("img")?.decode().catch(() => undefined);
    print();
}

/** The browser's own command prints the same. */
export function watchPrinting(actions: Actions): void {
    addEventListener("beforeprint", () => {
        if (sheet.childElementCount === 0) {
            fillSheet(actions);
        }
    });
    addEventListener("afterprint", () => sheet.replaceChildren());
}
