// Finds what lies under a pixel: draws the numbers of what can be picked into a few pixels around it, and reads them.
import { NearestFilter, Vector2, type WebGLRenderer, WebGLRenderTarget } from "three";
import type { CameraRig } from "./CameraRig";
import type { Picked } from "./Drawing";
import type { Scenery } from "./Scenery";
import type { SharedUniforms } from "./SharedUniforms";

/** Pixels of the side of the square that is searched, odd: lines are hard to hit. */
const kSide = 7;

export class Picker {
    private readonly target = new WebGLRenderTarget(kSide, kSide, {
        minFilter: NearestFilter, magFilter: NearestFilter, generateMipmaps: false,
    });
    private readonly bytes = new Uint8Array(4 * kSide * kSide);

    constructor(
        private readonly renderer: WebGLRenderer,
        private readonly scenery: Scenery,
        private readonly rig: CameraRig,
        private readonly shared: SharedUniforms,
    ) {}

    /** The number of what is nearest to a place in CSS pixels of the canvas, of items or of loads; -1: nothing. */
    pick(x: number, y: number, wanted: Picked): number {
        this.draw(x, y, wanted);
        this.renderer.readRenderTargetPixels(this.target, 0, 0, kSide, kSide, this.bytes);
        const middle = (kSide - 1) / 2;
        let found = -1;
        let nearest = Infinity;
        for (let i = 0; i < kSide * kSide; ++i) {
            const [red, green, blue, kind] = this.bytes.subarray(4 * i, 4 * i + 4);
            const away = Math.hypot((i % kSide) - middle, Math.floor(i / kSide) - middle);
            if (kind === wanted && away < nearest) {
                nearest = away;
                found = red + 256 * green + 65536 * blue - 1;
            }
        }
        return found;
    }

    private draw(x: number, y: number, wanted: Picked): void {
        const { renderer, shared } = this;
        const { camera } = this.rig;
        const size = renderer.getDrawingBufferSize(new Vector2());
        const ratio = renderer.getPixelRatio();
        const corner = (value: number): number => Math.floor(value * ratio) - (kSide - 1) / 2;
        camera.layers.set(wanted);
        camera.setViewOffset(size.x, size.y, corner(x), corner(y), kSide, kSide);
        shared.viewport.value.set(kSide, kSide);
        renderer.setRenderTarget(this.target);
        renderer.setClearColor(0, 0);
        renderer.render(this.scenery.picked, camera);
        renderer.setRenderTarget(null);
        shared.viewport.value.copy(size);
        camera.clearViewOffset();
        camera.layers.set(0);
    }
}
