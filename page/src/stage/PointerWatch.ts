// Tells clicks from drags, and when the pointer rests.

/** Places are CSS pixels of the element. */
export interface PointerEvents {
    clicked(x: number, y: number): void;
    rested(x: number, y: number): void;
    moved(): void;
}

/** A pointer that went farther has dragged, in CSS pixels; of a finger, whose place is less sure, farther. */
const kClickWay = 4;
const kTouchWay = 10;

/** Milliseconds without a move. */
const kRestTime = 80;

export class PointerWatch {
    private down: PointerEvent | undefined;
    private timer = 0;
    private readonly ended = new AbortController();

    constructor(private readonly element: HTMLElement, private readonly events: PointerEvents) {
        const { signal } = this.ended;
        element.addEventListener("pointerdown", (event) => this.pressed(event), { signal });
        element.addEventListener("pointerup", (event) => this.released(event), { signal });
        element.addEventListener("pointercancel", () => (this.down = undefined), { signal });
        element.addEventListener("pointermove", (event) => this.moved(event), { signal });
        element.addEventListener("pointerleave", () => this.stopResting(), { signal });
    }

    dispose(): void {
        this.ended.abort();
        clearTimeout(this.timer);
    }

    private place(event: PointerEvent): [x: number, y: number] {
        const { left, top } = this.element.getBoundingClientRect();
        return [event.clientX - left, event.clientY - top];
    }

    /** A second finger makes a gesture, no click. */
    private pressed(event: PointerEvent): void {
        this.stopResting();
        this.down = event.isPrimary && event.button === 0 ? event : undefined;
    }

    private released(event: PointerEvent): void {
        const { down } = this;
        this.down = undefined;
        if (down === undefined || down.pointerId !== event.pointerId) {
            return;
        }
        const way = Math.hypot(event.clientX - down.clientX, event.clientY - down.clientY);
        if (way <= (event.pointerType === "touch" ? kTouchWay : kClickWay)) {
            this.events.clicked(...this.place(event));
        }
    }

    private moved(event: PointerEvent): void {
        this.stopResting();
        if (event.buttons === 0) {
            this.timer = window.setTimeout(() => this.events.rested(...this.place(event)), kRestTime);
        }
    }

    private stopResting(): void {
        clearTimeout(this.timer);
        this.events.moved();
    }
}
