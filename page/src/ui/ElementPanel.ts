// What is selected: one element or node in full, or several to choose from.

import type { Building } from "../model/Building";
import { isFrame, itemNodeNumbers, itemNumber } from "../model/Items";
import type { Actions } from "./Actions";
import { copyButton } from "./Clipboard";
import { button, element } from "./Dom";
import { type Fact, itemFacts, nodeFacts } from "./ElementFacts";
import { caseText, loadDetails, loadWords, loadsOnItem, loadsOnNode } from "./ItemLoads";
import { itemPlaceText, itemText } from "./ItemText";
import { numberText } from "./Numbers";
import { sectionSketch } from "./SectionSketch";
import { text } from "./Strings";
import type { Selection } from "./ViewState";

/** A small table: a title, the names of its columns, and rows of texts. */
interface Block {
    title: string;
    head: readonly string[];
    rows: readonly (readonly string[])[];
}

const kEndNames = ["i", "j"];

function nodeBlock(building: Building, item: number): Block {
    const { indexOf, x, y, z } = building.nodes;
    const rows = itemNodeNumbers(building, item).map((number, corner) => {
        const node = indexOf(number);
        const place = node < 0 ? [text("missing"), "", ""] : [x, y, z].map((axis) => numberText(axis[node]));
        return [isFrame(building, item) ? kEndNames[corner] : String(corner + 1), String(number), ...place];
    });
    const corner = text(isFrame(building, item) ? "end" : "corner");
    return { title: text("nodes"), head: [corner, text("node"), "x", "y", "z"], rows };
}

function loadRows(building: Building, loads: readonly number[], where: string): string[][] {
    return loadDetails(building, loads).map((detail) => {
        const { kind, values } = loadWords(detail);
        return [caseText(detail), where, kind, values];
    });
}

function loadBlock(rows: readonly (readonly string[])[]): Block {
    return { title: text("loadsUp"), head: [text("case"), text("on"), text("kind"), text("values")], rows };
}

function itemLoadBlock(building: Building, item: number): Block {
    const own = loadRows(building, loadsOnItem(building, item), text("element"));
    const atNodes = itemNodeNumbers(building, item).flatMap((number) =>
        loadRows(building, loadsOnNode(building, building.nodes.indexOf(number)), text("nodeNumber", number)));
    return loadBlock([...own, ...atNodes]);
}

function nodeLoadBlock(building: Building, node: number): Block {
    const where = text("nodeNumber", building.nodes.number[node]);
    return loadBlock(loadRows(building, loadsOnNode(building, node), where));
}

function factList(facts: readonly Fact[]): HTMLElement {
    return element("dl", {}, ...facts.flatMap(([label, value]) => [
        element("dt", {}, label), element("dd", {}, value),
    ]));
}

const isNumber = (cell: string): boolean => cell === "" || !Number.isNaN(Number(cell));

function blockTable({ title, head, rows }: Block): HTMLElement {
    if (rows.length === 0) {
        return element("p", {}, text("labelled", title, text("none")));
    }
    const classes = head.map((_, i) => rows.every((row) => isNumber(row[i])) && "number");
    return element(
        "div", { class: "scroll", tabindex: 0, role: "region", "aria-label": title },
        element(
            "table", {}, element("caption", {}, title),
            element("thead", {}, element("tr", {}, ...head.map((name, i) =>
                element("th", { scope: "col", class: classes[i] }, name)))),
            element("tbody", {}, ...rows.map((row) => element("tr", {}, ...row.map((cell, i) =>
                element("td", { class: classes[i] }, cell))))),
        ),
    );
}

/** Everything about one thing, with a button that copies it. */
function sheet(title: string, facts: readonly Fact[], blocks: readonly Block[], sketch?: Node): HTMLElement {
    const rows = (): (readonly string[])[] => [
        [title], ...facts, ...blocks.flatMap((block) => [[], [block.title], block.head, ...block.rows]),
    ];
    return element(
        "article", { class: "sheet" },
        element("header", {}, element("h2", {}, title), copyButton(rows)),
        ...(sketch === undefined ? [] : [sketch]),
        factList(facts), ...blocks.map(blockTable),
    );
}

function itemSheet(building: Building, item: number): HTMLElement {
    const section = isFrame(building, item) ? building.sections.get(building.frames.section[item]) : undefined;
    const sketch = section === undefined ? undefined : sectionSketch(section);
    const blocks = [nodeBlock(building, item), itemLoadBlock(building, item)];
    return sheet(itemPlaceText(building, item), itemFacts(building, item), blocks, sketch);
}

/** The findings about an element, each leading there. */
function findingLinks(actions: Actions, item: number): HTMLElement[] {
    const { building } = actions.viewer;
    const number = itemNumber(building, item);
    const own = building.findings.flatMap(({ element: about }, index) => (about === number ? [index] : []));
    const links = own.map((index) => button(
        building.findings[index].text, () => actions.goToFinding(index), { class: "finding", lang: "en" },
    ));
    return links.length > 0 ? [element("h3", {}, text("findings")), ...links] : [];
}

function choices(actions: Actions, items: readonly number[]): HTMLElement {
    const { building } = actions.viewer;
    const rows = items.map((item) => element("li", {}, button(itemText(building, item), () => actions.pick(item))));
    return element(
        "article", {}, element("h2", {}, text("elementCount", items.length)),
        element("ul", { class: "choices" }, ...rows),
    );
}

function content(actions: Actions, selection: Selection): HTMLElement[] {
    const { building } = actions.viewer;
    if (selection.kind === "node") {
        const { node } = selection;
        const title = text("nodeNumber", building.nodes.number[node]);
        return [sheet(title, nodeFacts(building, node), [nodeLoadBlock(building, node)])];
    }
    if (selection.kind === "nothing" || selection.items.length === 0) {
        return [element("p", { class: "empty" }, text("nothingSelected"))];
    }
    const [first, ...others] = selection.items;
    return others.length > 0 ? [choices(actions, selection.items)]
        : [itemSheet(building, first), ...findingLinks(actions, first)];
}

export function elementPanel(actions: Actions): HTMLElement {
    const panel = element("div");
    actions.viewer.watch(["selection"], ({ selection }) => panel.replaceChildren(...content(actions, selection)));
    return panel;
}
