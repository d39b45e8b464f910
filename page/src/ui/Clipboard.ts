// Puts a text on the clipboard, also where the page is a file and the browser keeps its clipboard interface to itself.

import { announce } from "./Announcer";
import { button, element } from "./Dom";
import { text } from "./Strings";

type Rows = readonly (readonly string[])[];

/** Of the buttons that say how it went. */
const kTimers = new Set<ReturnType<typeof setTimeout>>();

function copyBySelection(content: string): boolean {
    const area = element("textarea", { class: "offscreen", "aria-hidden": "true", tabindex: -1 });
    area.value = content;
    const focused = document.activeElement;
    document.body.append(area);
    area.select();
    const done = document.execCommand("copy");
    area.remove();
    if (focused instanceof HTMLElement) {
        focused.focus();
    }
    return done;
}

/** Copies, and tells whether it went well. Browsers refuse it outside of a click. */
async function copyText(content: string): Promise<boolean> {
    try {
        await navigator.clipboard.writeText(content);
        return true;
    } catch {
        return copyBySelection(content);
    }
}

/** Rows as a spreadsheet takes them: cells with tabs between them, a row a line. */
function tabbedText(rows: Rows): string {
    const clean = (cell: string): string => cell.replaceAll(/[\t\r\n]+/g, " ");
    return rows.map((row) => row.map(clean).join("\t")).join("\n") + "\n";
}

/** A button that copies rows for a spreadsheet, and says for a moment how it went. */
export function copyButton(rows: () => Rows): HTMLButtonElement {
    const made = button(text("copy"), async () => {
        const said = text(await copyText(tabbedText(rows())) ? "copied" : "notCopied");
        if (made.isConnected) {
            announce(said);
            made.textContent = said;
            const timer = setTimeout(() => {
                kTimers.delete(timer);
                made.textContent = text("copy");
            }, 2000);
            kTimers.add(timer);
        }
    }, { class: "copy" });
    return made;
}

/** Before the page goes in which the buttons stand. */
export function forgetCopies(): void {
    kTimers.forEach((timer) => clearTimeout(timer));
    kTimers.clear();
}
