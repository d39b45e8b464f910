// Closed loops in the plane of a section, as y, z pairs: those from which outlines are put together.

/** Corners of a circle. */
const kCircleCorners = 24;

/** A loop through points, without those that are equal to the one before. */
export function loopThrough(points: [number, number][]): Float64Array {
    const apart = points.filter(([y, z], i) => {
        const [lastY, lastZ] = points.at(i - 1) ?? [NaN, NaN];
        return y !== lastY || z !== lastZ;
    });
    return Float64Array.from(apart.flat());
}

/** The other way round. */
export function reversed(loop: Float64Array): Float64Array {
    const back = new Float64Array(loop.length);
    for (let i = 0; i < loop.length; i += 2) {
        back.set(loop.subarray(i, i + 2), loop.length - 2 - i);
    }
    return back;
}

export function moved(loop: Float64Array, y: number, z: number): Float64Array {
    return loop.map((value, i) => value + (i % 2 === 0 ? y : z));
}

/** The other side of the z axis, still the same way round. */
export function mirrored(loop: Float64Array): Float64Array {
    return reversed(loop).map((value, i) => (i % 2 === 0 ? -value : value));
}

/** Counter-clockwise around the origin, from its lower left corner. */
export function rectangle(width: number, height: number): Float64Array {
    const [y, z] = [width / 2, height / 2];
    return loopThrough([[-y, -z], [y, -z], [y, z], [-y, z]]);
}

/** Counter-clockwise around the origin, from +y. */
export function circle(diameter: number): Float64Array {
    const loop = new Float64Array(2 * kCircleCorners);
    for (let i = 0; i < kCircleCorners; ++i) {
        const angle = (2 * Math.PI * i) / kCircleCorners;
        loop[2 * i] = (diameter / 2) * Math.cos(angle);
        loop[2 * i + 1] = (diameter / 2) * Math.sin(angle);
    }
    return loop;
}

/** The width includes the web. A flange without width or thickness is none. */
export interface Flange {
    width: number;
    thickness: number;
}

/** How wide a section is where its flange is. */
export function reach(flange: Flange, web: number): number {
    return flange.width > 0 && flange.thickness > 0 ? flange.width : web;
}

/** An H around the middle of its height and of its web. */
export function hLoop(height: number, web: number, upper: Flange, lower: Flange): Float64Array {
    const [u, l, w, z] = [reach(upper, web) / 2, reach(lower, web) / 2, web / 2, height / 2];
    const [top, bottom] = [z - upper.thickness, lower.thickness - z];
    return loopThrough([
        [-l, -z], [l, -z], [l, bottom], [w, bottom], [w, top], [u, top],
        [u, z], [-u, z], [-u, top], [-w, top], [-w, bottom], [-l, bottom],
    ]);
}

/** A channel with the back of its web at y = 0, flanges toward +y, around the middle of its height. */
export function channelLoop(height: number, web: number, upper: Flange, lower: Flange): Float64Array {
    const [u, l, z] = [reach(upper, web), reach(lower, web), height / 2];
    const [top, bottom] = [u === web ? z : z - upper.thickness, l === web ? -z : lower.thickness - z];
    return loopThrough([[0, -z], [l, -z], [l, bottom], [web, bottom], [web, top], [u, top], [u, z], [0, z]]);
}

/** What a loop encloses: positive counter-clockwise, negative clockwise. */
export function loopArea(loop: Float64Array): number {
    let twice = 0;
    for (let i = 0; i < loop.length; i += 2) {
        const next = (i + 2) % loop.length;
        twice += loop[i] * loop[next + 1] - loop[next] * loop[i + 1];
    }
    return twice / 2;
}
