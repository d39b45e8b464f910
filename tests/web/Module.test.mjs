// The module of the page: every case below tests/cases but those of a cancel, which ends the whole worker, and what
// only the module tells.
//
// Environment: that of ModuleConversion.mjs, and SATWECVT_ROOT, the project, SATWECVT, the program.

import assert from "node:assert/strict";
import { execFileSync } from "node:child_process";
import { copyFileSync, existsSync, mkdtempSync, readFileSync, readdirSync, rmSync, writeFileSync } from "node:fs";
import { tmpdir } from "node:os";
import { join } from "node:path";
import { after, describe, test } from "node:test";

import { convert, kinds } from "./ModuleConversion.mjs";

const kCases = join(process.env.SATWECVT_ROOT, "tests", "cases");
const kSamples = join(process.env.SATWECVT_ROOT, "samples");

const folder = mkdtempSync(join(tmpdir(), "satwecvt-module-"));
after(() => rmSync(folder, { recursive: true }));
process.chdir(folder);

/** Puts the two inputs of a folder, those that it has, into the working folder. */
function takeInputs(from) {
    for (const name of ["structure.sat", "load.sat"]) {
        rmSync(name, { force: true });
        if (existsSync(join(from, name))) {
            copyFileSync(join(from, name), name);
        }
    }
}

/** The bytes of a file as text, a character each; undefined where there is none. */
function bytesOf(path) {
    return existsSync(path) ? readFileSync(path, "latin1") : undefined;
}

const latin1 = (bytes) => bytes && Buffer.from(bytes).toString("latin1");

describe("cases", () => {
    for (const name of readdirSync(kCases)) {
        const about = JSON.parse(readFileSync(join(kCases, name, "case.json"), "utf8"));
        if (about.cancelAtStep !== undefined) {
            continue;
        }
        test(name, async () => {
            takeInputs(join(kCases, name));
            const { told, outputs } = await convert("structure.sat", "load.sat");
            assert.equal(told.result, about.result);
            assert.deepEqual(told.messages, about.messages ?? []);
            assert.equal(told.total, about.totalLines ?? told.total);
            assert.equal(told.lineCounter, about.lineCounter ?? told.lineCounter);
            assert.equal(told.steps, about.steps ?? told.steps);
            assert.equal(latin1(outputs["structure.vkm"]), bytesOf(join(kCases, name, "expected.vkm")));
            assert.equal(latin1(outputs["satwecvt.msg"]), bytesOf(join(kCases, name, "expected.msg")));
        });
    }
});

test("a failure has the sentence and the place of the program's", async () => {
    for (const structure of ["", "1 1\n", "1 1 1\n1 1 0 0 400 600 0 0 0 0\nx\n"]) {
        writeFileSync("structure.sat", structure);
        writeFileSync("load.sat", "0\n");
        const { failure, place: [source, line] } = await convert("structure.sat", "load.sat");
        let printed = "";
        try {
            execFileSync(process.env.SATWECVT, ["check", "structure.sat", "load.sat"], { stdio: "pipe" });
        } catch (error) {
            printed = error.stderr.toString().trim();
        }
        assert.equal(source, 0);
        assert.equal(`structure.sat${line > 0 ? `:${line}` : ""}: error: ${failure}`, printed);
    }
});

test("a picture is that of the program's page", async () => {
    takeInputs(join(kSamples, "tower"));
    const { picture } = await convert("structure.sat", "load.sat", { plans: 1 });
    execFileSync(process.env.SATWECVT, ["view", "structure.sat", "load.sat"], { stdio: "pipe" });
    const encoded = /<script id="picture" type="text\/plain">([^<]*)</.exec(readFileSync("structure.html", "utf8"))[1];
    assert.ok(Buffer.from(encoded, "base64").equals(Buffer.from(picture)));
});

test("a picture has plans only when they are wanted", async () => {
    takeInputs(join(kSamples, "frame"));
    const [without, withPlans] = [await convert("structure.sat", "load.sat"),
        await convert("structure.sat", "load.sat", { plans: 1 })];
    assert.ok(!latin1(without.picture).includes("<svg"));
    assert.equal(latin1(withPlans.picture).split("<svg").length - 1, 1);  // it has one story
});

test("the files of the samples are told apart, and others are not", async () => {
    takeInputs(join(kSamples, "tower"));
    writeFileSync("other.sat", "1 2 3\nwords\n");
    assert.deepEqual(await kinds("structure.sat", "load.sat"), [1, 2]);
    assert.deepEqual(await kinds("load.sat", "structure.sat"), [2, 1]);
    assert.deepEqual(await kinds("other.sat", "missing.sat"), [0, 0]);
});
