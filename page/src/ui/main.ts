// Opens the page: reads the building that stands in it, and shows it.

import type { Building } from "../model/Building";
import { readBuilding } from "../model/Building";
import { sceneText, type SceneText } from "../model/SceneText";
import { startAnnouncer } from "./Announcer";
import { element } from "./Dom";
import { countText } from "./Numbers";
import { Page } from "./Page";
import { afterPaint, elementCount, takeColumns } from "./PageData";
import { startLanguage, text } from "./Strings";
import { startTheme } from "./Theme";

declare global {
    interface Window {
        /** What tests read: the drawn building as numbers, and what the last frame took. */
        satwecvt?: { scene(): SceneText; statistics(): unknown };
    }
}

const holder = document.getElementById("page") ?? document.body;

function say(words: string, role: "status" | "alert"): void {
    holder.replaceChildren(element("p", { class: "status", role }, words));
}

/** Reads the building, telling how large it is; undefined: there is none. */
async function read(): Promise<Building | undefined> {
    say(text("reading"), "status");
    await afterPaint();
    const columns = takeColumns();
    if (columns === undefined) {
        return undefined;
    }
    say(text("readingElements", countText(elementCount(columns))), "status");
    await afterPaint();
    return readBuilding(columns);
}

async function open(): Promise<void> {
    startLanguage();
    const dark = startTheme();
    const building = await read();
    if (building === undefined) {
        say(text("noBuilding"), "alert");
        return;
    }
    startAnnouncer();
    const page = new Page(holder, building, dark);
    await page.open();
    window.satwecvt = {
        scene: () => sceneText(building),
        statistics: () => page.actions.stage?.statistics(),
    };
}

open().catch((error: unknown) => {
    say(text("cannotRead", error instanceof Error ? error.message : String(error)), "alert");
    throw error;
}).finally(() => holder.removeAttribute("aria-busy"));
