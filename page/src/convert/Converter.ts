// One instance of the converter: tells what files are, and converts two of them once.
import { readAnswer } from "./Answer";
import {
    type ConverterModule, FileKind, type Input, type ModuleFactory, type ModuleSurroundings, Part,
} from "./ConverterModule";
import { ConversionError } from "./Failure";
import type { Pair } from "./Pair";

/** A file to save. */
export interface Output {
    name: string;
    content: Blob;
}

/** What a conversion makes. */
export interface Conversion {
    model: Output;
    /** Undefined: the conversion had nothing to log. */
    log: Output | undefined;
    /** The building in columns. */
    picture: ArrayBuffer;
}

/** Where the instance finds its files, and whom it tells how far it is. */
export type ConverterSurroundings = Pick<ModuleSurroundings, "readInput" | "tellProgress">;

const kKinds = new Map([[1, FileKind.Structure], [2, FileKind.Load]]);

export class Converter {
    private constructor(private readonly module: ConverterModule) {}

    /** Makes an instance of the compiled module. Rejects with what the browser throws where it cannot. */
    static async load(
        factory: ModuleFactory, compiled: WebAssembly.Module, surroundings: ConverterSurroundings,
    ): Promise<Converter> {
        return new Converter(await new Promise((resolve, reject) => {
            const instantiateWasm: ModuleSurroundings["instantiateWasm"] = (imports, done) => {
                // The glue waits for an instance forever, so what went wrong has to get past it.
                WebAssembly.instantiate(compiled, imports).then(done).catch(reject);
                return {};
            };
            factory({ ...surroundings, instantiateWasm, locateFile: (name) => name }).then(resolve, reject);
        }));
    }

    version(): string {
        return this.module.ccall("satwecvt_version", "string", [], []);
    }

    kind(input: Input): FileKind {
        return kKinds.get(this.module._satwecvt_kind(input)) ?? FileKind.Neither;
    }

    /** Throws a ConversionError where the files make no model, and what the browser throws where it gives up. */
    convert(names: Pair<string>, wantsPlans: boolean): Conversion {
        this.module.ccall(
            "satwecvt_convert", null, ["string", "string", "number"], [names.structure, names.load, wantsPlans ? 1 : 0],
        );
        const answer = readAnswer(this.part(Part.Answer));
        if (!answer.isWhole) {
            throw new ConversionError(answer.failure);
        }
        return {
            model: this.output(answer.modelName, Part.Model),
            log: answer.logName === undefined ? undefined : this.output(answer.logName, Part.Log),
            picture: this.part(Part.Picture).slice().buffer,
        };
    }

    private output(name: string, part: Part): Output {
        return { name, content: new Blob([this.part(part)]) };
    }

    /** A view of the module's memory, valid until its next call. Addresses and sizes go beyond 2^31. */
    private part(part: Part): Uint8Array<ArrayBuffer> {
        const size = this.module._satwecvt_part_size(part) >>> 0;
        const start = this.module._satwecvt_part(part) >>> 0;
        const { buffer, byteOffset } = this.module.HEAPU8;
        return new Uint8Array(buffer as ArrayBuffer, byteOffset + start, size);
    }
}
