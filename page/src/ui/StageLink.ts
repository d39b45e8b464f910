// Keeps the picture as the state of the page says.

import type { Building } from "../model/Building";
import { itemColours } from "../model/Colouring";
import type { Stage } from "../stage/Stage";
import { stageColours } from "./Theme";
import type { Selection } from "./ViewState";
import type { Viewer } from "./Viewer";

/** The item that the picture marks: the first of a slab's triangles stands for all. */
function selectedItem(selection: Selection): number {
    return selection.kind === "items" ? (selection.items[0] ?? -1) : -1;
}

/** The stories as the picture takes them: with all of them, also what belongs to none. */
function shownStories(building: Building, stories: readonly [number, number]): readonly [number, number] {
    return building.stories.length === 0 ? [-1, -1] : stories;
}

export function linkStage(viewer: Viewer, stage: Stage): void {
    viewer.watch(["dark"], ({ dark }) => stage.setTheme(stageColours(dark)));
    viewer.watch(["colourBy", "dark"], () => stage.setColours(itemColours(viewer.legend())));
    viewer.watch(["stories"], ({ stories }) => stage.setStories(...shownStories(viewer.building, stories)));
    viewer.watch(["stories", "hidden", "colourBy"], () => stage.setVisible(viewer.visible()));
    viewer.watch(["style"], ({ style }) => stage.setStyle(style));
    viewer.watch(["projection"], ({ projection }) => stage.setProjection(projection));
    viewer.watch(["marks"], ({ marks }) => stage.setMarks(marks));
    viewer.watch(["loads"], ({ loads }) => stage.setLoads(loads));
    viewer.watch(["lost"], ({ lost }) => stage.setLost(lost));
    viewer.watch(["plane"], ({ plane }) => stage.setSectionPlane(plane));
    viewer.watch(["selection"], ({ selection }) => {
        stage.setSelected(selectedItem(selection));
        stage.setSelectedNode(selection.kind === "node" ? selection.node : -1);
    });
    viewer.watch(["finding"], ({ finding }) => stage.setHighlight(finding));
}
