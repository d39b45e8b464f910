// What stands in the page: one screen at a time.

export interface Screen {
    /** Makes its elements anew, in the language that is spoken. */
    make(): void;
    /** Leaves the holder to the next one. */
    close(): void;
}

/** Fills a holder with other children. The control that has the focus leaves it to the new one with the same id. */
export function renew(holder: HTMLElement, ...children: Node[]): void {
    const focused = document.activeElement?.id ?? "";
    holder.classList.add("start");
    holder.replaceChildren(...children);
    if (focused !== "") {
        document.getElementById(focused)?.focus();
    }
}

/** Leaves a holder as it was before the first screen. */
export function clear(holder: HTMLElement): void {
    holder.classList.remove("start");
    holder.replaceChildren();
}
