// A sentence over whatever the page shows, until the user does the next thing.

import { element } from "../ui/Dom";

export function showHint(sentence: string): void {
    const listening = new AbortController();
    const hint = element("p", { class: "warning hint-over", role: "alert" }, sentence);
    const remove = (): void => {
        hint.remove();
        listening.abort();
    };
    document.body.append(hint);
    for (const type of ["pointerdown", "keydown", "dragenter"]) {
        addEventListener(type, remove, { signal: listening.signal });
    }
}
