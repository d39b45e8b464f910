// Flat faces of one colour, seen from both sides.
import type { Drawing } from "./Drawing";
import type { Template } from "./PulledGeometry";
import { shapeDrawing, type ShapeLook, type Shapes } from "./Shapes";
import type { SharedUniforms } from "./SharedUniforms";

const kTemplate: Template = { vertices: Uint8Array.of(0, 0, 0, 0, 1, 0, 0, 0, 2, 0, 0, 0), triangles: [0, 1, 2] };

const kVertex = `
uniform vec3 colour;
uniform float typicalLength;

void main() {
    int index = element();
    int at = 3 * (first + index);
    float owner = texel(records, at).w;
    if (index >= elements || !isShown(owner)) {
        hide();
        return;
    }
    vec3 own = texel(records, at + int(corner.x)).xyz;
    place(own, colour);
    pickable(texel(records, at + 1).w);
    gl_Position = towardsEye(own, 0.08 * typicalLength);
}
`;

export function triangles(shapes: Shapes, look: ShapeLook, shared: SharedUniforms): Drawing {
    return shapeDrawing(shapes, { corners: 3, template: kTemplate, vertex: kVertex, uniforms: {} }, look, shared);
}
