// Builds the pages: HTML files with their script and their style in them, which fetch nothing when they are shown.
//
//     node build.mjs [--out FILE] [--cpp FILE]
//     node build.mjs --converter FILE --module FOLDER
//
// --out writes the viewer's page with @PICTURE@ where the picture of a building belongs, --cpp the same page as a C++
// source. --converter writes the converter's page; FOLDER holds the converter as satwecvt.mjs and satwecvt.wasm.

import { createHash } from "node:crypto";
import { mkdirSync, readFileSync, writeFileSync } from "node:fs";
import { dirname, join, resolve } from "node:path";
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

/** A script as it stands in a page: nothing in it ends the script element or opens a comment. */
const inPage = (code) => code.replaceAll(/<(?=\/script|!--)/gi, "\\x3C");

/** The script with the licence of what is bundled into it. */
async function script(entry) {
    const code = await bundle(entry, { format: "iife" });
    const licence = read("node_modules/three/LICENSE").trim();
    return inPage(`${code}\n/*! Contains three.js.\n${licence}\n*/`);
}

const hash = (text) => `'sha256-${createHash("sha256").update(text, "utf8").digest("base64")}'`;

/** A page, allowed to run and show what is in it, and to reach nothing. `allowed` are further rules of its policy. */
function page(template, texts, allowed = { scripts: "", rules: [] }) {
    const policy = [
        "default-src 'none'",
        `script-src ${hash(texts.script)}${allowed.scripts}`,
        `style-src ${hash(texts.style)}`,
        "img-src data: blob:",
        ...allowed.rules,
        "base-uri 'none'",
        "form-action 'none'",
    ].join("; ");
    const parts = { ...texts, policy };
    return read(template).replaceAll(/@(POLICY|STYLE|SCRIPT|WORKER|MODULE)@/g, (_, name) => parts[name.toLowerCase()]);
}

async function viewerPage() {
    return page("page.html", { script: await script("src/ui/main.ts"), style: await bundle("page.css", {}) });
}

/**
 * The script of the worker, with the glue of the module and the licences of both. It is handed the module, so no address
 * is looked for.
 */
async function workerScript(folder) {
    const code = await bundle("src/convert/Worker.ts", {
        format: "iife",
        alias: { "satwecvt-module": join(folder, "satwecvt.mjs") },
        define: { "import.meta.url": "undefined" },
    });
    return inPage(`${code}\n/*! ${read("module-licences.txt").trim()}\n*/`);
}

async function converterPage(folder) {
    const texts = {
        script: await script("src/start/main.ts"),
        style: await bundle("converter.css", {}),
        worker: await workerScript(folder),
        module: readFileSync(join(folder, "satwecvt.wasm")).toString("base64"),
    };
    return page("converter.html", texts, { scripts: " 'wasm-unsafe-eval'", rules: ["worker-src blob:"] });
}

function write(file, text) {
    mkdirSync(dirname(file), { recursive: true });
    writeFileSync(file, text);
}

async function writeViewer({ out, cpp }) {
    const text = await viewerPage();
    const source = embeddedText(text, kMarker);
    if (out !== undefined) {
        write(out, text);
    }
    if (cpp !== undefined) {
        write(cpp, source);
    }
    console.log(`page: ${Buffer.byteLength(text)} bytes`);
}

async function writeConverter({ converter, module }) {
    if (module === undefined) {
        throw new Error("--converter needs --module");
    }
    const text = await converterPage(resolve(module));
    write(converter, text);
    console.log(`converter: ${Buffer.byteLength(text)} bytes`);
}

const kOptions = ["out", "cpp", "converter", "module"];
const { values } = parseArgs({ options: Object.fromEntries(kOptions.map((name) => [name, { type: "string" }])) });
await (values.converter === undefined ? writeViewer(values) : writeConverter(values));
