// Takes the pictures of the docs: node pictures.mjs FOLDER. Environment: CONVERTER_PAGE is the page that converts, besides
// what Browser.mjs needs.

import { join } from "node:path";
import { pathToFileURL } from "node:url";

import { Building, launch, OpenPage } from "./Browser.mjs";

const kFolder = process.argv[2];
const kSize = { width: 1280, height: 800 };

const browser = await launch();

/** Opens the page of a sample, does something in it, and takes a picture when it has come to rest. */
async function take(name, sample, act = () => undefined) {
    const building = new Building().sample(sample);
    const { page, context } = await OpenPage.open(browser, building.page(), { viewport: kSize });
    await act(page);
    await page.waitForTimeout(2500);
    await page.screenshot({ path: join(kFolder, name) });
    await context.close();
    building.remove();
}

/** Takes a picture of the plan of a story of the tower. */
async function takePlan(name, story) {
    const building = new Building().sample("tower");
    building.page("structure.sat", "load.sat", "--plans", "plans");
    const page = await browser.newPage({ viewport: { width: 1600, height: 1131 } });
    await page.goto(pathToFileURL(building.path(`plans/story-${story}.svg`)).href);
    await page.evaluate(() => {
        document.documentElement.setAttribute("width", "100%");
        document.documentElement.setAttribute("height", "100%");
    });
    await page.screenshot({ path: join(kFolder, name) });
    await page.close();
    building.remove();
}

/** Takes a picture of the page that converts. */
async function takeStart(name) {
    const context = await browser.newContext({ locale: "en-GB", viewport: kSize });
    const page = await context.newPage();
    await page.goto(pathToFileURL(process.env.CONVERTER_PAGE).href);
    await page.locator("#page:not([aria-busy])").waitFor();
    await page.screenshot({ path: join(kFolder, name) });
    await context.close();
}

await take("page-tower.png", "tower");
await take("page-tower-lines.png", "tower", async (page) => {
    await page.keyboard.press("l");
    await page.keyboard.press("d");
    await page.getByRole("tab", { name: "Tables" }).click();
});
await take("page-frame.png", "frame", async (page) => {
    await page.keyboard.press("b");
    await page.getByRole("searchbox").fill("4");
    await page.getByRole("searchbox").press("Enter");
    await page.keyboard.press("Escape");
    await page.keyboard.press("f");
});
await take("page-losses.png", "tower", async (page) => {
    await page.getByRole("button", { name: /wall 5 of story 8/ }).click();
});
await takePlan("plan-tower.png", 8);
await takeStart("page-start.png");
await browser.close();
