// Shapes of one colour that own the data they are drawn from: lines, arrows, triangles and marks.
import type { IUniform, Vector3 } from "three";
import { Drawing, type Order, type Picked } from "./Drawing";
import { FloatTexture } from "./FloatTexture";
import type { Template } from "./PulledGeometry";
import { kPlainFragment } from "./ShaderText";
import type { SharedUniforms } from "./SharedUniforms";

/** Places of several shapes, with what shows or hides each, and the number that a pick finds. */
export interface Shapes {
    /** x, y, z of the corners of all shapes, relative to the centre of the building. */
    places: ArrayLike<number>;
    /** Of a shape by its index: an item; or -1, always shown; or -2 less the index of a story. */
    owner(index: number): number;
    number?(index: number): number;
}

export interface ShapeLook {
    colour: IUniform<Vector3>;
    opacity: number;
    order: Order;
    onTop?: boolean;
    hiddenOpacity?: number;
    uncut?: boolean;
    pick?: Picked;
}

/** How shapes of a kind are drawn. Their shaders find a texel for each corner: its place, and then owner and number. */
export interface ShapeKind {
    corners: 1 | 2 | 3;
    template: Template;
    vertex: string;
    /** Otherwise of one colour all over. */
    fragment?: string;
    uniforms: Record<string, IUniform>;
}

export const kAlwaysShown = -1;

/** The owner of a shape that is shown with a story, by its index; -1: always. */
export function storyOwner(story: number): number {
    return story < 0 ? kAlwaysShown : -2 - story;
}

export function shapeDrawing(shapes: Shapes, kind: ShapeKind, look: ShapeLook, shared: SharedUniforms): Drawing {
    const count = Math.floor(shapes.places.length / (3 * kind.corners));
    const { colour, opacity, ...rest } = look;
    return new Drawing({
        ...rest,
        template: kind.template,
        records: shapeRecords(shapes, kind.corners, count),
        ownsRecords: true,
        first: 0,
        count,
        vertex: kind.vertex,
        fragment: kind.fragment ?? kPlainFragment,
        uniforms: { ...kind.uniforms, colour, opacity: { value: opacity } },
        bothSides: true,
    }, shared);
}

function shapeRecords({ places, owner, number }: Shapes, corners: number, count: number): FloatTexture {
    const records = new FloatTexture(corners * count);
    for (let shape = 0; shape < count; ++shape) {
        const notes = [owner(shape), number === undefined ? 0 : number(shape), 0];
        for (let corner = 0; corner < corners; ++corner) {
            const texel = corners * shape + corner;
            records.set(texel, places, 3 * texel, notes[corner]);
        }
    }
    return records;
}
