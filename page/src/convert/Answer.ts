// What the module says of a conversion.
import { type Columns, readColumns } from "../data/Columns";
import type { Failure, Remark } from "./Failure";
import type { Place } from "./Pair";

export type Answer =
    | { isWhole: true; modelName: string; logName: string | undefined }
    | { isWhole: false; failure: Failure };

const kSources: readonly (Place | undefined)[] = ["structure", "load", undefined];

function readRemarks(columns: Columns): Remark[] {
    const [sources, lines] = ["remark.source", "remark.line"].map((name) => columns.integers(name));
    return columns.texts("remark.text").map((sentence, i) => ({ place: kSources[sources[i]], line: lines[i], sentence }));
}

/** Reads an answer from its columns. Throws an Error where they are damaged. */
export function readAnswer(bytes: Uint8Array): Answer {
    const columns = readColumns(bytes);
    const integer = (name: string): number => columns.integers(`answer.${name}`)[0];
    const text = (name: string): string => columns.texts(`answer.${name}`)[0];
    if (integer("isWhole") === 1) {
        const logName = integer("hasLog") === 1 ? text("logName") : undefined;
        return { isWhole: true, modelName: text("modelName"), logName };
    }
    if (integer("lacksMemory") === 1) {
        return { isWhole: false, failure: { kind: "memory" } };
    }
    const failure: Failure = {
        kind: "refused", place: kSources[integer("source")], line: integer("line"), sentence: text("failure"),
        remarks: readRemarks(columns),
    };
    return { isWhole: false, failure };
}
