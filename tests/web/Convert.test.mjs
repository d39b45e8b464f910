// Two files become a building, a model and a log: dropped, chosen, with the keyboard alone, and once more.

import assert from "node:assert/strict";
import { mkdirSync, readFileSync, renameSync } from "node:fs";
import { after, afterEach, before, beforeEach, describe, test } from "node:test";

import { launch } from "../page/Browser.mjs";
import { OpenConverter, Pair, sample } from "./Converter.mjs";

let browser;
let opened;
let page;
let frame;
let tower;
before(async () => {
    browser = await launch();
    [frame, tower] = [sample("frame"), sample("tower")];
});
after(async () => {
    await browser?.close();
    frame?.remove();
    tower?.remove();
});

async function open(options) {
    opened = await OpenConverter.open(browser, options);
    page = opened.page;
}

async function close() {
    await opened.expectSilence();
    await opened.close();
}

const kStructure = "Structure file";
const kLoad = "Load file";
const kMiddle = { x: 640, y: 60 };

const shown = () => page.getByRole("main").getByText("elements shown").textContent();

/** The middle of an element on the screen. */
async function middle(locator) {
    const { x, y, width, height } = await locator.boundingBox();
    return { x: x + width / 2, y: y + height / 2 };
}

describe("two files", () => {
    beforeEach(() => open());
    afterEach(close);

    for (const name of ["frame", "tower"]) {
        test(`the ${name} is dropped in either order`, async () => {
            const pair = { frame, tower }[name];
            await opened.drop(pair.paths);
            await opened.expectOutputs(pair);
            await opened.drop(pair.paths.reverse());
            await opened.expectOutputs(pair);
            assert.match(await shown(), { frame: /10 of 10/, tower: /1,080 of 1,080/ }[name]);
        });
    }

    test("they are chosen one by one", async () => {
        assert.ok(await opened.button("Convert").isDisabled());
        await opened.choose(kStructure, tower.paths[0]);
        assert.match(await opened.place(kStructure).innerText(), /structure\.sat\s+35\.2 kB/);
        assert.ok(await opened.button("Convert").isDisabled());
        await opened.choose(kLoad, tower.paths[1]);
        assert.equal(await opened.alert.count(), 0);
        await opened.convert();
        await opened.expectOutputs(tower);
    });

    test("they are chosen together, for either place", async () => {
        await opened.choose(kLoad, ...tower.paths);
        await opened.expectOutputs(tower);
    });

    test("they are dragged from the desktop", async () => {
        await opened.drag(tower.paths, kMiddle);
        await opened.expectOutputs(tower);
    });

    test("their names may be Chinese", async () => {
        const pair = sample("tower");
        for (const [place, name] of [["structure", "塔楼 结构.sat"], ["load", "荷载.sat"]]) {
            renameSync(pair.path(`${place}.sat`), pair.path(name));
            pair[place] = name;
        }
        await opened.drop(pair.paths);
        assert.match(await page.getByRole("heading", { level: 1 }).textContent(), /塔楼 结构\.sat \+ 荷载\.sat/);
        await opened.expectOutputs(pair);
        pair.remove();
    });

    test("another pair takes the place of a building", async () => {
        await opened.drop(tower.paths);
        await opened.drop(frame.paths);
        assert.match(await shown(), /10 of 10/);
        await opened.expectOutputs(frame);
    });

    test("one file on a building leads back to the start, where the other one is waited for", async () => {
        await opened.drop(tower.paths);
        await opened.drop([frame.paths[1]]);
        assert.deepEqual(await opened.placed(), [undefined, "load.sat"]);
        assert.equal(await page.evaluate(() => window.satwecvt), undefined);
        await opened.drop([frame.paths[0]]);
        assert.deepEqual(await opened.placed(), ["structure.sat", "load.sat"]);
        await opened.convert();
        await opened.expectOutputs(frame);
    });

    test("other files begin at an empty start", async () => {
        await opened.drop(tower.paths);
        await opened.button("Other files").click();
        assert.deepEqual(await opened.placed(), [undefined, undefined]);
        assert.equal(await page.title(), "satwecvt");
        await opened.drop(frame.paths);
        await opened.expectOutputs(frame);
    });

    test("what is saved can be saved again, under the same name", async () => {
        await opened.drop(frame.paths);
        assert.deepEqual(await opened.save("Save model"), await opened.save("Save model"));
    });
});

describe("which file is which", () => {
    beforeEach(() => open());
    afterEach(close);

    test("one file goes where it is dropped", async () => {
        await opened.drop([frame.paths[1]], "[data-place=structure]");
        assert.deepEqual(await opened.placed(), ["load.sat", undefined]);
        await opened.drag([frame.paths[0]], await middle(opened.place(kLoad)));
        assert.deepEqual(await opened.placed(), ["load.sat", "structure.sat"]);
    });

    test("one file that is dropped elsewhere goes where its kind tells", async () => {
        await opened.drag([frame.paths[1]], kMiddle);
        assert.deepEqual(await opened.placed(), [undefined, "load.sat"]);
        await opened.drag([frame.paths[0]], kMiddle);
        assert.deepEqual(await opened.placed(), ["structure.sat", "load.sat"]);
    });

    test("one file that tells nothing is asked for on its place", async () => {
        const other = new Pair().write("1 2 3\n", "");
        await opened.drop([other.paths[0]]);
        assert.match(await opened.alert.textContent(), /^structure\.sat looks like neither/);
        assert.deepEqual(await opened.placed(), [undefined, undefined]);
        await opened.drop([other.paths[0]], "[data-place=load]");
        assert.deepEqual(await opened.placed(), [undefined, "structure.sat"]);
        assert.equal(await opened.alert.count(), 0);
        other.remove();
    });

    test("two files that do not tell stay as they came, until their user decides", async () => {
        const twins = new Pair().write(readFileSync(frame.paths[1]), readFileSync(frame.paths[1]));
        await opened.drop([twins.paths[1], twins.paths[0]]);
        assert.match(await opened.alert.textContent(), /^The files do not tell which is which/);
        assert.deepEqual(await opened.placed(), ["load.sat", "structure.sat"]);
        await opened.button("Exchange").click();
        await opened.idle();
        assert.deepEqual(await opened.placed(), ["structure.sat", "load.sat"]);
        assert.equal(await opened.alert.count(), 0);
        await opened.convert();
        assert.equal(await opened.alert.textContent(), twins.failure());
        twins.remove();
    });

    test("files in each other's place are told of, and exchanged", async () => {
        await opened.choose(kStructure, tower.paths[1]);
        await opened.choose(kLoad, tower.paths[0]);
        assert.match(await opened.alert.textContent(), /^The files look exchanged/);
        await opened.button("Exchange").click();
        await opened.idle();
        assert.equal(await opened.alert.count(), 0);
        await opened.convert();
        await opened.expectOutputs(tower);
    });

    test("three files and a folder are refused, at the start and above a building", async () => {
        const folder = frame.path("folder");
        mkdirSync(folder);
        const three = [...frame.paths, tower.paths[0]];
        await opened.drag(three, kMiddle);
        assert.match(await opened.alert.textContent(), /^3 files were dropped/);
        await opened.drag([folder], kMiddle);
        assert.match(await opened.alert.textContent(), /^A folder cannot be converted/);
        await opened.choose(kLoad, ...three);
        assert.match(await opened.alert.textContent(), /^3 files/);
        assert.deepEqual(await opened.placed(), [undefined, undefined]);
        await opened.drop(frame.paths);
        await opened.drag([folder, frame.paths[0]], kMiddle);
        assert.match(await opened.alert.textContent(), /^A folder cannot be converted/);
        await page.keyboard.press("Escape");
        assert.equal(await opened.alert.count(), 0);
        await opened.expectOutputs(frame);
    });

    test("the places show that files are dragged over the window, and stop when they leave", async () => {
        const place = opened.place(kStructure);
        const look = () => place.evaluate((one) => {
            const { borderColor, backgroundColor } = getComputedStyle(one);
            return `${borderColor} ${backgroundColor}`;
        });
        const quiet = await look();
        await opened.drag(frame.paths, kMiddle, "dragOver");
        const awaited = await look();
        await opened.drag(frame.paths, await middle(place), "dragOver");
        const pointed = await look();
        assert.equal(new Set([quiet, awaited, pointed]).size, 3);
        await page.evaluate(() => document.body.dispatchEvent(new DragEvent("dragleave", { bubbles: true })));
        assert.equal(await look(), quiet);
    });

    test("a link that is dropped takes the page nowhere", async () => {
        const isTaken = await page.evaluate(() => {
            const dataTransfer = new DataTransfer();
            dataTransfer.setData("text/uri-list", "file:///");
            return ["dragover", "drop"].map((type) =>
                !document.body.dispatchEvent(new DragEvent(type, { dataTransfer, bubbles: true, cancelable: true })));
        });
        assert.deepEqual(isTaken, [true, true]);
        assert.deepEqual(await opened.placed(), [undefined, undefined]);
    });
});

describe("a large tower", () => {
    let large;
    before(() => { large = new Pair().tower("--stories", "40", "--bays-x", "25", "--bays-y", "25"); });
    after(() => large?.remove());
    beforeEach(() => open());
    afterEach(close);

    /** Chooses the tower, and starts its conversion. */
    async function begin() {
        await opened.choose(kStructure, large.paths[0]);
        await opened.choose(kLoad, large.paths[1]);
        await opened.button("Convert").click();
    }

    /** Waits until so many percent of the lines are read. */
    const reached = (percent) =>
        page.waitForFunction((least) => (document.querySelector("progress")?.value ?? 0) >= least, percent);

    test("progress moves while the page stays alive", async () => {
        const lines = large.paths.reduce((sum, path) => sum + readFileSync(path, "latin1").split("\n").length - 1, 0);
        await page.evaluate(() => {
            const seen = (window.seen = []);
            new MutationObserver(() => {
                const bar = document.querySelector("progress");
                if (bar?.hasAttribute("value")) {
                    seen.push({ value: bar.value, text: document.querySelector("main").innerText });
                }
            }).observe(document.body, { childList: true, subtree: true, attributes: true, characterData: true });
        });
        await begin();
        await reached(1);
        await opened.button("Dark").click();
        await opened.button("Light").waitFor();
        await opened.idle();
        const seen = await page.evaluate(() => window.seen);
        const values = [...new Set(seen.map(({ value }) => value))];
        assert.ok(values.length > 3, `${values}`);
        assert.deepEqual(values, [...values].sort((a, b) => a - b));
        for (const { value, text } of seen) {
            const [, line, total] = text.match(/line ([\d,]+) of ([\d,]+)/).map((part) => Number(part.replaceAll(",", "")));
            assert.equal(total, lines);
            assert.equal(value, Math.min(100, Math.floor(100 * line / total)));
            assert.match(text, new RegExp(`!!! .+ !!![^]*${value} %`));
        }
        assert.ok(seen.some(({ text }) => text.includes("!!! Read Data File !!!")));
    });

    for (const way of ["button", "key"]) {
        test(`a cancel in the middle, by the ${way}`, async () => {
            await begin();
            await reached(5);
            await (way === "button" ? opened.button("Cancel").click() : page.keyboard.press("Escape"));
            await opened.idle();
            assert.equal(await page.getByText("Cancelled; nothing was converted").count(), 1);
            assert.deepEqual(await opened.placed(), ["structure.sat", "load.sat"]);
            await opened.workersEnded();
            await opened.drop(frame.paths);
            await opened.expectOutputs(frame);
        });
    }

    test("nothing can be dropped meanwhile", async () => {
        await begin();
        await reached(1);
        await opened.startDrop(frame.paths);
        await opened.button("Cancel").click();
        await opened.idle();
        assert.match(await opened.place(kStructure).innerText(), / MB/);
    });
});

test("files are converted with the keyboard alone", async () => {
    await open();
    page.on("filechooser", () => undefined);  // so that the browser hands them over from now on, not from each wait on
    const choose = async (path) => {
        const [chooser] = await Promise.all([page.waitForEvent("filechooser"), page.keyboard.press("Enter")]);
        await chooser.setFiles(path);
        await opened.idle();
    };
    /** Goes on to a control, which shows that it has the focus. */
    const tabTo = async (name) => {
        for (let i = 0; i < 20; ++i) {
            await page.keyboard.press("Tab");
            const focused = await page.evaluate(() => {
                const at = document.activeElement;
                const seen = at.matches("[type=file]") ? at.nextElementSibling : at;
                const labels = at.getAttribute("aria-labelledby")?.split(" ") ?? [];
                return {
                    name: labels.map((id) => document.getElementById(id).textContent).join(" ") || at.textContent,
                    isOutlined: getComputedStyle(seen).outlineStyle !== "none",
                };
            });
            if (focused.name === name) {
                assert.ok(focused.isOutlined, `${name} does not show that it has the focus`);
                return;
            }
        }
        assert.fail(`${name} is not reached`);
    };
    await tabTo("Structure file Choose a file");
    await choose(tower.paths[0]);
    await tabTo("Load file Choose a file");
    await choose(tower.paths[1]);
    await tabTo("Convert");
    await page.keyboard.press("Enter");
    await opened.idle();
    await tabTo("Save model");
    const [download] = await Promise.all([page.waitForEvent("download"), page.keyboard.press("Enter")]);
    assert.deepEqual(readFileSync(await download.path()), tower.outputs()[0].bytes);
    await close();
});

test("language and theme are kept from screen to screen", async () => {
    await open({ colorScheme: "light" });
    await opened.button("Dark").click();
    await opened.button("中文").click();
    await page.getByRole("heading", { name: "结构文件" }).waitFor();
    assert.equal(await page.evaluate(() => document.activeElement.textContent), "English");
    await opened.drop(frame.paths);
    await page.getByRole("tab", { name: "表格" }).waitFor();
    assert.equal(await page.locator("html").getAttribute("data-theme"), "dark");
    await opened.button("English").click();
    await opened.button("Light").click();
    await opened.button("Other files").click();
    await page.getByRole("heading", { name: kStructure }).waitFor();
    await opened.button("Dark").waitFor();
    await close();
});

for (const width of [700, 320]) {
    test(`on a screen ${width} wide nothing is cut off`, async () => {
        await open({ viewport: { width, height: 800 } });
        await opened.choose(kStructure, tower.paths[1]);
        await opened.choose(kLoad, tower.paths[0]);
        const isWithin = () => page.evaluate(() => document.documentElement.scrollWidth <= innerWidth);
        assert.ok(await isWithin());
        await opened.button("Exchange").click();
        await opened.convert();
        await opened.button("Save model").waitFor();
        assert.ok(await isWithin());
        await close();
    });
}

test("a browser that cannot draw shows plans", async () => {
    const blind = await launch({ webGl: false });
    opened = await OpenConverter.open(blind);
    page = opened.page;
    await opened.drop(tower.paths);
    await page.getByRole("img", { name: "Plan of Story 1" }).waitFor();
    assert.deepEqual(await opened.save("Save model"), tower.outputs()[0]);
    await opened.close();
    await blind.close();
});

test("a building that does not fit can be saved all the same", async () => {
    await open();
    await page.evaluate(() => {
        window.Float64Array = class { constructor() { throw new RangeError("Array buffer allocation failed"); } };
    });
    await opened.drop(tower.paths);
    assert.match(await opened.alert.textContent(), /complete.*cannot show.*too large for the memory/);
    const [model, log] = tower.outputs();
    assert.deepEqual([await opened.save("Save model"), await opened.save("Save log")], [model, log]);
    await opened.button("Other files").click();
    assert.deepEqual(await opened.placed(), [undefined, undefined]);
    await close();
});
