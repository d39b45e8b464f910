// The bar at the top: which files these are, how many findings there are, and what belongs to the whole page.

import { Severity } from "../model/Findings";
import type { Actions } from "./Actions";
import { button, element } from "./Dom";
import { baseName } from "./FileName";
import { findingGroups, honestCount, kSeverities, severityCount } from "./FindingGroups";
import { searchBox } from "./SearchBox";
import { type StringKey, text } from "./Strings";

const kCounts: Readonly<Record<Severity, StringKey>> = {
    [Severity.Loss]: "lossCount",
    [Severity.Doubt]: "doubtCount",
    [Severity.Note]: "noteCount",
};

/** A button for each severity: how many, and the way to them. */
function badges({ viewer }: Actions): HTMLElement {
    const groups = findingGroups(viewer.building);
    return element("div", { class: "badges" }, ...kSeverities.map((severity) => {
        const count = severityCount(groups, severity);
        return button(
            text(kCounts[severity], honestCount(count)),
            () => viewer.change({ tab: "findings", severities: new Set([severity]) }),
            { class: `badge severity-${severity}`, "data-empty": count.total === 0 },
        );
    }));
}

/** Names the theme that it leads to. */
function themeButton(actions: Actions): HTMLButtonElement {
    const made = button("", () => actions.toggleTheme());
    actions.viewer.watch(["dark"], ({ dark }) => { made.textContent = text(dark ? "toLight" : "toDark"); });
    return made;
}

export interface BarButtons {
    /** Further ones, which stand first. */
    own: readonly HTMLElement[];
    print(): void;
    changeLanguage(): void;
}

export function titleBar(actions: Actions, { own, print, changeLanguage }: BarButtons): HTMLElement {
    const { files, version } = actions.viewer.building;
    const name = (path: string): HTMLElement => element("span", { class: "file", title: path }, baseName(path));
    return element(
        "header", { class: "title-bar" },
        element("h1", {}, name(files.structure), element("span", { class: "plus" }, " + "), name(files.load)),
        element("span", { class: "program" }, `satwecvt ${version}`),
        badges(actions), searchBox(actions),
        element(
            "div", { class: "page-buttons" },
            ...own,
            button(text("print"), print),
            themeButton(actions),
            button(text("otherLanguage"), changeLanguage, { class: "language" }),
            button("?", () => actions.viewer.change({ tab: "help" }), {
                "aria-label": text("help"), title: text("help"),
            }),
        ),
    );
}
