// The page as its user uses it: look, pick, find, switch, read, copy, print; by mouse and by keyboard.

import assert from "node:assert/strict";
import { after, before, beforeEach, afterEach, describe, test } from "node:test";

import { Building, launch, OpenPage } from "./Browser.mjs";

let browser;
let opened;
let page;
const buildings = {};

before(async () => {
    browser = await launch();
    for (const name of ["frame", "tower"]) {
        const building = new Building().sample(name);
        buildings[name] = { building, address: building.page() };
    }
});
after(async () => {
    await browser.close();
    Object.values(buildings).forEach(({ building }) => building.remove());
});

async function open(name, options) {
    opened = await OpenPage.open(browser, buildings[name].address, options);
    page = opened.page;
}

/** Every page ends without a complaint, and without having asked for anything but itself. */
async function close() {
    opened.expectQuiet();
    await opened.close();
}

const panel = () => page.locator("[role=tabpanel]:visible");
const tab = (name) => page.getByRole("tab", { name }).click();
const shown = () => page.getByRole("main").getByText("elements shown").textContent();
const heading = () => panel().getByRole("heading").first().textContent();

async function find(query) {
    await page.getByRole("searchbox").fill(query);
    await page.getByRole("searchbox").press("Enter");
}

/** Clicks into the middle of the picture, once it has come to rest. */
async function clickMiddle() {
    await page.waitForTimeout(1000);
    const box = await page.locator("canvas").boundingBox();
    await page.mouse.click(box.x + box.width / 2, box.y + box.height / 2);
}

/** The picture, once it has come to rest. */
async function picture() {
    await page.waitForTimeout(600);
    return page.locator("canvas").screenshot();
}

describe("the frame", () => {
    beforeEach(() => open("frame"));
    afterEach(close);

    test("is there", async () => {
        assert.match(await page.title(), /structure\.sat/);
        assert.match(await shown(), /10 of 10 elements shown/);
        assert.match(await panel().textContent(), /No findings: nothing was lost/);
    });

    test("an element is picked by a click", async () => {
        await page.keyboard.press("6");  // from above, the slab is in the middle
        await clickMiddle();
        await page.getByText("Plate 10").or(page.getByText("Plate 9")).first().waitFor();
        assert.match(await panel().textContent(), /Thickness.*120/s);
    });

    test("an element is found, flown to, and picked where it is", async () => {
        await find("5");
        await page.getByRole("heading", { name: /^Column 5/ }).waitFor();
        await page.keyboard.press("Escape");
        await tab("Findings");
        await clickMiddle();
        await page.getByRole("heading", { name: /^Column 5/ }).waitFor();
    });

    test("an element tells all that the model has of it", async () => {
        await find("4");
        const text = await panel().innerText();
        const fact = async (term) =>
            (await panel().locator(`dt:text-is("${term}") + dd`).first().textContent()).trim();
        assert.equal(await heading(), "Beam 4, Story 1");
        assert.equal(await fact("Key in the input"), "4");
        assert.match(await fact("From"), /^structure\.sat:54$/);
        assert.match(await fact("Section"), /^2: H 400×200×8×13$/);
        assert.match(await fact("Material"), /^2: 16Mn$/);
        assert.equal(await fact("Length"), "5000");
        assert.match(await fact("Hinges"), /i.*j/s);
        assert.match(text, /-8000 @ 0\.25/);
        assert.match(text, /i\s+8\s+0\s+5000\s+3600/);
    });

    test("nodes and keys are found, and what is not there is told", async () => {
        await find("n7");
        await page.getByRole("heading", { name: "Node 7" }).waitFor();
        assert.match(await panel().innerText(), /6000/);
        await find("1/3");
        await page.getByRole("heading", { name: "2 elements" }).waitFor();
        await panel().getByRole("button", { name: "Column 7" }).click();
        await page.getByRole("heading", { name: "Column 7, Story 1" }).waitFor();
        await find("77");
        await page.getByText("Not found: 77").first().waitFor();
    });

    test("a load shows its value under the pointer", async () => {
        await page.keyboard.press("d");
        await page.keyboard.press("2");
        await page.waitForTimeout(1000);
        const box = await page.locator("canvas").boundingBox();
        const tip = page.getByRole("tooltip");
        for (let y = 0.15; y < 0.6 && !(await tip.isVisible()); y += 0.02) {
            await page.mouse.move(box.x + box.width / 2, box.y + box.height * y);
            await page.waitForTimeout(150);
        }
        assert.match(await tip.innerText(), /-12|-8/);
        await page.keyboard.press("n");
        await tip.waitFor({ state: "hidden" });
    });

    test("load cases say what they are, and what they lack", async () => {
        const before = await picture();
        await page.getByRole("radio", { name: "Dead" }).check({ force: true });
        assert.notDeepEqual(await picture(), before);
        assert.match(await page.getByRole("main").innerText(), /95200/);
        await page.keyboard.press("b");
        assert.match(await page.getByRole("main").innerText(), /179200/);
        assert.match(await page.locator("body").innerText(), /holds the dead loads too/);
    });

    test("a section plane takes away what is in front of it", async () => {
        const before = await picture();
        await page.getByRole("group", { name: "Cut along" }).getByRole("radio", { name: "z" }).check({ force: true });
        assert.notDeepEqual(await picture(), before);
        const slider = page.getByRole("slider");
        await slider.focus();
        await slider.press("Home");
        const lowest = await picture();
        await slider.press("End");
        assert.notDeepEqual(await picture(), lowest);
    });
});

describe("the tower", () => {
    beforeEach(() => open("tower"));
    afterEach(close);

    test("stories are shown one at a time, or a range", async () => {
        assert.match(await shown(), /1,080 of 1,080/);
        await page.keyboard.press("[");
        assert.match(await shown(), /Story 8/);
        const [, top] = (await shown()).match(/(\d+) of 1,080/);
        await page.keyboard.press("0");
        await page.getByRole("combobox", { name: "Lowest story shown" }).selectOption({ label: "Story 7" });
        const [, two] = (await shown()).match(/(\d+) of 1,080/);
        assert.ok(Number(top) > 0 && Number(two) > Number(top), `${top} and ${two} elements`);
    });

    test("the legend hides and shows kinds", async () => {
        await page.getByRole("checkbox", { name: /^Plate/ }).uncheck();
        assert.match(await shown(), /680 of 1,080/);
        await page.getByRole("combobox", { name: "By" }).selectOption({ label: "Section" });
        assert.ok(await page.getByRole("checkbox", { name: /H/ }).count() > 1);
    });

    test("a finding leads to its place, and tells code, sentence, file and line", async () => {
        const before = await picture();
        await page.getByRole("button", { name: /wall 5 of story 8 is left out/ }).click();
        assert.notDeepEqual(await picture(), before);
        const text = await panel().innerText();
        assert.match(text, /wall-not-upright/);
        assert.match(text, /8400 apart in x/);
        assert.match(text, /structure\.sat:1481/);
        await page.getByRole("checkbox", { name: /^Losses/ }).uncheck();
        assert.doesNotMatch(await panel().innerText(), /wall-not-upright/);
    });

    test("one entry of the legend is shown alone, and all again", async () => {
        await page.getByRole("button", { name: "Show only Wall" }).click({ force: true });
        assert.match(await shown(), /32 of 1,080/);
        await page.getByRole("button", { name: "Show all again" }).click();
        assert.match(await shown(), /1,080 of 1,080/);
    });

    test("the picture is turned, moved and zoomed by the mouse", async () => {
        const box = await page.locator("canvas").boundingBox();
        const [x, y] = [box.x + box.width / 2, box.y + box.height / 2];
        let last = await picture();
        for (const button of ["left", "right"]) {
            await page.mouse.move(x, y);
            await page.mouse.down({ button });
            await page.mouse.move(x + 60, y + 30, { steps: 4 });
            await page.mouse.up({ button });
            const now = await picture();
            assert.notDeepEqual(now, last, button);
            last = now;
        }
        await page.mouse.wheel(0, -300);
        assert.notDeepEqual(await picture(), last);
    });

    test("tables are sorted by any column, and go into a spreadsheet", async () => {
        await tab("Tables");
        await panel().getByRole("radio", { name: "Stories" }).check({ force: true });
        const first = () => panel().locator("tbody tr").first().innerText();
        const header = panel().getByRole("columnheader").first();
        await header.getByRole("button").click();
        const [up, direction] = [await first(), await header.getAttribute("aria-sort")];
        await header.getByRole("button").click();
        assert.notEqual(await first(), up);
        assert.notEqual(await header.getAttribute("aria-sort"), direction);
        await panel().getByRole("button", { name: "Copy" }).first().click();
        await panel().getByRole("button", { name: "Copied" }).waitFor();
        await page.getByRole("searchbox").focus();
        await page.keyboard.press("Control+V");
        assert.match(await page.getByRole("searchbox").inputValue(), /\t\d+\t/);
    });

    test("the balance is what the program prints", async () => {
        await tab("Tables");
        const rows = await panel().locator("table").first().locator("tbody tr").allInnerTexts();
        assert.equal(rows.length, 8);
        assert.deepEqual(rows[0].split(/\s+/), ["1", "1583200", "1583200", "-", "925200", "925200", "-", "2508400"]);
        assert.match(await panel().innerText(), /do not add/i);
    });

    test("paper gets the picture, the balance and the findings", async () => {
        await page.evaluate(() => window.dispatchEvent(new Event("beforeprint")));
        await page.emulateMedia({ media: "print" });
        await page.waitForTimeout(500);
        const text = await page.locator("body").innerText();
        assert.match(text, /1583200/);
        assert.match(text, /wall 5 of story 8 is left out/);
        assert.ok(await page.locator("img:visible").first().evaluate((image) => image.naturalWidth > 300));
        assert.equal(await page.getByRole("button", { name: "Print" }).isVisible(), false);
        await page.evaluate(() => window.dispatchEvent(new Event("afterprint")));
    });
});

test("the frame is the same on a dark screen, and on a small one", async () => {
    await open("frame", { colorScheme: "dark", viewport: { width: 900, height: 600 } });
    await page.getByRole("button", { name: "Light", exact: true }).waitFor();
    const box = await page.locator("canvas").boundingBox();
    assert.ok(box.width > 300 && box.height > 200, JSON.stringify(box));
    await close();
});
