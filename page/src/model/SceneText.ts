// Everything that is drawn as plain numbers in absolute coordinates: what a test of the page can read.
import { isPlace } from "./Box";
import type { Building } from "./Building";
import { type FrameShapes, frameShapes } from "./FrameShapes";
import type { LoadChoice } from "./Loads";
import { loadShapes, usualLoadSize } from "./LoadShapes";
import { marks } from "./Marks";
import { planarShapes } from "./PlanarShapes";

type Point = number[];

export interface SceneFrame {
    number: number;
    /** Drawn ends i and j. */
    ends: Point[];
    axisY: Point;
    axisZ: Point;
    /** Each loop of the outline of the section as places around end i and around end j. */
    outline: { role: string; loops: { i: Point[]; j: Point[] }[] }[];
}

/** Each shape with the index of its load. */
export interface SceneLoads {
    arrows: { load: number; tail: Point; head: Point }[];
    moments: { load: number; at: Point; vector: Point }[];
    areas: { load: number; corners: Point[] }[];
}

export interface SceneText {
    nodes: { number: number; at: Point }[];
    frames: SceneFrame[];
    /** Half of the thickness lies on each side of the corners. */
    planars: { number: number; corners: Point[]; thickness: number }[];
    supports: { number: number; at: Point }[];
    hinges: { number: number; at: Point }[];
    links: { number: number; from: Point; to: Point }[];
    loads: Record<LoadChoice, SceneLoads>;
    lost: { finding: number; corners: Point[] }[];
    /** A value that nobody knows is null. */
    lostLoads: { finding: number; from: Point; to: Point; values: (number | null)[] }[];
}

/** The points, three numbers each, from an index on, moved by a place. */
function points(numbers: ArrayLike<number>, first: number, count: number, by: readonly number[]): Point[] {
    return Array.from({ length: count }, (_, k) =>
        by.map((offset, axis) => numbers[3 * (first + k) + axis] + offset));
}

const kOrigin = [0, 0, 0];

function sceneNodes({ nodes }: Building): SceneText["nodes"] {
    return Array.from(nodes.number, (number, i) => ({ number, at: [nodes.x[i], nodes.y[i], nodes.z[i]] }))
        .filter(({ at: [x, y, z] }) => isPlace(x, y, z));
}

function outlineAround(
    shapes: FrameShapes, index: number, ends: Point[], axisY: Point, axisZ: Point
): SceneFrame["outline"] {
    const outline = shapes.outlines[shapes.outline[index]];
    const around = (loop: Float64Array, end: Point): Point[] =>
        Array.from({ length: loop.length / 2 }, (_, k) =>
            end.map((at, axis) => at + loop[2 * k] * axisY[axis] + loop[2 * k + 1] * axisZ[axis]));
    return (outline?.parts ?? []).map(({ role, loops }) => ({
        role,
        loops: loops.map((loop) => ({ i: around(loop, ends[0]), j: around(loop, ends[1]) })),
    }));
}

function sceneFrames(building: Building): SceneFrame[] {
    const shapes = frameShapes(building);
    return Array.from(shapes.drawable, (frame, i) => {
        const ends = points(shapes.ends, 2 * i, 2, building.centre);
        const [axisY] = points(shapes.axisY, i, 1, kOrigin);
        const [axisZ] = points(shapes.axisZ, i, 1, kOrigin);
        const number = building.frames.number[frame];
        return { number, ends, axisY, axisZ, outline: outlineAround(shapes, i, ends, axisY, axisZ) };
    });
}

function scenePlanars(building: Building): SceneText["planars"] {
    const shapes = planarShapes(building);
    return Array.from(shapes.drawable, (planar, i) => ({
        number: building.planars.number[planar],
        corners: points(shapes.corners, 4 * i, 4, building.centre),
        thickness: 2 * shapes.halfThickness[i],
    }));
}

function sceneMarks(building: Building): Pick<SceneText, "supports" | "hinges" | "links"> {
    const { centre, nodes, frames } = building;
    const own = marks(building);
    return {
        supports: Array.from(own.supportNode, (node, i) => ({
            number: nodes.number[node], at: points(own.supports, i, 1, centre)[0],
        })),
        hinges: Array.from(own.hingeFrame, (frame, i) => ({
            number: frames.number[frame], at: points(own.hinges, i, 1, centre)[0],
        })),
        links: Array.from(own.linkFrame, (frame, i) => {
            const [from, to] = points(own.links, 2 * i, 2, centre);
            return { number: frames.number[frame], from, to };
        }),
    };
}

function sceneLoads(building: Building, choice: LoadChoice): SceneLoads {
    const { centre } = building;
    const shapes = loadShapes(building, choice, usualLoadSize(building));
    return {
        arrows: Array.from(shapes.arrowLoad, (load, i) => {
            const [tail, head] = points(shapes.arrows, 2 * i, 2, centre);
            return { load, tail, head };
        }),
        moments: Array.from(shapes.momentLoad, (load, i) => {
            const [at] = points(shapes.moments, 2 * i, 1, centre);
            const [vector] = points(shapes.moments, 2 * i + 1, 1, kOrigin);
            return { load, at, vector };
        }),
        areas: Array.from(shapes.areaLoad, (load, i) => ({ load, corners: points(shapes.areas, 3 * i, 3, centre) })),
    };
}

function sceneLosses({ lost, lostLoads }: Building): Pick<SceneText, "lost" | "lostLoads"> {
    const isDrawn = (point: Point): boolean => isPlace(point[0], point[1], point[2]);
    const shapes = lost.map(({ finding, corners }) => ({
        finding, corners: points(corners, 0, corners.length / 3, kOrigin),
    }));
    const loads = lostLoads.map(({ finding, ends, values }) => {
        const [from, to] = points(ends, 0, 2, kOrigin);
        return { finding, from, to, values: values.map((value) => (Number.isFinite(value) ? value : null)) };
    });
    return {
        lost: shapes.filter(({ corners }) => corners.every(isDrawn)),
        lostLoads: loads.filter(({ from, to }) => isDrawn(from) && isDrawn(to)),
    };
}

export function sceneText(building: Building): SceneText {
    return {
        nodes: sceneNodes(building),
        frames: sceneFrames(building),
        planars: scenePlanars(building),
        ...sceneMarks(building),
        loads: {
            dead: sceneLoads(building, "dead"),
            live: sceneLoads(building, "live"),
            both: sceneLoads(building, "both"),
        },
        ...sceneLosses(building),
    };
}
