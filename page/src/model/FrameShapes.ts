// All frame elements that can be drawn, as arrays for the graphics card.
import type { Building } from "./Building";
import { emptyFrameAxes, frameAxes } from "./FrameAxes";
import { type Outline, sectionOutline } from "./SectionOutline";

/** One index a drawn frame; positions are relative to building.centre. */
export interface FrameShapes {
    /** Frames with two ends that have a place, and a length. */
    drawable: Int32Array;
    /** Six numbers a frame: the drawn ends i and j. */
    ends: Float32Array;
    /** Three numbers a frame: unit vectors. */
    axisY: Float32Array;
    axisZ: Float32Array;
    /** Indexes into `outlines`; -1: the section has no shape, and the frame is a line. */
    outline: Int32Array;
    outlines: Outline[];
}

function sectionOutlines(building: Building): { outlines: Outline[]; outlineOf: Map<number, number> } {
    const outlines: Outline[] = [];
    const outlineOf = new Map<number, number>();
    for (const [number, section] of building.sections) {
        const outline = sectionOutline(section);
        if (outline !== undefined) {
            outlineOf.set(number, outlines.length);
            outlines.push(outline);
        }
    }
    return { outlines, outlineOf };
}

export function frameShapes(building: Building): FrameShapes {
    const { frames, centre } = building;
    const { outlines, outlineOf } = sectionOutlines(building);
    const drawable = new Int32Array(frames.count);
    const ends = new Float32Array(6 * frames.count);
    const axisY = new Float32Array(3 * frames.count);
    const axisZ = new Float32Array(3 * frames.count);
    const outline = new Int32Array(frames.count);
    const axes = emptyFrameAxes();
    let count = 0;
    for (let frame = 0; frame < frames.count; ++frame) {
        if (frameAxes(building, frame, axes)) {
            for (let k = 0; k < 3; ++k) {
                ends[6 * count + k] = axes.endI[k] - centre[k];
                ends[6 * count + 3 + k] = axes.endJ[k] - centre[k];
            }
            axisY.set(axes.axisY, 3 * count);
            axisZ.set(axes.axisZ, 3 * count);
            outline[count] = outlineOf.get(frames.section[frame]) ?? -1;
            drawable[count++] = frame;
        }
    }
    return {
        drawable: drawable.subarray(0, count),
        ends: ends.subarray(0, 6 * count),
        axisY: axisY.subarray(0, 3 * count),
        axisZ: axisZ.subarray(0, 3 * count),
        outline: outline.subarray(0, count),
        outlines,
    };
}
