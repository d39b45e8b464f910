// The languages of the page: Chinese throughout, but for names and for the sentences of findings.

import assert from "node:assert/strict";
import { after, before, test } from "node:test";

import { Building, launch, OpenPage } from "./Browser.mjs";

let browser;
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

/** Opens the page of a building for a test, and expects that it stays quiet. */
async function show(name, look, options = {}) {
    const opened = await OpenPage.open(browser, buildings[name].address, { reducedMotion: "reduce", ...options });
    await look(opened.page);
    opened.expectQuiet();
    await opened.close();
}

const language = (page) => page.locator("html").getAttribute("lang");

// What is called the same in every language: files, the program, load cases, forces, keys, shapes of sections and
// materials; and the button that leads to the other language.
const kNames = new RegExp("\\b(" + [
    "structure\\.sat", "load\\.sat", "satwecvt", "LiveLoad", "DeadLoad", "[FM][xyz]", "Shift", "Esc",
    "SB", "SR", "EPC", "RHB", "RBC", "16Mn", "15MnV", "SRC1", "English",
].join("|") + ")\\b", "g");

/** All that stands in the page now, and what its parts are called for who cannot see them; but not what findings say. */
function textsOf(page) {
    return page.evaluate(() => {
        const isOfFinding = (one) => one.closest(".finding[lang=en], .finding [lang=en], summary code") !== null;
        return [...document.querySelectorAll("body *")]
            .filter((one) => (one.checkVisibility() || one.matches("option")) && !isOfFinding(one))
            .flatMap((one) => [
                ...[...one.childNodes].filter(({ nodeType }) => nodeType === Node.TEXT_NODE).map(({ data }) => data),
                ...["aria-label", "title", "placeholder", "alt"].map((name) => one.getAttribute(name) ?? ""),
            ]);
    });
}

async function expectNoEnglish(page, where) {
    const texts = await textsOf(page);
    assert.ok(texts.some((text) => /\p{Script=Han}/u.test(text)), where);
    assert.deepEqual(texts.filter((text) => /[A-Za-z]{2}/.test(text.replaceAll(kNames, ""))), [], where);
}

/** Shows one thing after another: tabs, tables, elements and nodes, loads, colours, a cut, paper. */
async function* views(page) {
    const panel = page.locator("[role=tabpanel]:visible");
    for (const name of ["检查结果", "单元", "表格", "帮助"]) {
        await page.getByRole("tab", { name, exact: true }).click();
        yield name;
    }
    await page.getByRole("tab", { name: "表格" }).click();
    for (const name of ["荷载核对", "楼层", "截面", "厚度", "材料"]) {
        await panel.getByRole("radio", { name, exact: true }).check({ force: true });
        yield name;
    }
    const search = page.getByRole("searchbox", { name: "查找" });
    for (const query of ["1", "4", "5", "9", "n7", "1/1", "700", "1000", "77777"]) {
        await search.fill(query);
        await search.press("Enter");
        yield query;
    }
    for (const name of ["恒载", "活载", "恒+活"]) {
        await page.getByRole("radio", { name, exact: true }).check({ force: true });
        yield name;
    }
    for (const label of ["楼层", "截面", "材料", "厚度", "类型"]) {
        await page.getByRole("combobox", { name: "按" }).selectOption({ label });
        yield label;
    }
    await page.getByRole("button", { name: /^仅显示/ }).first().click({ force: true });
    yield "one entry of the colours";
    await page.getByRole("group", { name: "剖切方向" }).getByRole("radio", { name: "z" }).check({ force: true });
    yield "a cut";
    await page.evaluate(() => window.dispatchEvent(new Event("beforeprint")));
    await page.emulateMedia({ media: "print" });
    yield "paper";
}

for (const name of ["frame", "tower"]) {
    test(`the page of the ${name} speaks Chinese`, () => show(name, async (page) => {
        await page.getByRole("button", { name: "中文" }).click();
        assert.equal(await language(page), "zh-CN");
        const headings = page.getByRole("region", { name: "视图控制" }).getByRole("heading");
        assert.deepEqual(await headings.allTextContents(), ["视图", "楼层", "荷载", "颜色", "标记", "剖切"]);
        assert.deepEqual(await page.getByRole("tab").allTextContents(), ["检查结果", "单元", "表格", "帮助"]);
        for await (const view of views(page)) {
            await expectNoEnglish(page, view);
        }
    }));
}

test("who speaks English gets back to it", () => show("tower", async (page) => {
    await page.getByRole("button", { name: "中文" }).click();
    await page.getByRole("button", { name: "English" }).click();
    assert.equal(await language(page), "en");
    assert.deepEqual(await page.getByRole("tab").allTextContents(), ["Findings", "Element", "Tables", "Help"]);
    assert.deepEqual((await textsOf(page)).filter((text) => /\p{Script=Han}/u.test(text)), ["中文"]);
}));

test("sentences of findings stay English, and say so", () => show("tower", async (page) => {
    const sentence = page.getByText("wall 5 of story 8 is left out");
    assert.equal(await sentence.getAttribute("lang"), "en");
    assert.match(await page.locator("[role=tabpanel]:visible").innerText(), /各条说明按程序原文，为英文/);
}, { locale: "zh-CN" }));

test("the browser's language is the page's", async () => {
    await show("frame", async (page) => assert.equal(await language(page), "zh-CN"), { locale: "zh-CN" });
    await show("frame", async (page) => assert.equal(await language(page), "en"), { locale: "de-DE" });
});

test("another language changes nothing but the words", () => show("tower", async (page) => {
    await page.getByRole("group", { name: "Cut along" }).getByRole("radio", { name: "z" }).check({ force: true });
    const slider = page.getByRole("slider");
    await slider.fill("14850");
    await page.keyboard.press("[");
    const main = page.getByRole("main");
    const [, count] = (await main.innerText()).match(/(\d+) of 1,080/);
    await page.keyboard.press("g");
    assert.equal(await slider.inputValue(), "14850");
    assert.ok((await main.innerText()).includes(` ${count} `));
    assert.match(await page.locator("body").innerText(), /第 8 层/);
}));
