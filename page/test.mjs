// Runs the tests of tests/*.test.ts: each is bundled into a temporary folder, then node's test runner runs them all.

import { spawnSync } from "node:child_process";
import { mkdtempSync, readdirSync, rmSync } from "node:fs";
import { tmpdir } from "node:os";
import { dirname, join } from "node:path";
import { fileURLToPath } from "node:url";

import { build } from "esbuild";

const kTests = join(dirname(fileURLToPath(import.meta.url)), "tests");

const names = readdirSync(kTests).filter((name) => name.endsWith(".test.ts"));
const folder = mkdtempSync(join(tmpdir(), "satwecvt-page-"));
try {
    await build({
        entryPoints: names.map((name) => join(kTests, name)),
        outdir: folder,
        outExtension: { ".js": ".mjs" },
        bundle: true,
        platform: "node",
        format: "esm",
        target: "node18",
        sourcemap: "inline",
        logLevel: "warning",
    });
    const files = names.map((name) => join(folder, name.replace(/\.ts$/, ".mjs")));
    const run = spawnSync(process.execPath, ["--enable-source-maps", "--test", ...files], { stdio: "inherit" });
    process.exitCode = run.status ?? 1;
} finally {
    rmSync(folder, { recursive: true });
}
