// The picture of the building that stands in the page as base64.

import { bytesOfBase64 } from "../data/Base64";
import { type Columns, readColumns } from "../data/Columns";

/** Lets the browser paint what was changed before a long piece of work. */
export function afterPaint(): Promise<void> {
    return new Promise((resolve) => {
        // A page in the background is not painted, so a timer stands in for the frame.
        const timer = setTimeout(resolve, 100);
        requestAnimationFrame(() => {
            clearTimeout(timer);
            setTimeout(resolve);
        });
    });
}

/**
 * The columns in the page, whose text gives its memory back; undefined: the page was not filled. Throws an Error where
 * they are damaged.
 */
export function takeColumns(): Columns | undefined {
    const holder = document.getElementById("picture");
    const encoded = holder?.textContent ?? "";
    holder?.remove();
    return encoded === "" || encoded.startsWith("@") ? undefined : readColumns(bytesOfBase64(encoded));
}

/** How many elements the columns hold, before the building is made of them. */
export function elementCount(columns: Columns): number {
    return columns.integers("frame.number").length + columns.integers("planar.number").length;
}
