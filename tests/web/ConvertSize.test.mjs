// Large files in the page that converts: how long they take beside the program, and where the browser's memory ends.
//
// Environment: that of Converter.mjs.

import assert from "node:assert/strict";
import { execFileSync } from "node:child_process";
import { statSync } from "node:fs";
import { after, before, describe, test } from "node:test";

import { launch } from "../page/Browser.mjs";
import { OpenConverter, Pair, sample } from "./Converter.mjs";

let large;
before(() => { large = new Pair().tower("--lines", "900000"); });
after(() => large?.remove());

/** Keeps when each message of a worker came, in the page. */
function watchWorkers() {
    window.heard = [];
    window.Worker = class extends window.Worker {
        constructor(...parameters) {
            super(...parameters);
            this.addEventListener("message", ({ data }) => window.heard.push([performance.now(), data]));
        }
    };
}

/** How long the page took from Convert to the model, and to all that it shows, in milliseconds. */
async function pageTimes(opened) {
    const begin = await opened.page.evaluate(() => {
        window.heard = [];
        [...document.querySelectorAll("button")].find((one) => one.textContent === "Convert").click();
        return performance.now();
    });
    await opened.idle();
    const heard = await opened.page.evaluate(() =>
        window.heard.map(([at, { kind, progress }]) => [at, kind, progress?.stage]));
    const [model] = heard.findLast(([, , stage]) => stage === "Write File : Static Load");
    const [all] = heard.findLast(([, kind]) => kind === "reply");
    return { model: model - begin, all: all - begin };
}

/** How long the program takes for the same, in milliseconds. */
function programTime(...parameters) {
    const begin = performance.now();
    execFileSync(process.env.SATWECVT, [...parameters, "structure.sat", "load.sat"],
                 { cwd: large.folder, stdio: "pipe" });
    return performance.now() - begin;
}

test("a pair of 30 MB takes at most four times as long as with the program", async () => {
    const size = large.paths.reduce((sum, path) => sum + statSync(path).size, 0);
    assert.ok(size > 30e6, `${size}`);
    const browser = await launch();
    const opened = await OpenConverter.open(browser, { init: watchWorkers });
    const ratios = { model: Infinity, all: Infinity };
    for (let round = 0; round < 3; ++round) {
        await opened.choose("Structure file", large.paths[0]);
        await opened.choose("Load file", large.paths[1]);
        const page = await pageTimes(opened);
        ratios.model = Math.min(ratios.model, page.model / programTime("convert", "-o", "program.vkm", "--log", "program.msg"));
        ratios.all = Math.min(ratios.all, page.all / programTime("view"));
        await opened.button("Other files").click();
    }
    console.log(`figure: the page takes ${ratios.model.toFixed(2)} of the program's time for a model of 30 MB of input, ` +
                `${ratios.all.toFixed(2)} with all that it shows`);
    assert.ok(ratios.model <= 4, `${ratios.model}`);
    assert.ok(ratios.all <= 4, `${ratios.all}`);
    await opened.close();
    await browser.close();
});

describe("a browser that has too little memory", () => {
    test("says so, and converts the next pair", async () => {
        const browser = await launch({ options: ["--js-flags=--wasm-max-mem-pages=1600"] });  // of 64 KiB
        const opened = await OpenConverter.open(browser);
        await opened.choose("Structure file", large.paths[0]);
        await opened.choose("Load file", large.paths[1]);
        await opened.convert();
        assert.equal(await opened.alert.textContent(),
                     "The browser has not enough memory for these files. The program satwecvt converts them.");
        const frame = sample("frame");
        await opened.drop(frame.paths);
        await opened.expectOutputs(frame);
        frame.remove();
        await opened.close();
        await browser.close();
    });
});
