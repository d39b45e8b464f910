// Arrows whose heads are as large on the screen wherever they are: forces with one head, moments with two.
import type { Drawing } from "./Drawing";
import type { Template } from "./PulledGeometry";
import { shapeDrawing, type ShapeLook, type Shapes } from "./Shapes";
import type { SharedUniforms } from "./SharedUniforms";

/** The shaft and two heads. Numbers of a vertex: along (0 or 1), across (0 to 2), and the part, 0 for the shaft. */
const kTemplate: Template = {
    vertices: Uint8Array.of(
        0, 0, 0, 0, 1, 0, 0, 0, 1, 2, 0, 0, 0, 2, 0, 0,
        0, 0, 1, 0, 1, 1, 1, 0, 0, 2, 1, 0,
        0, 0, 2, 0, 1, 1, 2, 0, 0, 2, 2, 0,
    ),
    triangles: [0, 1, 2, 0, 2, 3, 4, 5, 6, 7, 8, 9],
};

/** An arrow that begins or ends behind the eye is not drawn: nobody sees where it points. */
const kVertex = `
uniform vec3 colour;
uniform float width;
uniform float heads;
uniform float typicalLength;

bool isBehind(vec4 clip) {
    return clip.z < -clip.w;
}

void main() {
    int index = element();
    vec4 tail = texel(records, 2 * (first + index));
    vec4 tip = texel(records, 2 * (first + index) + 1);
    vec4 a = towardsEye(tail.xyz, 0.08 * typicalLength);
    vec4 b = towardsEye(tip.xyz, 0.08 * typicalLength);
    if (index >= elements || corner.z > heads || !isShown(tail.w) || isBehind(a) || isBehind(b)) {
        hide();
        return;
    }
    place(tip.xyz, colour);
    pickable(tip.w);
    vec3 from = a.xyz / a.w;
    vec3 to = b.xyz / b.w;
    vec2 way = (to.xy - from.xy) * viewport * 0.5;
    float pixels = length(way);
    vec2 along = pixels > 1e-6 ? way / pixels : vec2(1.0, 0.0);
    float head = min(6.5 * width * pixelRatio, 0.6 * pixels);
    bool isShaft = corner.z == 0.0;
    float back = isShaft ? head * corner.x : (corner.z - corner.x) * head;
    float reach = isShaft ? mix(0.0, pixels - back, corner.x) : pixels - back;
    float across = (corner.y - 1.0) * (isShaft ? 0.5 * width * pixelRatio : 0.38 * head);
    vec3 at = mix(from, to, pixels > 0.0 ? reach / pixels : 0.0);
    at.xy += vec2(-along.y, along.x) * across * 2.0 / viewport;
    gl_Position = vec4(at, 1.0);
}
`;

export interface ArrowLook extends ShapeLook {
    /** Of the shaft in CSS pixels; a head is 6.5 times as long. */
    width: number;
    heads: 1 | 2;
}

/** Each shape has two corners: the tail of the arrow and its tip. */
export function arrows(shapes: Shapes, { width, heads, ...look }: ArrowLook, shared: SharedUniforms): Drawing {
    const uniforms = { width: { value: width }, heads: { value: heads } };
    return shapeDrawing(shapes, { corners: 2, template: kTemplate, vertex: kVertex, uniforms }, look, shared);
}
