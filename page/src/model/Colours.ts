// Colours for many things at once: they can be told apart, also by most of those who see fewer colours, and stand out
// from a light or a dark ground.

/** 0xrrggbb from a lightness (0 to 1), a chroma and a hue (degrees) that are perceived evenly; the nearest there is. */
function perceivedColour(lightness: number, chroma: number, hue: number): number {
    const a = chroma * Math.cos((hue * Math.PI) / 180);
    const b = chroma * Math.sin((hue * Math.PI) / 180);
    const l = (lightness + 0.3963377774 * a + 0.2158037573 * b) ** 3;
    const m = (lightness - 0.1055613458 * a - 0.0638541728 * b) ** 3;
    const s = (lightness - 0.0894841775 * a - 1.291485548 * b) ** 3;
    const red = 4.0767416621 * l - 3.3077115913 * m + 0.2309699292 * s;
    const green = -1.2684380046 * l + 2.6097574011 * m - 0.3413193965 * s;
    const blue = -0.0041960863 * l - 0.7034186147 * m + 1.707614701 * s;
    return [red, green, blue].reduce((colour, linear) => 256 * colour + channel(linear), 0);
}

/** A channel from 0 to 255 as screens take it. */
function channel(linear: number): number {
    const within = Math.min(Math.max(linear, 0), 1);
    const encoded = within <= 0.0031308 ? 12.92 * within : 1.055 * within ** (1 / 2.4) - 0.055;
    return Math.round(255 * encoded);
}

/** Of `count` colours in an order, the one at an index: from dark blue to light yellow-green, by lightness as well. */
export function rampColour(index: number, count: number, dark: boolean): number {
    const part = count > 1 ? index / (count - 1) : 0;
    const lightness = dark ? 0.56 + 0.34 * part : 0.36 + 0.28 * part;
    return perceivedColour(lightness, 0.13, 275 - 155 * part);
}

/** Chosen one after the other, each as far as can be from all before, also as seen without red or green cones. */
const kDistinct = {
    light: [
        0x0072b2, 0x551600, 0xaa8400, 0x001f80, 0x9c3348, 0x499990, 0x2d2a45, 0x627fef, 0x0046a7, 0xad5010, 0x565b7a,
        0x5f3d06, 0x344270, 0x4191c5, 0xe65d76, 0x00905d, 0x543233, 0x0087a0, 0x6b65d7, 0x116352, 0xc65b4c, 0x764b00,
        0x005cb9, 0x2b5591,
    ],
    dark: [
        0x56b4e9, 0xab5300, 0xffdc3b, 0x7754c6, 0xfd717c, 0x83f6e1, 0xa7477d, 0xf9a200, 0x7885f8, 0x00d4c5, 0xa573b4,
        0xc08500, 0xb0da8e, 0x37b19e, 0xc65860, 0xbcc7ff, 0x00864a, 0x626a9d, 0xb6bf6a, 0xc7ef85, 0xddcd56, 0x987485,
        0x97965b, 0xf1dbba,
    ],
};

/** How many colours distinctColour has. */
export const kDistinctColours = kDistinct.light.length;

/** One of the colours for things in no order, by an index below kDistinctColours. */
export function distinctColour(index: number, dark: boolean): number {
    return kDistinct[dark ? "dark" : "light"][index];
}
