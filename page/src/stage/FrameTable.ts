// The frame elements that are drawn, in textures: first those that are only lines, then those of each group.
import type { FrameShapes } from "../model/FrameShapes";
import type { Outline } from "../model/SectionOutline";
import { FloatTexture } from "./FloatTexture";
import { boxOutline, outlineCorners, type OutlineGroup, outlineGroups } from "./OutlineGroups";

/** Elements in a row of the table. */
export interface FrameRange {
    first: number;
    count: number;
}

export interface FrameTable {
    /**
     * Three texels an element: its ends, each with the first corner of its outline; its turn, as the first three
     * numbers of a quaternion whose fourth is positive, with the item.
     */
    records: FloatTexture;
    count: number;
    lines: FrameRange;
    bodies: (FrameRange & { group: OutlineGroup })[];
    /** A texel for each corner of an outline: y, z, and the unit vector that points away from the body there. */
    corners: FloatTexture;
    /** Sections are drawn as their outer boxes, since there are too many triangles otherwise. */
    areBoxes: boolean;
}

/** More triangles than these take seconds a frame where no graphics card helps. */
const kMostTriangles = 4e6;

export function frameTable(shapes: FrameShapes): FrameTable {
    const uses = countUses(shapes);
    const trueGroups = outlineGroups(shapes.outlines);
    const areBoxes = triangleCount(trueGroups, uses) > kMostTriangles;
    const outlines = areBoxes ? shapes.outlines.map(boxOutline) : shapes.outlines;
    const groups = areBoxes ? outlineGroups(outlines) : trueGroups;
    const { corners, firstCorner } = cornerTexels(outlines);
    const groupOf = new Int32Array(outlines.length);
    groups.forEach((group, index) => group.outlines.forEach((outline) => (groupOf[outline] = index + 1)));
    const ranges = rangesOf(groups, uses, shapes);
    const records = frameRecords(shapes, ranges, (outline) => (outline < 0 ? 0 : groupOf[outline]), firstCorner);
    const [lines, ...bodyRanges] = ranges;
    const bodies = groups.map((group, index) => ({ ...bodyRanges[index], group }));
    return { records, count: shapes.drawable.length, lines, bodies, corners, areBoxes };
}

function countUses(shapes: FrameShapes): Int32Array {
    const uses = new Int32Array(shapes.outlines.length);
    for (const outline of shapes.outline) {
        if (outline >= 0) {
            ++uses[outline];
        }
    }
    return uses;
}

const usesOf = (group: OutlineGroup, uses: Int32Array): number =>
    group.outlines.reduce((sum, outline) => sum + uses[outline], 0);

function triangleCount(groups: readonly OutlineGroup[], uses: Int32Array): number {
    return groups.reduce((sum, group) => sum + usesOf(group, uses) * group.template.triangles.length / 3, 0);
}

function rangesOf(groups: readonly OutlineGroup[], uses: Int32Array, shapes: FrameShapes): FrameRange[] {
    const counts = groups.map((group) => usesOf(group, uses));
    const lines = shapes.drawable.length - counts.reduce((sum, count) => sum + count, 0);
    let first = 0;
    return [lines, ...counts].map((count) => {
        first += count;
        return { first: first - count, count };
    });
}

function frameRecords(
    shapes: FrameShapes, ranges: readonly FrameRange[], rangeOf: (outline: number) => number, firstCorner: Int32Array,
): FloatTexture {
    const records = new FloatTexture(3 * shapes.drawable.length);
    const next = ranges.map(({ first }) => first);
    const turn = new Float64Array(3);
    for (let i = 0; i < shapes.drawable.length; ++i) {
        const outline = shapes.outline[i];
        const at = 3 * next[rangeOf(outline)]++;
        writeTurn(shapes.axisY, shapes.axisZ, 3 * i, turn);
        const corner = outline < 0 ? 0 : firstCorner[outline];
        records.set(at, shapes.ends, 6 * i, corner);
        records.set(at + 1, shapes.ends, 6 * i + 3, corner);
        records.set(at + 2, turn, 0, shapes.drawable[i]);
    }
    return records;
}

/** The first three numbers of the quaternion that turns the global axes into the local ones; x is y cross z. */
function writeTurn(axisY: Float32Array, axisZ: Float32Array, at: number, into: Float64Array): void {
    const [yx, yy, yz] = [axisY[at], axisY[at + 1], axisY[at + 2]];
    const [zx, zy, zz] = [axisZ[at], axisZ[at + 1], axisZ[at + 2]];
    const [xx, xy, xz] = [yy * zz - yz * zy, yz * zx - yx * zz, yx * zy - yy * zx];
    // Of the four forms of the quaternion, the one that divides by its largest part.
    if (xx + yy + zz > 0) {
        writeScaled(yz - zy, zx - xz, xy - yx, 1 + xx + yy + zz, 1 + xx + yy + zz, into);
    } else if (xx >= yy && xx >= zz) {
        writeScaled(1 + xx - yy - zz, xy + yx, xz + zx, yz - zy, 1 + xx - yy - zz, into);
    } else if (yy >= zz) {
        writeScaled(xy + yx, 1 - xx + yy - zz, yz + zy, zx - xz, 1 - xx + yy - zz, into);
    } else {
        writeScaled(xz + zx, yz + zy, 1 - xx - yy + zz, xy - yx, 1 - xx - yy + zz, into);
    }
}

/** A quaternion and its negative are the same turn: the one whose fourth number is positive. */
function writeScaled(x: number, y: number, z: number, w: number, largest: number, into: Float64Array): void {
    const scale = (w < 0 ? -0.5 : 0.5) / Math.sqrt(largest);
    into[0] = x * scale;
    into[1] = y * scale;
    into[2] = z * scale;
}

function cornerTexels(outlines: readonly Outline[]): { corners: FloatTexture; firstCorner: Int32Array } {
    const firstCorner = new Int32Array(outlines.length);
    let total = 0;
    outlines.forEach((outline, index) => {
        firstCorner[index] = total;
        total += outlineCorners(outline).length / 2;
    });
    const corners = new FloatTexture(total);
    let at = 0;
    for (const loop of outlines.flatMap(({ parts }) => parts.flatMap(({ loops }) => loops))) {
        for (let k = 0; k < loop.length; k += 2) {
            const [before, after] = [(k + loop.length - 2) % loop.length, (k + 2) % loop.length];
            const [y, z] = [loop[after] - loop[before], loop[after + 1] - loop[before + 1]];
            const length = Math.hypot(y, z) || 1;
            corners.set(at++, [loop[k], loop[k + 1], z / length], 0, -y / length);
        }
    }
    return { corners, firstCorner };
}
