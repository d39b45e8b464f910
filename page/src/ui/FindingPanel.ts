// The findings: by severity and code, ten of each code until all are asked for. A click flies to the place.

import type { Actions } from "./Actions";
import { button, checkbox, element } from "./Dom";
import { sourceText } from "./FileName";
import {
    type FindingGroup, findingGroups, honestCount, kSeverities, kSeverityNames, severityCount,
} from "./FindingGroups";
import { findingTitle } from "./FindingTitles";
import { countText } from "./Numbers";
import { language, text } from "./Strings";

const kShownFirst = 10;

/** The rows that stand in the panel, by the indexes of their findings. */
type Rows = Map<number, HTMLButtonElement>;

function findingRow(actions: Actions, rows: Rows, finding: number): HTMLLIElement {
    const { building } = actions.viewer;
    const { source, line, text: sentence } = building.findings[finding];
    const where = sourceText(building, source, line);
    const row = button("", () => actions.goToFinding(finding), { class: "finding" });
    row.append(element("span", { lang: "en" }, sentence));
    if (where !== "") {
        row.append(" ", element("span", { class: "source" }, where));
    }
    rows.set(finding, row);
    return element("li", {}, row);
}

function groupTitle(group: FindingGroup): HTMLElement {
    return element(
        "summary", {}, element("span", { class: "title" }, findingTitle(group.code)), " ",
        element("span", { class: "count" }, honestCount(group)), " ", element("code", {}, group.code),
    );
}

function groupOf(actions: Actions, rows: Rows, group: FindingGroup): HTMLDetailsElement {
    const list = element("ol");
    const show = (from: number, to: number): void =>
        list.append(...group.findings.slice(from, to).map((finding) => findingRow(actions, rows, finding)));
    show(0, kShownFirst);
    const details = element("details", { class: "code", open: true }, groupTitle(group), list);
    const held = group.findings.length;
    if (held > kShownFirst) {
        const rest = element("p", { class: "remark print-only" }, text("firstOf", kShownFirst, countText(held)));
        const more = button(text("showAll", countText(held)), () => {
            rest.remove();
            more.remove();
            show(kShownFirst, held);
            rows.get(group.findings[kShownFirst])?.focus();
        }, { class: "more" });
        details.append(more, rest);
    }
    if (held < group.total || !group.isExact) {
        const remark = text("heldOfTotal", countText(held), honestCount(group));
        details.append(element("p", { class: "remark" }, remark));
    }
    return details;
}

function severityFilter(actions: Actions, groups: readonly FindingGroup[]): HTMLElement {
    const { viewer } = actions;
    const boxes = kSeverities.map((severity) => {
        const count = element("span", { class: "count" }, honestCount(severityCount(groups, severity)));
        const { row, box } = checkbox(text(kSeverityNames[severity]), (checked) => {
            const others = [...viewer.state.severities].filter((other) => other !== severity);
            viewer.change({ severities: new Set(checked ? [...others, severity] : others) });
        }, count);
        row.classList.add(`severity-${severity}`);
        viewer.watch(["severities"], ({ severities }) => { box.checked = severities.has(severity); });
        return row;
    });
    return element("fieldset", { class: "filter" }, element("legend", {}, text("show")), ...boxes);
}

/** Marks the row of the finding that is shown. */
function markCurrent(actions: Actions, rows: Rows): void {
    let current = -1;
    actions.viewer.watch(["finding"], ({ finding }) => {
        rows.get(current)?.removeAttribute("aria-current");
        rows.get(finding)?.setAttribute("aria-current", "true");
        current = finding;
    });
}

export function findingPanel(actions: Actions): HTMLElement {
    const groups = findingGroups(actions.viewer.building);
    if (groups.length === 0) {
        return element("div", {}, element("p", { class: "empty" }, text("noFindings")));
    }
    const rows: Rows = new Map();
    const panel = element("div", {}, severityFilter(actions, groups));
    if (language() !== "en") {
        panel.append(element("p", { class: "remark" }, text("sentencesInEnglish")));
    }
    for (const severity of kSeverities.filter((one) => groups.some((group) => group.severity === one))) {
        const own = groups.filter((group) => group.severity === severity);
        const section = element(
            "section", { class: `severity-${severity}` }, element("h2", {}, text(kSeverityNames[severity])),
            ...own.map((group) => groupOf(actions, rows, group)),
        );
        actions.viewer.watch(["severities"], ({ severities }) => {
            section.hidden = !severities.has(severity);
        });
        panel.append(section);
    }
    markCurrent(actions, rows);
    return panel;
}
