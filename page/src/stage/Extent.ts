// How large the building is for the camera, relative to its centre.
import { Box3, Vector3 } from "three";
import { type Box, isPlace } from "../model/Box";
import type { Building } from "../model/Building";

/** A box around all nodes that have a place; around the radius of the building where there are none. */
export function buildingBox({ box, radius, centre }: Building): Box3 {
    return box === undefined
        ? new Box3(new Vector3().setScalar(-radius), new Vector3().setScalar(radius))
        : widened(relativeBox(box, centre), isPoint(box) ? radius : radius / 100);
}

function isPoint({ min, max }: Box): boolean {
    return min.every((value, k) => value === max[k]);
}

export function relativeBox({ min, max }: Box, centre: Building["centre"]): Box3 {
    const middle = new Vector3(...centre);
    return new Box3(new Vector3(...min).sub(middle), new Vector3(...max).sub(middle));
}

/** With some room on every side. */
export function widened(box: Box3, room: number): Box3 {
    return box.clone().expandByScalar(room);
}

/** From the centre to what is farthest, also of what was lost. `size`: how long loads are drawn. */
export function reach(building: Building, size: number): number {
    let farthest = building.radius;
    const { lost, lostLoads } = building;
    for (const places of [...lost.map(({ corners }) => corners), ...lostLoads.map(({ ends }) => ends)]) {
        for (let i = 0; i + 2 < places.length; i += 3) {
            const [x, y, z] = places.subarray(i, i + 3);
            if (isPlace(x, y, z)) {
                const { centre } = building;
                farthest = Math.max(farthest, Math.hypot(x - centre[0], y - centre[1], z - centre[2]));
            }
        }
    }
    return 1.1 * farthest + 4 * size;
}
