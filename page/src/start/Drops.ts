// Files that are dragged over the window. None of them takes the page away from its tab, wherever it is dropped.

import type { Place } from "../convert/Pair";
import { words } from "./Words";

export interface DropEvents {
    /** Whether files can be dropped now. */
    accepts(): boolean;
    /** The place is undefined where they were dropped elsewhere. */
    dropped(files: readonly File[], place: Place | undefined): void;
    folderDropped(): void;
}

const kPlace = "[data-place]";
const kTextField = "input[type=search]";

const elementAt = (event: Event): Element | null => (event.target instanceof Element ? event.target : null);

/** The place under a drag, and marks it. */
function markPlace(event: DragEvent | undefined): Place | undefined {
    const place = event === undefined ? null : elementAt(event)?.closest<HTMLElement>(kPlace) ?? null;
    for (const marked of document.querySelectorAll<HTMLElement>(kPlace)) {
        marked.toggleAttribute("data-over", marked === place);
    }
    return place?.dataset.place as Place | undefined;
}

function holdsFolder({ items }: DataTransfer): boolean {
    return [...items].some((item) => item.kind === "file" && item.webkitGetAsEntry()?.isDirectory === true);
}

/** While files are dragged over the window, `holder` has the attribute data-dragging, and a hint where no place is. */
export function watchDrops(holder: HTMLElement, events: DropEvents): void {
    const over = (event: DragEvent): void => {
        const { dataTransfer } = event;
        const hasFiles = dataTransfer?.types.includes("Files") === true;
        if (!hasFiles && elementAt(event)?.matches(kTextField)) {
            return;
        }
        event.preventDefault();
        const isWelcome = hasFiles && events.accepts();
        if (dataTransfer !== null) {
            dataTransfer.dropEffect = isWelcome ? "copy" : "none";
        }
        holder.toggleAttribute("data-dragging", isWelcome);
        holder.dataset.dropHint = words("dropAnew");
        markPlace(isWelcome ? event : undefined);
    };
    const end = (): void => {
        holder.removeAttribute("data-dragging");
        markPlace(undefined);
    };
    const drop = (event: DragEvent): void => {
        over(event);
        const place = markPlace(event);
        end();
        const { dataTransfer } = event;
        if (dataTransfer === null || !dataTransfer.types.includes("Files") || !events.accepts()) {
            return;
        }
        if (holdsFolder(dataTransfer)) {
            events.folderDropped();
        } else {
            events.dropped([...dataTransfer.files], place);
        }
    };
    addEventListener("dragenter", over);
    addEventListener("dragover", over);
    addEventListener("drop", drop);
    addEventListener("dragleave", (event) => {
        if (event.relatedTarget === null) {
            end();
        }
    });
}
