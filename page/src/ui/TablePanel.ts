// The tables: the balance of the loads, stories, sections, thicknesses and materials.

import type { Building } from "../model/Building";
import { kItemKindCount } from "../model/Items";
import {
    type MaterialRow, type SectionRow, type StoryRow, type ThicknessRow,
    materialRows, sectionRows, storyRows, thicknessRows,
} from "../model/Tables";
import type { Actions } from "./Actions";
import { balanceTables } from "./BalanceTable";
import { choice, element } from "./Dom";
import { kindText, sectionName } from "./ItemText";
import { numberText } from "./Numbers";
import { type Column, sortableTable } from "./SortableTable";
import { text } from "./Strings";
import type { TableName } from "./ViewState";

function numbers<Row>(title: string, value: (row: Row) => number): Column<Row> {
    return { title, key: value, text: (row) => numberText(value(row)) };
}

function counts<Row>(title: string, value: (row: Row) => number): Column<Row> {
    return { title, key: value, text: (row) => String(value(row)) };
}

function words<Row>(title: string, value: (row: Row) => string): Column<Row> {
    return { title, key: value, text: value };
}

/** A column for what could not be measured, where there is any. */
function unmeasured<Row extends { unmeasured: number }>(rows: readonly Row[]): Column<Row>[] {
    const some = rows.some((row) => row.unmeasured > 0);
    return some ? [counts<Row>(text("unmeasured"), (row) => row.unmeasured)] : [];
}

function storyTable(building: Building): HTMLElement {
    const rows = storyRows(building);
    const kinds = Array.from({ length: kItemKindCount }, (_, kind) => kind)
        .filter((kind) => rows.some((row) => row.counts[kind] > 0));
    const level = (at: 0 | 1): ((row: StoryRow) => number) =>
        ({ story }) => building.stories[story].level?.[at] ?? Number.NaN;
    return sortableTable<StoryRow>(text("stories"), [
        counts(text("story"), ({ story }) => building.stories[story].key),
        counts(text("number"), ({ story }) => building.stories[story].number),
        numbers(text("levelFrom"), level(0)),
        numbers(text("levelTo"), level(1)),
        counts(text("nodes"), (row) => row.nodes),
        ...kinds.map((kind) => counts<StoryRow>(kindText(kind), (row) => row.counts[kind])),
    ], rows);
}

function sectionTable(building: Building): HTMLElement {
    const rows = sectionRows(building);
    return sortableTable<SectionRow>(text("sections"), [
        counts(text("number"), (row) => row.number),
        words(text("section"), (row) => sectionName(building, row.number)),
        counts(text("count"), (row) => row.count),
        numbers(text("totalLength"), (row) => row.length),
        ...unmeasured(rows),
    ], rows);
}

function thicknessTable(building: Building): HTMLElement {
    const rows = thicknessRows(building);
    return sortableTable<ThicknessRow>(text("thicknesses"), [
        counts(text("number"), (row) => row.number),
        numbers(text("thickness"), (row) => row.value),
        counts(text("count"), (row) => row.count),
        numbers(text("totalArea"), (row) => row.area),
        ...unmeasured(rows),
    ], rows);
}

function materialTable(building: Building): HTMLElement {
    const rows = materialRows(building);
    const of = (number: number): string => building.materials.get(number)?.name ?? text("missing");
    const grades = (number: number): string => {
        const material = building.materials.get(number);
        return [material?.concrete, material?.steel].filter((grade) => grade).join(" + ");
    };
    const hasSteelInside = rows.some((row) => row.steelVolume > 0);
    return sortableTable<MaterialRow>(text("materials"), [
        counts(text("number"), (row) => row.number),
        words(text("material"), (row) => of(row.number)),
        words(text("grades"), (row) => grades(row.number)),
        counts(text("count"), (row) => row.count),
        numbers(text("volume"), (row) => row.volume),
        ...(hasSteelInside ? [numbers<MaterialRow>(text("steelVolume"), (row) => row.steelVolume)] : []),
        ...unmeasured(rows),
    ], rows);
}

const kTables: Readonly<Record<TableName, (building: Building) => HTMLElement>> = {
    balance: balanceTables,
    stories: storyTable,
    sections: sectionTable,
    thicknesses: thicknessTable,
    materials: materialTable,
};

export function tablePanel({ viewer }: Actions): HTMLElement {
    const names: readonly (readonly [TableName, string])[] = [
        ["balance", text("balance")], ["stories", text("stories")], ["sections", text("sections")],
        ["thicknesses", text("thicknesses")], ["materials", text("materials")],
    ];
    const { group, show } = choice("table", text("table"), names, (table) => viewer.change({ table }));
    const holder = element("div");
    viewer.watch(["table"], ({ table }) => {
        show(table);
        holder.replaceChildren(kTables[table](viewer.building));
    });
    return element("div", {}, group, holder);
}
