// The light and the haze of a frame, which follow the eye.
import { type Camera, Vector3 } from "three";
import type { SharedUniforms } from "./SharedUniforms";

/** How much what is farthest fades into the background. */
const kFade = 0.3;

/** The light comes over the left shoulder; what is far fades a little. `radius`: of the building around the origin. */
export function setLight({ light, fade }: SharedUniforms, camera: Camera, radius: number): void {
    const [right, up, back] = [new Vector3(), new Vector3(), new Vector3()];
    camera.matrixWorld.extractBasis(right, up, back);
    light.value.set(0, 0, 0.25)
        .addScaledVector(right, -0.45).addScaledVector(up, 0.55).addScaledVector(back, 0.7).normalize();
    const middle = camera.position.dot(back);
    fade.value.set(middle - 0.4 * radius, middle + 1.2 * radius, kFade);
}
