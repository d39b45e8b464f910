// Distributed loads as areas between their lines and their values, with arrows in them.
import type { ActingLoads } from "./ActingLoads";
import { LoadRows } from "./LoadRows";

/** How tall values are drawn. */
export interface AreaScale {
    /** The largest value, by size. */
    largest: number;
    /** How tall it is. */
    size: number;
}

/** Arrows in a piece at most: with those at both ends. */
const kMostArrows = 12;
/** Where an area is lower than this part of the size, an arrow would be a head alone. */
const kLowest = 0.05;

function mixed(from: number, to: number, part: number): number {
    return from * (1 - part) + to * part;
}

/** Draws straight pieces of loads, each between two places with heights above them, which may be negative. */
export class LoadAreas {
    readonly triangles = new LoadRows(Float32Array, 9);
    readonly edges = new LoadRows(Float32Array, 6);
    readonly arrows = new LoadRows(Float32Array, 6);

    private load = -1;
    /** Where the piece begins, and how it leads to its end. */
    private readonly from = new Float64Array(3);
    private readonly along = new Float64Array(3);
    private heightFrom = 0;
    private heightTo = 0;

    constructor(lines: ActingLoads["lines"], centre: readonly number[], private readonly scale: AreaScale) {
        const loads = lines.loads();
        const rows = lines.values();
        for (let row = 0; row < loads.length; ++row) {
            this.take(loads[row], rows, 9 * row, centre);
            const isLong = this.along[0] !== 0 || this.along[1] !== 0 || this.along[2] !== 0;
            if (isLong && (this.heightFrom !== 0 || this.heightTo !== 0)) {
                this.addEdges();
                this.addAreas();
                this.addArrows();
            }
        }
    }

    private take(load: number, rows: Float64Array, at: number, centre: readonly number[]): void {
        const { largest, size } = this.scale;
        this.load = load;
        for (let k = 0; k < 3; ++k) {
            this.from[k] = rows[at + k] - centre[k];
            this.along[k] = rows[at + 3 + k] - rows[at + k];
        }
        this.heightFrom = largest > 0 ? (-rows[at + 6] / largest) * size : 0;
        this.heightTo = largest > 0 ? (-rows[at + 7] / largest) * size : 0;
    }

    /** Puts the point at a part of the way, and above it. */
    private put(rows: LoadRows<Float32Array>, part: number, height: number): LoadRows<Float32Array> {
        const { from, along } = this;
        return rows.put(from[0] + part * along[0], from[1] + part * along[1], from[2] + part * along[2] + height);
    }

    /** Two points: a part of the way and a height each. */
    private addSegment(rows: LoadRows<Float32Array>, a: number, heightA: number, b: number, heightB: number): void {
        this.put(this.put(rows.begin(this.load), a, heightA), b, heightB);
    }

    /** Along the values and at both ends, not along the line. */
    private addEdges(): void {
        const { edges, heightFrom, heightTo } = this;
        this.addSegment(edges, 0, heightFrom, 1, heightTo);
        if (heightFrom !== 0) {
            this.addSegment(edges, 0, 0, 0, heightFrom);
        }
        if (heightTo !== 0) {
            this.addSegment(edges, 1, 0, 1, heightTo);
        }
    }

    /** Two triangles: cut by a diagonal, or where the values change their sign. */
    private addAreas(): void {
        const { heightFrom, heightTo } = this;
        const zero = heightFrom * heightTo < 0 ? heightFrom / (heightFrom - heightTo) : undefined;
        if (heightTo !== 0) {
            this.addTriangle(zero ?? 0, 0, 1, 0, 1, heightTo);
        }
        if (heightFrom !== 0) {
            this.addTriangle(0, 0, zero ?? 1, zero === undefined ? heightTo : 0, 0, heightFrom);
        }
    }

    /** Three points: a part of the way and a height each. */
    private addTriangle(a: number, heightA: number, b: number, heightB: number, c: number, heightC: number): void {
        const rows = this.put(this.triangles.begin(this.load), a, heightA);
        this.put(this.put(rows, b, heightB), c, heightC);
    }

    /** No farther from each other than the size, as far as they are not too many. */
    private addArrows(): void {
        const { size } = this.scale;
        const [x, y, z] = [this.along[0], this.along[1], this.along[2]];
        const gaps = Math.min(Math.ceil(Math.sqrt(x * x + y * y + z * z) / size), kMostArrows - 1);
        for (let k = 0; k <= gaps; ++k) {
            const height = mixed(this.heightFrom, this.heightTo, k / gaps);
            if (Math.abs(height) >= kLowest * size) {
                this.addSegment(this.arrows, k / gaps, height, k / gaps, 0);
            }
        }
    }
}
