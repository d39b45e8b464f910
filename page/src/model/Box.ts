// A box along the global axes, and what counts as a place.

/** Absolute coordinates. */
export interface Box {
    min: [number, number, number];
    max: [number, number, number];
}

/** Farther from the origin than any building: a graphics card still squares it without an overflow. */
const kFarthest = 1e12;

/** Whether a coordinate or a dimension can be drawn: it is a number, and not too large to be one of a building. */
export function isDrawable(value: number): boolean {
    return Math.abs(value) <= kFarthest;
}

export function isPlace(x: number, y: number, z: number): boolean {
    return isDrawable(x) && isDrawable(y) && isDrawable(z);
}

/** Grows around what is added to it. */
export class BoxAround {
    private readonly min: Box["min"] = [Infinity, Infinity, Infinity];
    private readonly max: Box["max"] = [-Infinity, -Infinity, -Infinity];

    /** What is no place is left out. */
    add(x: number, y: number, z: number): void {
        if (isPlace(x, y, z)) {
            this.min[0] = Math.min(this.min[0], x);
            this.min[1] = Math.min(this.min[1], y);
            this.min[2] = Math.min(this.min[2], z);
            this.max[0] = Math.max(this.max[0], x);
            this.max[1] = Math.max(this.max[1], y);
            this.max[2] = Math.max(this.max[2], z);
        }
    }

    /** x, y, z of each point. */
    addAll(points: ArrayLike<number>): void {
        for (let i = 0; i + 2 < points.length; i += 3) {
            this.add(points[i], points[i + 1], points[i + 2]);
        }
    }

    /** undefined: nothing that was added is a place. */
    box(): Box | undefined {
        return this.min[0] <= this.max[0] ? { min: [...this.min], max: [...this.max] } : undefined;
    }
}
