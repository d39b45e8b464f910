// Frame elements as bodies: a drawing for each group of section outlines.
import { Drawing, Order, Picked } from "./Drawing";
import type { FrameTable } from "./FrameTable";
import type { SharedUniforms } from "./SharedUniforms";

/** Only the end and the corner of this vertex are looked up, since many vertices make the time of a frame. */
const kVertex = `
uniform sampler2D corners;
uniform float typicalLength;
out vec3 vWay;
out vec2 vEdges;
#ifdef ROUND
out vec3 vRound;
#endif

void main() {
    int index = element();
    int at = 3 * (first + index);
    vec4 q = texel(records, at + 2);
    vec4 state = texel(states, int(q.w));
    if (index >= elements || state.a == 0.0) {
        hide();
        return;
    }
    float turn = sqrt(max(0.0, 1.0 - dot(q.xyz, q.xyz)));
    vec3 doubled = 2.0 * q.xyz;
    vec3 axisY = vec3(q.y * doubled.x, 1.0 - q.x * doubled.x - q.z * doubled.z, q.y * doubled.z)
        + turn * vec3(-doubled.z, 0.0, doubled.x);
    vec3 axisZ = vec3(q.z * doubled.x, q.z * doubled.y, 1.0 - q.x * doubled.x - q.y * doubled.y)
        + turn * vec3(doubled.y, -doubled.x, 0.0);
    vec3 axisX = cross(axisY, axisZ);
    vec4 end = texel(records, at + int(corner.y));
    vec4 outline = texel(corners, int(end.w) + int(corner.x));
    // Steel sticks out of its concrete by a hair, where both ends would lie in one plane.
    vec3 hair = axisX * (corner.z * (2.0 * corner.y - 1.0) * 5e-4 * typicalLength);
    vec3 own = end.xyz + axisY * outline.x + axisZ * outline.y + hair;
    vWay = own - cameraPosition;
    vEdges = vec2(mod(corner.x, 2.0), corner.y);
#ifdef ROUND
    vRound = axisY * outline.z + axisZ * outline.w;
#endif
    pickable(q.w);
    // Columns stand before beams that are flush with them.
    bodyCorner(own, itemColour(state) * (1.0 - 0.3 * corner.z), 1e-4 * abs(axisX.z));
}
`;

/**
 * Neighbouring faces share their vertices. The normal comes from how the place changes over the pixel. `vEdges` runs
 * from 0 to 1 or back across each face, since loops have even numbers of corners, and along it: edges are where either
 * ends.
 */
const kFragment = `
uniform float pixelRatio;
uniform vec3 lineColour;
in vec3 vWay;
in vec2 vEdges;
#ifdef ROUND
in vec3 vRound;
#endif

void main() {
    cut();
    vec3 normal = normalize(cross(dFdx(vWay), dFdy(vWay)));
    vec2 change = fwidth(vEdges);
    bool isEnd = change.y < 1e-5;
    vec2 pixels = min(vEdges, 1.0 - vEdges) / max(change, 1e-7);
    vec2 near = (1.0 - smoothstep(0.2 * pixelRatio, 1.2 * pixelRatio, pixels)) * (1.0 - smoothstep(0.07, 0.25, change));
#ifdef ROUND
    normal = isEnd ? normal : normalize(vRound);
    near.x = 0.0;
#endif
    float edge = isEnd ? 0.0 : max(near.x, near.y);
    show(litBody(vShade.rgb, normal, lineColour, 0.4 * edge), 1.0);
}
`;

export function frameSolids(table: FrameTable, shared: SharedUniforms): Drawing[] {
    return table.bodies.filter(({ count }) => count > 0).map(({ first, count, group }) => new Drawing({
        template: group.template,
        records: table.records,
        first,
        count,
        vertex: kVertex,
        fragment: kFragment,
        order: Order.Opaque,
        uniforms: { corners: { value: table.corners.texture } },
        defines: group.isRound ? { ROUND: 1 } : {},
        pick: Picked.Item,
    }, shared));
}
