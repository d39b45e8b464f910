// How far the conversion is, in the words of the program's progress window, and the way out.

import type { Pair } from "../convert/Pair";
import type { Progress } from "../convert/Messages";
import { button, element } from "../ui/Dom";
import { countText } from "../ui/Numbers";
import { renew, type Screen } from "./Screen";
import { startBar } from "./StartBar";
import { words } from "./Words";

/** As the first stage is called, before the first message of it. */
const kStart: Progress = { line: 0, total: 0, stage: "Read Data File" };

export class ProgressScreen implements Screen {
    private progress = kStart;
    private readonly stage = element("p", { class: "stage", role: "status" });
    private readonly lines = element("span");
    private readonly percent = element("span");
    private readonly bar = element("progress", { max: 100 });
    private readonly listening = new AbortController();

    constructor(
        private readonly holder: HTMLElement, private readonly version: string, private readonly names: Pair<string>,
        private readonly cancel: () => void,
    ) {
        document.addEventListener("keydown", ({ key }) => {
            if (key === "Escape") {
                cancel();
            }
        }, { signal: this.listening.signal });
    }

    make(): void {
        const { structure, load } = this.names;
        this.bar.setAttribute("aria-label", words("progress"));
        renew(this.holder, startBar(this.version, () => this.make()), element(
            "main", { class: "card" },
            element("h2", { id: "converting", tabindex: -1 }, words("converting", structure, load)),
            this.stage, this.bar,
            element("p", { class: "figures" }, this.lines, this.percent),
            button(words("cancel"), this.cancel, { id: "cancel" }),
            element("p", { class: "remark" }, words("cancelHint")),
        ));
        this.show(this.progress);
    }

    show(progress: Progress): void {
        this.progress = progress;
        const { line, total, stage } = progress;
        const told = words("stage", stage);
        if (this.stage.textContent !== told) {
            this.stage.textContent = told;
        }
        if (total > 0) {
            // Past the end lines are asked for, too: the program tells their number, but no more than 100 percent.
            const percent = Math.min(100, Math.floor((100 * line) / total));
            this.bar.value = percent;
            this.percent.textContent = words("percent", percent);
            this.lines.textContent = words("lineOf", countText(line), countText(total));
        }
    }

    close(): void {
        this.listening.abort();
        this.holder.replaceChildren();
    }
}
