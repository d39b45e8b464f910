// The canvas and its WebGL context: draws a frame when one is due, follows the size of the canvas, and goes on when a
// lost context is back.
import { ColorManagement, LinearSRGBColorSpace, WebGLRenderer } from "three";

export interface ScreenEvents {
    /** Before the first frame and when the canvas has another size, in CSS pixels. */
    resized(width: number, height: number): void;
    /** Draws a frame; true: another one is due. */
    draw(now: number): boolean;
}

/** More pixels cost time and are not seen. */
const kLargestRatio = 2;

export class Screen {
    readonly renderer: WebGLRenderer;
    private requested = 0;
    private size = "";
    private readonly ended = new AbortController();
    private readonly observer = new ResizeObserver(() => {
        if (this.resize()) {
            this.drawNow();
        }
    });

    /** Throws an Error where there is no WebGL 2. */
    constructor(private readonly canvas: HTMLCanvasElement, antialias: boolean, private readonly events: ScreenEvents) {
        const context = canvas.getContext("webgl2", { antialias, alpha: false, powerPreference: "high-performance" });
        if (context === null) {
            throw new Error("WebGL 2 is missing");
        }
        // Colours are meant as they are given: shaders work with them and show them unchanged.
        ColorManagement.enabled = false;
        this.renderer = new WebGLRenderer({ canvas, context });
        this.renderer.outputColorSpace = LinearSRGBColorSpace;
        canvas.addEventListener("webglcontextrestored", () => this.request(), { signal: this.ended.signal });
        this.observer.observe(canvas);
    }

    /** Draws no more. Gives the context back at once, since browsers keep only some 16 of them alive. */
    dispose(): void {
        this.ended.abort();
        this.observer.disconnect();
        cancelAnimationFrame(this.requested);
        this.renderer.dispose();
        this.renderer.forceContextLoss();
    }

    /** A frame will be drawn soon. */
    request(): void {
        if (this.requested === 0) {
            this.requested = requestAnimationFrame((now) => this.frame(now));
        }
    }

    /** Draws at once, for those who read the canvas right after. */
    drawNow(): void {
        cancelAnimationFrame(this.requested);
        this.frame(performance.now());
    }

    /** Follows the size that the canvas has now; false: it has not changed. */
    resize(): boolean {
        const { clientWidth, clientHeight } = this.canvas;
        const size = `${clientWidth} ${clientHeight} ${this.ratio()}`;
        if (clientWidth === 0 || clientHeight === 0 || size === this.size) {
            return false;
        }
        this.size = size;
        this.renderer.setPixelRatio(this.ratio());
        this.renderer.setSize(clientWidth, clientHeight, false);
        this.events.resized(clientWidth, clientHeight);
        return true;
    }

    private frame(now: number): void {
        this.requested = 0;
        if (this.canvas.clientWidth === 0 || this.canvas.clientHeight === 0) {
            return;
        }
        this.resize();
        if (this.events.draw(now)) {
            this.request();
        }
    }

    private ratio(): number {
        return Math.min(devicePixelRatio, kLargestRatio);
    }
}
