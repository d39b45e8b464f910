// What is printed: the picture, the balance of the loads, and the findings of the panel, of whatever severity.

import type { Actions } from "./Actions";
import { balanceTables } from "./BalanceTable";
import { element } from "./Dom";
import { printedPicture } from "./PrintedPicture";

export class PrintSheet {
    /** Stands in the page; the findings are printed as the panel has them. */
    readonly section = element("section", { class: "print-only" });
    /** Whether the sheet was filled for the print that begins now. */
    private isFilled = false;

    constructor(private readonly actions: Actions) {}

    /** Prints when the picture of the sheet can be painted. */
    async print(): Promise<void> {
        this.fill();
        await this.section.querySelector("img")?.decode().catch(() => undefined);
        // The page may be closed by now.
        if (this.section.isConnected) {
            this.isFilled = true;
            window.print();
            this.isFilled = false;
        }
    }

    /** The browser's own command prints the same, until `signal` ends it. */
    watch(signal: AbortSignal): void {
        addEventListener("beforeprint", () => {
            if (!this.isFilled) {
                this.fill();
            }
        }, { signal });
        addEventListener("afterprint", () => this.section.replaceChildren(), { signal });
    }

    private fill(): void {
        this.section.replaceChildren(...printedPicture(this.actions), balanceTables(this.actions.viewer.building));
    }
}
