// A plane across one of the global axes that cuts the building open.
import type { Vector4 } from "three";
import type { Building } from "../model/Building";

export interface SectionPlane {
    axis: "x" | "y" | "z";
    /** Absolute coordinate. */
    at: number;
    /** False: what lies beyond, along the axis, is cut off. True: what lies before. */
    flipped: boolean;
}

/** Writes the unit vector towards what is cut off, and how far along it from the centre the plane lies. */
export function writePlane({ axis, at, flipped }: SectionPlane, centre: Building["centre"], into: Vector4): void {
    const index = { x: 0, y: 1, z: 2 }[axis];
    const sign = flipped ? -1 : 1;
    into.set(0, 0, 0, sign * (at - centre[index]));
    into.setComponent(index, sign);
}
