// A drawing of a section, from its outline, with its width and its height.

import type { Section } from "../model/Properties";
import { type Outline, sectionOutline } from "../model/SectionOutline";
import { svgElement } from "./Dom";
import { numberText } from "./Numbers";
import { text } from "./Strings";

const kSize = 150;  // of the longer side of the section, in units of the drawing
const kMargin = 34;

/** A loop as the path of a drawing, whose y leads down. */
function loopPath(loop: Float64Array, scale: number): string {
    const points: string[] = [];
    for (let i = 0; i + 1 < loop.length; i += 2) {
        points.push(`${(loop[i] * scale).toFixed(2)} ${(-loop[i + 1] * scale).toFixed(2)}`);
    }
    return `M${points.join("L")}Z`;
}

/** A line with a tick at both ends, and a number in its middle. */
function dimension(from: readonly [number, number], to: readonly [number, number], value: number): SVGGElement {
    const isUpright = from[0] === to[0];
    const tick = ([x, y]: readonly [number, number]): SVGLineElement =>
        svgElement("line", { x1: x - 4, y1: y + 4, x2: x + 4, y2: y - 4 });
    const x = (from[0] + to[0]) / 2 - (isUpright ? 6 : 0);
    const y = (from[1] + to[1]) / 2 + (isUpright ? 0 : 16);
    const turned = isUpright ? `rotate(-90 ${x} ${y})` : undefined;
    return svgElement(
        "g", { class: "dimension" },
        svgElement("line", { x1: from[0], y1: from[1], x2: to[0], y2: to[1] }), tick(from), tick(to),
        svgElement("text", { x, y, "text-anchor": "middle", transform: turned }, numberText(value)),
    );
}

function drawing(outline: Outline): SVGSVGElement {
    const scale = kSize / Math.max(outline.width, outline.height);
    const right = (outline.width * scale) / 2;
    const bottom = (outline.height * scale) / 2;
    const box = [-right - kMargin, -bottom - 8, 2 * right + kMargin + 8, 2 * bottom + kMargin + 8];
    const parts = outline.parts.map(({ role, loops }) => svgElement("path", {
        class: `part ${role}`, "fill-rule": "evenodd", d: loops.map((loop) => loopPath(loop, scale)).join(""),
    }));
    return svgElement(
        "svg", { class: "sketch", viewBox: box.join(" "), role: "img", width: box[2], height: box[3] },
        svgElement("title", {}, text("sketch", numberText(outline.width), numberText(outline.height))),
        ...parts,
        dimension([-right, bottom + 12], [right, bottom + 12], outline.width),
        dimension([-right - 12, bottom], [-right - 12, -bottom], outline.height),
    );
}

/** The drawing; undefined: the section has no shape that can be drawn. */
export function sectionSketch(section: Section): SVGSVGElement | undefined {
    const outline = sectionOutline(section);
    const size = outline === undefined ? 0 : Math.max(outline.width, outline.height);
    return outline !== undefined && size > 0 && Number.isFinite(size) ? drawing(outline) : undefined;
}
