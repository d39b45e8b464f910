// The area of a section.
import { loopArea } from "./OutlineLoops";
import { type Section, SectionType } from "./Properties";
import { type Part, sectionOutline } from "./SectionOutline";

export interface SectionArea {
    /** Of the whole section; of a composite one of its concrete alone. */
    area: number;
    /** Of the steel of a composite section; otherwise 0. */
    steel: number;
}

/** By how much a circle is larger than the polygon that it is drawn as. */
const kRound = Math.PI / (12 * Math.sin(Math.PI / 12));
const kRoundShapes = new Set(["SR", "P", "EPC"]);

function areaOf(parts: Part[], isMeant: (part: Part) => boolean): number {
    return parts.filter(isMeant).flatMap(({ loops }) => loops).reduce((sum, loop) => sum + loopArea(loop), 0);
}

/** From the outline, with true circles; of a section by values as it tells. undefined: the section has none. */
export function sectionArea(section: Section): SectionArea | undefined {
    if (section.type === SectionType.Value) {
        const [area] = section.further;
        return area > 0 && Number.isFinite(area) ? { area, steel: 0 } : undefined;
    }
    const outline = sectionOutline(section);
    if (outline === undefined) {
        return undefined;
    }
    const factor = kRoundShapes.has(section.shape) ? kRound : 1;
    return {
        area: factor * areaOf(outline.parts, ({ role }) => role !== "steel"),
        steel: factor * areaOf(outline.parts, ({ role }) => role === "steel"),
    };
}
