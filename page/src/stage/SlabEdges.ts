// Which edges of walls and plates are seen. A slab is several triangles, and where two of them meet there is no edge.
import { type Planars, PlanarType } from "../model/Planars";

/** All edges of one element, edge k from corner k to the next, as bits. */
const kWallEdges = 0b1111;
const kTriangleEdges = 0b0111;

/** More than any building has; two indexes of nodes make one number with it. */
const kMostNodes = 2 ** 26;

/** For each of some walls and plates (indexes into `planars`) the bits of the edges that are seen. */
export function seenEdges(planars: Planars, drawable: Int32Array): Uint8Array {
    const seen = new Uint8Array(drawable.length);
    for (let from = 0; from < drawable.length;) {
        const to = slabEnd(planars, drawable, from);
        if (planars.type[drawable[from]] === PlanarType.Wall) {
            seen.fill(kWallEdges, from, to);
        } else {
            writeSlab(planars, drawable, from, to, seen);
        }
        from = to;
    }
    return seen;
}

/** The end of the run of elements that are one slab with the first. */
function slabEnd(planars: Planars, drawable: Int32Array, from: number): number {
    const first = drawable[from];
    let to = from + 1;
    while (to < drawable.length && isSameSlab(planars, first, drawable[to])) {
        ++to;
    }
    return to;
}

function isSameSlab({ type, story, key }: Planars, a: number, b: number): boolean {
    return type[a] === type[b] && story[a] === story[b] && key[a] === key[b];
}

function writeSlab(planars: Planars, drawable: Int32Array, from: number, to: number, seen: Uint8Array): void {
    const met = new Map<number, { at: number; bit: number }>();
    for (let at = from; at < to; ++at) {
        seen[at] = kTriangleEdges;
        for (const [k, next, bit] of [[0, 1, 1], [1, 2, 2], [2, 0, 4]]) {
            const [a, b] = [planars.nodes[4 * drawable[at] + k], planars.nodes[4 * drawable[at] + next]];
            const edge = Math.min(a, b) * kMostNodes + Math.max(a, b);
            const other = met.get(edge);
            if (other === undefined) {
                met.set(edge, { at, bit });
            } else {
                seen[at] &= ~bit;
                seen[other.at] &= ~other.bit;
            }
        }
    }
}
