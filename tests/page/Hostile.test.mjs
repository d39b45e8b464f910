// Buildings and names that nobody expects, and machines that cannot draw: the page stays one that tells the truth.

import assert from "node:assert/strict";
import { execFileSync } from "node:child_process";
import { copyFileSync, readFileSync, writeFileSync } from "node:fs";
import { after, before, test } from "node:test";

import { Building, kRoot, launch, OpenPage } from "./Browser.mjs";

let browser;
before(async () => { browser = await launch(); });
after(() => browser.close());

const frame = (file) => readFileSync(`${kRoot}/samples/frame/${file}`, "utf8");

/** Opens the page of a building, hands it to a test, and expects that it complained of nothing. */
async function show(building, address, look, one = browser, options = {}) {
    const opened = await OpenPage.open(one, address, options);
    try {
        await look(opened.page, opened);
        opened.expectQuiet();
    } finally {
        await opened.close();
        building.remove();
    }
}

/** The frame with some of its text replaced. */
function changedFrame(...replacements) {
    let structure = frame("structure.sat");
    for (const [from, to] of replacements) {
        assert.ok(structure.includes(from), from);
        structure = structure.replaceAll(from, to);
    }
    return new Building().write(structure, frame("load.sat"));
}

for (const name of ["<img src=x onerror=alert(1)>", "\" onload='alert(1)'", "&lt;b&gt; &amp;", "<!--<script>", "塔楼 𠮷",
                    "$& $1 @PICTURE@", "a\tb\u0001c"]) {
    test(`the name ${JSON.stringify(name)} is text`, async () => {
        const building = new Building().sample("tower");
        copyFileSync(building.path("structure.sat"), building.path(name));
        const address = building.page(name, "load.sat");
        await show(building, address, async (page) => {
            const heading = await page.getByRole("heading", { level: 1 }).textContent();
            assert.ok(heading.includes(name) || heading.includes(name.replace("\u0001", "\\x01")), heading);
            assert.equal(await page.locator("img[src=x]").count(), 0);
            await page.getByRole("button", { name: /wall 5 of story 8/ }).click();
            assert.ok((await page.getByRole("tabpanel").first().textContent()).includes(":1481"));
        });
    });
}

test("a name of bytes that are no text is shown by their numbers", async () => {
    const building = new Building().sample("frame");
    const bytes = Buffer.from([0x61, 0xff, 0xfe, 0x2e, 0x73, 0x61, 0x74]);
    writeFileSync(Buffer.concat([Buffer.from(building.folder + "/"), bytes]), frame("structure.sat"));
    writeFileSync(building.path("view.sh"), `exec "$SATWECVT" view -o page.html "$(printf 'a\\377\\376.sat')" load.sat\n`);
    execFileSync("sh", ["view.sh"], { cwd: building.folder, stdio: "pipe" });
    await show(building, `file://${building.path("page.html")}`, async (page) => {
        assert.match(await page.getByRole("heading", { level: 1 }).textContent(), /a\\xFF\\xFE\.sat/);
    });
});

test("coordinates that are no numbers leave out what stands on them", async () => {
    const building = changedFrame(["2 6 0 6000    0 3600", "2 6 0 nan    0 3600"], ["3 7 0 6000 5000 3600",
                                                                                    "3 7 0 6000 inf 3600"]);
    await show(building, building.page(), async (page, opened) => {
        const scene = await opened.scene();
        assert.deepEqual(scene.nodes.map(({ number }) => number), [1, 2, 3, 4, 5, 8]);
        assert.deepEqual(scene.frames.map(({ number }) => number), [4, 5, 8]);
        assert.match(await page.getByRole("main").innerText(), /7 elements cannot be drawn/);
        await page.getByRole("searchbox").fill("1");
        await page.keyboard.press("Enter");
        await page.getByRole("heading", { name: /Beam 1/ }).waitFor();
    });
});

test("far from the origin nothing trembles", async () => {
    const far = (text) => text.replace(/^(\d+ \d+ 0 +)(\d+)( +)(\d+)( \d+)$/gm,
        (line, before, x, blanks, y, z) => `${before}${Number(x) + 1e7}${blanks}${Number(y) + 2e7}${z}`);
    const building = new Building().write(far(frame("structure.sat")), frame("load.sat"));
    await show(building, building.page(), async (page, opened) => {
        const scene = await opened.scene();
        assert.deepEqual(scene.nodes[4].at, [1e7, 2e7, 3600]);
        const [i, j] = scene.frames[3].ends;  // as the model file has it: six digits
        assert.deepEqual([i[0] - 1e7, i[1] - 2e7, j[1] - 2e7, j[2]], [0, 5000, 0, 3600]);
        const statistics = await opened.statistics();
        assert.ok(statistics.triangles > 0);
    });
});

test("a building without members shows its nodes' place and says that there is nothing", async () => {
    const nothing = "1 1 1\n1 1 6 0 300 600 0 0 0 0\n0 0 0 0\n1 1 0 5 5 5\n1 1 0\n1\n0 30 30 30 30 0\n0 0 0 0 0 0\n";
    const building = new Building().write(nothing, "0\n");
    await show(building, building.page(), async (page) => {
        assert.match(await page.getByRole("main").innerText(), /0 of 0 elements shown/);
        for (const key of ["b", "f", "1", "l", "["]) {
            await page.keyboard.press(key);
        }
        assert.match(await page.locator("body").innerText(), /No load in this case/);
        await page.getByRole("tab", { name: "Tables" }).click();
    });
});

test("dimensions that are none are drawn as lines", async () => {
    const building = changedFrame(["1 1 6 0 300 600", "1 1 6 0 -300 1e300"], ["2 1 6 0 500 500", "2 9 6 0 0 nan"]);
    await show(building, building.page(), async (page, opened) => {
        const scene = await opened.scene();
        assert.deepEqual(scene.frames.map(({ outline }) => outline.length), [0, 0, 0, 1, 0, 0, 0, 0]);
    });
});

test("a machine that cannot draw shows the plans and the tables", async () => {
    const plain = await launch({ webGl: false });
    const building = new Building().sample("tower");
    await show(building, building.page(), async (page) => {
        assert.match(await page.locator("body").innerText(), /cannot draw in three dimensions/);
        const plan = page.getByRole("img").first();
        assert.ok(await plan.evaluate((image) => image.complete && image.naturalWidth > 100));
        await page.getByRole("tab", { name: "Tables" }).click();
        assert.match(await page.locator("[role=tabpanel]:visible").innerText(), /2508400/);
        await page.getByRole("tab", { name: "Findings" }).click();
        await page.getByRole("button", { name: /wall 5 of story 8/ }).click();
        assert.match(await plan.getAttribute("alt"), /Story 8/);
        await page.getByRole("searchbox").fill("800");
        await page.getByRole("searchbox").press("Enter");
        const [, story] = (await page.locator("[role=tabpanel]:visible").innerText()).match(/Story (\d)/);
        assert.match(await plan.getAttribute("alt"), new RegExp(`Story ${story}`));
    }, plain);
    await plain.close();
});

test("what a file says is text in a finding, too", async () => {
    const building = new Building().sample("frame");
    writeFileSync(building.path("load.sat"), "1\n1 1 1 0 </script><img>&lt; 5\n");
    await show(building, building.page(), async (page) => {
        assert.match(await page.getByRole("tabpanel").first().innerText(), /"<\/script><img>&lt;"/i);
        assert.equal(await page.locator("img").count(), 0);
    });
});

test("a finding without a place leaves the stories as they are", async () => {
    const building = new Building().sample("tower");
    writeFileSync(building.path("load.sat"), readFileSync(building.path("load.sat"), "utf8") + "1 2 3\n");
    await show(building, building.page(), async (page) => {
        const shown = page.getByRole("main").getByText("elements shown");
        await page.keyboard.press("[");
        const before = await shown.textContent();
        assert.match(before, /Story 8/);
        await page.getByText("rest-not-read").locator("xpath=ancestor::details").getByRole("button").click();
        assert.equal(await shown.textContent(), before);
    });
});

test("more losses than a page holds are counted", async () => {
    const building = new Building().sample("frame");
    writeFileSync(building.path("load.sat"), `2500\n${"1 1 31 0 1\n".repeat(2500)}`);
    await show(building, building.page(), async (page) => {
        await page.getByRole("button", { name: "2,500 losses" }).waitFor();
        assert.match(await page.getByRole("tabpanel").first().innerText(), /1,002 of 2,500/);
    });
});

/** All kinds of sections, on the columns and beams of the frame; outlines by hand from their dimensions. */
test("every kind of section has its shape", async () => {
    const kinds = [
        [5, [10, 300, 90, 15, 70, 12], 100, 300],  // flanges 90 + 10 and 70 + 10 wide
        [7, [300, 500, 20, 10, 40, 0], 300, 500],
        [8, [400, 380, 0, 0, 0, 0], 400, 400],
        [9, [10, 300, 90, 15, 0, 30], 230, 300],  // two of 100 and a gap of 30
        [10, [10, 500, 0, 20, 0, 200], 500, 500],
        [12, [400, 380, 0, 0, 0, 0], 400, 400],
        [13, [600, 700, 10, 400, 200, 20], 600, 700],
        [14, [600, 700, 200, 400, 20, 10], 600, 700],
    ];
    for (const [kind, dimensions, width, height] of kinds) {
        const building = changedFrame(["1 1 6 0 300 600 0 0 0 0", `1 ${kind} 6 0 ${dimensions.join(" ")}`]);
        await show(building, building.page(), async (page, opened) => {
            const { frames: [beam] } = await opened.scene();
            const corners = beam.outline.flatMap(({ loops }) => loops.flatMap(({ i }) => i));
            const extent = (axis) => Math.max(...corners.map((at) => at[axis])) - Math.min(...corners.map((at) => at[axis]));
            assert.ok(Math.abs(extent(1) - width) < 1, `kind ${kind}: ${extent(1)} wide`);
            assert.ok(Math.abs(extent(2) - height) < 1, `kind ${kind}: ${extent(2)} high`);
        });
    }
});

test("a page whose data were damaged says so", async () => {
    const building = new Building().sample("frame");
    building.page();
    const damaged = readFileSync(building.path("page.html"), "latin1").replace(/(type="text\/plain">)[^<]{40}/, "$1AAAA");
    writeFileSync(building.path("damaged.html"), damaged, "latin1");
    const context = await browser.newContext();
    const page = await context.newPage();
    await page.goto(`file://${building.path("damaged.html")}`);
    await page.getByRole("alert").filter({ hasText: "cannot be read" }).waitFor();
    await context.close();
    building.remove();
});
