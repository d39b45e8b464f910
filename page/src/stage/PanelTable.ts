// The walls or the plates that are drawn, in a texture.
import { type Planars, PlanarType } from "../model/Planars";
import type { PlanarShapes } from "../model/PlanarShapes";
import { FloatTexture } from "./FloatTexture";
import { seenEdges } from "./SlabEdges";

export interface PanelTable {
    /**
     * A texel an element for the way from its middle plane to the face on the tip of its normal, with the item; and one
     * for each of its corners, with the bits of the edges that are seen.
     */
    records: FloatTexture;
    count: number;
    /** Of each element. */
    corners: 3 | 4;
}

/** Those of the walls, and those of the plates. `firstItem`: the item that is the first of `planars`. */
export function panelTables(shapes: PlanarShapes, planars: Planars, firstItem: number): [PanelTable, PanelTable] {
    const edges = seenEdges(planars, shapes.drawable);
    const isWall = (index: number): boolean => planars.type[shapes.drawable[index]] === PlanarType.Wall;
    const indexes = shapes.drawable.map((_, index) => index);
    return [
        panelTable(shapes, indexes.filter(isWall), edges, firstItem, 4),
        panelTable(shapes, indexes.filter((index) => !isWall(index)), edges, firstItem, 3),
    ];
}

function panelTable(
    shapes: PlanarShapes, indexes: Int32Array, edges: Uint8Array, firstItem: number, corners: 3 | 4,
): PanelTable {
    const { drawable, normals, halfThickness } = shapes;
    const records = new FloatTexture((1 + corners) * indexes.length);
    const half = new Float64Array(3);
    let texel = 0;
    for (const index of indexes) {
        for (let k = 0; k < 3; ++k) {
            half[k] = normals[3 * index + k] * halfThickness[index];
        }
        records.set(texel++, half, 0, firstItem + drawable[index]);
        for (let k = 0; k < corners; ++k) {
            records.set(texel++, shapes.corners, 12 * index + 3 * k, edges[index]);
        }
    }
    return { records, count: indexes.length, corners };
}
