// Two of something: one for the structure file, one for the load file. And which of two files is which.
import { FileKind } from "./ConverterModule";

export interface Pair<Value> {
    structure: Value;
    load: Value;
}

export type Place = keyof Pair<unknown>;

export const exchanged = <Value>({ structure, load }: Pair<Value>): Pair<Value> =>
    ({ structure: load, load: structure });

/** Whether the file of each place looks like the one that belongs into the other place. */
export function looksExchanged({ structure, load }: Pair<FileKind>): boolean {
    return structure === FileKind.Load && load === FileKind.Structure;
}

/** Whether it is plain that each file is in its place. */
export function looksRight(kinds: Pair<FileKind>): boolean {
    return looksExchanged(exchanged(kinds));
}

/** The place into which a file of a kind belongs; undefined: nobody knows. */
export function placeOf(kind: FileKind): Place | undefined {
    switch (kind) {
        case FileKind.Structure:
            return "structure";
        case FileKind.Load:
            return "load";
        case FileKind.Neither:
            return undefined;
    }
}
