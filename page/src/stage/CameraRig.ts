// The camera: orbit, pan and zoom by mouse, wheel and touch, standard views, and short flights between poses.
import { type Box3, MOUSE, OrthographicCamera, PerspectiveCamera, Vector3 } from "three";
import { OrbitControls } from "three/addons/controls/OrbitControls.js";
import { fitPose, type Lens } from "./Fit";
import { anglesOf, between, eyeDirection, kViews, type Pose, type ViewName } from "./Pose";
import { wantsRest } from "./Rest";

export type Projection = "perspective" | "parallel";

/** Degrees from the lower to the upper edge of the picture. */
const kAngle = 28;
const kTangent = Math.tan((kAngle * Math.PI) / 360);

/** Milliseconds. */
const kFlightTime = 400;

interface Flight {
    from: Pose;
    to: Pose;
    started: number;
}

export class CameraRig {
    camera: PerspectiveCamera | OrthographicCamera;
    private readonly perspective = new PerspectiveCamera(kAngle);
    private readonly parallel = new OrthographicCamera();
    private readonly controls: OrbitControls;
    private aspect = 1;
    private flight: Flight | undefined;

    /** `radius`: of all there is to see, around the origin. `changed` is called when a new picture is due. */
    constructor(element: HTMLElement, private readonly radius: number, private readonly changed: () => void) {
        this.camera = this.perspective;
        for (const camera of [this.perspective, this.parallel]) {
            camera.up.set(0, 0, 1);
            camera.position.set(0, -radius, 0);
        }
        this.controls = new OrbitControls(this.camera, element);
        this.controls.zoomToCursor = true;
        this.controls.mouseButtons = { LEFT: MOUSE.ROTATE, MIDDLE: MOUSE.PAN, RIGHT: MOUSE.PAN };
        this.controls.minDistance = 2e-4 * radius;
        this.controls.maxDistance = 60 * radius;
        this.controls.addEventListener("change", changed);
        this.controls.addEventListener("start", () => (this.flight = undefined));
    }

    dispose(): void {
        this.controls.dispose();
    }

    /** Units of the model from the lower to the upper edge of the picture, at the target. */
    get height(): number {
        return this.camera === this.perspective
            ? 2 * kTangent * this.controls.getDistance()
            : (this.parallel.top - this.parallel.bottom) / this.parallel.zoom;
    }

    resize(width: number, height: number): void {
        const pose = this.pose();
        this.aspect = width / height;
        this.perspective.aspect = this.aspect;
        this.setPose(pose);
    }

    /** What is at the target stays as large as it is. */
    setProjection(projection: Projection): void {
        const pose = this.pose();
        this.camera = projection === "perspective" ? this.perspective : this.parallel;
        this.controls.object = this.camera;
        this.setPose(pose);
    }

    /** Where the eye is at first. */
    start(box: Box3): void {
        const [azimuth, polar] = kViews.isometric;
        this.setPose(fitPose(box, { azimuth, polar }, this.lens));
    }

    view(name: ViewName, box: Box3): void {
        const [azimuth, polar] = kViews[name];
        this.goTo(fitPose(box, { azimuth, polar }, this.lens));
    }

    /** Looks at a box from where the eye is now. */
    lookAt(box: Box3): void {
        const { azimuth, polar } = this.pose();
        this.goTo(fitPose(box, { azimuth, polar }, this.lens));
    }

    /** Brings a flight to a time in milliseconds; true: it goes on. */
    animate(now: number): boolean {
        if (this.flight === undefined) {
            return false;
        }
        const part = Math.min(1, Math.max(0, (now - this.flight.started) / kFlightTime));
        const eased = part * part * (3 - 2 * part);
        const { from, to } = this.flight;
        this.setPose(part < 1 ? between(from, to, eased) : to);
        if (part === 1) {
            this.flight = undefined;
        }
        return part < 1;
    }

    /** As if dragged by so many CSS pixels. */
    orbit(x: number, y: number): void {
        const angle = (2 * Math.PI) / (this.controls.domElement?.clientHeight || 1);
        this.controls.rotateLeft(x * angle);
        this.controls.rotateUp(y * angle);
        this.moved();
    }

    pan(x: number, y: number): void {
        this.controls.pan(x, y);
        this.moved();
    }

    /** Above 1: nearer. */
    zoom(factor: number): void {
        this.controls.dollyIn(1 / factor);
        this.moved();
    }

    /** Sets the planes between which is drawn just outside all there is, so that depths are told apart well. */
    setDepth(): void {
        const { camera, radius } = this;
        camera.updateMatrixWorld();
        const middle = -camera.position.dot(camera.getWorldDirection(new Vector3()));
        const far = Math.max(middle + radius, 1e-3 * radius);
        const nearest = Math.min(1e-3 * far, 0.05 * this.controls.getDistance());
        camera.far = far;
        camera.near = camera === this.perspective ? Math.max(middle - radius, nearest) : middle - radius;
        camera.updateProjectionMatrix();
    }

    private get lens(): Lens {
        return { aspect: this.aspect, tangent: this.camera === this.perspective ? kTangent : 0 };
    }

    /** Takes a pose at once. */
    private setPose({ target, azimuth, polar, height }: Pose): void {
        const distance = height / 2 / kTangent;
        this.controls.target.copy(target);
        this.camera.position.copy(eyeDirection({ azimuth, polar })).multiplyScalar(distance).add(target);
        this.setFrame(height, distance);
        this.controls.update();
        this.changed();
    }

    private pose(): Pose {
        const target = this.controls.target.clone();
        return { target, ...anglesOf(this.camera.position.clone().sub(target)), height: this.height };
    }

    private goTo(pose: Pose): void {
        if (wantsRest()) {
            this.setPose(pose);
        } else {
            this.flight = { from: this.pose(), to: pose, started: performance.now() };
            this.changed();
        }
    }

    /** Parallel projection zooms by its frame, within the limits that the distance has in perspective. */
    private setFrame(height: number, distance: number): void {
        const { parallel, controls } = this;
        parallel.top = height / 2;
        parallel.bottom = -height / 2;
        parallel.right = this.aspect * parallel.top;
        parallel.left = -parallel.right;
        parallel.zoom = 1;
        controls.minZoom = distance / controls.maxDistance;
        controls.maxZoom = distance / controls.minDistance;
        this.camera.updateProjectionMatrix();
    }

    private moved(): void {
        this.flight = undefined;
        this.controls.update();
        this.changed();
    }
}
