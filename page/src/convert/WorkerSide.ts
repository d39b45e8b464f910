// The worker's side of the talk with the page: holds the converter, and does what is requested of it.
import { type Conversion, Converter } from "./Converter";
import { FileKind, Input, type ModuleFactory } from "./ConverterModule";
import { ConversionError, failureOf } from "./Failure";
import { Inputs, type ReadBlob } from "./Inputs";
import type { Reply, Request, RequestMessage, WorkerMessage } from "./Messages";
import type { Pair } from "./Pair";

/** Sends a message to the page; what is in `moved` leaves the worker. */
export type Send = (message: WorkerMessage, moved: Transferable[]) => void;

export class WorkerSide {
    private readonly inputs: Inputs;
    private converter: Promise<Converter> = Promise.reject(new Error("the converter is not loaded"));

    constructor(private readonly factory: ModuleFactory, readBlob: ReadBlob, private readonly send: Send) {
        this.inputs = new Inputs(readBlob);
        this.converter.catch(() => undefined);
    }

    /** Never rejects: the page learns what goes wrong. */
    async take({ number, request }: RequestMessage): Promise<void> {
        try {
            const reply = await this.reply(request);
            this.send({ kind: "reply", number, reply }, request.kind === "convert" ? [(reply as Conversion).picture] : []);
        } catch (error) {
            this.send({ kind: "failed", number, failure: failureOf(error) }, []);
        }
    }

    private async reply(request: Request): Promise<Reply> {
        if (request.kind === "load") {
            this.converter = this.load(request.compiled);
            return (await this.converter).version();
        }
        const converter = await this.converter;
        this.inputs.set(request.files);
        return request.kind === "tell"
            ? this.kinds(converter, request.files)
            : this.convert(converter, request.files, request.wantsPlans);
    }

    private load(compiled: WebAssembly.Module): Promise<Converter> {
        return Converter.load(this.factory, compiled, {
            readInput: (input, offset, into) => this.inputs.read(input, offset, into),
            tellProgress: (line, total, stage) => this.send({ kind: "progress", progress: { line, total, stage } }, []),
        });
    }

    private kinds(converter: Converter, { structure, load }: Pair<File | undefined>): Pair<FileKind> {
        const kind = (file: File | undefined, input: Input): FileKind =>
            file === undefined ? FileKind.Neither : converter.kind(input);
        const kinds = { structure: kind(structure, Input.Structure), load: kind(load, Input.Load) };
        this.failIfUnreadable();
        return kinds;
    }

    /** A load file that breaks off makes a model, too, so the converter alone does not tell that it cannot be read. */
    private convert(converter: Converter, { structure, load }: Pair<File>, wantsPlans: boolean): Conversion {
        try {
            return converter.convert({ structure: structure.name, load: load.name }, wantsPlans);
        } finally {
            this.failIfUnreadable();
        }
    }

    private failIfUnreadable(): void {
        const { unreadable } = this.inputs;
        if (unreadable !== undefined) {
            throw new ConversionError({ kind: "unreadable", place: unreadable });
        }
    }
}
