// Where that lies which did not come into the model, relative to the centre of the building. What has no place has no
// shape here.
import { isPlace } from "../model/Box";
import type { Building } from "../model/Building";

/** Arrows of a left-out load along a line. */
const kLineArrows = 5;

function relative({ centre }: Building, places: Float64Array): number[] {
    const areAll = places.every((_, i) => i % 3 !== 0 || isPlace(places[i], places[i + 1], places[i + 2]));
    return areAll ? Array.from(places, (value, i) => value - centre[i % 3]) : [];
}

const corner = (places: readonly number[], k: number): number[] => places.slice(3 * k, 3 * k + 3);

/** The rim of a left-out shape, six numbers a line. */
export function lostRim(building: Building, lost: number): number[] {
    const places = relative(building, building.lost[lost].corners);
    const count = places.length / 3;
    const lines = count === 2 ? 1 : count;
    return Array.from({ length: lines }, (_, k) => [...corner(places, k), ...corner(places, (k + 1) % count)]).flat();
}

/** The face of a left-out shape as triangles, nine numbers each. */
export function lostFace(building: Building, lost: number): number[] {
    const places = relative(building, building.lost[lost].corners);
    const triangles = Math.max(0, places.length / 3 - 2);
    const fan = (k: number): number[] => [...corner(places, 0), ...corner(places, k + 1), ...corner(places, k + 2)];
    return Array.from({ length: triangles }, (_, k) => fan(k)).flat();
}

/** Whether two places are one. */
function isPoint(places: readonly number[]): boolean {
    return corner(places, 0).every((value, k) => value === places[3 + k]);
}

/** Arrows for a left-out load, tail and tip, as long as `size`: downward unless its value is known to point up. */
export function lostArrows(building: Building, lost: number, size: number): number[] {
    const { ends, values } = building.lostLoads[lost];
    const places = relative(building, ends);
    if (places.length === 0) {
        return [];
    }
    const rise = (values[0] + values[1] > 0 ? -1 : 1) * size;
    return Array.from({ length: isPoint(places) ? 1 : kLineArrows }, (_, i) => {
        const part = i / (kLineArrows - 1);
        const [x, y, z] = [0, 1, 2].map((k) => places[k] + part * (places[3 + k] - places[k]));
        return [x, y, z + rise, x, y, z];
    }).flat();
}

/** The line of a left-out load; a point has none. */
export function lostLoadLine(building: Building, lost: number): number[] {
    const places = relative(building, building.lostLoads[lost].ends);
    return isPoint(places) ? [] : places;
}
