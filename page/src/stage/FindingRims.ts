// What a finding is about, to point it out.
import type { Box } from "../model/Box";
import type { Building } from "../model/Building";
import { findingPlace, storyBox } from "../model/Places";
import { itemRims, kNoRims, type Rims } from "./ItemRims";
import { lostArrows, lostLoadLine, lostRim } from "./LostPlaces";

/** Its element and what was lost with it, or its node; otherwise a box around its story. `size`: how long loads are. */
export function findingRims(building: Building, finding: number, size: number): Rims {
    const place = findingPlace(building, finding);
    const { lines, faces } = place.kind === "items" ? itemRims(building, place.items) : kNoRims;
    const box = place.kind === "story" ? storyBox(building, place.story) : undefined;
    return {
        lines: [
            ...lines, ...lostLines(building, finding, size), ...(box === undefined ? [] : boxRim(box, building.centre)),
        ],
        faces,
        nodes: place.kind === "node" ? [place.node] : [],
    };
}

function lostLines(building: Building, finding: number, size: number): number[] {
    const ofFinding = (lost: readonly { finding: number }[]): number[] =>
        lost.flatMap((one, index) => (one.finding === finding ? [index] : []));
    return [
        ...ofFinding(building.lost).flatMap((lost) => lostRim(building, lost)),
        ...ofFinding(building.lostLoads)
            .flatMap((lost) => [...lostLoadLine(building, lost), ...lostArrows(building, lost, size)]),
    ];
}

/** The twelve edges of a box. */
function boxRim({ min, max }: Box, centre: Building["centre"]): number[] {
    const corner = (bits: number): number[] =>
        [0, 1, 2].map((k) => ((bits >> k) & 1 ? max[k] : min[k]) - centre[k]);
    return [1, 2, 4].flatMap((step) =>
        [0, 1, 2, 3, 4, 5, 6, 7].filter((bits) => (bits & step) === 0)
            .flatMap((bits) => [...corner(bits), ...corner(bits | step)]));
}
