// One draw call: elements of one template, shown in the picture and, where they can be picked, in the pick buffer.
import {
    DoubleSide, FrontSide, GLSL3, GreaterDepth, type IUniform, Mesh, NoBlending, NormalBlending, RawShaderMaterial,
} from "three";
import type { FloatTexture } from "./FloatTexture";
import { PulledGeometry, type Template } from "./PulledGeometry";
import { kFragmentHead, kPickFragment, kVertexHead } from "./ShaderText";
import type { SharedUniforms } from "./SharedUniforms";

/** Order of what is blended; what is opaque comes first. */
export const enum Order {
    Opaque = 0,
    Faces = 1,
    LoadAreas = 2,
    Loads = 3,
    LostFaces = 4,
    LostLines = 5,
    Marks = 6,
    Outlines = 7,
    Rings = 8,
    Axes = 9,
}

/** What a pick can find; also the layer of three on which it stands in the pick buffer. */
export const enum Picked {
    Item = 1,
    Load = 2,
}

export interface Look {
    template: Template;
    /** The data of the elements. */
    records: FloatTexture;
    /** No other drawing uses the data, which goes with this one. */
    ownsRecords?: boolean;
    /** The elements of `records` that are drawn. */
    first: number;
    count: number;
    vertex: string;
    fragment: string;
    order: Order;
    uniforms?: Record<string, IUniform>;
    defines?: Record<string, number | string>;
    /** Drawn over all that stands before it. */
    onTop?: boolean;
    /** How much is seen of it behind what is opaque; otherwise nothing. */
    hiddenOpacity?: number;
    /** No section plane cuts it. */
    uncut?: boolean;
    /** Faces are seen from both sides. */
    bothSides?: boolean;
    pick?: Picked;
}

export class Drawing {
    readonly pickMesh: Mesh<PulledGeometry, RawShaderMaterial> | undefined;
    private readonly mesh: Mesh<PulledGeometry, RawShaderMaterial>;
    private readonly hiddenMesh: Mesh<PulledGeometry, RawShaderMaterial> | undefined;
    private readonly geometry: PulledGeometry;
    private isCut = false;

    constructor(private readonly look: Look, shared: SharedUniforms) {
        this.geometry = new PulledGeometry(look.template, look.count);
        const uniforms = {
            ...shared,
            ...look.uniforms,
            records: { value: look.records.texture },
            perBlock: { value: this.geometry.perBlock },
            first: { value: look.first },
            elements: { value: look.count },
        };
        this.mesh = this.makeMesh(shownMaterial(look, uniforms));
        if (look.hiddenOpacity !== undefined) {
            const hidden = shownMaterial(look, { ...uniforms, opacity: { value: look.hiddenOpacity } });
            hidden.depthFunc = GreaterDepth;
            this.hiddenMesh = this.makeMesh(hidden);
        }
        if (look.pick !== undefined) {
            this.pickMesh = this.makeMesh(pickMaterial(look, look.pick, uniforms));
            this.pickMesh.layers.set(look.pick);
        }
        this.setOrder(look.order);
        this.setCut(false);
        this.visible = true;
    }

    get visible(): boolean {
        return this.mesh.visible;
    }

    set visible(visible: boolean) {
        for (const mesh of this.meshes()) {
            mesh.visible = visible && this.look.count > 0;
        }
    }

    get vertexCount(): number {
        return this.geometry.vertexCount * this.shownMeshes().length;
    }

    /** What is opaque hides what is behind it; all else is blended over it in its order. */
    setOrder(order: Order): void {
        const blended = order !== Order.Opaque;
        for (const mesh of this.shownMeshes()) {
            mesh.material.transparent = blended;
            mesh.material.blending = blended ? NormalBlending : NoBlending;
            mesh.material.depthWrite = !blended;
            mesh.renderOrder = order;
        }
        this.setSides();
    }

    /** Whether a section plane cuts. */
    setCut(isCut: boolean): void {
        this.isCut = isCut && !this.look.uncut;
        for (const { material } of this.meshes()) {
            const { CUT: _, ...defines } = material.defines;
            material.defines = this.isCut ? { ...defines, CUT: 1 } : defines;
            material.needsUpdate = true;
        }
        this.setSides();
    }

    /** Frees its data. Its shaders, of which there are few, stay for the next drawing that has the same. */
    dispose(): void {
        this.geometry.dispose();
        if (this.look.ownsRecords) {
            this.look.records.dispose();
        }
    }

    /** Those of the picture. */
    shownMeshes(): Mesh<PulledGeometry, RawShaderMaterial>[] {
        return this.hiddenMesh === undefined ? [this.mesh] : [this.hiddenMesh, this.mesh];
    }

    meshes(): Mesh<PulledGeometry, RawShaderMaterial>[] {
        return this.pickMesh === undefined ? this.shownMeshes() : [...this.shownMeshes(), this.pickMesh];
    }

    /** Bodies that are cut are open, and show their inside, unless one looks through them anyway. */
    private setSides(): void {
        const isOpen = this.isCut && !this.mesh.material.transparent;
        for (const { material } of this.meshes()) {
            material.side = isOpen || this.look.bothSides ? DoubleSide : FrontSide;
        }
    }

    private makeMesh(material: RawShaderMaterial): Mesh<PulledGeometry, RawShaderMaterial> {
        const mesh = new Mesh(this.geometry, material);
        mesh.frustumCulled = false;
        mesh.matrixAutoUpdate = false;
        return mesh;
    }
}

type Uniforms = Record<string, IUniform>;

function shownMaterial(look: Look, uniforms: Uniforms): RawShaderMaterial {
    return new RawShaderMaterial({
        glslVersion: GLSL3,
        vertexShader: kVertexHead + look.vertex,
        fragmentShader: kFragmentHead + look.fragment,
        uniforms,
        defines: { ...look.defines },
        depthTest: !look.onTop,
    });
}

function pickMaterial(look: Look, pick: Picked, uniforms: Uniforms): RawShaderMaterial {
    return new RawShaderMaterial({
        glslVersion: GLSL3,
        vertexShader: kVertexHead + look.vertex,
        fragmentShader: kPickFragment,
        uniforms,
        // The fourth byte of a picked pixel tells what was picked.
        defines: { ...look.defines, PICKED: `${pick}.0 / 255.0` },
        blending: NoBlending,
    });
}
