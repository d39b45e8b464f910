// How each item is shown: its colour, whether it is visible, whether it is selected. Shaders look it up by the index of
// the item, so that a change costs one small upload and no new geometry.
import { DataTexture, RGBAFormat, UnsignedByteType } from "three";
import { kRowTexels, rowsFor } from "./FloatTexture";

/** Values of the fourth byte. Shaders compare it with 0 and with 1, to which 255 is mapped. */
const enum Shown {
    Hidden = 0,
    Visible = 128,
    Selected = 255,
}

const kGrey = 160;

export class ItemStates {
    readonly texture: DataTexture;
    private readonly bytes: Uint8Array<ArrayBuffer>;
    private readonly count: number;
    private visible: Uint8Array | undefined;
    private selected: readonly number[] = [];

    constructor(count: number) {
        const rows = rowsFor(count);
        this.count = count;
        this.bytes = new Uint8Array(4 * kRowTexels * rows).fill(kGrey);
        this.texture = new DataTexture(this.bytes, kRowTexels, rows, RGBAFormat, UnsignedByteType);
        this.writeShown();
    }

    /** Red, green and blue of each item. */
    setColours(colours: Uint8Array): void {
        for (let item = 0; item < this.count; ++item) {
            this.bytes[4 * item] = colours[3 * item];
            this.bytes[4 * item + 1] = colours[3 * item + 1];
            this.bytes[4 * item + 2] = colours[3 * item + 2];
        }
        this.texture.needsUpdate = true;
    }

    /** For each item whether it is drawn, as 0 or another number. */
    setVisible(visible: Uint8Array): void {
        this.visible = visible;
        this.writeShown();
    }

    setSelected(items: readonly number[]): void {
        this.selected = items;
        this.writeShown();
    }

    private isVisible(item: number): boolean {
        return this.visible === undefined || this.visible[item] !== 0;
    }

    private writeShown(): void {
        for (let item = 0; item < this.count; ++item) {
            this.bytes[4 * item + 3] = this.isVisible(item) ? Shown.Visible : Shown.Hidden;
        }
        for (const item of this.selected) {
            if (this.isVisible(item)) {
                this.bytes[4 * item + 3] = Shown.Selected;
            }
        }
        this.texture.needsUpdate = true;
    }
}
