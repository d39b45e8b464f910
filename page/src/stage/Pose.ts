// Where the eye looks and from where, apart from the camera that shows it. Places are relative to the centre of the
// building.
import { MathUtils, Spherical, Vector3 } from "three";

export interface Pose {
    target: Vector3;
    /** Around the vertical axis; 0 from the front, an eye at negative y. */
    azimuth: number;
    /** 0 from straight above, pi from straight below. */
    polar: number;
    /** How much is seen at the target from the lower to the upper edge of the picture, in units of the model. */
    height: number;
}

export type ViewName = "front" | "back" | "left" | "right" | "top" | "bottom" | "isometric";

const kLevel = Math.PI / 2;

/** Azimuth and polar angle of the standard views. */
export const kViews: Record<ViewName, readonly [number, number]> = {
    front: [0, kLevel],
    back: [Math.PI, kLevel],
    left: [-kLevel, kLevel],
    right: [kLevel, kLevel],
    top: [0, 0],
    bottom: [0, Math.PI],
    isometric: [0.62, 1.1],
};

/** Spherical angles of three have their axis along y; here it is z. */
export function eyeDirection({ azimuth, polar }: Pick<Pose, "azimuth" | "polar">): Vector3 {
    const { x, y, z } = new Vector3().setFromSpherical(new Spherical(1, polar, azimuth).makeSafe());
    return new Vector3(x, -z, y);
}

/** The angles of a direction from the target to the eye. */
export function anglesOf({ x, y, z }: Vector3): Pick<Pose, "azimuth" | "polar"> {
    const { theta, phi } = new Spherical().setFromCartesianCoords(x, z, -y);
    return { azimuth: theta, polar: phi };
}

/** A pose part of the way from one to another: turned the short way, and zoomed evenly. */
export function between(from: Pose, to: Pose, part: number): Pose {
    const turn = MathUtils.euclideanModulo(to.azimuth - from.azimuth + Math.PI, 2 * Math.PI) - Math.PI;
    return {
        target: from.target.clone().lerp(to.target, part),
        azimuth: from.azimuth + part * turn,
        polar: MathUtils.lerp(from.polar, to.polar, part),
        height: from.height * (to.height / from.height) ** part,
    };
}
