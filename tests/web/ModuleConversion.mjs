// One conversion by the module of the page, which takes node for a worker.
//
// Environment: SATWECVT_MODULE is the folder of satwecvt.mjs and satwecvt.wasm, SATWECVT_COLUMNS the page's reader of
// columns as a module of node.

import { closeSync, openSync, readFileSync, readSync } from "node:fs";
import { join } from "node:path";
import { pathToFileURL } from "node:url";

const kFolder = process.env.SATWECVT_MODULE;

globalThis.self ??= globalThis;
self.location ??= { href: "" };
const { default: createModule } = await import(pathToFileURL(join(kFolder, "satwecvt.mjs")).href);
const compiled = await WebAssembly.compile(readFileSync(join(kFolder, "satwecvt.wasm")));
const { readColumns } = await import(pathToFileURL(process.env.SATWECVT_COLUMNS).href);

/** Opens files as far as they are there: `read` returns -1 for one that is not. */
class Inputs {
    constructor(paths) {
        this.files = paths.map((path) => {
            try {
                return openSync(path);
            } catch {
                return -1;
            }
        });
    }

    read(input, offset, into) {
        return this.files[input] < 0 ? -1 : readSync(this.files[input], into, 0, into.length, offset);
    }

    close() {
        this.files.filter((file) => file >= 0).forEach(closeSync);
    }
}

/** An instance of the module over inputs, which tells its progress to `told`. */
function load(inputs, told) {
    return createModule({
        instantiateWasm(imports, done) {
            WebAssembly.instantiate(compiled, imports).then(done);
            return {};
        },
        readInput: (input, offset, into) => inputs.read(input, offset, into),
        tellProgress: told,
    });
}

/** What the files of two paths begin as: 1 a structure file, 2 a load file, 0 neither. */
export async function kinds(...paths) {
    const inputs = new Inputs(paths);
    const module = await load(inputs, () => {});
    const found = paths.map((_, input) => module._satwecvt_kind(input));
    inputs.close();
    return found;
}

/** Converts a pair of files: what is told of it, and the outputs by their names, those that there are. */
export async function convert(structure, loads, { plans = 0 } = {}) {
    const inputs = new Inputs([structure, loads]);
    const stages = [];
    let total = 0;
    const module = await load(inputs, (_line, lines, stage) => {
        total = lines;
        const shown = `!!! ${stage} !!!`;
        if (stages.at(-1) !== shown) {
            stages.push(shown);
        }
    });
    module.ccall("satwecvt_convert", null, ["string", "string", "number"], [structure, loads, plans]);
    inputs.close();
    const part = (number) => {
        const at = module._satwecvt_part(number) >>> 0;
        return at === 0 ? undefined : module.HEAPU8.slice(at, at + (module._satwecvt_part_size(number) >>> 0));
    };
    const answer = readColumns(part(0));
    const number = (name) => answer.integers(`answer.${name}`)[0];
    const text = (name) => answer.texts(`answer.${name}`)[0];
    const outputs = { [text("modelName")]: part(1), [text("logName")]: part(2) };
    return {
        told: {
            result: number("result"),
            messages: answer.texts("answer.messages"),
            fileErrors: [],
            stages, total,
            lineCounter: number("linesRead"),
            steps: number("steps"),
        },
        failure: text("failure"),
        place: [number("source"), number("line")],
        outputs: Object.fromEntries(Object.entries(outputs).filter(([, bytes]) => bytes !== undefined)),
        picture: part(3),
    };
}
