// The panel beside the picture, with its tabs.

import type { Actions } from "./Actions";
import { button, element } from "./Dom";
import { elementPanel } from "./ElementPanel";
import { findingPanel } from "./FindingPanel";
import { helpPanel } from "./HelpPanel";
import { type StringKey, text } from "./Strings";
import { tablePanel } from "./TablePanel";
import type { Tab } from "./ViewState";

const kTabs: readonly (readonly [Tab, StringKey, (actions: Actions) => HTMLElement])[] = [
    ["findings", "findings", findingPanel],
    ["element", "element", elementPanel],
    ["tables", "tables", tablePanel],
    ["help", "help", helpPanel],
];

const kSteps: Readonly<Record<string, number>> = { ArrowLeft: -1, ArrowRight: 1 };

/** The arrows go from tab to tab, as in every list of tabs. */
function moveByArrows(tabs: readonly HTMLButtonElement[]): void {
    tabs.forEach((tab, at) => tab.addEventListener("keydown", (event) => {
        const step = kSteps[event.key];
        if (step !== undefined) {
            const next = tabs[(at + step + tabs.length) % tabs.length];
            next.focus();
            next.click();
            event.preventDefault();
        }
    }));
}

export function tabPanel(actions: Actions): HTMLElement {
    const { viewer } = actions;
    const tabs = kTabs.map(([tab, label]) => button(text(label), () => viewer.change({ tab }), {
        role: "tab", id: `tab-${tab}`, "aria-controls": `panel-${tab}`,
    }));
    const panels = kTabs.map(([tab, , make]) => {
        const panel = make(actions);
        Object.assign(panel, { id: `panel-${tab}`, role: "tabpanel", tabIndex: 0 });
        panel.setAttribute("aria-labelledby", `tab-${tab}`);
        return panel;
    });
    moveByArrows(tabs);
    viewer.watch(["tab"], (state) => kTabs.forEach(([tab], i) => {
        const isOpen = tab === state.tab;
        panels[i].hidden = !isOpen;
        tabs[i].setAttribute("aria-selected", String(isOpen));
        tabs[i].tabIndex = isOpen ? 0 : -1;
    }));
    return element(
        "aside", { class: "panel", "aria-label": text("panel") },
        element("div", { role: "tablist", class: "tabs", "aria-label": text("panel") }, ...tabs), ...panels,
    );
}
