// The converter, as the page uses it. It runs in a worker, which ends with each conversion and takes its memory along;
// the next one is started when it is needed.
import type { Conversion } from "./Converter";
import type { FileKind } from "./ConverterModule";
import { failureOf } from "./Failure";
import type { Progress } from "./Messages";
import type { Pair } from "./Pair";
import { WorkerLink } from "./WorkerLink";

export class ConverterClient {
    private link: WorkerLink | undefined;
    private progress: (progress: Progress) => void = () => undefined;

    /** All that follows rejects with what failureOf() understands. */
    constructor(private readonly compiled: WebAssembly.Module, private readonly makeWorker: () => Worker) {}

    /** The version of the converter. */
    async version(): Promise<string> {
        return this.running().version;
    }

    /** What the files are, from how they begin. */
    async kinds(files: Pair<File | undefined>): Promise<Pair<FileKind>> {
        const link = this.running();
        try {
            return await link.ask({ kind: "tell", files });
        } catch (error) {
            const failure = failureOf(error);
            if (failure.kind !== "unreadable") {
                link.end(failure);  // nobody knows what state the instance is in
            }
            throw error;
        }
    }

    /** Converts two files. Whatever comes of it, the worker ends. */
    async convert(files: Pair<File>, wantsPlans: boolean, progress: (progress: Progress) => void): Promise<Conversion> {
        const link = this.running();
        this.progress = progress;
        try {
            return await link.ask({ kind: "convert", files, wantsPlans });
        } finally {
            link.end({ kind: "cancelled" });
            this.progress = () => undefined;
        }
    }

    /** Ends what is going on: who waits for it learns that it was cancelled. */
    cancel(): void {
        this.link?.end({ kind: "cancelled" });
    }

    /** A worker that is there already, or a new one. */
    private running(): WorkerLink {
        if (this.link === undefined || this.link.hasEnded) {
            this.link = new WorkerLink(this.makeWorker(), this.compiled, (progress) => this.progress(progress));
        }
        return this.link;
    }
}
