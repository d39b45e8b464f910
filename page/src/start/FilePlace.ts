// A place for one of the two files: files are dropped on it, or chosen with its button.

import type { Place } from "../convert/Pair";
import { element } from "../ui/Dom";
import { sizeText } from "./FileSize";
import { type WordKey, words } from "./Words";

const kTitles: Readonly<Record<Place, WordKey>> = { structure: "structureFile", load: "loadFile" };

/** The names of the browser's own field are hidden, as it forgets what was dropped. */
function chosenText(file: File | undefined, id: string): HTMLElement {
    return file === undefined
        ? element("p", { id, class: "hint" }, words("orDrop"))
        : element(
            "p", { id, class: "chosen" },
            element("b", { title: file.name }, file.name), " ", element("span", { class: "count" }, sizeText(file.size)),
        );
}

export function filePlace(
    place: Place, file: File | undefined, chosen: (files: readonly File[]) => void,
): HTMLElement {
    const [title, label, input, name] = ["title", "choose", "file", "name"].map((part) => `${place}-${part}`);
    const field = element("input", {
        type: "file", id: input, class: "offscreen", multiple: true,
        "aria-labelledby": `${title} ${label}`, "aria-describedby": name,
    });
    field.addEventListener("change", () => {
        const files = [...(field.files ?? [])];
        field.value = "";  // so that the same file can be chosen again when it was changed
        chosen(files);
    });
    const choose = element("label", { for: input, id: label, class: "choose" },
        words(file === undefined ? "choose" : "chooseOther"));
    return element(
        "section", { class: "place", "data-place": place, "data-filled": file !== undefined, "aria-labelledby": title },
        element("h2", { id: title }, words(kTitles[place])), field, choose, chosenText(file, name),
    );
}
