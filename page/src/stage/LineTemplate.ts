// The template of a thick line: two triangles, whose vertices know their end (0 or 1) and their side (0 or 2).
import type { Template } from "./PulledGeometry";

/** Several lines for one element: the third number of a vertex says which. */
export function lineTemplate(lines: number): Template {
    const each = Array.from({ length: lines }, (_, line) => line);
    return {
        vertices: Uint8Array.from(each.flatMap((line) => [0, 0, line, 0, 1, 0, line, 0, 1, 2, line, 0, 0, 2, line, 0])),
        triangles: each.flatMap((line) => [0, 1, 2, 0, 2, 3].map((vertex) => vertex + 4 * line)),
    };
}
