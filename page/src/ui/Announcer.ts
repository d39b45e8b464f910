// Tells those who cannot see the picture what has happened in it.

import { element } from "./Dom";
import { itemPlaceText } from "./ItemText";
import { text } from "./Strings";
import type { Viewer } from "./Viewer";

const region = element("p", { class: "offscreen", role: "status", "aria-live": "polite" });

/** Puts the region into the page. It stays there in every language. */
export function startAnnouncer(): void {
    document.body.append(region);
}

export function announce(what: string): void {
    region.textContent = what;
}

/** Tells what is selected from now on. */
export function announceSelection(viewer: Viewer): void {
    const { building } = viewer;
    viewer.watch(["selection", "finding"], ({ selection, finding }) => {
        if (finding >= 0) {
            announce(building.findings[finding].text);
        } else if (selection.kind === "node") {
            announce(text("nodeNumber", building.nodes.number[selection.node]));
        } else if (selection.kind === "items" && selection.items.length > 0) {
            const { items } = selection;
            announce(items.length > 1 ? text("elementCount", items.length) : itemPlaceText(building, items[0]));
        } else {
            announce("");
        }
    });
}
