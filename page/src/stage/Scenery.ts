// All drawings of the stage: the scene of the picture, and the scene of the pick buffer.
import { Scene } from "three";
import type { Drawing } from "./Drawing";

export class Scenery {
    readonly shown = new Scene();
    readonly picked = new Scene();
    private readonly drawings = new Set<Drawing>();
    private isCut = false;

    constructor() {
        for (const scene of [this.shown, this.picked]) {
            scene.matrixWorldAutoUpdate = false;
        }
    }

    add(...drawings: readonly Drawing[]): void {
        for (const drawing of drawings) {
            drawing.setCut(this.isCut);
            this.drawings.add(drawing);
            this.shown.add(...drawing.shownMeshes());
            if (drawing.pickMesh !== undefined) {
                this.picked.add(drawing.pickMesh);
            }
        }
    }

    /** Takes drawings away and frees what they hold on the graphics card. */
    remove(...drawings: readonly Drawing[]): void {
        for (const drawing of drawings) {
            this.shown.remove(...drawing.shownMeshes());
            drawing.pickMesh?.removeFromParent();
            drawing.dispose();
            this.drawings.delete(drawing);
        }
    }

    /** Frees the shaders; the renderer frees geometries, textures and targets by itself when it goes. */
    dispose(): void {
        for (const { material } of [...this.drawings].flatMap((drawing) => drawing.meshes())) {
            material.dispose();
        }
    }

    /** Shaders are made anew, which a plane that only moves does not need. */
    setCut(isCut: boolean): void {
        if (isCut !== this.isCut) {
            this.isCut = isCut;
            this.drawings.forEach((drawing) => drawing.setCut(isCut));
        }
    }

    /** Vertices of what is shown. */
    vertexCount(): number {
        let count = 0;
        for (const drawing of this.drawings) {
            count += drawing.visible ? drawing.vertexCount : 0;
        }
        return count;
    }
}
