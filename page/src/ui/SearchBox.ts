// The box to find an element, a node, or what has a key in the input.

import type { Actions } from "./Actions";
import { announce } from "./Announcer";
import { element } from "./Dom";
import { text } from "./Strings";

export function searchBox(actions: Actions): HTMLFormElement {
    const field = element("input", {
        type: "search", name: "find", placeholder: text("findHint"), "aria-label": text("find"),
        title: text("findHelp"), autocomplete: "off", spellcheck: "false",
    });
    const answer = element("span", { class: "answer" });
    const say = (words: string): void => {
        answer.textContent = words;
        field.toggleAttribute("aria-invalid", words !== "");
        announce(words);
    };
    field.addEventListener("input", () => say(""));
    const form = element("form", { role: "search", class: "find" }, field, answer);
    form.addEventListener("submit", (event) => {
        event.preventDefault();
        const query = field.value.trim();
        if (query !== "") {
            say(actions.find(query) ? "" : text("notFound", query));
        }
    });
    return form;
}
