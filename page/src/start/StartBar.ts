// The bar at the top while no building is shown.

import { button, element } from "../ui/Dom";
import { changeLanguage, text } from "../ui/Strings";
import { chooseTheme } from "../ui/Theme";
import { words } from "./Words";

/** The theme of the page, whoever has chosen it. */
export const isDark = (): boolean => document.documentElement.dataset.theme === "dark";

/** Names the theme that it leads to. */
function themeButton(): HTMLButtonElement {
    const label = (): string => text(isDark() ? "toLight" : "toDark");
    const made = button(label(), () => {
        chooseTheme(!isDark());
        made.textContent = label();
    }, { id: "theme" });
    return made;
}

/** `changed` is called when another language is spoken. */
export function startBar(version: string, changed: () => void): HTMLElement {
    document.title = words("title");
    const language = button(text("otherLanguage"), () => {
        changeLanguage();
        changed();
    }, { id: "language", class: "language" });
    return element(
        "header", { class: "title-bar" },
        element("h1", {}, words("title"), " ", element("span", { class: "version" }, version)),
        element("div", { class: "page-buttons" }, themeButton(), language),
    );
}
