// The outline of a combined section: an H with a T lying on each side of its web. A cross is one whose flanges are no
// wider than their webs.
import { isDrawable } from "./Box";
import { loopThrough } from "./OutlineLoops";

type Point = [number, number];

/** Half of a section and of one of its Ts, whose depth counts from the face of the web. */
interface Halves {
    height: number;
    flange: number;
    web: number;
    flangeThickness: number;
    deep: number;
    sideFlange: number;
    sideWeb: number;
    sideThickness: number;
}

/** A flange that is no wider than its web is a part of it. */
function halvesOf(dimensions: Float64Array): Halves {
    const [height, flange, web, flangeThickness, , deep, sideFlange, sideWeb, sideThickness] = dimensions;
    const hasFlange = flange > web;
    const hasSideFlange = sideFlange > sideWeb;
    return {
        height: height / 2,
        flange: (hasFlange ? flange : web) / 2,
        web: web / 2,
        flangeThickness: hasFlange ? flangeThickness : 0,
        deep,
        sideFlange: (hasSideFlange ? sideFlange : sideWeb) / 2,
        sideWeb: sideWeb / 2,
        sideThickness: hasSideFlange ? sideThickness : 0,
    };
}

/** Whether flanges and webs are there, stand apart, and fit between each other. */
function fits(h: Halves): boolean {
    const arePositive = [h.height, h.web, h.deep, h.sideWeb].every((value) => value > 0 && isDrawable(value));
    const areThere = [h.flangeThickness, h.sideThickness].every((value) => value >= 0);
    const bottom = h.height - h.flangeThickness;
    const standApart = h.web + h.deep - h.sideThickness >= h.flange || h.sideFlange <= bottom;
    const areDrawable = isDrawable(h.flange) && isDrawable(h.sideFlange);
    return arePositive && areThere && areDrawable && h.sideWeb <= bottom && h.sideThickness <= h.deep && standApart;
}

/** D11 to D15, D21 to D24. undefined: they make no section. */
export function combinedLoop(dimensions: Float64Array): Float64Array | undefined {
    const h = halvesOf(dimensions);
    if (!fits(h)) {
        return undefined;
    }
    const bottom = h.flangeThickness - h.height;
    const end = h.web + h.deep;
    const lowerRight: Point[] = [
        [h.flange, -h.height], [h.flange, bottom], [h.web, bottom], [h.web, -h.sideWeb],
        [end - h.sideThickness, -h.sideWeb], [end - h.sideThickness, -h.sideFlange], [end, -h.sideFlange],
    ];
    const upperRight = [...lowerRight].reverse().map(([y, z]): Point => [y, -z]);
    const right = [...lowerRight, ...upperRight];
    const left = [...right].reverse().map(([y, z]): Point => [-y, z]);
    return loopThrough([...right, ...left]);
}
