// What the converter's page never does: keep a building, reach the network, or shut somebody out.

import assert from "node:assert/strict";
import { mkdtempSync, readFileSync, rmSync, statSync } from "node:fs";
import { tmpdir } from "node:os";
import { join } from "node:path";
import { describe, test } from "node:test";

import { kAxe, launch } from "../page/Browser.mjs";
import { OpenConverter, sample } from "./Converter.mjs";

const kRounds = 100;

/** What the page holds after all garbage is collected. */
async function held(devtools, page) {
    await devtools.send("HeapProfiler.collectGarbage");
    const { metrics } = await devtools.send("Performance.getMetrics");
    const metric = (name) => metrics.find((one) => one.name === name).value;
    return {
        bytes: metric("JSHeapUsedSize"), nodes: metric("Nodes"), listeners: metric("JSEventListeners"),
        workers: page.workers().length,
    };
}

test("the page is small enough to be mailed", () => {
    assert.ok(statSync(process.env.CONVERTER_PAGE).size <= 2_500_000);
});

test("a hundred conversions leave nothing behind", async () => {
    const browser = await launch();
    const frame = sample("frame");
    const opened = await OpenConverter.open(browser);
    const { page, context } = opened;
    const devtools = await context.newCDPSession(page);
    await devtools.send("Performance.enable");
    const convert = async (times) => {
        for (let i = 0; i < times; ++i) {
            await opened.drop(frame.paths);
            await opened.button("Other files").click();
        }
    };
    await convert(10);  // until everything is compiled that ever will be
    const first = await held(devtools, page);
    await convert(kRounds);
    const last = await held(devtools, page);
    console.log(`figure: ${kRounds} conversions leave ${last.bytes - first.bytes} bytes and ` +
                `${last.nodes - first.nodes} nodes behind, of ${first.bytes} and ${first.nodes}`);
    assert.ok(last.bytes - first.bytes < 10_000 * kRounds, `${first.bytes} bytes, then ${last.bytes}`);
    assert.ok(last.nodes - first.nodes < kRounds, `${first.nodes} nodes, then ${last.nodes}`);
    assert.ok(last.listeners - first.listeners < kRounds, `${first.listeners} listeners, then ${last.listeners}`);
    assert.deepEqual([first.workers, last.workers], [0, 0]);
    await opened.expectSilence();
    await browser.close();
    frame.remove();
});

/** Every address of a net log that a page has asked for. What the browser itself wants to know has no origin. */
function addressesOf(log) {
    const { constants, events } = JSON.parse(log);
    const { URL_REQUEST_START_JOB } = constants.logEventTypes;
    return events.filter(({ type, params }) => type === URL_REQUEST_START_JOB && params?.url !== undefined)
        .filter(({ params }) => params.initiator !== "not an origin").map(({ params }) => params.url);
}

test("the page asks no other machine for anything", async () => {
    const folder = mkdtempSync(join(tmpdir(), "satwecvt-net-"));
    const log = join(folder, "net.json");
    const browser = await launch({ options: [`--log-net-log=${log}`] });
    const tower = sample("tower");
    const opened = await OpenConverter.open(browser);
    await opened.drop(tower.paths);
    await opened.expectOutputs(tower);
    await opened.expectSilence();
    const other = await opened.context.newPage();  // a page that does ask, so that the log is known to tell
    await other.evaluate(() => fetch("http://127.0.0.1:9/other").catch(() => undefined));
    await browser.close();
    const foreign = addressesOf(readFileSync(log, "utf8")).filter((address) => !/^(file|blob|data):/.test(address));
    assert.deepEqual([...new Set(foreign)], ["http://127.0.0.1:9/other"]);
    tower.remove();
    rmSync(folder, { recursive: true });
});

test("the page may reach nothing, were it to try", async () => {
    const browser = await launch();
    const { page } = await OpenConverter.open(browser);
    const policy = await page.locator("meta[http-equiv=Content-Security-Policy]").getAttribute("content");
    const rules = Object.fromEntries(policy.split("; ").map((rule) => [rule.split(" ")[0], rule.split(" ").slice(1)]));
    assert.deepEqual(rules["default-src"], ["'none'"]);
    assert.equal(rules["connect-src"], undefined);
    assert.equal(rules["script-src"].length, 2);
    const reach = () => fetch("http://127.0.0.1:9/").then(() => "reached", (error) => error.name);
    const violation = page.evaluate(() => new Promise((resolve) => {
        document.addEventListener("securitypolicyviolation", (event) => resolve(event.effectiveDirective));
    }));
    assert.equal(await page.evaluate(reach), "TypeError");
    assert.equal(await violation, "connect-src");
    assert.equal(await page.workers()[0].evaluate(reach), "TypeError");
    await browser.close();
});

/** What axe-core calls serious or critical, with the elements. */
async function faults(page) {
    const { violations } = await page.evaluate(() => window.axe.run(document));
    return violations.filter(({ impact }) => ["serious", "critical"].includes(impact))
        .map(({ id, nodes }) => `${id}: ${nodes.map(({ html }) => html).join(" ")}`);
}

describe("nobody is kept out", () => {
    for (const colorScheme of ["light", "dark"]) {
        for (const locale of ["en-GB", "zh-CN"]) {
            test(`${colorScheme}, ${locale}`, async () => {
                const browser = await launch();
                const tower = sample("tower");
                // The policy of the page lets no other script in, so axe-core comes from the browser itself.
                const opened = await OpenConverter.open(browser, { colorScheme, locale, bypassCSP: true });
                const { page } = opened;
                await page.evaluate(readFileSync(kAxe, "utf8"));
                assert.deepEqual(await faults(page), []);
                await page.locator("#structure-file").setInputFiles(tower.paths[1]);
                await page.locator("#load-file").setInputFiles(tower.paths[0]);
                await opened.idle();
                assert.deepEqual(await faults(page), []);
                await page.locator("#convert").click();
                await opened.idle();
                assert.equal(await opened.alert.count(), 1);
                assert.deepEqual(await faults(page), []);
                await opened.drop(tower.paths);
                assert.deepEqual(await faults(page), []);
                await browser.close();
                tower.remove();
            });
        }
    }
});
