// Poses from which a whole box is seen.
import { Box3, Vector3 } from "three";
import { eyeDirection, type Pose } from "./Pose";

/** What a camera sees: width by height of the picture, and the tangent of half of its angle, 0 in parallel view. */
export interface Lens {
    aspect: number;
    tangent: number;
}

/** Room around the box. */
const kMargin = 1.1;

/** The pose with given angles from which a box just fills the picture. */
export function fitPose(box: Box3, angles: Pick<Pose, "azimuth" | "polar">, { aspect, tangent }: Lens): Pose {
    const target = box.getCenter(new Vector3());
    const back = eyeDirection(angles);
    const right = new Vector3(Math.cos(angles.azimuth), Math.sin(angles.azimuth), 0);
    const up = back.clone().cross(right);
    const half = box.getSize(new Vector3()).divideScalar(2);
    let height = 0;
    for (let bits = 0; bits < 8; ++bits) {
        const [x, y, z] = [1, 2, 4].map((bit) => (bits & bit ? 1 : -1));
        const corner = new Vector3(x, y, z).multiply(half);
        const reach = Math.max(Math.abs(corner.dot(up)), Math.abs(corner.dot(right)) / aspect);
        // A corner that is nearer to the eye looks larger.
        height = Math.max(height, 2 * (reach + tangent * corner.dot(back)));
    }
    return { ...angles, target, height: kMargin * height };
}
