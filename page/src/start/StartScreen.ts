// The start: two places for the files, and what is to be said of them.

import type { Place } from "../convert/Pair";
import { button, element } from "../ui/Dom";
import { filePlace } from "./FilePlace";
import type { Files, Note } from "./Notes";
import { renew, type Screen } from "./Screen";
import { startBar } from "./StartBar";
import { words } from "./Words";

export interface StartState {
    version: string;
    files: Files;
    note: Note | undefined;
    /** Whether this browser can convert at all. */
    canConvert: boolean;
}

export interface StartEvents {
    chosen(files: readonly File[], place: Place): void;
    exchange(): void;
    convert(): void;
}

export class StartScreen implements Screen {
    constructor(
        private readonly holder: HTMLElement, private state: StartState, private readonly events: StartEvents,
    ) {}

    update(state: StartState): void {
        this.state = state;
        this.make();
    }

    make(): void {
        const { version, note, canConvert } = this.state;
        renew(this.holder, startBar(version, () => this.make()), element(
            "main", {},
            element("h2", { class: "about" }, words("about")),
            element("p", {}, words("aboutMore")),
            element("p", { class: "private" }, words("private")),
            ...(canConvert ? this.places() : []),
            ...(note === undefined ? [] : noteParts(note)),
            ...(canConvert ? this.begin() : []),
        ));
    }

    close(): void {
        this.holder.replaceChildren();
    }

    private places(): HTMLElement[] {
        const { files } = this.state;
        const place = (name: Place): HTMLElement =>
            filePlace(name, files[name], (chosen) => this.events.chosen(chosen, name));
        const exchange = button(words("exchange"), () => this.events.exchange(), {
            id: "exchange", class: "exchange", disabled: files.structure === undefined && files.load === undefined,
        });
        return [element("div", { class: "places" }, place("structure"), exchange, place("load"))];
    }

    private begin(): HTMLElement[] {
        const { files } = this.state;
        const convert = button(words("convert"), () => this.events.convert(), {
            id: "convert", class: "primary", disabled: files.structure === undefined || files.load === undefined,
        });
        return [convert, element("p", { class: "remark" }, words("dropBoth"))];
    }
}

function noteParts({ role, sentence, remarks }: Note): HTMLElement[] {
    const lines = (remarks?.() ?? []).map((line) => element("li", {}, line));
    return [
        element("p", { role, class: role === "alert" ? "warning" : "said" }, sentence()),
        ...(lines.length > 0 ? [element("ul", { class: "remarks" }, ...lines)] : []),
    ];
}
