// Opens the page of the converter.

import { ConverterClient } from "../convert/ConverterClient";
import { failureOf } from "../convert/Failure";
import { startAnnouncer } from "../ui/Announcer";
import { startLanguage } from "../ui/Strings";
import { startTheme, watchSystemTheme } from "../ui/Theme";
import { ConverterPage } from "./ConverterPage";
import { watchDrops } from "./Drops";
import { takeModule, takeWorker } from "./Embedded";
import { alert, failureNote, kNoFiles } from "./Notes";
import { StartScreen } from "./StartScreen";
import { hasWebGl } from "./WebGl";
import { words } from "./Words";

const holder = document.getElementById("page") ?? document.body;
let page: ConverterPage | undefined;

/** Says why nothing can be converted here. What the browser does not know of the module it calls a fault in it. */
function refuse(error: unknown): void {
    const isOld = typeof WebAssembly !== "object" || error instanceof WebAssembly.CompileError;
    const note = isOld ? alert(() => words("tooOld")) : failureNote(failureOf(error), kNoFiles);
    new StartScreen(holder, { version: "", files: kNoFiles, note, canConvert: false }, {
        chosen: () => undefined, exchange: () => undefined, convert: () => undefined,
    }).make();
    holder.removeAttribute("aria-busy");
}

async function open(): Promise<void> {
    startLanguage();
    startTheme();
    startAnnouncer();
    watchDrops(holder, {
        accepts: () => page?.accepts === true,
        dropped: (files, place) => void page?.take(files, place),
        folderDropped: () => page?.refuseFolder(),
    });
    const client = new ConverterClient(await takeModule(), takeWorker());
    page = new ConverterPage(holder, client, () => !hasWebGl());
    watchSystemTheme(() => page?.refresh());
    await page.open();
}

open().catch(refuse);
