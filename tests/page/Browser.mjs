// A browser without a window, in which pages are opened as their user opens them: from a file, by a double-click.
//
// Environment: CHROMIUM is the browser, SATWECVT the program, GENERATE_TOWER the writer of large samples, SATWECVT_ROOT
// the project.

import assert from "node:assert/strict";
import { execFileSync } from "node:child_process";
import { copyFileSync, mkdtempSync, rmSync, writeFileSync } from "node:fs";
import { createRequire } from "node:module";
import { tmpdir } from "node:os";
import { join } from "node:path";
import { pathToFileURL } from "node:url";

export const kRoot = process.env.SATWECVT_ROOT;
const require = createRequire(join(kRoot, "page", "package.json"));
const { chromium } = require("playwright-core");

const kWebGl = ["--use-angle=swiftshader", "--enable-unsafe-swiftshader"];
const kWithoutWebGl = ["--disable-gpu", "--disable-3d-apis"];

/** The text of axe-core, which looks for what keeps people out of a page. */
export const kAxe = require.resolve("axe-core/axe.min.js");

/** A browser that draws in software; `webGl` false is a machine that cannot draw at all. */
export async function launch({ webGl = true, options = [] } = {}) {
    return chromium.launch({
        executablePath: process.env.CHROMIUM,
        args: ["--no-sandbox", ...(webGl ? kWebGl : kWithoutWebGl), ...options],
    });
}

/** A folder of its own for one building; `remove` takes it away. */
export class Building {
    constructor() {
        this.folder = mkdtempSync(join(tmpdir(), "satwecvt-page-"));
    }

    path(name) {
        return join(this.folder, name);
    }

    sample(name) {
        for (const file of ["structure.sat", "load.sat"]) {
            copyFileSync(join(kRoot, "samples", name, file), this.path(file));
        }
        return this;
    }

    write(structure, load) {
        writeFileSync(this.path("structure.sat"), structure);
        writeFileSync(this.path("load.sat"), load);
        return this;
    }

    /** A tower of the generator, with its arguments. */
    tower(...generatorArguments) {
        execFileSync(process.env.GENERATE_TOWER, [...generatorArguments, "structure.sat", "load.sat"],
                     { cwd: this.folder });
        return this;
    }

    /** Writes the page, and returns its address. */
    page(structure = "structure.sat", load = "load.sat", ...more) {
        execFileSync(process.env.SATWECVT, ["view", "-o", "page.html", ...more, structure, load],
                     { cwd: this.folder, stdio: "pipe" });
        return pathToFileURL(this.path("page.html")).href;
    }

    remove() {
        rmSync(this.folder, { recursive: true });
    }
}

/** An open page that keeps whatever it complains of, and every address that it asks for. */
export class OpenPage {
    /** `isReady` tells in the page that it shows what it has; `init` runs in it before all else. */
    static async open(browser, address, { isReady = () => window.satwecvt !== undefined, init, ...options } = {}) {
        const context = await browser.newContext({ locale: "en-GB", viewport: { width: 1280, height: 800 }, ...options });
        const opened = new this(context, await context.newPage());
        if (init !== undefined) {
            await opened.page.addInitScript(init);
        }
        await opened.page.goto(address);
        await opened.page.waitForFunction(isReady, undefined, { timeout: 120_000 });
        return opened;
    }

    constructor(context, page) {
        this.context = context;
        this.page = page;
        this.complaints = [];
        this.requests = [];
        page.on("console", (message) => {
            if (["error", "warning"].includes(message.type())) {
                this.complaints.push(message.text());
            }
        });
        page.on("dialog", (dialog) => {
            this.complaints.push(`a dialog: ${dialog.message()}`);
            dialog.dismiss();
        });
        page.on("pageerror", (error) => this.complaints.push(String(error)));
        context.on("request", (request) => this.requests.push(request.url()));
    }

    async scene() {
        return this.page.evaluate(() => window.satwecvt.scene());
    }

    async statistics() {
        return this.page.evaluate(() => window.satwecvt.statistics());
    }

    /** Expects that the page has complained of nothing, and has asked for nothing but itself. */
    expectQuiet() {
        assert.deepEqual(this.complaints, []);
        assert.deepEqual(this.requests.filter((address) => !/^(data|blob):/.test(address)).slice(1), []);
    }

    async close() {
        await this.context.close();
    }
}
