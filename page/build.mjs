// Builds the viewer's page: one HTML file with its script and its style, which fetches nothing when it is shown.
//
//     node build.mjs [--out FILE] [--cpp FILE]
//
// --out writes the page with @PICTURE@ where the picture of a building belongs, --cpp the same page as a C++ source.

import { createHash } from "node:crypto";
import { mkdirSync, readFileSync, writeFileSync } from "node:fs";
import { dirname, join } from "node:path";
import { fileURLToPath } from "node:url";
import { parseArgs } from "node:util";

import { build } from "esbuild";

import { embeddedText } from "./EmbeddedText.mjs";

const kFolder = dirname(fileURLToPath(import.meta.url));
const kMarker = "@PICTURE@";

const read = (name) => readFileSync(join(kFolder, name), "utf8");

/** What esbuild makes of an entry file, on one line of text without its end. */
async function bundle(entry, options) {
    const result = await build({
        absWorkingDir: kFolder,
        entryPoints: [entry],
        bundle: true,
        minify: true,
        target: "es2022",
        charset: "utf8",
        legalComments: "none",
        write: false,
        logLevel: "warning",
        ...options,
    });
    return result.outputFiles[0].text.trim();
}

/** The script with the licence of what is bundled into it. Nothing in it ends the script element or opens a comment. */
async function script() {
    const code = await bundle("src/ui/main.ts", { format: "iife" });
    const licence = read("node_modules/three/LICENSE").trim();
    return `${code}\n/*! Contains three.js.\n${licence}\n*/`.replaceAll(/<(?=\/script|!--)/gi, "\\x3C");
}

const hash = (text) => `'sha256-${createHash("sha256").update(text, "utf8").digest("base64")}'`;

/** The page, allowed to run and show what is in it, and to reach nothing. */
async function page() {
    const texts = { script: await script(), style: await bundle("page.css", {}) };
    const policy = [
        "default-src 'none'",
        `script-src ${hash(texts.script)}`,
        `style-src ${hash(texts.style)}`,
        "img-src data: blob:",
        "base-uri 'none'",
        "form-action 'none'",
    ].join("; ");
    const parts = { "@POLICY@": policy, "@STYLE@": texts.style, "@SCRIPT@": texts.script };
    return read("page.html").replaceAll(/@(?:POLICY|STYLE|SCRIPT)@/g, (marker) => parts[marker]);
}

function write(file, text) {
    mkdirSync(dirname(file), { recursive: true });
    writeFileSync(file, text);
}

const { values } = parseArgs({ options: { out: { type: "string" }, cpp: { type: "string" } } });
const text = await page();
const source = embeddedText(text, kMarker);
if (values.out !== undefined) {
    write(values.out, text);
}
if (values.cpp !== undefined) {
    write(values.cpp, source);
}
console.log(`page: ${Buffer.byteLength(text)} bytes`);
