// A building of a million elements opens, tells how many it has, and finds one. Takes some minutes: scripts/test-long
// runs it.

import assert from "node:assert/strict";
import { after, test } from "node:test";

import { Building, launch, OpenPage } from "./Browser.mjs";

const building = new Building();
const browser = await launch();
after(async () => {
    await browser.close();
    building.remove();
});

test("a million elements", async () => {
    building.tower("--stories", "50", "--bays-x", "52", "--bays-y", "50");
    const address = building.page();
    const start = performance.now();
    const { page, complaints } = await OpenPage.open(browser, address);
    page.setDefaultTimeout(120_000);
    console.log(`figure: a million elements open in ${((performance.now() - start) / 1000).toFixed(1)} s`);
    const [, count] = (await page.getByRole("main").getByText("elements shown").textContent()).match(/ ([\d,]+) of/);
    assert.ok(Number(count.replaceAll(",", "")) >= 1_000_000, count);
    const { calls, triangles } = await page.evaluate(() => window.satwecvt.statistics());
    assert.ok(calls < 40 && triangles > 1_000_000, `${calls} calls, ${triangles} triangles`);
    await page.getByRole("searchbox").fill("1000000");
    await page.getByRole("searchbox").press("Enter");
    await page.getByRole("heading", { name: / 1000000\b/ }).waitFor();
    assert.deepEqual(complaints, []);
});
