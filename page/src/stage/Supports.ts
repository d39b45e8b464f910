// Supports as small pyramids under their nodes, which grow within limits the farther away they are.
import type { Drawing } from "./Drawing";
import type { Template } from "./PulledGeometry";
import { shapeDrawing, type ShapeLook, type Shapes } from "./Shapes";
import type { SharedUniforms } from "./SharedUniforms";

/** The tip and four corners of the base. Numbers of a vertex: x, y from 0 to 2, and 1 at the base. */
const kPyramid: Template = {
    vertices: Uint8Array.of(1, 1, 0, 0, 0, 0, 1, 0, 2, 0, 1, 0, 2, 2, 1, 0, 0, 2, 1, 0),
    triangles: [0, 1, 2, 0, 2, 3, 0, 3, 4, 0, 4, 1, 1, 4, 3, 1, 3, 2],
};

const kVertex = `
uniform float typicalLength;
uniform vec3 colour;
out vec3 vPlace;

void main() {
    int index = element();
    vec4 node = texel(records, first + index);
    if (index >= elements || !isShown(node.w)) {
        hide();
        return;
    }
    float w = (projectionMatrix * viewMatrix * vec4(node.xyz, 1.0)).w;
    float size = clamp(8.0 * pixelRatio * pixelSize(w), 0.1 * typicalLength, 0.16 * typicalLength);
    vPlace = vec3(corner.xy - 1.0, -1.7 * corner.z) * size;
    place(node.xyz + vPlace, colour);
    gl_Position = onScreen(node.xyz + vPlace, 0.001);
}
`;

const kFragment = `
in vec3 vPlace;

void main() {
    cut();
    show(lit(vShade.rgb, normalize(cross(dFdx(vPlace), dFdy(vPlace)))), 1.0);
}
`;

/** Each shape has one corner, the node. */
export function supports(shapes: Shapes, look: ShapeLook, shared: SharedUniforms): Drawing {
    const kind = { corners: 1, template: kPyramid, vertex: kVertex, fragment: kFragment, uniforms: {} } as const;
    return shapeDrawing(shapes, kind, look, shared);
}
