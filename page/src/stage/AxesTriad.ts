// The global axes with their letters, in the lower left corner of the picture.
import { Drawing, Order } from "./Drawing";
import { FloatTexture } from "./FloatTexture";
import { lineTemplate } from "./LineTemplate";
import { kPlainFragment } from "./ShaderText";
import type { SharedUniforms } from "./SharedUniforms";

/** Strokes of X, Y and Z: x and y of both ends, in a box from -1 to 1. */
const kLetters = [
    [-0.8, -1, 0.8, 1, -0.8, 1, 0.8, -1],
    [-0.8, 1, 0, 0.1, 0.8, 1, 0, 0.1, 0, 0.1, 0, -1],
    [-0.8, 1, 0.8, 1, 0.8, 1, -0.8, -1, -0.8, -1, 0.8, -1],
];

/** Where the letter stands, as a multiple of the axis. */
const kLetterPlace = 1.32;

/** A stroke has two texels, one an end: how far along its axis, which axis, and how far beside that on the screen. */
const kVertex = `
uniform vec3 background;
uniform vec3 textColour;

const vec3 kColours[3] = vec3[3](vec3(0.84, 0.26, 0.24), vec3(0.24, 0.62, 0.30), vec3(0.25, 0.45, 0.90));

vec2 besides(vec4 end) {
    return mat3(viewMatrix)[int(end.y)].xy * end.x * 36.0 + end.zw * 4.5;
}

void main() {
    int index = element();
    vec4 from = texel(records, 2 * index);
    vec4 to = texel(records, 2 * index + 1);
    vec3 axis = mat3(viewMatrix)[int(from.y)];
    // An axis that points at the eye is a dot with a letter on it.
    if (index >= elements || length(axis.xy) < 0.12) {
        hide();
        return;
    }
    vec2 a = besides(from);
    vec2 b = besides(to);
    vec2 along = length(b - a) > 1e-3 ? normalize(b - a) : vec2(1.0, 0.0);
    vec2 across = vec2(-along.y, along.x);
    bool isLetter = from.x > 1.0;
    float reach = isLetter ? 0.7 : 1.1;
    vec2 at = mix(a, b, corner.x) + (across * (corner.y - 1.0) + along * (2.0 * corner.x - 1.0)) * reach;
    // What points away from the eye is paler.
    float away = clamp(-axis.z, 0.0, 1.0);
    vShade = vec4(mix(isLetter ? textColour : kColours[int(from.y)], background, 0.55 * away), 0.0);
    gl_Position = vec4((at + 52.0) * pixelRatio * 2.0 / viewport - 1.0, 0.0, 1.0);
}
`;

export function axesTriad(shared: SharedUniforms): Drawing {
    const strokes = kLetters.flatMap((letter, axis) => {
        const ends = [[0, axis, 0, 0], [1, axis, 0, 0]];
        for (let i = 0; i < letter.length; i += 2) {
            ends.push([kLetterPlace, axis, letter[i], letter[i + 1]]);
        }
        return ends;
    });
    const records = new FloatTexture(strokes.length);
    strokes.forEach((end, texel) => records.set(texel, end, 0, end[3]));
    return new Drawing({
        template: lineTemplate(1),
        records,
        ownsRecords: true,
        first: 0,
        count: strokes.length / 2,
        vertex: kVertex,
        fragment: kPlainFragment,
        order: Order.Axes,
        uniforms: { opacity: { value: 1 } },
        onTop: true,
        uncut: true,
        bothSides: true,
    }, shared);
}
