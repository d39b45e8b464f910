// The loads of a choice that can be drawn: where each acts and how, in absolute coordinates and global directions.
import { isPlace } from "./Box";
import type { Building } from "./Building";
import { emptyFrameAxes, endDistance, frameEnds } from "./FrameAxes";
import { LoadRows } from "./LoadRows";
import { isChosen, isDistributed, type LoadChoice, pairCount } from "./Loads";
import { cornerCount } from "./Planars";

/** The largest value of a load that is summed elsewhere, too: three of them still have a finite resultant. */
const kLargest = 1e300;

function areValues(values: Float64Array, first: number, count: number): boolean {
    for (let k = first; k < first + count; ++k) {
        if (!(Math.abs(values[k]) <= kLargest)) {
            return false;
        }
    }
    return true;
}

function hasPlace({ nodes }: Building, node: number): boolean {
    return node >= 0 && isPlace(nodes.x[node], nodes.y[node], nodes.z[node]);
}

export class ActingLoads {
    /** Rows of six: a place, and a force there. */
    readonly forces = new LoadRows(Float64Array, 6);
    /** Rows of six: a place, and a moment there. */
    readonly moments = new LoadRows(Float64Array, 6);
    /** Rows of nine: two places, the values there, in global Z for each length, and 0. */
    readonly lines = new LoadRows(Float64Array, 9);
    /** How many cannot be drawn: what they act on is missing, or a number is none. */
    leftOut = 0;

    private readonly ends = emptyFrameAxes();
    private readonly places = new Float64Array(12);

    constructor(private readonly building: Building, choice: LoadChoice) {
        const { nodal, frame, edge } = building.loads;
        this.addChosen(nodal.standing, choice, (index) => this.addNodal(index));
        this.addChosen(frame.standing, choice, (index) => this.addOnFrame(index));
        this.addChosen(edge.standing, choice, (index) => this.addOnEdge(index));
    }

    /** `add` returns whether the load can be drawn. */
    private addChosen(standing: Int32Array, choice: LoadChoice, add: (index: number) => boolean): void {
        for (let index = 0; index < standing.length; ++index) {
            if (isChosen(standing[index], choice) && !add(index)) {
                ++this.leftOut;
            }
        }
    }

    private addNodal(index: number): boolean {
        const { node, values } = this.building.loads.nodal;
        if (!hasPlace(this.building, node[index]) || !areValues(values, 6 * index, 6)) {
            return false;
        }
        this.addAtNode(this.forces, index, 6 * index);
        this.addAtNode(this.moments, index, 6 * index + 3);
        return true;
    }

    /** A force or a moment, unless it is 0. */
    private addAtNode(rows: LoadRows<Float64Array>, index: number, at: number): void {
        const { nodes, loads } = this.building;
        const { node, values } = loads.nodal;
        if (values[at] !== 0 || values[at + 1] !== 0 || values[at + 2] !== 0) {
            rows.begin(index)
                .put(nodes.x[node[index]], nodes.y[node[index]], nodes.z[node[index]])
                .put(values[at], values[at + 1], values[at + 2]);
        }
    }

    private addOnFrame(index: number): boolean {
        const { nodal, frame } = this.building.loads;
        const { places } = this;
        const load = nodal.count + index;
        const count = pairCount(frame, index);
        const first = 4 * index;
        const isDrawn = this.writePlaces(frame.frame[index], frame.places, first, count);
        if (!isDrawn || !areValues(frame.values, first, count)) {
            return false;
        }
        if (!isDistributed(frame, index) && frame.values[first] !== 0) {
            this.forces.begin(load).put(places[0], places[1], places[2]).put(0, 0, frame.values[first]);
        }
        for (let k = 1; k < count; ++k) {
            this.addLine(load, 3 * (k - 1), frame.values[first + k - 1], frame.values[first + k]);
        }
        return true;
    }

    /** Writes the places on the drawn line of a frame. False: one of them is none. */
    private writePlaces(frame: number, fractions: Float64Array, first: number, count: number): boolean {
        const { ends, places } = this;
        if (frame < 0 || !frameEnds(this.building, frame, ends) || endDistance(ends) === 0) {
            return false;
        }
        for (let k = 0; k < count; ++k) {
            const part = fractions[first + k];
            for (let axis = 0; axis < 3; ++axis) {
                places[3 * k + axis] = ends.endI[axis] + part * (ends.endJ[axis] - ends.endI[axis]);
            }
            if (!isPlace(places[3 * k], places[3 * k + 1], places[3 * k + 2])) {
                return false;
            }
        }
        return true;
    }

    private addOnEdge(index: number): boolean {
        const { loads, planars, nodes } = this.building;
        const planar = loads.edge.planar[index];
        const edge = loads.edge.edge[index];
        const corners = planar < 0 ? 0 : cornerCount(planars, planar);
        if (edge < 1 || edge > corners || !areValues(loads.edge.value, index, 1)) {
            return false;
        }
        for (let k = 0; k < 2; ++k) {
            const node = planars.nodes[4 * planar + ((edge - 1 + k) % corners)];
            if (!hasPlace(this.building, node)) {
                return false;
            }
            this.places.set([nodes.x[node], nodes.y[node], nodes.z[node]], 3 * k);
        }
        const value = loads.edge.value[index];
        this.addLine(loads.nodal.count + loads.frame.count + index, 0, value, value);
        return true;
    }

    /** Between two of the places that were written. */
    private addLine(load: number, at: number, valueFrom: number, valueTo: number): void {
        const { places } = this;
        this.lines.begin(load)
            .put(places[at], places[at + 1], places[at + 2])
            .put(places[at + 3], places[at + 4], places[at + 5])
            .put(valueFrom, valueTo, 0);
    }
}
