// Geometry whose vertices know only their place in a template; a shader fetches the data of their element from a
// texture. An instance is a block of elements, not one: graphics cards are slow at instances of few vertices.
import { BufferAttribute, InstancedBufferGeometry } from "three";

/** One element: its vertices, with up to four small numbers each that the shader reads, and its triangles. */
export interface Template {
    /** Four numbers up to 255 for each vertex. */
    vertices: Uint8Array;
    /** Three vertices for each triangle, counter-clockwise seen from outside. */
    triangles: readonly number[];
}

/** About so many vertices make a block. */
const kBlockVertices = 2048;

export class PulledGeometry extends InstancedBufferGeometry {
    /** Elements of a block. */
    readonly perBlock: number;
    readonly vertexCount: number;

    constructor(template: Template, readonly elements: number) {
        super();
        const own = template.vertices.length / 4;
        this.perBlock = Math.max(1, Math.min(elements, Math.floor(kBlockVertices / own)));
        this.vertexCount = own * elements;
        this.instanceCount = Math.ceil(elements / this.perBlock);
        this.setAttribute("corner", new BufferAttribute(repeated(template.vertices, this.perBlock), 4));
        this.setAttribute("slot", new BufferAttribute(slots(own, this.perBlock), 1));
        this.setIndex(new BufferAttribute(blockIndex(template.triangles, own, this.perBlock), 1));
    }
}

function repeated(bytes: Uint8Array, times: number): Uint8Array {
    const all = new Uint8Array(bytes.length * times);
    for (let i = 0; i < times; ++i) {
        all.set(bytes, i * bytes.length);
    }
    return all;
}

/** For each vertex of a block the element of the block to which it belongs. */
function slots(own: number, times: number): Uint16Array {
    return Uint16Array.from({ length: own * times }, (_, vertex) => Math.floor(vertex / own));
}

function blockIndex(triangles: readonly number[], own: number, times: number): Uint16Array {
    const index = new Uint16Array(triangles.length * times);
    for (let i = 0; i < index.length; ++i) {
        index[i] = triangles[i % triangles.length] + own * Math.floor(i / triangles.length);
    }
    return index;
}
