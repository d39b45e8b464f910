// The outline of a section in the plane of the local axes y (to the right) and z (up). The middle of its outer box is
// the line of the element.
import { isDrawable } from "./Box";
import { combinedLoop } from "./CombinedLoop";
import { channelLoop, circle, type Flange, hLoop, mirrored, moved, rectangle, reversed } from "./OutlineLoops";
import { type Section, SectionType } from "./Properties";

export interface Part {
    /** Of a composite section its concrete or its steel; otherwise the whole member, whatever its material. */
    role: "whole" | "concrete" | "steel";
    /** y, z pairs: first the outer loop, counter-clockwise, then holes, clockwise. Neighbouring points differ. */
    loops: Float64Array[];
}

export interface Outline {
    parts: Part[];
    /** Of the outer box along z. */
    height: number;
    /** Of the outer box along y. */
    width: number;
}

type Loops = Float64Array[];

const arePositive = (...values: number[]): boolean => values.every((value) => value > 0 && isDrawable(value));
const areThere = (...values: number[]): boolean => values.every((value) => value >= 0 && isDrawable(value));

function rectangleLoops(height: number, width: number): Loops | undefined {
    return arePositive(height, width) ? [rectangle(width, height)] : undefined;
}

function circleLoops(diameter: number): Loops | undefined {
    return arePositive(diameter) ? [circle(diameter)] : undefined;
}

/** A wall as thick as the radius leaves no hole. */
function pipeLoops(diameter: number, wall: number): Loops | undefined {
    const inner = diameter - 2 * wall;
    if (!arePositive(diameter, wall) || !areThere(inner)) {
        return undefined;
    }
    return inner > 0 ? [circle(diameter), reversed(circle(inner))] : [circle(diameter)];
}

function boxLoops(height: number, width: number, web: number, upper: number, lower: number): Loops | undefined {
    const [innerHeight, innerWidth] = [height - upper - lower, width - 2 * web];
    if (!arePositive(height, width, web, upper, lower) || !areThere(innerHeight, innerWidth)) {
        return undefined;
    }
    const outer = rectangle(width, height);
    const inner = moved(rectangle(innerWidth, innerHeight), 0, (lower - upper) / 2);
    return innerHeight > 0 && innerWidth > 0 ? [outer, reversed(inner)] : [outer];
}

/** Whether an H or a channel has a web between its flanges, one of which may be missing. */
function hasWeb(height: number, web: number, upper: Flange, lower: Flange): boolean {
    const areFlanges = areThere(upper.width, upper.thickness, lower.width, lower.thickness);
    return areFlanges && arePositive(height, web, height - upper.thickness - lower.thickness);
}

function hLoops(height: number, web: number, upper: Flange, lower: Flange): Loops | undefined {
    return hasWeb(height, web, upper, lower) ? [hLoop(height, web, upper, lower)] : undefined;
}

function channelLoops(height: number, web: number, upper: Flange, lower: Flange): Loops | undefined {
    return hasWeb(height, web, upper, lower) ? [channelLoop(height, web, upper, lower)] : undefined;
}

function wholeParts(loops: Loops | undefined): Part[] | undefined {
    return loops && [{ role: "whole", loops }];
}

/** Two channels back to back. */
function doubleChannelParts(height: number, web: number, flange: Flange, gap: number): Part[] | undefined {
    const [channel] = channelLoops(height, web, flange, flange) ?? [];
    if (channel === undefined || !areThere(gap)) {
        return undefined;
    }
    const right = moved(channel, gap / 2, 0);
    return [mirrored(right), right].map((loop) => ({ role: "whole", loops: [loop] }));
}

function filledPipeParts(core: number, diameter: number, wall: number): Part[] | undefined {
    const steel = pipeLoops(diameter, wall);
    const concrete = circleLoops(core);
    return steel && concrete && core < diameter
        ? [{ role: "steel", loops: steel }, { role: "concrete", loops: concrete }]
        : undefined;
}

/** Steel in a rectangle of concrete, which has to cover it on all sides. */
function coveredParts(
    height: number, width: number, steel: Loops | undefined, steelHeight: number, steelWidth: number
): Part[] | undefined {
    const concrete = rectangleLoops(height, width);
    return concrete && steel && steelHeight < height && steelWidth < width
        ? [{ role: "concrete", loops: [...concrete, reversed(steel[0])] }, { role: "steel", loops: steel }]
        : undefined;
}

/** undefined: the dimensions of a shape make none, or nothing is known of the shape. */
function shapeParts(shape: string, d: Float64Array): Part[] | undefined {
    switch (shape) {
        case "SB":
            return wholeParts(rectangleLoops(d[0], d[1]));
        case "SR":
            return wholeParts(circleLoops(d[0]));
        case "P":
            return wholeParts(pipeLoops(d[0], d[1]));
        case "B":
            return wholeParts(boxLoops(d[0], d[1], d[2], d[3], d[5]));
        case "H":
            return wholeParts(hLoops(d[0], d[2], { width: d[1], thickness: d[3] }, { width: d[4], thickness: d[5] }));
        case "C":
            return wholeParts(
                channelLoops(d[0], d[2], { width: d[1], thickness: d[3] }, { width: d[4], thickness: d[5] }));
        case "2C":
            return doubleChannelParts(d[0], d[2], { width: d[1], thickness: d[3] }, d[4]);
        case "H2T": {
            const loop = combinedLoop(d);
            return wholeParts(loop && [loop]);
        }
        case "EPC":
            return filledPipeParts(d[0], d[2], d[3]);
        case "RHB": {
            const flange = { width: d[3], thickness: d[5] };
            return coveredParts(d[0], d[1], hLoops(d[2], d[4], flange, flange), d[2], Math.max(d[3], d[4]));
        }
        case "RBC":
            return coveredParts(d[0], d[1], boxLoops(d[2], d[3], d[4], d[5], d[5]), d[2], d[3]);
        default:
            return undefined;
    }
}

/** Moves the middle of the outer box to the origin. */
function centred(parts: Part[]): Outline {
    const outer = parts.flatMap(({ loops }) => [...loops[0]]);
    const ys = outer.filter((_, i) => i % 2 === 0);
    const zs = outer.filter((_, i) => i % 2 === 1);
    const [left, right, bottom, top] = [Math.min(...ys), Math.max(...ys), Math.min(...zs), Math.max(...zs)];
    const move = (loop: Float64Array): Float64Array => moved(loop, -(left + right) / 2, -(bottom + top) / 2);
    return {
        parts: parts.map(({ role, loops }) => ({ role, loops: loops.map(move) })),
        height: top - bottom,
        width: right - left,
    };
}

/** undefined: the section has no shape that can be drawn. Circles have 24 corners. */
export function sectionOutline(section: Section): Outline | undefined {
    const parts = shapeParts(section.shape, section.type === SectionType.Composite ? section.further : section.values);
    return parts && centred(parts);
}
