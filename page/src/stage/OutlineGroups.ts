// Outlines of sections put together by their make: how many corners each loop has, and how the ends of the body are
// filled with triangles. All bodies of a group are one drawing, in which only the places of the corners differ.
import { ShapeUtils, Vector2 } from "three";
import type { Outline, Part } from "../model/SectionOutline";
import type { Template } from "./PulledGeometry";

export interface OutlineGroup {
    template: Template;
    /** All loops are circles, whose sides are shaded round. */
    isRound: boolean;
    /** Indexes of the outlines. */
    outlines: number[];
}

/** Loops of so many corners are circles. */
const kRoundCorners = 16;

/** Corners of all loops in their order, y and z each. */
export function outlineCorners(outline: Outline): number[] {
    return outline.parts.flatMap((part) => part.loops.flatMap((loop) => [...loop]));
}

/** The outer box of an outline, in the place of its true shape. */
export function boxOutline({ width, height }: Outline): Outline {
    const [y, z] = [width / 2, height / 2];
    return { parts: [{ role: "whole", loops: [Float64Array.of(-y, -z, y, -z, y, z, -y, z)] }], width, height };
}

/** Groups of the outlines, few however many outlines there are. */
export function outlineGroups(outlines: readonly Outline[]): OutlineGroup[] {
    const made = new Map<string, { group: OutlineGroup; ends: number[][] }[]>();
    outlines.forEach((outline, index) => {
        const key = makeOf(outline);
        const same = made.get(key) ?? [];
        made.set(key, same);
        const fitting = same.find(({ ends }) => fills(outline, ends)) ?? newGroup(outline, same);
        fitting.group.outlines.push(index);
    });
    return [...made.values()].flat().map(({ group }) => group);
}

function makeOf(outline: Outline): string {
    return outline.parts.map(({ role, loops }) => `${role}:${loops.map((loop) => loop.length).join()}`).join(" ");
}

/** A group for an outline that no group of its make fits. A shape that cannot be filled at all takes the first one. */
function newGroup(outline: Outline, same: { group: OutlineGroup; ends: number[][] }[]) {
    const ends = outline.parts.map(fillPart);
    if (same.length > 0 && !fills(outline, ends)) {
        return same[0];
    }
    const isRound = outline.parts.every(({ loops }) => loops.every((loop) => loop.length >= 2 * kRoundCorners));
    const added = { group: { template: bodyTemplate(outline, ends), isRound, outlines: [] as number[] }, ends };
    same.push(added);
    return added;
}

const points = (loop: Float64Array): Vector2[] =>
    Array.from({ length: loop.length / 2 }, (_, i) => new Vector2(loop[2 * i], loop[2 * i + 1]));

/** Triangles of a part, as indexes of its corners, counter-clockwise. */
function fillPart({ loops }: Part): number[] {
    const [outer, ...holes] = loops.map(points);
    const corners = [outer, ...holes].flat();
    return ShapeUtils.triangulateShape(outer, holes)
        .flatMap(([a, b, c]) => (doubleArea(corners, a, b, c) < 0 ? [a, c, b] : [a, b, c]));
}

function doubleArea(corners: readonly Vector2[], a: number, b: number, c: number): number {
    const [p, q, r] = [corners[a], corners[b], corners[c]];
    return (q.x - p.x) * (r.y - p.y) - (q.y - p.y) * (r.x - p.x);
}

/** Whether triangles that were made for another outline cover this one exactly. */
function fills(outline: Outline, ends: readonly number[][]): boolean {
    return outline.parts.every(({ loops }, part) => {
        const rings = loops.map(points);
        const area = rings.reduce((sum, ring) => sum + ShapeUtils.area(ring), 0);
        const corners = rings.flat();
        const tolerance = 1e-9 * Math.abs(area);
        let covered = 0;
        for (let i = 0; i < ends[part].length; i += 3) {
            const twice = doubleArea(corners, ends[part][i], ends[part][i + 1], ends[part][i + 2]);
            if (twice < -tolerance) {
                return false;
            }
            covered += twice / 2;
        }
        return Math.abs(covered - area) <= tolerance;
    });
}

/** Two vertices a corner, at end i and end j. Their numbers: corner of the outline, end, 1 for steel in concrete. */
function bodyTemplate(outline: Outline, ends: readonly number[][]): Template {
    const vertices: number[] = [];
    const triangles: number[] = [];
    let corner = 0;
    outline.parts.forEach(({ role, loops }, part) => {
        const base = corner;
        triangles.push(...ends[part].map((k) => 2 * (base + k) + 1));
        triangles.push(...[...ends[part]].reverse().map((k) => 2 * (base + k)));
        for (const loop of loops) {
            const count = loop.length / 2;
            for (let k = 0; k < count; ++k) {
                const here = 2 * (corner + k);
                const next = 2 * (corner + (k + 1) % count);
                triangles.push(here, next, next + 1, here, next + 1, here + 1);
                vertices.push(corner + k, 0, role === "steel" ? 1 : 0, 0, corner + k, 1, role === "steel" ? 1 : 0, 0);
            }
            corner += count;
        }
    });
    return { vertices: Uint8Array.from(vertices), triangles };
}
