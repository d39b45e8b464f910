// Straight lines of one colour, as wide on the screen wherever they are.
import type { IUniform } from "three";
import type { Drawing } from "./Drawing";
import { lineTemplate } from "./LineTemplate";
import { kThickLine } from "./ShaderText";
import { shapeDrawing, type ShapeLook, type Shapes } from "./Shapes";
import type { SharedUniforms } from "./SharedUniforms";

const kVertex = `${kThickLine}
uniform vec3 colour;
uniform float width;
uniform float typicalLength;

void main() {
    int index = element();
    vec4 from = texel(records, 2 * (first + index));
    if (index >= elements || !isShown(from.w)) {
        hide();
        return;
    }
    vec4 to = texel(records, 2 * (first + index) + 1);
    place(corner.x < 0.5 ? from.xyz : to.xyz, colour);
    pickable(to.w);
    float way = 0.08 * typicalLength;
    vec4 start = towardsEye(from.xyz, way);
    thickLine(start, towardsEye(to.xyz, way), corner.x, corner.y - 1.0, width * pixelRatio);
}
`;

export interface LineLook extends ShapeLook {
    /** CSS pixels. */
    width: IUniform<number>;
}

export function segments(shapes: Shapes, { width, ...look }: LineLook, shared: SharedUniforms): Drawing {
    const kind = { corners: 2, template: lineTemplate(1), vertex: kVertex, uniforms: { width } } as const;
    return shapeDrawing(shapes, kind, look, shared);
}
