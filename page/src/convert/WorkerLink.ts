// One worker, from the page's side: requests go out by number, replies come back to who waits for them. When the worker
// ends, nobody waits any longer.
import { ConversionError, type Failure, failureOf } from "./Failure";
import type { Progress, Replies, Reply, Request, RequestMessage, WorkerMessage } from "./Messages";

interface Waiting {
    resolve(reply: Reply): void;
    reject(error: Error): void;
}

export class WorkerLink {
    /** The version of the converter, once it is loaded. Rejects as ask() does, and ends the worker. */
    readonly version: Promise<string>;
    private readonly waiting = new Map<number, Waiting>();
    private count = 0;
    private failure: Failure | undefined;

    constructor(
        private readonly worker: Worker, compiled: WebAssembly.Module,
        private readonly progress: (progress: Progress) => void,
    ) {
        worker.addEventListener("message", ({ data }: MessageEvent<WorkerMessage>) => this.take(data));
        worker.addEventListener("messageerror", () => this.end({ kind: "broken", reason: "a message was lost" }));
        worker.addEventListener("error", (event) => {
            event.preventDefault();  // told on the page, where somebody reads it
            this.end({ kind: "broken", reason: event.message });
        });
        this.version = this.ask({ kind: "load", compiled });
        this.version.catch((error: unknown) => this.end(failureOf(error)));
    }

    /** Rejects with a ConversionError. */
    ask<Kind extends keyof Replies>(request: Request & { kind: Kind }): Promise<Replies[Kind]> {
        return new Promise((resolve, reject) => {
            if (this.failure !== undefined) {
                reject(new ConversionError(this.failure));
                return;
            }
            const message: RequestMessage = { number: ++this.count, request };
            this.waiting.set(message.number, { resolve: (reply) => resolve(reply as Replies[Kind]), reject });
            this.worker.postMessage(message);
        });
    }

    /** Ends the worker. Who waits learns the failure, and who asks later, too. */
    end(failure: Failure): void {
        this.worker.terminate();
        this.failure ??= failure;
        for (const { reject } of this.waiting.values()) {
            reject(new ConversionError(failure));
        }
        this.waiting.clear();
    }

    get hasEnded(): boolean {
        return this.failure !== undefined;
    }

    private take(message: WorkerMessage): void {
        if (message.kind === "progress") {
            if (!this.hasEnded) {
                this.progress(message.progress);
            }
            return;
        }
        const waiting = this.waiting.get(message.number);
        this.waiting.delete(message.number);
        if (message.kind === "reply") {
            waiting?.resolve(message.reply);
        } else {
            waiting?.reject(new ConversionError(message.failure));
        }
    }
}
