// A page is closed without a trace, and the next one opens in its place.

import assert from "node:assert/strict";
import { readFileSync, writeFileSync } from "node:fs";
import { createRequire } from "node:module";
import { join } from "node:path";
import { after, afterEach, before, beforeEach, describe, test } from "node:test";
import { fileURLToPath } from "node:url";
import { isDeepStrictEqual } from "node:util";

import { Building, kRoot, launch, OpenPage } from "./Browser.mjs";

const { build } = createRequire(join(kRoot, "page", "package.json"))("esbuild");

/** The first rounds make what stays once and for all, such as compiled code. */
const kFirstRounds = 5;
/** SATWECVT_PAGES asks for more of them. */
const kRounds = Number(process.env.SATWECVT_PAGES ?? 25);

/** Those of three's own, which hold no building and go with the context. */
const kEmptyTextures = 4;

let building;
let address;
let browser;
let opened;
let page;

/** Puts another script into a page that `view` has written. */
async function replaceScript(file, entry) {
    const made = await build({ entryPoints: [entry], bundle: true, format: "iife", charset: "utf8", write: false });
    const script = made.outputFiles[0].text.replaceAll(/<(?=\/script|!--)/gi, "\\x3C");
    const html = readFileSync(file, "utf8").replace(/<script>.*<\/script>/s, () => `<script>${script}</script>`);
    writeFileSync(file, html);
}

before(async () => {
    building = new Building().sample("tower");
    address = building.page();
    await replaceScript(building.path("page.html"), fileURLToPath(new URL("Opener.mjs", import.meta.url)));
    browser = await launch();
});
after(async () => {
    await browser.close();
    building.remove();
});

/** Counts what the graphics card holds of each kind. Is run in the page. */
function countHeld() {
    const { prototype } = WebGL2RenderingContext;
    const kinds = ["Buffer", "Program", "Texture", "VertexArray"].map((kind) => {
        const held = new Set();
        const { [`create${kind}`]: create, [`delete${kind}`]: free } = prototype;
        prototype[`create${kind}`] = function () {
            const made = create.call(this);
            held.add(made);
            return made;
        };
        prototype[`delete${kind}`] = function (made) {
            held.delete(made);
            free.call(this, made);
        };
        return [kind, held];
    });
    window.held = () => Object.fromEntries(kinds.map(([kind, held]) => [kind, held.size]));
}

/** Counts the timers and frames that are still to come. Is run in the page. */
function countDue() {
    const due = new Set();
    window.due = () => due.size;
    for (const [begin, end] of [["setTimeout", "clearTimeout"], ["requestAnimationFrame", "cancelAnimationFrame"]]) {
        const [begins, ends] = [window[begin].bind(window), window[end].bind(window)];
        window[begin] = (run, ...more) => {
            const id = begins((...values) => {
                due.delete(`${begin} ${id}`);
                run(...values);
            }, ...more);
            due.add(`${begin} ${id}`);
            return id;
        };
        window[end] = (id) => {
            due.delete(`${begin} ${id}`);
            ends(id);
        };
    }
}

/** The page's script is not the one that its policy lets in. */
async function begin(inBrowser, options = {}) {
    opened = await OpenPage.open(inBrowser, address, { ...options, bypassCSP: true });
    page = opened.page;
    page.on("console", (message) => opened.complaints.push(message.text()));
}

async function end() {
    assert.deepEqual(opened.complaints, []);
    await opened.close();
}

const open = () => page.evaluate(() => window.satwecvt.open());
const close = () => page.evaluate(() => window.satwecvt.close());
const drawn = () => page.evaluate(() => window.satwecvt.drawn());

/** What a building changes in the document. */
const documentNow = () => page.evaluate(() => ({
    title: document.title,
    root: Array.from(document.documentElement.attributes, ({ name, value }) => `${name}=${value}`),
    body: Array.from(document.body.children, ({ tagName, className, id }) => [tagName, className, id]),
    holder: document.getElementById("page").childNodes.length,
    said: document.querySelector("body > [role=status]").textContent,
}));

/** What the script of the page listens to at the document and the window; the driver of the browser listens, too. */
async function listeners() {
    const cdp = await opened.context.newCDPSession(page);
    const idOf = async (expression) => (await cdp.send("Runtime.evaluate", { expression })).result.objectId;
    const { internalProperties } = await cdp.send("Runtime.getProperties", { objectId: await idOf("satwecvt.open") });
    const { scriptId } = internalProperties.find(({ name }) => name === "[[FunctionLocation]]").value.value;
    const all = [];
    for (const target of ["document", "window"]) {
        const found = await cdp.send("DOMDebugger.getEventListeners", { objectId: await idOf(target) });
        all.push(...found.listeners.filter((one) => one.scriptId === scriptId).map(({ type }) => type));
    }
    await cdp.detach();
    return [...new Set(all)].sort();
}

describe("after a page was closed", () => {
    beforeEach(() => begin(browser));
    afterEach(end);

    test("the document is as it was", async () => {
        const before = await documentNow();
        await open();
        await drawn();
        await page.getByRole("searchbox").fill("n99999");
        await page.getByRole("searchbox").press("Enter");
        assert.equal((await documentNow()).said, "Not found: n99999");
        assert.deepEqual(await listeners(), ["afterprint", "beforeprint", "keydown"]);
        await close();
        assert.deepEqual(await documentNow(), before);
        assert.deepEqual(await listeners(), []);
        await close();
        assert.deepEqual(await documentNow(), before);
    });

    test("keys, the theme of the system and printing do nothing", async () => {
        const theme = () => page.locator("html").getAttribute("data-theme");
        const sheet = async () => (await page.$(".print-only")) ?? assert.fail("no sheet");
        const fills = (handle) => handle.evaluate((element) => {
            window.dispatchEvent(new Event("beforeprint"));
            const isFilled = element.hasChildNodes();
            window.dispatchEvent(new Event("afterprint"));
            return isFilled;
        });
        await open();
        await page.emulateMedia({ colorScheme: "dark" });
        await page.locator("html[data-theme=dark]").waitFor();
        await page.emulateMedia({ colorScheme: "light" });
        await page.locator("html[data-theme=light]").waitFor();
        const kept = await sheet();
        assert.equal(await fills(kept), true);

        await close();
        const before = await documentNow();
        assert.equal(await fills(kept), false);
        await page.emulateMedia({ colorScheme: "dark" });
        await page.waitForFunction(() => matchMedia("(prefers-color-scheme: dark)").matches);
        await page.evaluate(() => new Promise((resolve) => requestAnimationFrame(() => setTimeout(resolve))));
        assert.equal(await theme(), "light");
        for (const key of ["t", "g", "/", "?", "Escape", "f", "d"]) {
            await page.keyboard.press(key);
        }
        assert.deepEqual(await documentNow(), before);
    });

    test("nothing is still to come, and the graphics card is free", async () => {
        await page.addInitScript(countDue);
        await page.addInitScript(countHeld);
        await page.reload();
        await open();
        await drawn();
        await page.getByRole("tab", { name: "Tables" }).click();
        await page.getByRole("button", { name: "Copy" }).first().click();
        await page.getByRole("button", { name: /copied/i }).first().waitFor();
        const left = await page.evaluate(() => {
            const canvas = document.querySelector("canvas");
            const drawing = canvas.getContext("webgl2");
            canvas.dispatchEvent(new PointerEvent("pointermove"));
            document.dispatchEvent(new KeyboardEvent("keydown", { key: "6" }));
            const dueBefore = window.due();
            const heldBefore = window.held();
            window.satwecvt.close();
            return { dueBefore, due: window.due(), heldBefore, held: window.held(), isLost: drawing.isContextLost() };
        });
        // The button that says what was copied, the pointer that rests, and the flight to the view from above.
        assert.equal(left.dueBefore, 3);
        assert.equal(left.due, 0);
        assert.ok(Object.values(left.heldBefore).every((count) => count > kEmptyTextures));
        assert.deepEqual(left.held, { Buffer: 0, Program: 0, Texture: kEmptyTextures, VertexArray: 0 });
        assert.equal(left.isLost, true);
    });

    test("what it was about to copy or print is not told", async () => {
        await open();
        await page.getByRole("tab", { name: "Tables" }).click();
        const done = await page.evaluate(async () => {
            const waiting = [];
            const later = () => new Promise((resolve) => waiting.push(resolve));
            const prints = [];
            navigator.clipboard.writeText = later;
            HTMLImageElement.prototype.decode = later;
            window.print = () => prints.push("printed");
            const press = (label) => [...document.querySelectorAll("button")]
                .find((button) => button.textContent === label).click();
            press("Copy");
            press("Print");
            window.satwecvt.close();
            waiting.forEach((resolve) => resolve());
            await new Promise((resolve) => setTimeout(resolve));
            return { waited: waiting.length, prints };
        });
        assert.deepEqual(done, { waited: 2, prints: [] });
        assert.equal((await documentNow()).said, "");
    });

    test("closing it again leaves the next one alone", async () => {
        await open();
        await close();
        await open();
        await page.evaluate(() => window.satwecvt.closeFormer());
        assert.ok((await drawn()).triangles > 0);
        assert.match(await page.title(), /structure\.sat/);
        assert.equal(await page.locator("canvas").count(), 1);
    });

    test("it does not open after all", async () => {
        const before = await documentNow();
        await page.evaluate(async () => {
            const opening = window.satwecvt.open();
            window.satwecvt.close();
            await opening;
        });
        assert.deepEqual(await documentNow(), before);
        assert.deepEqual(await listeners(), []);
    });
});

test("a page in a browser that cannot draw is closed, too", async (context) => {
    const plain = await launch({ webGl: false });
    context.after(() => plain.close());
    await begin(plain);
    const before = await documentNow();
    await open();
    assert.equal(await page.locator("#page.without-picture").count(), 1);
    await close();
    assert.deepEqual(await documentNow(), before);
    assert.equal(await page.locator("#page.without-picture").count(), 0);
});

test("buttons of its owner stand before the page's, in every language", async () => {
    await begin(browser);
    const buttons = () => page.locator(".page-buttons button").allTextContents();
    await open();
    assert.deepEqual((await buttons()).slice(0, 2), ["Save", "Print"]);
    await page.keyboard.press("g");
    assert.deepEqual((await buttons()).slice(0, 2), ["保存", "打印"]);
    await page.getByRole("button", { name: "保存" }).click();
    assert.equal(await page.locator("#page > *").count(), 0);
    await end();
});

describe(`${kRounds} buildings, one after the other,`, () => {
    let cdp;
    beforeEach(async () => {
        await begin(browser, { viewport: { width: 800, height: 500 } });
        cdp = await opened.context.newCDPSession(page);
    });
    afterEach(end);

    /** What is in use once all waste is gone: bytes, and what the document holds. */
    async function inUse() {
        await cdp.send("HeapProfiler.collectGarbage");
        await cdp.send("HeapProfiler.collectGarbage");
        const { usedSize, embedderHeapUsedSize, backingStorageSize } = await cdp.send("Runtime.getHeapUsage");
        const counters = await cdp.send("Memory.getDOMCounters");
        return { bytes: usedSize + embedderHeapUsedSize + backingStorageSize, counters };
    }

    async function round() {
        await open();
        const picture = await drawn();
        await close();
        await page.evaluate(() => window.satwecvt.forget());
        return picture;
    }

    test("are all drawn, and leave less behind than one of them takes", async () => {
        const first = await round();
        assert.ok(first.triangles > 10_000);
        for (let i = 1; i < kFirstRounds; ++i) {
            await round();
        }
        const early = await inUse();
        for (let i = kFirstRounds; i < kRounds; ++i) {
            assert.ok(isDeepStrictEqual(await round(), first), `building ${i + 1} looks different`);
        }
        const late = await inUse();
        await open();
        await drawn();
        const one = (await inUse()).bytes - late.bytes;
        const left = late.bytes - early.bytes;
        assert.ok(left < one, `${kRounds - kFirstRounds} buildings left ${left} bytes, and one takes ${one}`);
        assert.deepEqual(late.counters, early.counters);
    });
});
