// What the start screen says of the files in its places, in whatever language is spoken when it is shown.

import type { Failure, Remark } from "../convert/Failure";
import type { Pair } from "../convert/Pair";
import { baseName } from "../ui/FileName";
import { words } from "./Words";

export type Files = Pair<File | undefined>;

export const kNoFiles: Files = { structure: undefined, load: undefined };

export interface Note {
    /** An alert is read out at once. */
    role: "alert" | "status";
    sentence(): string;
    /** What stands below it. */
    remarks?(): string[];
}

export const alert = (sentence: () => string): Note => ({ role: "alert", sentence });

const shortName = (file: File | undefined): string => baseName(file?.name ?? "");

/** A remark with the short name of its file, as far as it is about one. */
function remarkText({ place, line, sentence }: Remark, files: Files): string {
    const source = place === undefined ? "" : `${shortName(files[place])}${line > 0 ? `:${line}` : ""}`;
    return source === "" ? sentence : words("refused", source, sentence);
}

/** Why these files were not converted. */
export function failureNote(failure: Failure, files: Files): Note {
    switch (failure.kind) {
        case "refused":
            return {
                ...alert(() => remarkText(failure, files)),
                remarks: () => failure.remarks.map((remark) => remarkText(remark, files)),
            };
        case "unreadable":
            return alert(() => words("unreadable", shortName(files[failure.place])));
        case "memory":
            return alert(() => words("memory"));
        case "cancelled":
            return { role: "status", sentence: () => words("cancelled") };
        case "broken":
            return alert(() => words("broken", failure.reason || words("unknownReason")));
    }
}
