// The items of the building: frame elements, walls and plates, in line or solid style.
import type { Building } from "../model/Building";
import { frameShapes } from "../model/FrameShapes";
import { planarShapes } from "../model/PlanarShapes";
import type { Drawing } from "./Drawing";
import { frameLines } from "./FrameLines";
import { frameSolids } from "./FrameSolids";
import { frameTable } from "./FrameTable";
import { Panels } from "./Panels";
import { panelTables } from "./PanelTable";
import type { Scenery } from "./Scenery";
import type { SharedUniforms } from "./SharedUniforms";

export type Style = "line" | "solid";

export class Bodies {
    /** Sections are drawn as their outer boxes. */
    readonly areBoxes: boolean;
    /** How many items can be drawn. */
    readonly drawableCount: number;
    private readonly solids: readonly Drawing[];
    private readonly lines: Drawing;
    private readonly shapeless: Drawing;
    private readonly walls: Panels;
    private readonly plates: Panels;

    /** `seeThrough`: whether one can look through slabs. */
    constructor(building: Building, private readonly seeThrough: boolean, scenery: Scenery, shared: SharedUniforms) {
        const frames = frameTable(frameShapes(building));
        const [walls, plates] = panelTables(planarShapes(building), building.planars, building.frames.count);
        this.areBoxes = frames.areBoxes;
        this.drawableCount = frames.count + walls.count + plates.count;
        this.solids = frameSolids(frames, shared);
        this.lines = frameLines(frames, { first: 0, count: frames.count }, shared);
        this.shapeless = frameLines(frames, frames.lines, shared);
        this.walls = new Panels(walls, shared);
        this.plates = new Panels(plates, shared);
        scenery.add(...this.solids, this.lines, this.shapeless, ...this.walls.drawings, ...this.plates.drawings);
        this.setStyle("solid");
    }

    setStyle(style: Style): void {
        const isSolid = style === "solid";
        for (const solid of this.solids) {
            solid.visible = isSolid;
        }
        this.lines.visible = !isSolid;
        this.shapeless.visible = isSolid;
        const look = { thickness: isSolid ? 1 : 0, areLines: !isSolid } as const;
        this.walls.setLook({ ...look, opacity: isSolid ? 1 : 0.16 });
        this.plates.setLook({ ...look, opacity: isSolid ? (this.seeThrough ? 0.4 : 1) : 0.1 });
    }
}
