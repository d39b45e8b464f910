// Frame elements as lines: all of them in line style; in solid style those whose section has no shape.
import { Drawing, Order, Picked } from "./Drawing";
import type { FrameRange, FrameTable } from "./FrameTable";
import { lineTemplate } from "./LineTemplate";
import { kPlainFragment, kThickLine } from "./ShaderText";
import type { SharedUniforms } from "./SharedUniforms";

const kVertex = `${kThickLine}
void main() {
    int index = element();
    vec3 i = texel(records, 3 * (first + index)).xyz;
    vec3 j = texel(records, 3 * (first + index) + 1).xyz;
    float item = texel(records, 3 * (first + index) + 2).w;
    vec4 state = texel(states, int(item));
    if (index >= elements || state.a == 0.0) {
        hide();
        return;
    }
    place(corner.x < 0.5 ? i : j, itemColour(state));
    pickable(item);
    thickLine(onScreen(i, 0.003), onScreen(j, 0.003), corner.x, corner.y - 1.0, 1.8 * pixelRatio);
}
`;

export function frameLines(table: FrameTable, range: FrameRange, shared: SharedUniforms): Drawing {
    return new Drawing({
        template: lineTemplate(1),
        records: table.records,
        ...range,
        vertex: kVertex,
        fragment: kPlainFragment,
        order: Order.Opaque,
        uniforms: { opacity: { value: 1 } },
        bothSides: true,
        pick: Picked.Item,
    }, shared);
}
