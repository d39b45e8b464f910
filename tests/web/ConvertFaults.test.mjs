// Files that make no model, names that nobody expects, and browsers that let the converter down: each is told in a
// sentence, and the next pair is converted as if nothing had happened.

import assert from "node:assert/strict";
import { readFileSync, renameSync, rmSync, writeFileSync } from "node:fs";
import { after, before, describe, test } from "node:test";

import { launch } from "../page/Browser.mjs";
import { OpenConverter, Pair, sample } from "./Converter.mjs";

let browser;
let frame;
before(async () => {
    browser = await launch();
    frame = sample("frame");
});
after(async () => {
    await browser?.close();
    frame?.remove();
});

/** Opens the page, and expects afterwards that it still converts, and has complained of nothing. */
async function withPage(look, options) {
    const opened = await OpenConverter.open(browser, options);
    await look(opened);
    await opened.drop(frame.paths);
    await opened.expectOutputs(frame);
    await opened.expectSilence();
    await opened.close();
}

/** Chooses both files, and converts them. */
async function convert(opened, pair) {
    await opened.choose("Structure file", pair.paths[0]);
    await opened.choose("Load file", pair.paths[1]);
    await opened.convert();
}

const text = (name, file) => readFileSync(`${process.env.SATWECVT_ROOT}/samples/${name}/${file}`, "utf8");
const lines = (content, count) => content.split("\n").slice(0, count).join("\n") + "\n";

const kFaults = {
    "an empty structure file": () => ["", text("frame", "load.sat")],
    "a structure file that ends in the middle": () =>
        [lines(text("tower", "structure.sat"), 300), text("tower", "load.sat")],
    "files in each other's place": () => [text("frame", "load.sat"), text("frame", "structure.sat")],
    "a load on a wall that is not there": () => [text("frame", "structure.sat"), "1\n1 99 21 0 100 500\n"],
    "a structure file that is a letter": () => ["Dear reader,\n\nyours\n", text("frame", "load.sat")],
    "bytes that are no text": () => [Buffer.from([0xff, 0xfe, 0, 0, 0x80]), text("frame", "load.sat")],
};

describe("what the program refuses", () => {
    for (const [name, contents] of Object.entries(kFaults)) {
        test(name, async () => {
            const pair = new Pair().write(...contents());
            await withPage(async (opened) => {
                await convert(opened, pair);
                assert.equal(await opened.alert.textContent(), pair.failure());
                assert.deepEqual(await opened.placed(), ["structure.sat", "load.sat"]);
                await opened.workersEnded();
            });
            pair.remove();
        });
    }

    test("swapped files are told below the failure", async () => {
        const pair = sample("tower");
        await withPage(async (opened) => {
            await opened.choose("Structure file", pair.paths[1]);
            await opened.choose("Load file", pair.paths[0]);
            await opened.convert();
            assert.match(await opened.alert.textContent(), /^load\.sat:8: the first line of a section needs 10 numbers/);
            assert.deepEqual(await opened.page.getByRole("listitem").allTextContents(), [
                "load.sat: this looks like a load file, and the load file like a structure file: are they swapped?",
            ]);
        });
        pair.remove();
    });

    test("a load file that is none makes a building, and a finding", async () => {
        const pair = new Pair().write(text("frame", "structure.sat"), "1 2 3\n");
        await withPage(async (opened) => {
            await convert(opened, pair);
            const findings = opened.page.getByRole("tabpanel").first();
            assert.match(await findings.innerText(), /the file ends in block 1 of 1: 0 loads read, 1 announced/);
        });
        pair.remove();
    });
});

describe("a file that changes after it was chosen", () => {
    const kChanges = { "is deleted": rmSync, "is changed": (path) => writeFileSync(path, "1\n") };
    for (const [name, change] of Object.entries(kChanges)) {
        for (const [place, index] of [["structure", 0], ["load", 1]]) {
            test(`the ${place} file ${name}`, async () => {
                const pair = sample("tower");
                await withPage(async (opened) => {
                    await opened.choose("Structure file", pair.paths[0]);
                    await opened.choose("Load file", pair.paths[1]);
                    change(pair.paths[index]);
                    await opened.convert();
                    assert.match(await opened.alert.textContent(),
                                 new RegExp(`^${place}\\.sat: the browser cannot read this file any more`));
                });
                pair.remove();
            });
        }
    }
});

test("a single file that cannot be read is named, not the one in a place", async () => {
    const pair = sample("tower");
    renameSync(pair.path("load.sat"), pair.path("gone.sat"));
    await withPage(async (opened) => {
        const { page } = opened;
        await opened.choose("Structure file", pair.paths[0]);
        await page.evaluate(() => {
            document.body.append(Object.assign(document.createElement("input"), { type: "file", id: "kept" }));
        });
        await page.setInputFiles("#kept", pair.path("gone.sat"));
        rmSync(pair.path("gone.sat"));
        await page.evaluate(() => {
            const kept = document.getElementById("kept");
            const dataTransfer = new DataTransfer();
            dataTransfer.items.add(kept.files[0]);
            kept.remove();
            document.body.dispatchEvent(new DragEvent("drop", { dataTransfer, bubbles: true, cancelable: true }));
        });
        await opened.idle();
        assert.match(await opened.alert.textContent(), /^gone\.sat: the browser cannot read this file any more/);
    });
    pair.remove();
});

describe("a name is text", () => {
    for (const name of ["<img src=x onerror=alert(1)>.sat", "\" onload='alert(1)'.sat", "&lt;b&gt; {0} $& $1.sat",
                        "a\tb\u0001c.sat", `${"long ".repeat(40)}.sat`]) {
        test(JSON.stringify(name.slice(0, 40)), async () => {
            const pair = new Pair().write(lines(text("frame", "structure.sat"), 30), text("frame", "load.sat"));
            renameSync(pair.paths[0], pair.path(name));
            pair.structure = name;
            await withPage(async (opened) => {
                const { page } = opened;
                await convert(opened, pair);
                assert.equal((await opened.placed())[0], name);
                assert.match(await opened.alert.textContent(), /:\d+: the file ends here/);
                assert.ok((await opened.alert.textContent()).startsWith(name));
                writeFileSync(pair.paths[0], text("frame", "structure.sat"));
                await convert(opened, pair);
                assert.ok((await page.getByRole("heading", { level: 1 }).textContent()).startsWith(name));
                const [{ bytes }] = pair.outputs();
                assert.deepEqual((await opened.save("Save model")).bytes, bytes);
                assert.equal(await page.locator("img[src=x], b b").count(), 0);
                assert.ok(await page.evaluate(() => document.documentElement.scrollWidth <= innerWidth));
            });
            pair.remove();
        });
    }
});

describe("a browser that lets the converter down", () => {
    test("a worker that dies", async () => {
        const large = new Pair().tower("--stories", "40", "--bays-x", "25", "--bays-y", "25");
        await withPage(async (opened) => {
            const { page } = opened;
            await opened.choose("Structure file", large.paths[0]);
            await opened.choose("Load file", large.paths[1]);
            // The first thing that the worker does with its next file fails.
            await page.workers()[0].evaluate(() => {
                FileReaderSync.prototype.readAsArrayBuffer = () => {
                    setTimeout(() => { throw new Error("the worker is dead"); });
                    throw new Error("nothing is read");
                };
                self.postMessage = () => undefined;
            });
            await opened.convert();
            assert.match(await opened.alert.textContent(), /^The converter stopped unexpectedly: .*the worker is dead/);
        });
        large.remove();
    });

    test("a browser without WebAssembly, or without its exceptions", async () => {
        const kAges = [
            () => { delete window.WebAssembly; },
            () => { WebAssembly.compile = () => Promise.reject(new WebAssembly.CompileError("invalid opcode 0x6")); },
        ];
        for (const age of kAges) {
            const context = await browser.newContext();
            const page = await context.newPage();
            await page.addInitScript(age);
            await page.goto(`file://${process.env.CONVERTER_PAGE}`);
            assert.match(await page.getByRole("alert").textContent(), /^This browser is too old/);
            assert.equal(await page.getByRole("button", { name: "Convert" }).count(), 0);
            await context.close();
        }
    });

    test("a browser that has no memory for the converter", async () => {
        const context = await browser.newContext();
        const page = await context.newPage();
        await page.addInitScript(() => {
            WebAssembly.compile = () => Promise.reject(new RangeError("WebAssembly.compile(): Out of memory"));
        });
        await page.goto(`file://${process.env.CONVERTER_PAGE}`);
        assert.equal(await page.getByRole("alert").textContent(), "The browser has not enough memory for these files. The program satwecvt converts them.");
        await context.close();
    });
});
