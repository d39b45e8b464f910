// The converter as the page uses it, with a worker in the test's own thread.
import assert from "node:assert/strict";
import { test } from "node:test";

import type { Conversion } from "../src/convert/Converter";
import { ConverterClient } from "../src/convert/ConverterClient";
import { FileKind } from "../src/convert/ConverterModule";
import { type Failure, failureOf } from "../src/convert/Failure";
import type { Progress } from "../src/convert/Messages";
import type { Pair } from "../src/convert/Pair";
import { FakeFile, FakeWorker, file, kEmptyModule, kRefused } from "./FakeConverter";

/** A client, and the workers that it has started. */
function start(): { client: ConverterClient; workers: FakeWorker[] } {
    const workers: FakeWorker[] = [];
    const client = new ConverterClient(kEmptyModule, () => {
        workers.push(new FakeWorker());
        return workers[workers.length - 1] as unknown as Worker;
    });
    return { client, workers };
}

const pair = (structure = "structure 1", load = "load 2"): Pair<File> =>
    ({ structure: file("tower.sat", structure), load: file("load.sat", load) });

const convert = (client: ConverterClient, files = pair(), progress = (_: Progress): void => undefined):
    Promise<Conversion> => client.convert(files, false, progress);

/** What a promise is rejected for. */
async function failure(rejected: Promise<unknown>): Promise<Failure> {
    return rejected.then(() => assert.fail("it was not rejected"), failureOf);
}

test("one worker tells its version and the kinds of files, and ends with the conversion", async () => {
    const { client, workers } = start();
    assert.equal(await client.version(), "1.2.3");
    assert.deepEqual(await client.kinds({ structure: file("", "load"), load: undefined }),
        { structure: FileKind.Load, load: FileKind.Neither });
    const { model, log } = await convert(client);
    assert.deepEqual([model.name, await model.content.text()], ["tower.vkm", "structure 1"]);
    assert.deepEqual([log?.name, await log?.content.text()], ["satwecvt.msg", "load 2"]);
    assert.deepEqual(workers.map(({ isTerminated }) => isTerminated), [true]);
});

test("each conversion has a worker of its own", async () => {
    const { client, workers } = start();
    for (const text of ["structure a", "structure b"]) {
        assert.equal(await (await convert(client, pair(text))).model.content.text(), text);
    }
    assert.deepEqual(workers.map(({ isTerminated }) => isTerminated), [true, true]);
});

test("progress is told as it goes", async () => {
    const told: Progress[] = [];
    await convert(start().client, pair(), (progress) => told.push(progress));
    assert.deepEqual(told, [
        { line: 1, total: 2, stage: "Read Data File" }, { line: 2, total: 2, stage: "Write Nodes" },
    ]);
});

test("a cancel ends the worker, and nothing more is told of it", async () => {
    const { client, workers } = start();
    await client.version();
    const told: Progress[] = [];
    const cancelled = failure(convert(client, pair(), (progress) => told.push(progress)));
    client.cancel();
    assert.deepEqual(await cancelled, { kind: "cancelled" });
    workers[0].dispatchEvent(new MessageEvent("message", {
        data: { kind: "progress", progress: { line: 1, total: 2, stage: "" } },
    }));
    assert.deepEqual(told, []);
    assert.equal((await convert(client)).model.name, "tower.vkm");
    assert.deepEqual(workers.map(({ isTerminated }) => isTerminated), [true, true]);
});

test("what goes wrong is told, and the next conversion goes well", async () => {
    const { client, workers } = start();
    const failures: [string, Failure][] = [
        ["refuse", kRefused],
        ["trap", { kind: "broken", reason: "unreachable" }],
        ["memory", { kind: "memory" }],
    ];
    for (const [load, expected] of failures) {
        assert.deepEqual(await failure(convert(client, pair("structure", load))), expected);
    }
    assert.equal((await convert(client)).model.name, "tower.vkm");
    assert.ok(workers.every(({ isTerminated }) => isTerminated));
});

test("a worker that dies is told of with what the browser says", async () => {
    const { client, workers } = start();
    await client.version();
    const dead = failure(convert(client));
    workers[0].fail("Uncaught Error: x");
    assert.deepEqual(await dead, { kind: "broken", reason: "Uncaught Error: x" });
    const lost = failure(convert(client));
    workers[1].dispatchEvent(new Event("messageerror"));
    assert.equal((await lost).kind, "broken");
    assert.equal((await convert(client)).model.name, "tower.vkm");
});

test("a file that is gone is told by its place", async () => {
    const { client, workers } = start();
    for (const place of ["structure", "load"] as const) {
        const files = pair();
        (files[place] as unknown as FakeFile).isGone = true;
        assert.deepEqual(await failure(client.kinds(files)), { kind: "unreadable", place });
        assert.deepEqual(await failure(convert(client, files)), { kind: "unreadable", place });
    }
    assert.equal(workers.length, 2);
});

test("an instance that has given up is not asked again", async () => {
    const { client, workers } = start();
    assert.equal((await failure(client.kinds(pair("trap")))).kind, "broken");
    assert.equal((await client.kinds(pair())).structure, FileKind.Structure);
    assert.deepEqual(workers.map(({ isTerminated }) => isTerminated), [true, false]);
});

test("a converter that cannot be loaded is told of whatever is asked", async () => {
    const withImport = new WebAssembly.Module(Uint8Array.of(
        0, 0x61, 0x73, 0x6d, 1, 0, 0, 0, 1, 4, 1, 0x60, 0, 0, 2, 7, 1, 1, 0x61, 1, 0x62, 0, 0,
    ));
    const client = new ConverterClient(withImport, () => new FakeWorker() as unknown as Worker);
    assert.equal((await failure(client.version())).kind, "broken");
    assert.equal((await failure(client.kinds(pair()))).kind, "broken");
});
