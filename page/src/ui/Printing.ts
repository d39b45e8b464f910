// What is printed: the picture, the balance of the loads, and the findings of the panel, of whatever severity.

import type { Actions } from "./Actions";
import { balanceTables } from "./BalanceTable";
import { element } from "./Dom";
import { printedPicture } from "./PrintedPicture";

const sheet = element("section", { class: "print-only" });

/** Whether the sheet was filled for the print that begins now. */
let isFilled = false;

function fillSheet(actions: Actions): void {
    sheet.replaceChildren(...printedPicture(actions), balanceTables(actions.viewer.building));
}

/** Where the sheet stands in the page; the findings are printed as the panel has them. */
export function printSheet(): HTMLElement {
    return sheet;
}

/** Prints when the picture of the sheet can be painted. */
export async function printPage(actions: Actions): Promise<void> {
    fillSheet(actions);
    await sheet.querySelector("img")?.decode().catch(() => undefined);
    isFilled = true;
    print();
    isFilled = false;
}

/** The browser's own command prints the same. */
export function watchPrinting(actions: Actions): void {
    addEventListener("beforeprint", () => {
        if (!isFilled) {
            fillSheet(actions);
        }
    });
    addEventListener("afterprint", () => sheet.replaceChildren());
}
