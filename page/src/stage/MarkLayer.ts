// Small marks on the building: supports, hinges and rigid links.
import { type IUniform, Vector4 } from "three";
import type { Building } from "../model/Building";
import { marks } from "../model/Marks";
import { discs } from "./Discs";
import { type Drawing, Order } from "./Drawing";
import type { Scenery } from "./Scenery";
import { segments } from "./Segments";
import { storyOwner } from "./Shapes";
import type { SharedUniforms } from "./SharedUniforms";
import { supports } from "./Supports";

/** Which marks are shown. */
export interface MarkChoice {
    supports: boolean;
    hinges: boolean;
    offsets: boolean;
    axes: boolean;
}

export class MarkLayer {
    private readonly supports: Drawing;
    private readonly hinges: Drawing;
    private readonly links: Drawing;
    private readonly inside: IUniform<Vector4> = { value: new Vector4(1, 1, 1, 1) };

    constructor(building: Building, scenery: Scenery, private readonly shared: SharedUniforms) {
        const made = marks(building);
        const look = { colour: shared.supportColour, opacity: 1, order: Order.Marks } as const;
        this.supports = supports({
            places: made.supports,
            owner: (index) => storyOwner(building.nodeStory[made.supportNode[index]]),
        }, { ...look, order: Order.Opaque }, shared);
        this.hinges = discs(
            { places: made.hinges, owner: (index) => made.hingeFrame[index] },
            { ...look, inside: this.inside, radius: { value: 4.5 }, width: 1.3, largest: 0.05 }, shared,
        );
        this.links = segments(
            { places: made.links, owner: (index) => made.linkFrame[index] },
            { ...look, width: { value: 1.6 }, onTop: true }, shared,
        );
        scenery.add(this.supports, this.hinges, this.links);
    }

    setChoice(choice: MarkChoice): void {
        this.supports.visible = choice.supports;
        this.hinges.visible = choice.hinges;
        this.links.visible = choice.offsets;
    }

    /** Hinges are filled with the colour of the background. */
    themeChanged(): void {
        const { x, y, z } = this.shared.background.value;
        this.inside.value.set(x, y, z, 1);
    }
}
