// What is pointed out over everything else: the edges of items and of what was lost, a box around a story, a ring
// around a node. It can call attention for a moment, and then rests.
import { type IUniform, type Vector3, Vector4 } from "three";
import type { Building } from "../model/Building";
import { isPlace } from "../model/Box";
import { discs } from "./Discs";
import { type Drawing, Order } from "./Drawing";
import type { Rims } from "./ItemRims";
import type { Scenery } from "./Scenery";
import { segments } from "./Segments";
import { kAlwaysShown } from "./Shapes";
import type { SharedUniforms } from "./SharedUniforms";
import { triangles } from "./Triangles";

/** Milliseconds for which it pulses, and how often. */
const kPulseTime = 1500;
const kPulses = 3;

/** CSS pixels. */
const kLineWidth = 2.2;
const kRingRadius = 9;

export class Pointed {
    private drawings: readonly Drawing[] = [];
    private readonly width = { value: kLineWidth };
    private readonly radius = { value: kRingRadius };
    private started = -Infinity;

    constructor(
        private readonly building: Building,
        private readonly colour: IUniform<Vector3>,
        private readonly scenery: Scenery,
        private readonly shared: SharedUniforms,
    ) {}

    /** Points out something in the place of what was pointed out before. */
    show({ lines, faces, nodes }: Rims): void {
        const { colour, shared } = this;
        this.scenery.remove(...this.drawings);
        const look = { colour, opacity: 0.95, onTop: true, uncut: true } as const;
        const owner = (): number => kAlwaysShown;
        const inside = { value: new Vector4(0, 0, 0, 0) };
        this.drawings = [
            triangles({ places: faces, owner }, { ...look, opacity: 0.25, order: Order.Outlines }, shared),
            segments({ places: lines, owner }, { ...look, order: Order.Outlines, width: this.width }, shared),
            discs({ places: this.nodePlaces(nodes), owner },
                { ...look, order: Order.Rings, inside, radius: this.radius, width: kLineWidth, largest: 1e6 }, shared),
        ];
        this.scenery.add(...this.drawings);
    }

    /** Begins to pulse at a time in milliseconds. */
    pulse(now: number): void {
        this.started = now;
    }

    /** Brings the pulse to a time; true: it goes on. */
    animate(now: number): boolean {
        const part = (now - this.started) / kPulseTime;
        const swing = part < 1 ? Math.sin(Math.PI * kPulses * part) ** 2 : 0;
        this.width.value = kLineWidth * (1 + 1.6 * swing);
        this.radius.value = kRingRadius * (1 + 0.9 * swing);
        return part < 1;
    }

    private nodePlaces(nodes: readonly number[]): number[] {
        const { nodes: { x, y, z }, centre } = this.building;
        return nodes.filter((node) => isPlace(x[node], y[node], z[node]))
            .flatMap((node) => [x[node] - centre[0], y[node] - centre[1], z[node] - centre[2]]);
    }
}
