// A module that behaves like the converter's without converting, files without a disk, and a worker without a thread.
import type { ConverterModule, ModuleFactory, ModuleSurroundings } from "../src/convert/ConverterModule";
import type { RequestMessage } from "../src/convert/Messages";
import { WorkerSide } from "../src/convert/WorkerSide";
import type { Failure } from "../src/convert/Failure";
import { ColumnBytes } from "./ColumnBytes";

const kText = new TextEncoder();

/** The smallest module there is. */
export const kEmptyModule = new WebAssembly.Module(Uint8Array.of(0, 0x61, 0x73, 0x6d, 1, 0, 0, 0));

/** A file whose bytes are at hand, until it is gone. */
export class FakeFile {
    isGone = false;

    constructor(readonly name: string, private readonly bytes: Uint8Array, private readonly whole?: FakeFile) {}

    get size(): number {
        return this.bytes.length;
    }

    slice(from: number, to: number): FakeFile {
        return new FakeFile("", this.bytes.subarray(from, to), this.whole ?? this);
    }

    read(): Uint8Array {
        if (this.isGone || this.whole?.isGone) {
            throw new Error("the file is gone");
        }
        return this.bytes;
    }
}

export const file = (name: string, content: string): File =>
    new FakeFile(name, kText.encode(content)) as unknown as File;

export const readBlob = (blob: Blob): Uint8Array => (blob as unknown as FakeFile).read();

/** How the fake module behaves with a load file that begins with one of these words. */
type Behaviour = "trap" | "memory" | "refuse" | "quiet";

interface Heap {
    HEAPU8: Uint8Array;
    /** Where the parts begin in it. */
    start: number;
}

/** What the fake refuses, with what it noticed. */
export const kRefused: Failure = {
    kind: "refused", place: "load", line: 7, sentence: "the file ends here",
    remarks: [{ place: "structure", line: 3, sentence: "looks odd" }, { place: undefined, line: 0, sentence: "so is this" }],
};

/** The bytes of an answer. */
function answer(values: { isWhole: number; hasLog?: number; source?: number; line?: number; texts: string[] }): Uint8Array {
    const [failure, modelName, logName] = values.texts;
    return new ColumnBytes()
        .integers("answer.isWhole", [values.isWhole])
        .integers("answer.hasLog", [values.hasLog ?? 0])
        .integers("answer.source", [values.source ?? 2])
        .integers("answer.line", [values.line ?? 0])
        .integers("answer.lacksMemory", [failure === "out of memory" ? 1 : 0])
        .texts("answer.failure", [failure])
        .integers("remark.source", [0, 2])
        .integers("remark.line", [3, 0])
        .texts("remark.text", ["looks odd", "so is this"])
        .texts("answer.modelName", [modelName])
        .texts("answer.logName", [logName])
        .bytes();
}

/** Its model is the structure file, its log the load file, its picture both names and whether plans are wanted. */
class FakeModule implements ConverterModule {
    private parts: Uint8Array[] = [];

    constructor(private readonly surroundings: ModuleSurroundings, private readonly heap: Heap) {}

    get HEAPU8(): Uint8Array {
        return this.heap.HEAPU8;
    }

    ccall(_: string, returns: "string" | null, __: readonly string[], values: readonly (string | number)[]): string {
        if (returns === null) {
            this.convert(String(values[0]), values.join(" "));
        }
        return "1.2.3";
    }

    _satwecvt_kind(input: number): number {
        const text = this.text(input) ?? "";
        if (text.startsWith("trap")) {
            throw new WebAssembly.RuntimeError("unreachable");
        }
        return text.startsWith("structure") ? 1 : text.startsWith("load") ? 2 : 0;
    }

    _satwecvt_part(part: number): number {
        this.heap.HEAPU8.set(this.parts[part], this.heap.start);
        return this.heap.start | 0;
    }

    _satwecvt_part_size(part: number): number {
        return this.parts[part].length;
    }

    /** A whole input, in small pieces; undefined: it cannot be read. */
    private text(input: number): string | undefined {
        const piece = new Uint8Array(7);
        const bytes: number[] = [];
        for (;;) {
            const count = this.surroundings.readInput(input, bytes.length, piece);
            if (count <= 0) {
                return count < 0 ? undefined : new TextDecoder().decode(Uint8Array.from(bytes));
            }
            bytes.push(...piece.subarray(0, count));
        }
    }

    private convert(structureName: string, values: string): void {
        const [structure, load = ""] = [this.text(0), this.text(1)];
        this.surroundings.tellProgress(1, 2, "Read Data File");
        this.surroundings.tellProgress(2, 2, "Write Nodes");
        const behaviour = load.split(" ")[0] as Behaviour;
        if (behaviour === "trap") {
            throw new WebAssembly.RuntimeError("unreachable");
        }
        if (behaviour === "memory") {
            throw new RangeError("WebAssembly.Memory.grow(): Maximum memory size exceeded");
        }
        if (structure === undefined || behaviour === "refuse") {
            this.parts = [answer({ isWhole: 0, source: 1, line: 7, texts: ["the file ends here", "", ""] })];
            return;
        }
        const name = structureName.replace(/\.sat$/, ".vkm");
        const hasLog = behaviour === "quiet" ? 0 : 1;
        this.parts = [
            answer({ isWhole: 1, hasLog, texts: ["", name, "satwecvt.msg"] }),
            ...[structure, load, values].map((part) => kText.encode(part)),
        ];
    }
}

/** Makes fake modules whose parts stand in a heap. */
export function fakeFactory(heap: Heap = { HEAPU8: new Uint8Array(4096), start: 64 }): ModuleFactory {
    return (surroundings) => new Promise((resolve) => {
        surroundings.instantiateWasm({}, () => resolve(new FakeModule(surroundings, heap) as ConverterModule));
    });
}

/** A worker in the test's own thread. Its messages arrive later, as those of a real one. */
export class FakeWorker extends EventTarget {
    isTerminated = false;
    private readonly side = new WorkerSide(fakeFactory(), readBlob, (data) => {
        setImmediate(() => this.isTerminated || this.dispatchEvent(new MessageEvent("message", { data })));
    });

    postMessage(message: RequestMessage): void {
        setImmediate(() => this.isTerminated || this.side.take(message));
    }

    terminate(): void {
        this.isTerminated = true;
    }

    /** As a browser tells that the script of a worker has thrown. */
    fail(message: string): void {
        this.dispatchEvent(Object.assign(new Event("error", { cancelable: true }), { message }));
    }
}
