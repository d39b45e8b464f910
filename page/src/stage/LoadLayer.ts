// The loads of a choice: forces and moments as arrows, distributed loads as areas with a few arrows in them. What lies
// behind or within a body is paler, but seen.
import type { Building } from "../model/Building";
import { loadDetail } from "../model/LoadDetail";
import type { LoadChoice } from "../model/Loads";
import { loadShapes } from "../model/LoadShapes";
import { arrows } from "./Arrows";
import { type Drawing, Order, Picked } from "./Drawing";
import type { Scenery } from "./Scenery";
import { segments } from "./Segments";
import { type Shapes, storyOwner } from "./Shapes";
import type { SharedUniforms } from "./SharedUniforms";
import { triangles } from "./Triangles";

export class LoadLayer {
    private choice: "none" | LoadChoice = "none";
    private drawings: readonly Drawing[] = [];

    /** `size`: how long the largest load is drawn, in units of the model. */
    constructor(
        private readonly building: Building,
        private readonly size: number,
        private readonly scenery: Scenery,
        private readonly shared: SharedUniforms,
    ) {}

    get isShown(): boolean {
        return this.drawings.length > 0;
    }

    setChoice(choice: "none" | LoadChoice): void {
        if (choice !== this.choice) {
            this.choice = choice;
            this.scenery.remove(...this.drawings);
            this.drawings = choice === "none" ? [] : this.draw(choice);
            this.scenery.add(...this.drawings);
        }
    }

    private draw(choice: LoadChoice): Drawing[] {
        const made = loadShapes(this.building, choice, this.size);
        const { shared } = this;
        const colour = shared.loadColour;
        const look = { colour, opacity: 0.9, hiddenOpacity: 0.45, order: Order.Loads, pick: Picked.Load } as const;
        const faces = { ...look, opacity: 0.2, hiddenOpacity: 0.12, order: Order.LoadAreas };
        const of = (places: Float32Array, loads: Int32Array): Shapes => this.shapes(places, loads);
        return [
            triangles(of(made.areas, made.areaLoad), faces, shared),
            segments(of(made.outlines, made.outlineLoad), { ...look, width: { value: 1 } }, shared),
            arrows(of(made.areaArrows, made.areaArrowLoad), { ...look, width: 1.1, heads: 1 }, shared),
            arrows(of(made.arrows, made.arrowLoad), { ...look, width: 1.8, heads: 1 }, shared),
            arrows(of(momentArrows(made.moments), made.momentLoad), { ...look, width: 1.8, heads: 2 }, shared),
        ];
    }

    private shapes(places: Float32Array, loads: Int32Array): Shapes {
        return { places, owner: this.owner(loads), number: (index) => loads[index] };
    }

    /** What shows or hides each shape. Shapes of one load stand together. */
    private owner(loads: Int32Array): (index: number) => number {
        let last = -1;
        let owner = -1;
        return (index) => {
            if (loads[index] !== last) {
                last = loads[index];
                const { item, node } = loadDetail(this.building, last);
                owner = item >= 0 ? item : storyOwner(node < 0 ? -1 : this.building.nodeStory[node]);
            }
            return owner;
        };
    }
}

/** From place and vector to tail and tip. */
function momentArrows(moments: Float32Array): Float32Array {
    return moments.map((value, i) => (i % 6 < 3 ? value : moments[i - 3] + value));
}
