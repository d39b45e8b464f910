// The converter's page, used as its user uses it, and what the program makes of the same files.
//
// Environment: CONVERTER_PAGE is the page, besides what Browser.mjs needs.

import assert from "node:assert/strict";
import { execFileSync, spawnSync } from "node:child_process";
import { readFileSync } from "node:fs";
import { basename } from "node:path";
import { pathToFileURL } from "node:url";

import { Building, OpenPage } from "../page/Browser.mjs";

/** Two files in a folder of their own, with what the program makes of them. */
export class Pair extends Building {
    structure = "structure.sat";
    load = "load.sat";

    get paths() {
        return [this.path(this.structure), this.path(this.load)];
    }

    /** Model and log of the program. */
    outputs() {
        execFileSync(process.env.SATWECVT, ["convert", this.structure, this.load], { cwd: this.folder, stdio: "pipe" });
        const model = this.structure.replace(/\.sat$/, ".vkm");
        return [model, "satwecvt.msg"].map((name) => ({ name, bytes: readFileSync(this.path(name)) }));
    }

    /** What the program fails for, as it prints it, without the word "error" and what it only doubts. */
    failure() {
        const { status, stderr } = spawnSync(process.env.SATWECVT, ["convert", this.structure, this.load],
                                             { cwd: this.folder, encoding: "utf8" });
        assert.equal(status, 1);
        return stderr.split("\n").find((line) => line.includes(": error: ")).replace(": error: ", ": ");
    }
}

const waitTime = { timeout: 120_000 };

export class OpenConverter extends OpenPage {
    static async open(browser, options = {}) {
        const address = pathToFileURL(process.env.CONVERTER_PAGE).href;
        const opened = await super.open(browser, address, { isReady: isIdle, ...options });
        opened.address = address;
        return opened;
    }

    button(name) {
        return this.page.getByRole("button", { name, exact: true });
    }

    get alert() {
        return this.page.getByRole("alert");
    }

    /** The place of a file, with its name and size. */
    place(name) {
        return this.page.getByRole("region", { name, exact: true });
    }

    /** The names in both places. */
    async placed() {
        const name = async (place) => {
            const chosen = this.place(place).locator("b");
            return await chosen.count() === 0 ? undefined : chosen.textContent();
        };
        return [await name("Structure file"), await name("Load file")];
    }

    /** Waits until the page waits for its user. */
    async idle() {
        await this.page.waitForFunction(isIdle, undefined, waitTime);
    }

    async choose(place, ...paths) {
        await this.place(place).getByLabel(place).setInputFiles(paths);
        await this.idle();
    }

    async convert() {
        await this.button("Convert").click();
        await this.idle();
    }

    /** Waits until no worker is left. */
    async workersEnded() {
        await Promise.all(this.page.workers().map((worker) => new Promise((resolve) => {
            worker.once("close", resolve);
            if (!this.page.workers().includes(worker)) {
                resolve();
            }
        })));
    }

    /** Lets go of files above an element, and waits for what comes of it. */
    async drop(paths, target = "body") {
        await this.startDrop(paths, target);
        await this.idle();
    }

    async startDrop(paths, target = "body") {
        const files = paths.map((path) => [basename(path), readFileSync(path).toString("base64")]);
        await this.page.evaluate(({ files, target }) => {
            const dataTransfer = new DataTransfer();
            for (const [name, base64] of files) {
                dataTransfer.items.add(new File([Uint8Array.from(atob(base64), (c) => c.charCodeAt(0))], name));
            }
            for (const type of ["dragenter", "dragover", "drop"]) {
                const event = new DragEvent(type, { dataTransfer, bubbles: true, cancelable: true });
                document.querySelector(target).dispatchEvent(event);
            }
        }, { files, target });
    }

    /** Drags what is at paths on the disk from the desktop to a place of the window; `last` is "dragOver" or "drop". */
    async drag(paths, { x, y }, last = "drop") {
        this.devtools ??= await this.context.newCDPSession(this.page);
        const data = { items: [], files: paths, dragOperationsMask: 1 };
        for (const type of last === "drop" ? ["dragEnter", "dragOver", "drop"] : ["dragEnter", "dragOver"]) {
            await this.devtools.send("Input.dispatchDragEvent", { type, x, y, data });
        }
        await this.idle();
    }

    /** What a button saves. */
    async save(button) {
        const [download] = await Promise.all([this.page.waitForEvent("download"), this.button(button).click()]);
        return { name: download.suggestedFilename(), bytes: readFileSync(await download.path()) };
    }

    /** Expects the model and the log of the program, and the building on the screen. */
    async expectOutputs(pair) {
        const [model, log] = pair.outputs();
        assert.deepEqual(await this.save("Save model"), model);
        assert.deepEqual(await this.save("Save log"), log);
        assert.ok(await this.page.evaluate(() => window.satwecvt.scene().frames.length > 0));
    }

    /** Nothing has been complained of, and nothing asked for but the page itself and what it made. */
    async expectSilence() {
        assert.deepEqual(this.complaints, []);
        assert.deepEqual(this.requests.filter((address) => !/^(data|blob):/.test(address)), [this.address]);
    }
}

function isIdle() {
    return document.querySelector("#page:not([aria-busy])") !== null;
}

export const sample = (name) => new Pair().sample(name);

