// The building that came out of a conversion, or, where it cannot be shown, at least the files to save.

import type { Conversion } from "../convert/Converter";
import { ConversionError, failureOf } from "../convert/Failure";
import { readColumns } from "../data/Columns";
import { type Building, readBuilding } from "../model/Building";
import { sceneText } from "../model/SceneText";
import { announce } from "../ui/Announcer";
import { element } from "../ui/Dom";
import { countText } from "../ui/Numbers";
import { Page } from "../ui/Page";
import { afterPaint, elementCount } from "../ui/PageData";
import { text } from "../ui/Strings";
import { Outputs } from "./Outputs";
import { clear, renew, type Screen } from "./Screen";
import { isDark, startBar } from "./StartBar";
import { words } from "./Words";

function reasonOf(error: unknown): () => string {
    const failure = failureOf(error);
    return failure.kind === "broken" ? () => failure.reason : () => words("tooLarge");
}

export class BuildingScreen implements Screen {
    /** Whether all is shown that will be. */
    isOpen = false;
    private isClosed = false;
    private readonly outputs: Outputs;
    private page: Page | undefined;
    /** Why the building is not shown; undefined while it is. */
    private reason: (() => string) | undefined;

    constructor(
        private readonly holder: HTMLElement, private readonly version: string, conversion: Conversion,
        otherFiles: () => void,
    ) {
        this.outputs = new Outputs({ model: conversion.model, log: conversion.log }, otherFiles);
    }

    /** Shows the building of a picture. Never rejects: then the page says why there is none. */
    async open(picture: ArrayBuffer): Promise<void> {
        clear(this.holder);
        try {
            const building = await this.read(picture);
            if (!this.isClosed) {
                await this.show(building);
            }
        } catch (error) {
            this.page?.close();
            this.page = undefined;
            this.reason = reasonOf(error);
        }
        if (this.isClosed) {
            return;
        }
        this.make();
        this.isOpen = true;
        announce(words("converted", this.outputs.modelName));
    }

    /** The page of a building makes itself anew. */
    make(): void {
        if (this.reason !== undefined) {
            renew(this.holder, startBar(this.version, () => this.make()), element(
                "main", { class: "card" },
                element("h2", {}, words("converted", this.outputs.modelName)),
                element("p", { class: "warning", role: "alert" }, words("cannotShow", this.reason())),
                element("div", { class: "row" }, ...this.outputs.buttons()),
            ));
        }
    }

    close(): void {
        this.isClosed = true;
        delete window.satwecvt;
        this.page?.close();
        this.outputs.close();
        clear(this.holder);
    }

    /** Throws where there is none: the converter had no memory left for it. */
    private async read(picture: ArrayBuffer): Promise<Building> {
        if (picture.byteLength === 0) {
            throw new ConversionError({ kind: "memory" });
        }
        const columns = readColumns(new Uint8Array(picture));
        this.say(text("readingElements", countText(elementCount(columns))));
        await afterPaint();
        return readBuilding(columns);
    }

    private async show(building: Building): Promise<void> {
        const page = new Page(this.holder, building, isDark(), () => this.outputs.buttons());
        this.page = page;
        await page.open();
        if (this.isClosed) {
            return;
        }
        window.satwecvt = {
            scene: () => sceneText(building),
            statistics: () => page.actions.stage?.statistics(),
        };
    }

    private say(sentence: string): void {
        this.holder.replaceChildren(element("p", { class: "status", role: "status" }, sentence));
    }
}
