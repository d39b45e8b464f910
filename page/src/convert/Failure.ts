// Why there is no model.
import type { Place } from "./Pair";

/** A sentence about a line of a file. Line 0: of none. */
export interface Remark {
    place: Place | undefined;
    line: number;
    sentence: string;
}

export type Failure =
    /** The converter says why. The remarks are what else it noticed, which may be the cause. */
    | { kind: "refused"; remarks: readonly Remark[] } & Remark
    /** The browser does not hand a file out any more. */
    | { kind: "unreadable"; place: Place }
    | { kind: "memory" }
    | { kind: "cancelled" }
    /** What nobody expects; `reason` is what the browser says. */
    | { kind: "broken"; reason: string };

export class ConversionError extends Error {
    constructor(readonly failure: Failure) {
        super(failure.kind);
    }
}

/** What a browser says of memory that it does not have. It calls a stack that is too deep by the same name. */
function isOutOfMemory(error: Error): boolean {
    return error instanceof RangeError ? !/stack/i.test(error.message) : /\bmemory|\bOOM\b|allocat/i.test(error.message);
}

/** The failure that something thrown stands for. */
export function failureOf(thrown: unknown): Failure {
    if (thrown instanceof ConversionError) {
        return thrown.failure;
    }
    if (thrown instanceof Error) {
        return isOutOfMemory(thrown) ? { kind: "memory" } : { kind: "broken", reason: thrown.message };
    }
    return { kind: "broken", reason: String(thrown) };
}
