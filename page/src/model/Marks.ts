// Small marks on the building: supports, hinges and rigid links to offset ends. Positions are relative to its centre.
import { isPlace } from "./Box";
import type { Building } from "./Building";
import { emptyFrameAxes, endDistance, type FrameAxes, frameEnds } from "./FrameAxes";
import { Hinge } from "./Frames";

export interface Marks {
    /** Three numbers a support. */
    supports: Float32Array;
    /** Indexes of the supported nodes, whose stories building.nodeStory tells. */
    supportNode: Int32Array;
    /** Three numbers a hinge: a point a little inside its end. */
    hinges: Float32Array;
    /** Indexes of the frames. */
    hingeFrame: Int32Array;
    /** Six numbers a rigid link: from the node to the drawn end. */
    links: Float32Array;
    /** Indexes of the frames. */
    linkFrame: Int32Array;
}

/** How far inside its end a hinge is drawn, as a fraction of the length. */
const kHingeInset = 0.05;

function supportMarks({ nodes, supports, centre }: Building): Pick<Marks, "supports" | "supportNode"> {
    const supportNode = supports.filter((node) => isPlace(nodes.x[node], nodes.y[node], nodes.z[node]));
    const places = new Float32Array(3 * supportNode.length);
    supportNode.forEach((node, i) => {
        places.set([nodes.x[node] - centre[0], nodes.y[node] - centre[1], nodes.z[node] - centre[2]], 3 * i);
    });
    return { supports: places, supportNode };
}

/** The coordinates of a place at a fraction of the way from end i to end j. */
function between({ endI, endJ }: Pick<FrameAxes, "endI" | "endJ">, part: number, { centre }: Building): number[] {
    return centre.map((middle, k) => endI[k] + part * (endJ[k] - endI[k]) - middle);
}

function hingeMarks(building: Building): Pick<Marks, "hinges" | "hingeFrame"> {
    const hinges: number[] = [];
    const hingeFrame: number[] = [];
    const ends = emptyFrameAxes();
    building.frames.hinges.forEach((bits, frame) => {
        if (bits === 0 || !frameEnds(building, frame, ends) || endDistance(ends) === 0) {
            return;
        }
        for (const [bit, part] of [[Hinge.AtI, kHingeInset], [Hinge.AtJ, 1 - kHingeInset]]) {
            if ((bits & bit) !== 0) {
                hinges.push(...between(ends, part, building));
                hingeFrame.push(frame);
            }
        }
    });
    return { hinges: Float32Array.from(hinges), hingeFrame: Int32Array.from(hingeFrame) };
}

function linkMarks(building: Building): Pick<Marks, "links" | "linkFrame"> {
    const { frames, nodes, centre } = building;
    const links: number[] = [];
    const linkFrame: number[] = [];
    const ends = emptyFrameAxes();
    const add = (frame: number, node: number, end: Float64Array): void => {
        const from = [nodes.x[node], nodes.y[node], nodes.z[node]];
        if (from.some((value, k) => value !== end[k])) {
            links.push(...from.map((value, k) => value - centre[k]), ...end.map((value, k) => value - centre[k]));
            linkFrame.push(frame);
        }
    };
    frames.offset.forEach((offset, frame) => {
        if (offset >= 0 && frameEnds(building, frame, ends)) {
            add(frame, frames.nodeI[frame], ends.endI);
            add(frame, frames.nodeJ[frame], ends.endJ);
        }
    });
    return { links: Float32Array.from(links), linkFrame: Int32Array.from(linkFrame) };
}

export function marks(building: Building): Marks {
    return { ...supportMarks(building), ...hingeMarks(building), ...linkMarks(building) };
}
