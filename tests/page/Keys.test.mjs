// The keys: each that the help lists does what the help says of it.

import assert from "node:assert/strict";
import { after, before, test } from "node:test";

import { Building, launch, OpenPage } from "./Browser.mjs";

let browser;
let building;
let opened;
let page;
before(async () => {
    browser = await launch();
    building = new Building().sample("tower");
    // Who wants less motion sees no flights: the picture is there at once.
    opened = await OpenPage.open(browser, building.page(), { reducedMotion: "reduce" });
    page = opened.page;
});
after(async () => {
    await browser.close();
    building.remove();
});

const button = (name) => page.getByRole("button", { name, exact: true });
const radio = (name) => page.getByRole("radio", { name, exact: true });
const tab = (name) => page.getByRole("tab", { name, exact: true });
const panel = () => page.locator("[role=tabpanel]:visible");
const search = () => page.getByRole("searchbox");
const shown = () => page.getByRole("main").getByText("elements shown").textContent();

/** The picture, once all changes are drawn. */
async function picture() {
    await page.evaluate(() => new Promise((drawn) => requestAnimationFrame(() => requestAnimationFrame(drawn))));
    return page.locator("canvas").screenshot();
}

// A try gets the key, presses it, sees what it does, and leaves the page as other tries can take it.

/** The key does what a button does. `goAway` takes the picture away from what the button shows. */
function pressesButton(name, goAway) {
    return async (key) => {
        await button(name).click();
        const expected = await picture();
        await goAway();
        assert.ok(!expected.equals(await picture()), `nothing is to be seen of ${key}`);
        await page.keyboard.press(key);
        assert.ok(expected.equals(await picture()), `${key} is not ${name}`);
    };
}

const looksFrom = (name) => pressesButton(name, () => button(name === "Front" ? "Left" : "Front").click());

/** The key does what a drag by so many pixels does. */
function drags(mouseButton, x, y) {
    return async (key) => {
        await button("Isometric").click();
        const start = await picture();
        const box = await page.locator("canvas").boundingBox();
        const [fromX, fromY] = [box.x + box.width / 2, box.y + box.height / 2];
        await page.mouse.move(fromX, fromY);
        await page.mouse.down({ button: mouseButton });
        await page.mouse.move(fromX + x, fromY + y);
        await page.mouse.up({ button: mouseButton });
        const dragged = await picture();
        assert.ok(!dragged.equals(start), `nothing is to be seen of ${key}`);
        await button("Isometric").click();
        await page.keyboard.press(key);
        assert.ok(dragged.equals(await picture()), `${key} is not a drag by ${x}, ${y}`);
    };
}

/** How many pixels the scale bar gives to a unit of the model. */
async function scale() {
    await picture();
    return page.getByTitle(/^Scale/).evaluate((bar) =>
        bar.lastElementChild.getBoundingClientRect().width / Number(bar.firstElementChild.textContent));
}

function zooms(factor) {
    return async (key) => {
        const before = await scale();
        await page.keyboard.press(key);
        const zoomed = await scale() / before;
        assert.ok(Math.abs(zoomed - factor) < 0.01, `${key} zooms by ${zoomed}`);
    };
}

/** The key goes from one of two choices to the other, and back. */
function switches(from, to) {
    return async (key) => {
        assert.ok(await radio(from).isChecked());
        const before = await picture();
        await page.keyboard.press(key);
        assert.ok(await radio(to).isChecked(), `${key} is not ${to}`);
        assert.ok(!before.equals(await picture()), `nothing is to be seen of ${to}`);
        await page.keyboard.press(key);
        assert.ok(await radio(from).isChecked(), `${key} does not lead back to ${from}`);
        assert.ok(before.equals(await picture()), `nothing is to be seen of ${from}`);
    };
}

/** The key goes from all stories to one, and from there to another. */
function stepsStory(first, second) {
    return async (key) => {
        await button("All stories").click();
        for (const story of [first, second]) {
            await page.keyboard.press(key);
            assert.ok((await shown()).startsWith(`Story ${story} `), `${key}: ${await shown()}`);
        }
    };
}

async function showsAllStories(key) {
    await button("One story up").click();
    assert.match(await shown(), /^Story/);
    await page.keyboard.press(key);
    assert.match(await shown(), /^All stories .* 1,080 of 1,080/);
}

/** What story 1 carries downward stands beside the picture while loads are shown. */
function showsLoads(name, force) {
    return async (key) => {
        await radio(name === "None" ? "Dead" : "None").check({ force: true });
        await page.keyboard.press(key);
        assert.ok(await radio(name).isChecked(), `${key} is not ${name}`);
        const story = page.getByRole("rowheader", { name: "Story 1", exact: true });
        const forces = await page.getByRole("row").filter({ has: story }).getByRole("cell").allTextContents();
        assert.equal(forces[0], force);
    };
}

async function findsAndTypes(key) {
    await page.keyboard.press(key);
    await page.keyboard.type("bd6");  // letters are for the field now, not for the picture
    assert.equal(await search().inputValue(), "bd6");
    assert.ok(await search().evaluate((field) => field === document.activeElement));
    assert.ok(await radio("None").isChecked());
    await search().fill("");
    await page.keyboard.press("Escape");
    assert.ok(await search().evaluate((field) => field !== document.activeElement));
}

async function deselects(key) {
    await search().fill("5");
    await search().press("Enter");
    await search().blur();
    assert.equal(await panel().getByRole("heading", { name: /^Beam 5,/ }).count(), 1);
    await page.keyboard.press(key);
    assert.match(await panel().innerText(), /^Click an element in the picture/);
}

async function changesTheme(key) {
    const background = () => page.locator("body").evaluate((body) => getComputedStyle(body).backgroundColor);
    const [light, lightPicture] = [await background(), await picture()];
    await page.keyboard.press(key);
    assert.notEqual(await background(), light);
    assert.ok(!lightPicture.equals(await picture()), "the picture does not get dark");
    assert.ok(await button("Light").isVisible());
    await page.keyboard.press(key);
    assert.equal(await background(), light);
}

async function changesLanguage(key) {
    for (const [language, help] of [["zh-CN", "帮助"], ["en", "Help"]]) {
        await page.keyboard.press(key);
        assert.equal(await page.locator("html").getAttribute("lang"), language);
        assert.ok(await tab(help).isVisible());
    }
}

async function helps(key) {
    await tab("Findings").click();
    await page.keyboard.press(key);
    assert.equal(await tab("Help").getAttribute("aria-selected"), "true");
    assert.match(await panel().innerText(), /Lines or solid/);
}

/** A try for each key, under what the help says of it, and in its order. */
const kTries = {
    "Isometric": { 1: looksFrom("Isometric") },
    "Front": { 2: looksFrom("Front") },
    "Back": { 3: looksFrom("Back") },
    "Left": { 4: looksFrom("Left") },
    "Right": { 5: looksFrom("Right") },
    "Top": { 6: looksFrom("Top") },
    "Bottom": { 7: looksFrom("Bottom") },
    "Fit": { f: pressesButton("Fit", () => page.keyboard.press("+")) },
    "Turn": {
        ArrowLeft: drags("left", -40, 0), ArrowRight: drags("left", 40, 0),
        ArrowUp: drags("left", 0, -40), ArrowDown: drags("left", 0, 40),
    },
    "Move": {
        "Shift+ArrowLeft": drags("right", -40, 0), "Shift+ArrowRight": drags("right", 40, 0),
        "Shift+ArrowUp": drags("right", 0, -40), "Shift+ArrowDown": drags("right", 0, 40),
    },
    "Zoom": { "+": zooms(1.2), "-": zooms(1 / 1.2) },
    "Lines or solid": { l: switches("Solid", "Lines") },
    "Projection": { p: switches("Perspective", "Parallel") },
    "One story down": { "[": stepsStory(8, 7) },
    "One story up": { "]": stepsStory(1, 2) },
    "All stories": { 0: showsAllStories },
    "Dead loads": { d: showsLoads("Dead", "1583200") },
    "Live loads": { v: showsLoads("Live", "925200") },
    "Both, as in LiveLoad": { b: showsLoads("Both", "2508400") },
    "No loads": { n: showsLoads("None") },
    "Find": { "/": findsAndTypes },
    "Select nothing": { Escape: deselects },
    "Light or dark": { t: changesTheme },
    "Language": { g: changesLanguage },
    "Help": { "?": helps },
};

const kNames = {
    "\u2190": "ArrowLeft", "\u2192": "ArrowRight", "\u2191": "ArrowUp", "\u2193": "ArrowDown", "Esc": "Escape",
};

/** The keys that stand in one row of the help, by the names that the browser gives them. */
function namesOf(keys) {
    const shift = keys[0].startsWith("Shift + ") ? "Shift+" : "";
    return keys.map((key) => key.replace("Shift + ", "")).map((key) => shift + (kNames[key] ?? key));
}

/** What the help lists, row by row: what it says, and the keys that do so. */
async function listedKeys() {
    await button("Help").click();
    const terms = panel().locator("section:not(:has(h2:text-is('Mouse'))) dt");
    const rows = await terms.evaluateAll((all) => all.map((term) =>
        [term.nextElementSibling.textContent, [...term.children].map((key) => key.textContent)]));
    return rows.map(([does, keys]) => [does, namesOf(keys)]);
}

test("every key does what the help says", async () => {
    const tried = Object.entries(kTries).map(([does, tries]) => [does, Object.keys(tries)]);
    assert.deepEqual(await listedKeys(), tried);
    for (const [key, tryIt] of Object.values(kTries).flatMap(Object.entries)) {
        await tryIt(key);
    }
    opened.expectQuiet();
});
