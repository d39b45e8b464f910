// The keys of the page: one table for those who press them and for the help.

import type { LoadChoice } from "../model/Loads";
import type { Actions } from "./Actions";
import type { StringKey } from "./Strings";
import { kViews } from "./ViewControls";

/** What keys do that is a matter of the whole page. */
export interface PageActions {
    changeLanguage(): void;
    focusSearch(): void;
}

type Does = (actions: Actions, page: PageActions) => void;

interface Shortcut {
    /** As the help shows the keys. */
    shown: readonly string[];
    label: StringKey;
    /** What each key does, by the name that the browser gives it; `Shift+` stands before keys that print nothing. */
    keys: Readonly<Record<string, Does>>;
}

const kStep = 40;  // pixels for which a key stands in for the mouse
const kZoom = 1.2;

const loads = (choice: "none" | LoadChoice): Does => ({ viewer }) => viewer.change({ loads: choice });
const orbit = (x: number, y: number): Does => ({ stage }) => stage?.orbit(x * kStep, y * kStep);
const pan = (x: number, y: number): Does => ({ stage }) => stage?.pan(x * kStep, y * kStep);

export const kKeyGroups: readonly { title: StringKey; keys: readonly Shortcut[] }[] = [
    {
        title: "view",
        keys: [
            ...kViews.map(([name, label], i): Shortcut => (
                { shown: [String(i + 1)], label, keys: { [i + 1]: ({ stage }) => stage?.view(name) } }
            )),
            { shown: ["f"], label: "fit", keys: { f: (actions) => actions.fit() } },
            {
                shown: ["\u2190", "\u2192", "\u2191", "\u2193"], label: "orbit",
                keys: {
                    ArrowLeft: orbit(-1, 0), ArrowRight: orbit(1, 0), ArrowUp: orbit(0, -1), ArrowDown: orbit(0, 1),
                },
            },
            {
                shown: ["Shift + \u2190", "\u2192", "\u2191", "\u2193"], label: "pan",
                keys: {
                    "Shift+ArrowLeft": pan(-1, 0), "Shift+ArrowRight": pan(1, 0),
                    "Shift+ArrowUp": pan(0, -1), "Shift+ArrowDown": pan(0, 1),
                },
            },
            {
                shown: ["+", "-"], label: "zoom",
                keys: {
                    "+": ({ stage }) => stage?.zoom(kZoom), "=": ({ stage }) => stage?.zoom(kZoom),
                    "-": ({ stage }) => stage?.zoom(1 / kZoom),
                },
            },
            { shown: ["l"], label: "lineOrSolid", keys: { l: (actions) => actions.toggle("style") } },
            { shown: ["p"], label: "projection", keys: { p: (actions) => actions.toggle("projection") } },
        ],
    },
    {
        title: "stories",
        keys: [
            { shown: ["["], label: "storyDown", keys: { "[": (actions) => actions.stepStory(-1) } },
            { shown: ["]"], label: "storyUp", keys: { "]": (actions) => actions.stepStory(1) } },
            { shown: ["0"], label: "allStories", keys: { 0: (actions) => actions.showAllStories() } },
        ],
    },
    {
        title: "loads",
        keys: [
            { shown: ["d"], label: "deadLoads", keys: { d: loads("dead") } },
            { shown: ["v"], label: "liveLoads", keys: { v: loads("live") } },
            { shown: ["b"], label: "bothLoads", keys: { b: loads("both") } },
            { shown: ["n"], label: "noLoadsShown", keys: { n: loads("none") } },
        ],
    },
    {
        title: "page",
        keys: [
            { shown: ["/"], label: "find", keys: { "/": (_, page) => page.focusSearch() } },
            { shown: ["Esc"], label: "deselect", keys: { Escape: (actions) => actions.deselect() } },
            { shown: ["t"], label: "theme", keys: { t: (actions) => actions.toggleTheme() } },
            { shown: ["g"], label: "language", keys: { g: (_, page) => page.changeLanguage() } },
            { shown: ["?"], label: "help", keys: { "?": ({ viewer }) => viewer.change({ tab: "help" }) } },
        ],
    },
];

const kByKey: Readonly<Record<string, Does>> = Object.assign(
    {}, ...kKeyGroups.flatMap(({ keys }) => keys.map((shortcut) => shortcut.keys)),
);

const kTyping = "input:not([type=checkbox], [type=radio], [type=range]), textarea, select";
const kUsesArrows = "input, select, [role=tab], [role=region], [role=tabpanel]";

/** Whether a key belongs to the control that has the focus. */
function isTaken(event: KeyboardEvent): boolean {
    const target = event.target instanceof Element ? event.target : document.body;
    const isArrow = event.key.startsWith("Arrow");
    return event.ctrlKey || event.metaKey || event.altKey
        || target.matches(kTyping) || (isArrow && target.closest(kUsesArrows) !== null);
}

/** The name by which the table knows a key. Letters are the same under Caps Lock. */
export function keyName({ key, shiftKey }: Pick<KeyboardEvent, "key" | "shiftKey">): string {
    if (key.length === 1) {
        return key.toLowerCase();
    }
    return shiftKey && key.startsWith("Arrow") ? `Shift+${key}` : key;
}

/** Until `signal` ends it. */
export function listenForKeys(actions: Actions, page: PageActions, signal: AbortSignal): void {
    document.addEventListener("keydown", (event) => {
        const name = keyName(event);
        const does = Object.hasOwn(kByKey, name) ? kByKey[name] : undefined;
        if (does === undefined) {
            return;
        }
        if (event.key === "Escape" && event.target instanceof HTMLElement && event.target.matches(kTyping)) {
            event.target.blur();
        } else if (!isTaken(event)) {
            event.preventDefault();
            does(actions, page);
        }
    }, { signal });
}
