// What did not come into the model, in the colour of warnings and over everything else: left-out walls, slabs and
// openings as faces with a rim, left-out loads as arrows on their line.
import type { Building } from "../model/Building";
import { arrows } from "./Arrows";
import { type Drawing, Order } from "./Drawing";
import { lostArrows, lostFace, lostLoadLine, lostRim } from "./LostPlaces";
import type { Scenery } from "./Scenery";
import { segments } from "./Segments";
import { type Shapes, storyOwner } from "./Shapes";
import type { SharedUniforms } from "./SharedUniforms";
import { triangles } from "./Triangles";

/** Collects the numbers of several shapes of one kind. */
class Collected {
    private readonly places: number[] = [];
    private readonly owners: number[] = [];

    /** `size`: numbers of one shape. */
    constructor(private readonly size: number) {}

    add(places: readonly number[], owner: number): void {
        for (let i = 0; i < places.length; ++i) {
            this.places.push(places[i]);
        }
        for (let i = 0; i < places.length / this.size; ++i) {
            this.owners.push(owner);
        }
    }

    shapes(): Shapes {
        return { places: this.places, owner: (index) => this.owners[index] };
    }
}

export class LostLayer {
    private readonly drawings: readonly Drawing[];

    /** `size`: how long the arrow of a left-out load is, in units of the model. */
    constructor(building: Building, size: number, scenery: Scenery, shared: SharedUniforms) {
        const faces = new Collected(9);
        const lines = new Collected(6);
        const tips = new Collected(6);
        const ownerOf = (finding: number): number => storyOwner(building.findings[finding]?.story ?? -1);
        building.lost.forEach(({ finding }, lost) => {
            faces.add(lostFace(building, lost), ownerOf(finding));
            lines.add(lostRim(building, lost), ownerOf(finding));
        });
        building.lostLoads.forEach(({ finding }, lost) => {
            lines.add(lostLoadLine(building, lost), ownerOf(finding));
            tips.add(lostArrows(building, lost, size), ownerOf(finding));
        });
        const look = { colour: shared.warning, opacity: 0.95, order: Order.LostLines, onTop: true } as const;
        this.drawings = [
            triangles(faces.shapes(), { ...look, opacity: 0.3, order: Order.LostFaces }, shared),
            segments(lines.shapes(), { ...look, width: { value: 2 } }, shared),
            arrows(tips.shapes(), { ...look, width: 1.6, heads: 1 }, shared),
        ];
        scenery.add(...this.drawings);
    }

    set visible(visible: boolean) {
        for (const drawing of this.drawings) {
            drawing.visible = visible;
        }
    }
}
