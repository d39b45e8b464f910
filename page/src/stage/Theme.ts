// The colours of the picture that do not come from the items.
import { Vector3 } from "three";

/** Colours as 0xrrggbb. */
export interface StageTheme {
    background: number;
    /** Edges of bodies. */
    line: number;
    /** Letters of the axes. */
    text: number;
    /** What was lost, and what a finding is about. */
    warning: number;
    load: number;
    /** Supports, hinges and rigid links. */
    support: number;
    selection: number;
}

/** Red, green and blue from 0 to 1. */
export function rgb(colour: number, into = new Vector3()): Vector3 {
    return into.set((colour >> 16) & 255, (colour >> 8) & 255, colour & 255).divideScalar(255);
}
