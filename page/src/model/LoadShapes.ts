// The loads of a choice as arrows and areas for the graphics card.
import { ActingLoads } from "./ActingLoads";
import type { Building } from "./Building";
import { LoadAreas } from "./LoadAreas";
import type { LoadChoice } from "./Loads";
import { frameLength } from "./Measures";

/** What the loads of a choice are drawn to, and how many of them are not. */
export interface LoadScale {
    /** Each of these is drawn as long as the size that was asked for; 0: there is none. */
    largestForce: number;
    largestMoment: number;
    largestIntensity: number;
    /** How many loads of the choice cannot be drawn: what they act on is missing, or a number is none. */
    leftOut: number;
}

/**
 * Positions are relative to building.centre. Down-acting loads stand on top of their line, with the heads of arrows at
 * the line; up-acting ones hang below. Beside each array of shapes stands the load of each shape.
 */
export interface LoadShapes extends LoadScale {
    /** Forces, six numbers each: tail, head. */
    arrows: Float32Array;
    arrowLoad: Int32Array;
    /** Moments, six numbers each: place, and a vector along the axis by the right-hand rule. */
    moments: Float32Array;
    momentLoad: Int32Array;
    /** Distributed loads as triangles, nine numbers each. */
    areas: Float32Array;
    areaLoad: Int32Array;
    /** Edges of these areas, without those on the line, as segments, six numbers each. */
    outlines: Float32Array;
    outlineLoad: Int32Array;
    /** A few arrows in each area, six numbers each: from its top to its line. */
    areaArrows: Float32Array;
    areaArrowLoad: Int32Array;
}

/** The size to draw loads with, in units of the model: to be seen beside the building, and no taller than a story. */
export function usualLoadSize(building: Building): number {
    let sum = 0;
    let count = 0;
    for (let frame = 0; frame < building.frames.count; ++frame) {
        const length = frameLength(building, frame);
        if (length > 0) {
            sum += length;
            ++count;
        }
    }
    return Math.min(building.radius / 6, count > 0 ? sum / count / 3 : Infinity);
}

/** The longest of the vectors that are the last three numbers of rows of six. */
function longest(rows: Float64Array): number {
    let length = 0;
    for (let i = 3; i < rows.length; i += 6) {
        length = Math.max(length, Math.hypot(rows[i], rows[i + 1], rows[i + 2]));
    }
    return length;
}

/** The largest of the values in rows of nine, by size. */
function largestValue(rows: Float64Array): number {
    let largest = 0;
    for (let i = 6; i < rows.length; i += 9) {
        largest = Math.max(largest, Math.abs(rows[i]), Math.abs(rows[i + 1]));
    }
    return largest;
}

/** From the tail of each force to the place where it acts. */
function arrowsOf(forces: Float64Array, centre: Building["centre"], largest: number, size: number): Float32Array {
    const arrows = new Float32Array(forces.length);
    for (let i = 0; i < forces.length; i += 6) {
        for (let k = 0; k < 3; ++k) {
            const head = forces[i + k] - centre[k];
            arrows[i + k] = head - (forces[i + 3 + k] / largest) * size;
            arrows[i + 3 + k] = head;
        }
    }
    return arrows;
}

/** The place of each moment, and its vector. */
function momentsOf(moments: Float64Array, centre: Building["centre"], largest: number, size: number): Float32Array {
    const vectors = new Float32Array(moments.length);
    for (let i = 0; i < moments.length; i += 6) {
        for (let k = 0; k < 3; ++k) {
            vectors[i + k] = moments[i + k] - centre[k];
            vectors[i + 3 + k] = (moments[i + 3 + k] / largest) * size;
        }
    }
    return vectors;
}

function scaleOf({ forces, moments, lines, leftOut }: ActingLoads): LoadScale {
    return {
        largestForce: longest(forces.values()),
        largestMoment: longest(moments.values()),
        largestIntensity: largestValue(lines.values()),
        leftOut,
    };
}

/** The scale of a choice, without its shapes. */
export function loadScale(building: Building, choice: LoadChoice): LoadScale {
    return scaleOf(new ActingLoads(building, choice));
}

/** The shapes of a choice. Its largest force, moment and intensity are each drawn `size` long, in model units. */
export function loadShapes(building: Building, choice: LoadChoice, size: number): LoadShapes {
    const acting = new ActingLoads(building, choice);
    const { forces, moments } = acting;
    const { centre } = building;
    const scale = scaleOf(acting);
    const areas = new LoadAreas(acting.lines, centre, { largest: scale.largestIntensity, size });
    return {
        arrows: arrowsOf(forces.values(), centre, scale.largestForce, size),
        arrowLoad: forces.loads(),
        moments: momentsOf(moments.values(), centre, scale.largestMoment, size),
        momentLoad: moments.loads(),
        areas: areas.triangles.values(),
        areaLoad: areas.triangles.loads(),
        outlines: areas.edges.values(),
        outlineLoad: areas.edges.loads(),
        areaArrows: areas.arrows.values(),
        areaArrowLoad: areas.arrows.loads(),
        ...scale,
    };
}
