// What the page and the worker that converts say to each other. Each request has a number, and one reply with it.
import type { Conversion } from "./Converter";
import type { FileKind } from "./ConverterModule";
import type { Failure } from "./Failure";
import type { Pair } from "./Pair";

export interface Progress {
    /** Lines read of those of both files. */
    line: number;
    total: number;
    /** As "Read Data File". */
    stage: string;
}

/** The first request hands the module over; the files of later ones stay readable as long as they do not change. */
export type Request =
    | { kind: "load"; compiled: WebAssembly.Module }
    | { kind: "tell"; files: Pair<File | undefined> }
    | { kind: "convert"; files: Pair<File>; wantsPlans: boolean };

/** What each request is replied to with. */
export interface Replies {
    /** The version of the converter. */
    load: string;
    /** What the files are. One that is missing is neither. */
    tell: Pair<FileKind>;
    convert: Conversion;
}

export type Reply = Replies[keyof Replies];

/** From the page. */
export interface RequestMessage {
    number: number;
    request: Request;
}

/** From the worker. */
export type WorkerMessage =
    | { kind: "progress"; progress: Progress }
    | { kind: "reply"; number: number; reply: Reply }
    | { kind: "failed"; number: number; failure: Failure };
