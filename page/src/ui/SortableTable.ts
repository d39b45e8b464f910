// A table whose columns sort it, and that can be copied into a spreadsheet.

import { copyButton } from "./Clipboard";
import { button, element } from "./Dom";

export interface Column<Row> {
    title: string;
    /** What the column sorts by. A column of numbers stands at the right. */
    key(row: Row): number | string;
    text(row: Row): string;
}

/** NaN counts as larger than every number. */
function compare(a: number | string, b: number | string): number {
    if (typeof a === "number" && typeof b === "number") {
        return Number.isNaN(a) || Number.isNaN(b) ? Number(Number.isNaN(a)) - Number(Number.isNaN(b)) : a - b;
    }
    return String(a).localeCompare(String(b));
}

class SortableTable<Row> {
    private readonly body = element("tbody");
    private readonly heads: HTMLTableCellElement[];
    private readonly classes: (string | false)[];
    private shown: readonly Row[];

    constructor(private readonly columns: readonly Column<Row>[], private readonly rows: readonly Row[]) {
        this.shown = rows;
        this.classes = columns.map(({ key }) => rows.length > 0 && typeof key(rows[0]) === "number" && "number");
        this.heads = columns.map(({ title }, at) => element(
            "th", { scope: "col", class: this.classes[at] }, button(title, () => this.sortBy(at)),
        ));
        this.fill();
    }

    table(): HTMLTableElement {
        return element("table", {}, element("thead", {}, element("tr", {}, ...this.heads)), this.body);
    }

    /** The texts of the table, its titles first, in the order that is shown. */
    cells(): string[][] {
        const rows = this.shown.map((row) => this.columns.map((column) => column.text(row)));
        return [this.columns.map(({ title }) => title), ...rows];
    }

    /** Sorts upward, and downward when the column is asked for again. */
    private sortBy(at: number): void {
        const isAscending = this.heads[at].getAttribute("aria-sort") !== "ascending";
        this.heads.forEach((head) => head.removeAttribute("aria-sort"));
        this.heads[at].setAttribute("aria-sort", isAscending ? "ascending" : "descending");
        const { key } = this.columns[at];
        this.shown = [...this.rows].sort((a, b) => (isAscending ? 1 : -1) * compare(key(a), key(b)));
        this.fill();
    }

    private fill(): void {
        this.body.replaceChildren(...this.shown.map((row) => element("tr", {}, ...this.columns.map(
            (column, at) => element("td", { class: this.classes[at] }, column.text(row)),
        ))));
    }
}

/** The table, in the order of `rows` at first, with its title and a button that copies it. */
export function sortableTable<Row>(
    title: string, columns: readonly Column<Row>[], rows: readonly Row[]
): HTMLElement {
    const sortable = new SortableTable(columns, rows);
    return element(
        "section", { class: "sortable" },
        element("header", {}, element("h2", {}, title), copyButton(() => sortable.cells())),
        element("div", { class: "scroll", tabindex: 0, role: "region", "aria-label": title }, sortable.table()),
    );
}
