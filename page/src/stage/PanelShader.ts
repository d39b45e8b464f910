// The shaders of walls and plates: prisms with their edges drawn into their faces, or lines along the edges.
import { kThickLine } from "./ShaderText";

/** `vEdges` are ways from the edges of the face: 0 on the edge, 1 on the other side, 1 all over where none is seen. */
export const kPanelVertex = `
uniform float thickness;
out vec3 vWay;
out vec4 vEdges;

vec4 hasBits(int bits) {
    return vec4(ivec4(bits, bits >> 1, bits >> 2, bits >> 3) & 1);
}

void main() {
    int index = element();
    int at = TEXELS * index;
    vec4 head = texel(records, at);
    vec4 state = texel(states, int(head.w));
    vec4 own = texel(records, at + 1 + int(corner.x));
    int seen = int(own.w);
    int edge = int(corner.z) - 1;
    bool isHidden = edge >= 0 && (((seen >> edge) & 1) == 0 || thickness == 0.0);
    if (index >= elements || state.a == 0.0 || isHidden) {
        hide();
        return;
    }
    vEdges = hasBits(int(corner.w));
    if (edge < 0) {
        vEdges = max(vEdges, 1.0 - hasBits(seen));
    }
    vec3 vertex = own.xyz + head.xyz * ((corner.y - 1.0) * thickness);
    vWay = vertex - cameraPosition;
    pickable(head.w);
    bodyCorner(vertex, itemColour(state), -1e-4);
}
`;

/** Edges are as wide on the screen wherever they are, and give way where a face is only a few pixels small. */
export const kPanelFragment = `
uniform float opacity;
uniform float edgeStrength;
uniform float pixelRatio;
uniform vec3 lineColour;
in vec3 vWay;
in vec4 vEdges;

void main() {
    cut();
    vec4 change = max(fwidth(vEdges), 1e-6);
    vec4 pixels = vEdges / change;
    vec4 room = 1.0 - smoothstep(0.06, 0.2, change);
    vec4 near = (1.0 - smoothstep(0.4 * pixelRatio, 1.4 * pixelRatio, pixels)) * room;
    float edge = edgeStrength * max(max(near.x, near.y), max(near.z, near.w));
    vec3 normal = normalize(cross(dFdx(vWay), dFdy(vWay)));
    show(litBody(vShade.rgb, normal, lineColour, 0.75 * edge), mix(opacity, 1.0, 0.8 * edge));
}
`;

/** The third number of a vertex is the edge. */
export const kPanelLineVertex = `${kThickLine}
void main() {
    int index = element();
    int at = TEXELS * index;
    int edge = int(corner.z);
    vec4 state = texel(states, int(texel(records, at).w));
    vec4 from = texel(records, at + 1 + edge);
    if (index >= elements || state.a == 0.0 || ((int(from.w) >> edge) & 1) == 0) {
        hide();
        return;
    }
    vec3 to = texel(records, at + 1 + (edge + 1) % (TEXELS - 1)).xyz;
    place(corner.x < 0.5 ? from.xyz : to, itemColour(state) * 0.85);
    thickLine(onScreen(from.xyz, 0.0015), onScreen(to, 0.0015), corner.x, corner.y - 1.0, pixelRatio);
}
`;
