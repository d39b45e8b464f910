// Round lengths for a scale bar.

/** CSS pixels that a scale bar is long at most. */
const kLongest = 140;

/** The longest of the lengths 1, 2, 5, 10, ... that fits, and its pixels; `unit`: units of the model a pixel. */
export function roundLength(unit: number): { length: number; pixels: number } {
    const power = 10 ** Math.floor(Math.log10(kLongest * unit));
    const digit = [5, 2, 1].find((times) => times * power <= kLongest * unit) ?? 1;
    const length = digit * power;
    return { length, pixels: length / unit };
}
