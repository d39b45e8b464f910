// The drawn ends of a frame element and its local axes.
import { isPlace } from "./Box";
import type { Building } from "./Building";

/** Absolute coordinates and unit vectors, three numbers each. */
export interface FrameAxes {
    /** The drawn ends: node and offset. */
    endI: Float64Array;
    endJ: Float64Array;
    /** Local axes; x leads from end i to end j. */
    axisX: Float64Array;
    axisY: Float64Array;
    axisZ: Float64Array;
}

/** An element is vertical when the horizontal part of its direction is shorter than this. */
const kVertical = 1e-6;

/** Something for frameAxes to write into. */
export function emptyFrameAxes(): FrameAxes {
    const vector = (): Float64Array => new Float64Array(3);
    return { endI: vector(), endJ: vector(), axisX: vector(), axisY: vector(), axisZ: vector() };
}

/** `offset` is where the offset of this end begins; below 0: there is none. */
function writeEnd({ nodes, frames }: Building, node: number, offset: number, into: Float64Array): boolean {
    if (node < 0) {
        return false;
    }
    into[0] = nodes.x[node];
    into[1] = nodes.y[node];
    into[2] = nodes.z[node];
    if (offset >= 0) {
        into[0] += frames.offsetValues[offset];
        into[1] += frames.offsetValues[offset + 1];
        into[2] += frames.offsetValues[offset + 2];
    }
    return isPlace(into[0], into[1], into[2]);
}

/** Writes the drawn ends. False: one of them has no place, for want of a node or a number. */
export function frameEnds(building: Building, frame: number, into: Pick<FrameAxes, "endI" | "endJ">): boolean {
    const { frames } = building;
    const offset = 6 * frames.offset[frame];
    return (
        writeEnd(building, frames.nodeI[frame], offset, into.endI) &&
        writeEnd(building, frames.nodeJ[frame], offset + 3, into.endJ)
    );
}

function write(into: Float64Array, x: number, y: number, z: number): void {
    into[0] = x;
    into[1] = y;
    into[2] = z;
}

/** y and z before the section is turned: z upward, or along the global x where the element is vertical. */
function writeUpright(into: FrameAxes): void {
    const { axisX, axisY, axisZ } = into;
    const [x, y, z] = [axisX[0], axisX[1], axisX[2]];
    const horizontal = Math.sqrt(x * x + y * y);
    if (horizontal < kVertical) {
        write(axisY, 0, -Math.sign(z), 0);
        write(axisZ, 1, 0, 0);
    } else {
        write(axisY, -y / horizontal, x / horizontal, 0);
        write(axisZ, (-x * z) / horizontal, (-y * z) / horizontal, horizontal);
    }
}

/** Turns y and z about x by the right-hand rule. */
function turn(into: FrameAxes, degrees: number): void {
    const angle = ((degrees % 360) * Math.PI) / 180;
    const cosine = Math.cos(angle);
    const sine = Math.sin(angle);
    for (let k = 0; k < 3; ++k) {
        const y = into.axisY[k];
        const z = into.axisZ[k];
        into.axisY[k] = y * cosine + z * sine;
        into.axisZ[k] = z * cosine - y * sine;
    }
}

/** Writes ends and axes of a frame. False: it cannot be drawn, for want of a node, a number or a length. */
export function frameAxes(building: Building, frame: number, into: FrameAxes): boolean {
    const angle = building.frames.angle[frame];
    if (!frameEnds(building, frame, into) || !Number.isFinite(angle)) {
        return false;
    }
    const length = endDistance(into);
    if (length === 0) {
        return false;
    }
    for (let k = 0; k < 3; ++k) {
        into.axisX[k] = (into.endJ[k] - into.endI[k]) / length;
    }
    writeUpright(into);
    if (angle !== 0) {
        turn(into, angle);
    }
    return true;
}

export function endDistance({ endI, endJ }: Pick<FrameAxes, "endI" | "endJ">): number {
    const x = endJ[0] - endI[0];
    const y = endJ[1] - endI[1];
    const z = endJ[2] - endI[2];
    return Math.sqrt(x * x + y * y + z * z);
}
