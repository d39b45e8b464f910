// Hinges and nodes as small rings that face the eye.
import type { IUniform, Vector4 } from "three";
import type { Drawing } from "./Drawing";
import type { Template } from "./PulledGeometry";
import { shapeDrawing, type ShapeLook, type Shapes } from "./Shapes";
import type { SharedUniforms } from "./SharedUniforms";

const kSquare: Template = {
    vertices: Uint8Array.of(0, 0, 0, 0, 2, 0, 0, 0, 2, 2, 0, 0, 0, 2, 0, 0),
    triangles: [0, 1, 2, 0, 2, 3],
};

/** A ring lies inside a body: its depth is that of a place before the body, towards the eye. */
const kVertex = `
uniform float typicalLength;
uniform float radius;
uniform float largest;
uniform vec3 colour;
out vec2 vWay;
out float vPixels;

void main() {
    int index = element();
    vec4 own = texel(records, first + index);
    if (index >= elements || !isShown(own.w)) {
        hide();
        return;
    }
    vec4 clip = towardsEye(own.xyz, 0.12 * typicalLength);
    vWay = corner.xy - 1.0;
    vPixels = min(radius * pixelRatio, largest * typicalLength / pixelSize(clip.w));
    place(own.xyz, colour);
    gl_Position = vec4(clip.xy + vWay * vPixels * 2.0 / viewport * clip.w, clip.zw);
}
`;

const kFragment = `
uniform vec4 inside;
uniform float width;
uniform float pixelRatio;
in vec2 vWay;
in float vPixels;

void main() {
    cut();
    float pixels = length(vWay) * vPixels;
    float outer = 1.0 - smoothstep(vPixels - 1.0, vPixels, pixels);
    float border = smoothstep(0.0, 1.0, pixels - (vPixels - 1.0 - width * pixelRatio));
    show(mix(inside.rgb, vShade.rgb, border), outer * mix(inside.a, 1.0, border));
}
`;

export interface DiscLook extends ShapeLook {
    /** Colour and opacity. */
    inside: IUniform<Vector4>;
    /** CSS pixels, of the disc and of its rim. */
    radius: IUniform<number>;
    width: number;
    /** The radius is at most this part of a typical length. */
    largest: number;
}

/** Each shape has one corner, the middle of the disc. */
export function discs(
    shapes: Shapes, { inside, radius, width, largest, ...look }: DiscLook, shared: SharedUniforms,
): Drawing {
    const uniforms = { inside, radius, width: { value: width }, largest: { value: largest } };
    const kind = { corners: 1, template: kSquare, vertex: kVertex, fragment: kFragment, uniforms } as const;
    return shapeDrawing(shapes, kind, look, shared);
}
