// Whether the browser draws in three dimensions.

/** Tries it with a context that is given back at once: a browser has few of them. */
export function hasWebGl(): boolean {
    const context = document.createElement("canvas").getContext("webgl2");
    context?.getExtension("WEBGL_lose_context")?.loseContext();
    return context !== null;
}
