// Nobody is kept out: every control has a name, contrasts are readable, and axe-core finds nothing serious.

import assert from "node:assert/strict";
import { after, before, test } from "node:test";

import { Building, kAxe, launch, OpenPage } from "./Browser.mjs";
import { readFileSync } from "node:fs";

let browser;
let plainBrowser;  // on a machine that cannot draw
let building;
let address;
before(async () => {
    browser = await launch();
    plainBrowser = await launch({ webGl: false });
    building = new Building().sample("tower");
    address = building.page();
});
after(async () => {
    await browser.close();
    await plainBrowser.close();
    building.remove();
});

/** What axe-core calls serious or critical, with the elements. */
async function faults(page) {
    const { violations } = await page.evaluate(() => window.axe.run(document));
    return violations.filter(({ impact }) => ["serious", "critical"].includes(impact))
        .map(({ id, nodes }) => `${id}: ${nodes.map(({ html }) => html).join(" ")}`);
}

/** Controls and pictures that have no name for who cannot see them. */
function unnamed(page) {
    return page.evaluate(() => [...document.querySelectorAll("button, input, select, canvas, img")]
        .filter((control) => control.checkVisibility() && !(control.labels?.length || control.textContent.trim() ||
            control.getAttribute("aria-label") || control.getAttribute("aria-labelledby") || control.alt))
        .map((control) => control.outerHTML));
}

/** Looks for faults in every panel, and in that of an element. */
async function expectNoFaults(page) {
    // The policy of the page lets no other script in, so axe-core comes from the browser itself.
    await page.evaluate(readFileSync(kAxe, "utf8"));
    for (const tab of await page.getByRole("tab").all()) {
        await tab.click();
        assert.deepEqual(await faults(page), []);
    }
    await page.getByRole("searchbox").fill("3");
    await page.keyboard.press("Enter");
    assert.deepEqual(await faults(page), []);
    assert.deepEqual(await unnamed(page), []);
}

for (const colorScheme of ["light", "dark"]) {
    for (const locale of ["en-GB", "zh-CN"]) {
        const options = { colorScheme, locale, bypassCSP: true };

        test(`${colorScheme}, ${locale}`, async () => {
            const opened = await OpenPage.open(browser, address, options);
            await opened.page.keyboard.press("b");
            await expectNoFaults(opened.page);
            await opened.close();
        });

        test(`${colorScheme}, ${locale}, plans in place of the picture`, async () => {
            const opened = await OpenPage.open(plainBrowser, address, options);
            assert.ok(await opened.page.getByRole("main").getByRole("img").isVisible());
            assert.equal(await opened.page.locator("canvas").count(), 0);
            await expectNoFaults(opened.page);
            await opened.close();
        });
    }
}

test("the keyboard reaches every control, and shows where it is", async () => {
    const opened = await OpenPage.open(browser, address);
    const { page } = opened;
    const reached = new Set();
    for (let i = 0; i < 120; ++i) {
        await page.keyboard.press("Tab");
        const { name, outlined } = await page.evaluate(() => {
            const at = document.activeElement;
            const holder = at.closest("label") ?? at;
            const style = [at, holder, at.nextElementSibling].filter(Boolean).map((one) => getComputedStyle(one));
            return {
                name: at.getAttribute("aria-label") ?? at.textContent + (at.labels?.[0]?.textContent ?? ""),
                outlined: at === document.body ||
                    style.some(({ outlineStyle, boxShadow }) => outlineStyle !== "none" || boxShadow !== "none"),
            };
        });
        assert.ok(outlined, `${name} does not show that it has the focus`);
        reached.add(name.trim());
    }
    for (const expected of ["Isometric", "Fit", "All stories", "Print", "中文"]) {
        assert.ok(reached.has(expected), `${expected} is not among ${[...reached].join(", ")}`);
    }
    await opened.close();
});
