// The corners of a wall or plate, and the vector that stands on it.
import { isPlace } from "./Box";
import type { Building } from "./Building";
import { cornerCount } from "./Planars";

/**
 * Writes x, y, z of four corners in order around it, absolute; a plate repeats its third. False: one of them has no
 * place, for want of a node or a number.
 */
export function planarCorners(building: Building, planar: number, into: Float64Array): boolean {
    const { nodes, planars } = building;
    const last = cornerCount(planars, planar) - 1;
    for (let k = 0; k < 4; ++k) {
        const node = planars.nodes[4 * planar + Math.min(k, last)];
        if (node < 0 || !isPlace(nodes.x[node], nodes.y[node], nodes.z[node])) {
            return false;
        }
        into[3 * k] = nodes.x[node];
        into[3 * k + 1] = nodes.y[node];
        into[3 * k + 2] = nodes.z[node];
    }
    return true;
}

/**
 * Writes the unit vector from whose tip the corners run counter-clockwise, and returns the area. An area of 0 has no
 * such vector: then nothing is written.
 */
export function planarNormal(corners: Float64Array, into: Float64Array): number {
    const [ux, uy, uz] = [corners[6] - corners[0], corners[7] - corners[1], corners[8] - corners[2]];
    const [vx, vy, vz] = [corners[9] - corners[3], corners[10] - corners[4], corners[11] - corners[5]];
    const x = uy * vz - uz * vy;
    const y = uz * vx - ux * vz;
    const z = ux * vy - uy * vx;
    const length = Math.sqrt(x * x + y * y + z * z);
    if (length > 0) {
        into[0] = x / length;
        into[1] = y / length;
        into[2] = z / length;
    }
    return length / 2;
}
