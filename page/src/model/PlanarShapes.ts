// All walls and plates that can be drawn, as arrays for the graphics card.
import { isDrawable } from "./Box";
import type { Building } from "./Building";
import { planarCorners, planarNormal } from "./PlanarCorners";

/** One index a drawn wall or plate; positions are relative to building.centre. */
export interface PlanarShapes {
    /** Indexes into building.planars: those whose corners have places, and that have an area. */
    drawable: Int32Array;
    /** Twelve numbers each: four corners in order around it. A triangle repeats its third. */
    corners: Float32Array;
    /** Three numbers each: unit vectors, counter-clockwise corners seen from their tip. */
    normals: Float32Array;
    /** Half of the thickness, to each side of the plane; 0: unknown, or none that can be drawn. */
    halfThickness: Float32Array;
}

/** Half of the thickness of a wall or plate; 0: unknown, or none that can be drawn. */
export function halfThicknessOf(building: Building, planar: number): number {
    const thickness = building.thicknesses.get(building.planars.thickness[planar]) ?? 0;
    return isDrawable(thickness) && thickness > 0 ? thickness / 2 : 0;
}

export function planarShapes(building: Building): PlanarShapes {
    const { planars, centre } = building;
    const drawable = new Int32Array(planars.count);
    const corners = new Float32Array(12 * planars.count);
    const normals = new Float32Array(3 * planars.count);
    const halfThickness = new Float32Array(planars.count);
    const own = new Float64Array(12);
    const normal = new Float64Array(3);
    let count = 0;
    for (let planar = 0; planar < planars.count; ++planar) {
        if (planarCorners(building, planar, own) && planarNormal(own, normal) > 0) {
            for (let k = 0; k < 12; ++k) {
                corners[12 * count + k] = own[k] - centre[k % 3];
            }
            normals.set(normal, 3 * count);
            halfThickness[count] = halfThicknessOf(building, planar);
            drawable[count++] = planar;
        }
    }
    return {
        drawable: drawable.subarray(0, count),
        corners: corners.subarray(0, 12 * count),
        normals: normals.subarray(0, 3 * count),
        halfThickness: halfThickness.subarray(0, count),
    };
}
