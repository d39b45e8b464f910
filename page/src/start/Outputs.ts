// What a conversion made, and the buttons that save it.

import type { Conversion, Output } from "../convert/Converter";
import { button, element } from "../ui/Dom";
import { words } from "./Words";

export class Outputs {
    private readonly addresses = new Map<Output, string>();

    constructor(
        private readonly made: Pick<Conversion, "model" | "log">, private readonly otherFiles: () => void,
    ) {}

    get modelName(): string {
        return this.made.model.name;
    }

    /** In the language that is spoken. */
    buttons(): HTMLElement[] {
        const { model, log } = this.made;
        return [
            button(words("saveModel"), () => this.save(model), { title: model.name }),
            log === undefined
                ? button(words("saveLog"), () => undefined, { disabled: true, title: words("noLog") })
                : button(words("saveLog"), () => this.save(log), { title: log.name }),
            button(words("otherFiles"), this.otherFiles),
        ];
    }

    /** Afterwards nothing can be saved any more. */
    close(): void {
        for (const address of this.addresses.values()) {
            URL.revokeObjectURL(address);
        }
        this.addresses.clear();
    }

    /** An address stays valid until the end: nobody tells when the browser has finished with it. */
    private save(output: Output): void {
        const address = this.addresses.get(output) ?? URL.createObjectURL(output.content);
        this.addresses.set(output, address);
        element("a", { href: address, download: output.name }).click();
    }
}
