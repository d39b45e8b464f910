// Both files as the module reads them, and which of them could not be read.
import { Input } from "./ConverterModule";
import type { Pair, Place } from "./Pair";
import { ReadAhead } from "./ReadAhead";

/** Returns the bytes of a part of a file, and throws where the browser does not hand them out. */
export type ReadBlob = (blob: Blob) => Uint8Array;

const placeOfInput = (input: Input): Place => (input === Input.Structure ? "structure" : "load");

function reader(file: Blob | undefined, readBlob: ReadBlob): ReadAhead | undefined {
    if (file === undefined) {
        return undefined;
    }
    if (file.size === 0) {
        return new ReadAhead(1, () => readBlob(file));  // a file that has vanished has this size, too: reading tells
    }
    return new ReadAhead(file.size, (from, to) => readBlob(file.slice(from, to)));
}

export class Inputs {
    /** The file whose reading failed last. */
    unreadable: Place | undefined;
    private readers: Pair<ReadAhead | undefined> = { structure: undefined, load: undefined };

    constructor(private readonly readBlob: ReadBlob) {}

    set({ structure, load }: Pair<Blob | undefined>): void {
        this.unreadable = undefined;
        this.readers = { structure: reader(structure, this.readBlob), load: reader(load, this.readBlob) };
    }

    /** As the module asks for it: how many bytes, 0 at the end, -1 where the file cannot be read. */
    read(input: Input, offset: number, into: Uint8Array): number {
        const place = placeOfInput(input);
        try {
            return this.readers[place]?.read(offset, into) ?? 0;
        } catch {
            this.unreadable = place;
            return -1;
        }
    }
}
