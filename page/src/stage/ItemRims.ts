// The edges of single items, for what is selected or pointed out. What cannot be drawn has none.
import type { Building } from "../model/Building";
import { emptyFrameAxes, frameAxes } from "../model/FrameAxes";
import { isFrame, planarOfItem } from "../model/Items";
import { planarCorners, planarNormal } from "../model/PlanarCorners";
import { cornerCount } from "../model/Planars";
import { halfThicknessOf } from "../model/PlanarShapes";
import { sectionOutline } from "../model/SectionOutline";
import { seenEdges } from "./SlabEdges";

/** A loop of more corners is a circle: of its edges along the element only four are drawn. */
const kRoundCorners = 16;

type Point = readonly number[];

const moved = (point: Point, way: ArrayLike<number>, length: number): Point =>
    point.map((value, k) => value + length * way[k]);

/** What is drawn to point something out, relative to the centre of the building. */
export interface Rims {
    /** Six numbers a line. */
    lines: readonly number[];
    /** Nine numbers a triangle. */
    faces: readonly number[];
    /** Indexes of nodes. */
    nodes: readonly number[];
}

export const kNoRims: Rims = { lines: [], faces: [], nodes: [] };

/** The edges of frames, walls and plates, and the middle planes of the latter. Triangles of a slab have its edges. */
export function itemRims(building: Building, items: readonly number[]): Rims {
    const frames = items.filter((item) => isFrame(building, item));
    const planars = items.filter((item) => !isFrame(building, item)).map((item) => planarOfItem(building, item));
    const edges = seenEdges(building.planars, Int32Array.from(planars));
    const lines = frames.flatMap((frame) => frameRim(building, frame));
    return {
        lines: [...lines, ...planars.flatMap((planar, i) => panelRim(building, planar, edges[i]))],
        faces: planars.flatMap((planar) => panelFace(building, planar)),
        nodes: [],
    };
}

function frameRim(building: Building, frame: number): number[] {
    const axes = emptyFrameAxes();
    if (!frameAxes(building, frame, axes)) {
        return [];
    }
    const ends = [axes.endI, axes.endJ].map((end) => moved([...end], building.centre, -1));
    const section = building.sections.get(building.frames.section[frame]);
    const outline = section === undefined ? undefined : sectionOutline(section);
    if (outline === undefined) {
        return ends.flat();
    }
    return outline.parts.flatMap(({ loops }) => loops).flatMap((loop) => {
        const count = loop.length / 2;
        const step = count > kRoundCorners ? count / 4 : 1;
        const at = (end: Point, k: number): Point =>
            moved(moved(end, axes.axisY, loop[2 * (k % count)]), axes.axisZ, loop[2 * (k % count) + 1]);
        return Array.from({ length: count }, (_, k) => [
            ...ends.flatMap((end) => [...at(end, k), ...at(end, k + 1)]),
            ...(k % step === 0 ? ends.flatMap((end) => at(end, k)) : []),
        ]).flat();
    });
}

/** The corners of a wall or plate. */
function panelCorners(building: Building, planar: number): Point[] {
    const corners = new Float64Array(12);
    if (!planarCorners(building, planar, corners)) {
        return [];
    }
    return Array.from({ length: cornerCount(building.planars, planar) }, (_, k) =>
        moved([...corners.subarray(3 * k, 3 * k + 3)], building.centre, -1));
}

function panelFace(building: Building, planar: number): number[] {
    const corners = panelCorners(building, planar);
    return corners.slice(2).flatMap((corner, k) => [...corners[0], ...corners[k + 1], ...corner]);
}

function panelRim(building: Building, planar: number, edges: number): number[] {
    const corners = panelCorners(building, planar);
    const normal = new Float64Array(3);
    planarNormal(Float64Array.from([...corners, corners.at(-1) ?? []].slice(0, 4).flat()), normal);
    const half = halfThicknessOf(building, planar);
    const at = (k: number, side: number): Point => moved(corners[k % corners.length], normal, side * half);
    return corners.flatMap((_, k) => ((edges >> k) & 1) === 0 ? [] : [
        [k, 1, k + 1, 1], [k, -1, k + 1, -1], [k, 1, k, -1], [k + 1, 1, k + 1, -1],
    ].flatMap(([from, fromSide, to, toSide]) => [...at(from, fromSide), ...at(to, toSide)]));
}
