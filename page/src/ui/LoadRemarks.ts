// What has to be said of the loads that are drawn: their scale, and what is not drawn of them.

import type { Building } from "../model/Building";
import { isChosen, type LoadChoice } from "../model/Loads";
import { type LoadScale, loadScale } from "../model/LoadShapes";
import { countText, forceText } from "./Numbers";
import { type StringKey, text } from "./Strings";

/** Whether the model has a load of a choice. */
function hasLoads(building: Building, loads: LoadChoice): boolean {
    const { nodal, frame, edge } = building.loads;
    return [nodal, frame, edge].some(({ standing }) => standing.some((one) => isChosen(one, loads)));
}

/** The largest of each kind of load, which are drawn equally tall. */
function scaleTexts({ largestForce, largestIntensity, largestMoment }: LoadScale): string[] {
    const sizes: readonly (readonly [StringKey, number])[] = [
        ["forceSize", largestForce], ["intensitySize", largestIntensity], ["momentSize", largestMoment],
    ];
    const told = sizes.filter(([, size]) => size > 0).map(([key, size]) => text(key, forceText(size)));
    return told.length === 0 ? [] : [text("loadScale", told.reduce((some, one) => text("listed", some, one)))];
}

/** Sentences about the loads of a choice. */
export function loadRemarks(building: Building, loads: "none" | LoadChoice): string[] {
    if (loads === "none") {
        return [];
    }
    if (!hasLoads(building, loads)) {
        return [text("noLoadInCase")];
    }
    const scale = loadScale(building, loads);
    return [
        ...(loads === "both" ? [text("bothRemark")] : []),
        ...scaleTexts(scale),
        ...(scale.leftOut > 0 ? [text("loadsNotDrawn", countText(scale.leftOut))] : []),
    ];
}
