// What the build puts into the page as text: the module and the script of the worker.

import { bytesOfBase64 } from "../data/Base64";

/** A text of the page, which gives its memory back. */
function takeText(id: string): string {
    const holder = document.getElementById(id);
    const content = holder?.textContent ?? "";
    holder?.remove();
    return content;
}

/** Compiles the module. Rejects where the browser does not know all that is in it. */
export async function takeModule(): Promise<WebAssembly.Module> {
    return WebAssembly.compile(bytesOfBase64(takeText("module")));
}

/** Makes workers, as many as are asked for. */
export function takeWorker(): () => Worker {
    const address = URL.createObjectURL(new Blob([takeText("worker")], { type: "text/javascript" }));
    return () => new Worker(address);
}
