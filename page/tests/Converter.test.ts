// An instance of the converter, with a module that only behaves like it.
import assert from "node:assert/strict";
import { test } from "node:test";

import { Converter, type ConverterSurroundings } from "../src/convert/Converter";
import { FileKind, Input } from "../src/convert/ConverterModule";
import { ConversionError, type Failure, failureOf } from "../src/convert/Failure";
import { fakeFactory, kEmptyModule, kRefused } from "./FakeConverter";

const kNames = { structure: "tower.sat", load: "load.sat" };

/** Surroundings with two files. */
function withFiles(...texts: [string, string]): ConverterSurroundings {
    const bytes = texts.map((text) => new TextEncoder().encode(text));
    return {
        readInput: (input, offset, into) => {
            const piece = bytes[input].subarray(offset, offset + into.length);
            into.set(piece);
            return piece.length;
        },
        tellProgress: () => undefined,
    };
}

const load = (...texts: [string, string]): Promise<Converter> =>
    Converter.load(fakeFactory(), kEmptyModule, withFiles(...texts));

const textOf = (picture: ArrayBuffer): string => new TextDecoder().decode(picture);

test("files become model, log and picture", async () => {
    const converter = await load("structure 1", "load 2");
    assert.equal(converter.version(), "1.2.3");
    const { model, log, picture } = converter.convert(kNames, true);
    assert.equal(model.name, "tower.vkm");
    assert.equal(await model.content.text(), "structure 1");
    assert.equal(log?.name, "satwecvt.msg");
    assert.equal(await log?.content.text(), "load 2");
    assert.equal(textOf(picture), "tower.sat load.sat 1");
});

test("plans are asked for as a number, and a log may be missing", async () => {
    const { log, picture } = (await load("structure", "quiet")).convert(kNames, false);
    assert.equal(log, undefined);
    assert.equal(textOf(picture), "tower.sat load.sat 0");
});

test("files have kinds", async () => {
    const converter = await load("structure", "load");
    assert.equal(converter.kind(Input.Structure), FileKind.Structure);
    assert.equal(converter.kind(Input.Load), FileKind.Load);
    assert.equal((await load("", "-")).kind(Input.Load), FileKind.Neither);
});

test("what the converter refuses is told with file, line and sentence", async () => {
    const converter = await load("structure", "refuse");
    assert.throws(() => converter.convert(kNames, false), (error: ConversionError) => {
        assert.deepEqual(error.failure, kRefused);
        return true;
    });
});

test("a part may lie above two gibibytes", async () => {
    const start = 2 ** 31 + 100;
    const factory = fakeFactory({ HEAPU8: new Uint8Array(start + 4096), start });
    const converter = await Converter.load(factory, kEmptyModule, withFiles("structure 1", "load 2"));
    assert.equal(await converter.convert(kNames, false).model.content.text(), "structure 1");
});

test("a module that cannot be instantiated rejects, though its glue would wait forever", async () => {
    const withImport = new WebAssembly.Module(Uint8Array.of(
        0, 0x61, 0x73, 0x6d, 1, 0, 0, 0, 1, 4, 1, 0x60, 0, 0, 2, 7, 1, 1, 0x61, 1, 0x62, 0, 0,
    ));
    await assert.rejects(Converter.load(fakeFactory(), withImport, withFiles("", "")), /a|import/i);
});

test("what is thrown has its failure", () => {
    const broken = (reason: string): Failure => ({ kind: "broken", reason });
    const failures: [unknown, Failure][] = [
        [new RangeError("Array buffer allocation failed"), { kind: "memory" }],
        [new RangeError("WebAssembly.Memory.grow(): Maximum memory size exceeded"), { kind: "memory" }],
        [new WebAssembly.RuntimeError("Aborted(OOM)"), { kind: "memory" }],
        [new RangeError("Maximum call stack size exceeded"), broken("Maximum call stack size exceeded")],
        [new WebAssembly.RuntimeError("unreachable"), broken("unreachable")],
        ["nothing", broken("nothing")],
        [new ConversionError({ kind: "cancelled" }), { kind: "cancelled" }],
    ];
    for (const [thrown, failure] of failures) {
        assert.deepEqual(failureOf(thrown), failure, String(thrown));
    }
});
