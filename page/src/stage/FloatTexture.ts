// Numbers for shaders that fetch them by index: texels of four floats, in rows of one width.
import { DataTexture, FloatType, RGBAFormat } from "three";

/** Texels a row: every graphics card takes textures that wide, and high enough for millions of texels. */
export const kRowTexels = 4096;

/** How many rows a number of texels takes; never 0, which no texture may have. */
export function rowsFor(texels: number): number {
    return Math.max(1, Math.ceil(texels / kRowTexels));
}

/** A texture of floats that is filled once. */
export class FloatTexture {
    /** Four numbers a texel. */
    readonly values: Float32Array;
    readonly texture: DataTexture;

    constructor(texels: number) {
        const rows = rowsFor(texels);
        this.values = new Float32Array(4 * kRowTexels * rows);
        this.texture = new DataTexture(this.values, kRowTexels, rows, RGBAFormat, FloatType);
        this.texture.needsUpdate = true;
    }

    /** Writes one texel: three numbers out of a list, and one more. */
    set(texel: number, list: ArrayLike<number>, from: number, last: number): void {
        const at = 4 * texel;
        this.values[at] = list[from];
        this.values[at + 1] = list[from + 1];
        this.values[at + 2] = list[from + 2];
        this.values[at + 3] = last;
    }

    dispose(): void {
        this.texture.dispose();
    }
}
