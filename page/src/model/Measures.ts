// Lengths and areas of items, in units of the model.
import type { Building } from "./Building";
import { endDistance, frameEnds } from "./FrameAxes";
import { planarCorners, planarNormal } from "./PlanarCorners";

const kEnds = { endI: new Float64Array(3), endJ: new Float64Array(3) };
const kCorners = new Float64Array(12);
const kNormal = new Float64Array(3);

/** Between the drawn ends of a frame, end offsets included; NaN: an end has no place. */
export function frameLength(building: Building, frame: number): number {
    return frameEnds(building, frame, kEnds) ? endDistance(kEnds) : NaN;
}

/** Of a wall or plate, by index into building.planars; NaN: a corner has no place. */
export function planarArea(building: Building, planar: number): number {
    return planarCorners(building, planar, kCorners) ? planarNormal(kCorners, kNormal) : NaN;
}
