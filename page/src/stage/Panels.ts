// Walls, or plates. In solid style they are prisms, in line style their edges and a hint of their faces.
import { Drawing, Order, Picked } from "./Drawing";
import { lineTemplate } from "./LineTemplate";
import { kPanelFragment, kPanelLineVertex, kPanelVertex } from "./PanelShader";
import type { PanelTable } from "./PanelTable";
import type { Template } from "./PulledGeometry";
import { kPlainFragment } from "./ShaderText";
import type { SharedUniforms } from "./SharedUniforms";

/**
 * Two faces beside the middle plane, and a face of four vertices on each edge. Numbers of a vertex: its corner; its
 * side of the middle plane, 0 or 2; 0, or for a face on an edge that edge and 1; and as bits the edges of its face on
 * which it does not lie.
 */
function prismTemplate(corners: number): Template {
    const each = Array.from({ length: corners }, (_, k) => k);
    const away = (k: number): number => 15 - (1 << k) - (1 << ((k + corners - 1) % corners));
    const far = each.flatMap((k) => [k, 2, 0, away(k)]);
    const near = each.flatMap((k) => [k, 0, 0, away(k)]);
    const onEdge = (k: number): number[] => {
        const next = (k + 1) % corners;
        return [k, 0, k + 1, 0b0110, next, 0, k + 1, 0b1100, next, 2, k + 1, 0b1001, k, 2, k + 1, 0b0011];
    };
    const fan = each.slice(2).flatMap((k) => [0, k - 1, k]);
    return {
        vertices: Uint8Array.from([...far, ...near, ...each.flatMap(onEdge)]),
        triangles: [
            ...fan, ...[...fan].reverse().map((vertex) => corners + vertex),
            ...each.flatMap((k) => [0, 1, 2, 0, 2, 3].map((vertex) => 2 * corners + 4 * k + vertex)),
        ],
    };
}

/** How walls or plates look. */
export interface PanelLook {
    opacity: number;
    /** 1: as thick as they are; 0: only their middle planes. */
    thickness: 0 | 1;
    /** Their edges are lines, which are seen from all sides, and not drawn into their faces. */
    areLines: boolean;
}

export class Panels {
    readonly drawings: readonly Drawing[];
    private readonly faces: Drawing;
    private readonly lines: Drawing;
    private readonly thickness = { value: 1 };
    private readonly opacity = { value: 1 };
    private readonly edgeStrength = { value: 1 };

    constructor({ records, count, corners }: PanelTable, shared: SharedUniforms) {
        const part = { records, first: 0, count, defines: { TEXELS: 1 + corners } };
        const { thickness, opacity, edgeStrength } = this;
        this.faces = new Drawing({
            ...part,
            template: prismTemplate(corners),
            vertex: kPanelVertex,
            fragment: kPanelFragment,
            order: Order.Opaque,
            uniforms: { thickness, opacity, edgeStrength },
            pick: Picked.Item,
        }, shared);
        this.lines = new Drawing({
            ...part,
            template: lineTemplate(corners),
            vertex: kPanelLineVertex,
            fragment: kPlainFragment,
            order: Order.Opaque,
            uniforms: { opacity: { value: 1 } },
            bothSides: true,
        }, shared);
        this.drawings = [this.faces, this.lines];
    }

    setLook({ opacity, thickness, areLines }: PanelLook): void {
        this.thickness.value = thickness;
        this.opacity.value = opacity;
        this.edgeStrength.value = areLines ? 0 : 1;
        this.faces.setOrder(opacity < 1 ? Order.Faces : Order.Opaque);
        this.faces.visible = true;
        this.lines.visible = areLines;
    }
}
