// The converter compiled to WebAssembly, as its glue hands it over. One instance is for one conversion: the memory that
// it has taken it never gives back.

/** Which of the two files, by the number that the module knows it by. */
export const enum Input {
    Structure = 0,
    Load = 1,
}

/** What a file looks like from its beginning. */
export const enum FileKind {
    Neither = 0,
    Structure = 1,
    /** Nothing in it speaks against a load file. */
    Load = 2,
}

/** What a conversion leaves in the memory of the module. */
export const enum Part {
    Answer = 0,
    Model = 1,
    Log = 2,
    Picture = 3,
}

/** What the module asks of its surroundings. */
export interface ModuleSurroundings {
    instantiateWasm(imports: WebAssembly.Imports, done: (instance: WebAssembly.Instance) => void): object;
    /** The glue asks where the compiled module lies, though it is handed over. */
    locateFile(name: string): string;
    /** Fills `into` from a byte of an input on: how many bytes, 0 at its end, -1 where it cannot be read. */
    readInput(input: number, offset: number, into: Uint8Array): number;
    tellProgress(line: number, total: number, stage: string): void;
}

export interface ConverterModule {
    ccall(name: string, returns: "string", types: readonly [], values: readonly []): string;
    ccall(
        name: string, returns: null, types: readonly ("string" | "number")[], values: readonly (string | number)[],
    ): void;
    /** Another array after each call that takes memory. */
    readonly HEAPU8: Uint8Array;
    _satwecvt_kind(input: number): number;
    /** Where a part begins, as a signed number. Its bytes are valid until the next call. */
    _satwecvt_part(part: number): number;
    _satwecvt_part_size(part: number): number;
}

export type ModuleFactory = (surroundings: ModuleSurroundings) => Promise<ConverterModule>;
