// The picture of the building. What it shows is set by its methods; a frame is drawn only when something has changed.
import { Color } from "three";
import type { Box } from "../model/Box";
import type { Building } from "../model/Building";
import type { LoadChoice } from "../model/Loads";
import { usualLoadSize } from "../model/LoadShapes";
import { wholeMember } from "../model/Places";
import { axesTriad } from "./AxesTriad";
import { Bodies, type Style } from "./Bodies";
import { CameraRig, type Projection } from "./CameraRig";
import { type Drawing, Picked } from "./Drawing";
import { buildingBox, reach, relativeBox, widened } from "./Extent";
import { findingRims } from "./FindingRims";
import { ItemStates } from "./ItemStates";
import { itemRims, kNoRims } from "./ItemRims";
import { setLight } from "./Light";
import { LoadLayer } from "./LoadLayer";
import { LostLayer } from "./LostLayer";
import { type MarkChoice, MarkLayer } from "./MarkLayer";
import { Picker } from "./Picker";
import { Pointed } from "./Pointed";
import { PointerWatch } from "./PointerWatch";
import type { ViewName } from "./Pose";
import { Scenery } from "./Scenery";
import { Screen } from "./Screen";
import { type SectionPlane, writePlane } from "./SectionPlane";
import { wantsRest } from "./Rest";
import { roundLength } from "./Scale";
import { setThemeColours, type SharedUniforms, sharedUniforms } from "./SharedUniforms";
import { hasSeeThroughSlabs, hasSmoothEdges, type Simplification, simplificationsOf } from "./Simplification";
import type { StageTheme } from "./Theme";

export type { Simplification, StageTheme, ViewName };

export interface StageEvents {
    /** A click found an item; -1: nothing. */
    picked(item: number): void;
    /** The pointer rests on a load; -1: on none any more. The place is CSS pixels of the canvas. */
    hovered(load: number, x: number, y: number): void;
    /** A frame was drawn. */
    frame(): void;
}

export class Stage {
    private readonly size: number;
    private readonly states: ItemStates;
    private readonly shared: SharedUniforms;
    private readonly scenery = new Scenery();
    private readonly screen: Screen;
    private readonly rig: CameraRig;
    private readonly picker: Picker;
    private readonly pointer: PointerWatch;
    private readonly bodies: Bodies;
    private readonly loads: LoadLayer;
    private readonly lost: LostLayer;
    private readonly marks: MarkLayer;
    private readonly axes: Drawing;
    private readonly selection: Pointed;
    private readonly highlight: Pointed;
    private selectedItem = -1;
    private selectedNode = -1;
    private isHovered = false;
    private drawn = { calls: 0, triangles: 0 };

    /** Throws an Error where there is no WebGL 2. */
    constructor(canvas: HTMLCanvasElement, private readonly building: Building, private readonly events: StageEvents) {
        this.screen = new Screen(canvas, hasSmoothEdges(building), {
            draw: (now) => this.draw(now),
            resized: (width, height) => this.resized(width, height),
        });
        this.size = usualLoadSize(building);
        this.states = new ItemStates(building.itemCount);
        const shared = sharedUniforms(this.states.texture, 3 * this.size);
        this.shared = shared;
        const { scenery } = this;
        this.bodies = new Bodies(building, hasSeeThroughSlabs(building), scenery, shared);
        this.marks = new MarkLayer(building, scenery, shared);
        this.loads = new LoadLayer(building, this.size, scenery, shared);
        this.lost = new LostLayer(building, this.size, scenery, shared);
        this.selection = new Pointed(building, shared.selection, scenery, shared);
        this.highlight = new Pointed(building, shared.warning, scenery, shared);
        this.axes = axesTriad(shared);
        scenery.add(this.axes);
        this.rig = new CameraRig(canvas, reach(building, this.size), () => this.moved());
        this.screen.resize();
        this.rig.start(buildingBox(building));
        this.picker = new Picker(this.screen.renderer, scenery, this.rig, shared);
        this.pointer = new PointerWatch(canvas, {
            clicked: (x, y) => events.picked(this.pickAt(x, y)),
            rested: (x, y) => this.hover(x, y),
            moved: () => this.endHover(),
        });
    }

    /** Ends what it has begun, and frees the graphics card. Nothing of it may be called any more. */
    dispose(): void {
        this.pointer.dispose();
        this.rig.dispose();
        this.scenery.dispose();
        this.screen.dispose();
    }

    setStyle(style: Style): void {
        this.bodies.setStyle(style);
        this.screen.request();
    }

    /** Red, green and blue of each item. */
    setColours(colours: Uint8Array): void {
        this.states.setColours(colours);
        this.screen.request();
    }

    /** For each item whether it is shown, as 0 or another number. */
    setVisible(visible: Uint8Array): void {
        this.states.setVisible(visible);
        this.screen.request();
    }

    /** Indexes of the lowest and the highest story whose marks, nodal loads and lost parts are shown. */
    setStories(from: number, to: number): void {
        this.shared.stories.value.set(from, to);
        this.screen.request();
    }

    setMarks(choice: MarkChoice): void {
        this.marks.setChoice(choice);
        this.axes.visible = choice.axes;
        this.screen.request();
    }

    setLoads(choice: "none" | LoadChoice): void {
        this.loads.setChoice(choice);
        this.moved();
    }

    setLost(shown: boolean): void {
        this.lost.visible = shown;
        this.screen.request();
    }

    /** Marks an item, of a slab all triangles; -1: none. */
    setSelected(item: number): void {
        this.selectedItem = item;
        this.showSelection();
    }

    /** Marks a node by its index; -1: none. */
    setSelectedNode(node: number): void {
        this.selectedNode = node;
        this.showSelection();
    }

    /** Points out what a finding is about; -1: none. */
    setHighlight(finding: number): void {
        this.highlight.show(finding < 0 ? kNoRims : findingRims(this.building, finding, this.size));
        if (finding >= 0 && !wantsRest()) {
            this.highlight.pulse(performance.now());
        }
        this.screen.request();
    }

    setProjection(projection: Projection): void {
        this.rig.setProjection(projection);
    }

    view(name: ViewName): void {
        this.rig.view(name, buildingBox(this.building));
    }

    fit(): void {
        this.rig.lookAt(buildingBox(this.building));
    }

    /** Looks at a box with something of what is around it. */
    flyTo(box: Box): void {
        this.rig.lookAt(widened(relativeBox(box, this.building.centre), this.size));
    }

    setSectionPlane(plane: SectionPlane | undefined): void {
        if (plane !== undefined) {
            writePlane(plane, this.building.centre, this.shared.plane.value);
        }
        this.scenery.setCut(plane !== undefined);
        this.screen.request();
    }

    setTheme(theme: StageTheme): void {
        setThemeColours(this.shared, theme);
        this.marks.themeChanged();
        this.screen.request();
    }

    /** As if dragged by so many CSS pixels. */
    orbit(x: number, y: number): void {
        this.rig.orbit(x, y);
    }

    /** As if dragged by so many CSS pixels. */
    pan(x: number, y: number): void {
        this.rig.pan(x, y);
    }

    /** Above 1: nearer. */
    zoom(factor: number): void {
        this.rig.zoom(factor);
    }

    /** A round length in units of the model, and how long it is at the middle of the picture in CSS pixels. */
    scale(): { length: number; pixels: number } {
        return roundLength(this.rig.height / this.screen.renderer.domElement.clientHeight);
    }

    /** The item at a place in CSS pixels of the canvas; -1: none. */
    pickAt(x: number, y: number): number {
        return this.picker.pick(x, y, Picked.Item);
    }

    /** The picture as it is now, as the URL of a PNG. */
    picture(): string {
        this.screen.drawNow();
        return this.screen.renderer.domElement.toDataURL();
    }

    /** What the last frame took. */
    statistics(): { calls: number; triangles: number; vertices: number } {
        return { ...this.drawn, vertices: this.scenery.vertexCount() };
    }

    simplifications(): Simplification[] {
        return simplificationsOf(this.building, this.bodies.areBoxes);
    }

    /** How many items of the building have a place and an extent, so that they can be drawn. */
    get drawableCount(): number {
        return this.bodies.drawableCount;
    }

    private resized(width: number, height: number): void {
        const ratio = this.screen.renderer.getPixelRatio();
        this.screen.renderer.getDrawingBufferSize(this.shared.viewport.value);
        this.shared.pixelRatio.value = ratio;
        this.rig.resize(width, height);
    }

    private draw(now: number): boolean {
        const flies = this.rig.animate(now);
        const pulses = this.highlight.animate(now);
        this.rig.setDepth();
        setLight(this.shared, this.rig.camera, this.building.radius);
        const { x, y, z } = this.shared.background.value;
        this.screen.renderer.setClearColor(new Color(x, y, z));
        this.screen.renderer.render(this.scenery.shown, this.rig.camera);
        const { calls, triangles } = this.screen.renderer.info.render;
        this.drawn = { calls, triangles };
        this.events.frame();
        return flies || pulses;
    }

    private showSelection(): void {
        const items = this.selectedItem < 0 ? [] : wholeMember(this.building, this.selectedItem);
        this.states.setSelected(items);
        const nodes = this.selectedNode < 0 ? [] : [this.selectedNode];
        this.selection.show({ ...itemRims(this.building, items), nodes });
        this.screen.request();
    }

    private hover(x: number, y: number): void {
        if (this.loads.isShown) {
            const load = this.picker.pick(x, y, Picked.Load);
            this.isHovered = load >= 0;
            this.events.hovered(load, x, y);
        }
    }

    /** What is under the pointer is another thing now. */
    private moved(): void {
        this.endHover();
        this.screen.request();
    }

    private endHover(): void {
        if (this.isHovered) {
            this.isHovered = false;
            this.events.hovered(-1, 0, 0);
        }
    }
}
