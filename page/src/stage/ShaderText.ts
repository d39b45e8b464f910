// What the shaders of the stage share: looking up elements and items, hiding, cutting, light and depth.

const kPrecision = `
precision highp float;
precision highp int;
precision highp sampler2D;
`;

/** Goes before every vertex shader. */
export const kVertexHead = `${kPrecision}
in float slot;
in vec4 corner;
uniform vec3 cameraPosition;
uniform mat4 viewMatrix;
uniform mat4 projectionMatrix;
uniform int perBlock;
uniform int first;
uniform int elements;
uniform sampler2D records;
uniform sampler2D states;
uniform vec2 stories;
uniform vec2 viewport;
uniform float pixelRatio;
uniform vec4 plane;
uniform vec3 fade;
uniform vec3 selection;
out vec4 vShade;
#ifdef CUT
out float vCut;
#endif
#ifdef PICKED
out vec3 vPicked;
#endif

vec4 texel(sampler2D data, int index) {
    return texelFetch(data, ivec2(index & 4095, index >> 12), 0);
}

// The element of this vertex, counted from the first of the drawing; elements or more: a block holds no more of them.
int element() {
    return gl_InstanceID * perBlock + int(slot);
}

// Puts all vertices of what is not drawn into one point outside the picture.
void hide() {
    gl_Position = vec4(2.0, 2.0, 2.0, 1.0);
}

// An owner is an item; or -1, always shown; or -2 less the index of a story.
bool isShown(float owner) {
    if (owner >= 0.0) {
        return texel(states, int(owner)).a > 0.0;
    }
    float story = -2.0 - owner;
    return story < 0.0 || (story >= stories.x && story <= stories.y);
}

vec3 itemColour(vec4 state) {
    return state.a == 1.0 ? selection : state.rgb;
}

bool isParallel() {
    return projectionMatrix[3][3] == 1.0;
}

// Units of the model that a pixel is wide at a place on the screen with this w.
float pixelSize(float w) {
    return 2.0 * w / (projectionMatrix[1][1] * viewport.y);
}

// The place on the screen of a place before the eye, with a depth that is nearer by a part of the way: what lies in one
// plane with other things stands before them, or behind them where the part is negative.
vec4 nudged(vec3 view, float part) {
    vec4 clip = projectionMatrix * vec4(view, 1.0);
    if (isParallel()) {
        clip.z -= part;
    } else {
        clip.z += projectionMatrix[3][2] * part / (1.0 - part);
    }
    return clip;
}

vec4 onScreen(vec3 at, float part) {
    return nudged((viewMatrix * vec4(at, 1.0)).xyz, part);
}

// As nudged, by a way in units of the model: out of a body around the place.
vec4 towardsEye(vec3 at, float way) {
    vec3 view = (viewMatrix * vec4(at, 1.0)).xyz;
    if (isParallel()) {
        return nudged(view, -projectionMatrix[2][2] * way);
    }
    return nudged(view, view.z < 0.0 ? min(0.4, -way / view.z) : 0.0);
}

// What the fragment shader needs to know about a place: its colour, how far it fades, on which side of the cut it is.
void look(vec3 at, float depth, vec3 colour) {
    vShade = vec4(colour, fade.z * clamp((depth - fade.x) / (fade.y - fade.x), 0.0, 1.0));
#ifdef CUT
    vCut = dot(plane.xyz, at) - plane.w;
#endif
}

void place(vec3 at, vec3 colour) {
    look(at, -(viewMatrix * vec4(at, 1.0)).z, colour);
}

// A corner of a body.
void bodyCorner(vec3 at, vec3 colour, float part) {
    vec3 view = (viewMatrix * vec4(at, 1.0)).xyz;
    look(at, -view.z, colour);
    gl_Position = nudged(view, part);
}

void pickable(float index) {
#ifdef PICKED
    float number = index + 1.0;
    vPicked = vec3(mod(number, 256.0), mod(floor(number / 256.0), 256.0), floor(number / 65536.0)) / 255.0;
#endif
}
`;

/**
 * A thick line between two places on the screen: `end` is 0 or 1, `side` -1 or 1, the width in pixels of the device.
 * The part behind the eye is cut off first, where a projection would turn it around.
 */
export const kThickLine = `
vec4 clippedEnd(vec4 end, vec4 other) {
    float before = end.z + end.w;
    float otherBefore = other.z + other.w;
    return before >= 0.0 || otherBefore <= 0.0 ? end : mix(end, other, before / (before - otherBefore));
}

void thickLine(vec4 start, vec4 finish, float end, float side, float width) {
    vec4 a = clippedEnd(start, finish);
    vec4 b = clippedEnd(finish, start);
    vec2 along = (b.xy / b.w - a.xy / a.w) * viewport;
    float pixels = length(along);
    along = pixels > 1e-6 ? along / pixels : vec2(1.0, 0.0);
    vec2 offset = (vec2(-along.y, along.x) * side + along * (2.0 * end - 1.0)) * width;
    vec4 clip = end < 0.5 ? a : b;
    gl_Position = clip + vec4(offset / viewport * clip.w, 0.0, 0.0);
}
`;

/** Goes before every fragment shader. */
export const kFragmentHead = `${kPrecision}
uniform vec3 background;
uniform vec3 light;
in vec4 vShade;
#ifdef CUT
in float vCut;
#endif
out vec4 colour;

void cut() {
#ifdef CUT
    if (vCut > 0.0) {
        discard;
    }
#endif
}

// A bright sky, a dim ground, and a light from above the shoulder.
vec3 lit(vec3 base, vec3 normal) {
    float sky = 0.5 + 0.5 * normal.z;
    float key = max(dot(normal, light), 0.0);
    return base * (0.58 + 0.18 * sky + 0.36 * key) + 0.04 * key;
}

// A body with its edges, as strong as edge. The flat inside of one that is cut open looks filled.
vec3 litBody(vec3 base, vec3 normal, vec3 line, float edge) {
#ifdef CUT
    if (!gl_FrontFacing) {
        return base * 0.62;
    }
#endif
    return mix(lit(base, normal), line, edge);
}

void show(vec3 shaded, float opacity) {
    colour = vec4(mix(shaded, background, vShade.a), opacity);
}
`;

/** Of what has one colour all over. */
export const kPlainFragment = `
uniform float opacity;
void main() {
    cut();
    show(vShade.rgb, opacity);
}
`;

/** Draws the number of an element instead of its look. */
export const kPickFragment = `${kPrecision}
in vec3 vPicked;
#ifdef CUT
in float vCut;
#endif
out vec4 colour;
void main() {
#ifdef CUT
    if (vCut > 0.0) {
        discard;
    }
#endif
    colour = vec4(vPicked, PICKED);
}
`;
