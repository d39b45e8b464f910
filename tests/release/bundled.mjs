// Prints the npm packages that esbuild puts into the pages, one a line: bundled.mjs ROOT

import { createRequire } from "node:module";
import { join } from "node:path";

const page = join(process.argv[2], "page");
const { build } = createRequire(join(page, "package.json"))("esbuild");
const { metafile } = await build({
    absWorkingDir: page,
    entryPoints: ["src/start/main.ts", "src/ui/main.ts", "src/convert/Worker.ts", "page.css", "converter.css"],
    bundle: true,
    metafile: true,
    write: false,
    outdir: "out",
    external: ["satwecvt-module"], // which emscripten links
});
const names = Object.keys(metafile.inputs).map((path) => /node_modules\/((?:@[^/]+\/)?[^/]+)/.exec(path)?.[1]);
console.log([...new Set(names.filter((name) => name !== undefined))].sort().join("\n"));
