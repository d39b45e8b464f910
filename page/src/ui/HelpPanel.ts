// The keys, and how the mouse moves the building.

import { element } from "./Dom";
import { kKeyGroups } from "./Keyboard";
import { type StringKey, text } from "./Strings";

const kMouse: readonly (readonly [StringKey, StringKey])[] = [
    ["mouseDrag", "orbit"], ["mouseRight", "pan"], ["mouseWheel", "zoom"], ["mouseClick", "pick"],
];

function keyTable(title: string, rows: readonly (readonly [readonly string[], string])[]): HTMLElement {
    return element(
        "section", {}, element("h2", {}, title),
        element("dl", { class: "keys" }, ...rows.flatMap(([keys, what]) => [
            element("dt", {}, ...keys.map((key) => element("kbd", {}, key))), element("dd", {}, what),
        ])),
    );
}

export function helpPanel(): HTMLElement {
    const groups = kKeyGroups.map(({ title, keys }) =>
        keyTable(text(title), keys.map(({ shown, label }) => [shown, text(label)])));
    return element(
        "div", {}, keyTable(text("mouse"), kMouse.map(([what, does]) => [[text(what)], text(does)])), ...groups,
        element("section", {}, element("h2", {}, text("find")), element("p", {}, text("findHelp"))),
        element("section", {}, element("h2", {}, text("goodToKnow")), ...(["helpUnits", "helpModel"] as const)
            .map((key) => element("p", {}, text(key)))),
    );
}
