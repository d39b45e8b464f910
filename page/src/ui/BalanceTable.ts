// The balance of the loads, as `satwecvt check` prints it.

import type { BalanceRow, LoadSum } from "../model/Balance";
import type { Building } from "../model/Building";
import { element } from "./Dom";
import { storyText } from "./ItemText";
import { forceText } from "./Numbers";
import { type Column, sortableTable } from "./SortableTable";
import { text } from "./Strings";

type Component = "fx" | "fy" | "fz";
type Side = "read" | "model" | "lost";

/** The two rows of a block of the load file. */
interface Block {
    /** Index of the story; -1: all blocks that found none. */
    story: number;
    dead: BalanceRow | undefined;
    live: BalanceRow | undefined;
}

function blocksOf(building: Building): Block[] {
    const blocks = new Map<number, Block>();
    for (const row of building.balance) {
        const block = blocks.get(row.story) ?? { story: row.story, dead: undefined, live: undefined };
        block[row.loadCase] = row;
        blocks.set(row.story, block);
    }
    return [...blocks.values()];
}

function columnsOf(building: Building, component: Component): Column<Block>[] {
    const value = (sum: LoadSum | undefined): number => (sum === undefined ? Number.NaN : sum[component]);
    const column = (loadCase: "dead" | "live", side: Side, title: string): Column<Block> => ({
        title,
        key: (block) => value(block[loadCase]?.[side]),
        text: (block) => {
            const force = block[loadCase]?.[side][component];
            return force === undefined || (side === "lost" && force === 0) ? "-" : forceText(force);
        },
    });
    const both = (block: Block): number => (block.dead?.model[component] ?? 0) + (block.live?.model[component] ?? 0);
    const key = ({ story }: Block): number => (story < 0 ? Number.POSITIVE_INFINITY : building.stories[story].key);
    return [
        { title: text("story"), key, text: (block) => (block.story < 0 ? text("none") : String(key(block))) },
        column("dead", "read", text("deadRead")),
        column("dead", "model", text("deadInModel")),
        column("dead", "lost", text("deadLost")),
        column("live", "read", text("liveRead")),
        column("live", "model", text("liveInModel")),
        column("live", "lost", text("liveLost")),
        { title: text("bothInLiveLoad"), key: both, text: (block) => forceText(both(block)) },
    ];
}

/** What the table cannot say: loads that are not summed, and rows that do not hold. */
function remarks(building: Building): HTMLElement[] {
    return building.balance.flatMap((row) => {
        const loads = text(row.loadCase === "dead" ? "deadLoads" : "liveLoads");
        const story = row.story < 0 ? text("blocksWithoutStory") : storyText(building, row.story);
        const remark = (words: string): string => text("labelled", text("listed", loads, story), words);
        return [
            ...(row.notSummed > 0 ? [element("p", { class: "remark" }, remark(text("notSummed", row.notSummed)))] : []),
            ...(row.holds ? [] : [element("p", { class: "warning" }, remark(text("doesNotHold")))]),
        ];
    });
}

/** The tables, for each direction that has forces, and the remarks. */
export function balanceTables(building: Building): HTMLElement {
    const blocks = blocksOf(building);
    const has = (component: Component): boolean =>
        building.balance.some(({ read, model }) => read[component] !== 0 || model[component] !== 0);
    const table = (component: Component, title: string): HTMLElement =>
        sortableTable(title, columnsOf(building, component), blocks);
    if (blocks.length === 0) {
        return element("div", {}, element("h2", {}, text("balanceZ")), element("p", {}, text("none")));
    }
    return element(
        "div", {}, table("fz", text("balanceZ")),
        ...(has("fx") ? [table("fx", text("balanceX"))] : []),
        ...(has("fy") ? [table("fy", text("balanceY"))] : []),
        element("p", { class: "remark" }, text("balanceRemark")),
        ...remarks(building),
    );
}
