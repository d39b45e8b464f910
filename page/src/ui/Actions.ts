// What controls, keys and clicks do, where that is more than one change of the state.

import type { Stage } from "../stage/Stage";
import type { Box } from "../model/Box";
import { itemStory } from "../model/Items";
import { findingPlace, findingBox, placeBox, storyBox } from "../model/Places";
import type { Place } from "../model/Places";
import { findItem } from "../model/Search";
import { chooseTheme } from "./Theme";
import { type Selection, type ViewState, allStories, kNothing, showsAllStories } from "./ViewState";
import type { Viewer } from "./Viewer";

export class Actions {
    /** The picture, once there is one. */
    stage: Stage | undefined;

    constructor(readonly viewer: Viewer) {}

    /** A click into the picture. */
    pick(item: number): void {
        if (item < 0) {
            this.viewer.change({ selection: kNothing, finding: -1 });
        } else {
            this.viewer.change({ selection: { kind: "items", items: [item] }, finding: -1, tab: "element" });
        }
    }

    deselect(): void {
        this.viewer.change({ selection: kNothing, finding: -1 });
    }

    /** Selects items and flies there. */
    goToItems(items: readonly number[]): void {
        this.goTo({ kind: "items", items: [...items] }, { finding: -1, tab: "element" });
    }

    goToNode(node: number): void {
        this.goTo({ kind: "node", node }, { finding: -1, tab: "element" });
    }

    /** Shows what a finding is about. */
    goToFinding(finding: number): void {
        const { building } = this.viewer;
        const place = findingPlace(building, finding);
        const story = building.findings[finding].story;
        this.reveal(place, story);
        this.viewer.change({ finding, lost: true, selection: selectionOf(place) });
        this.fly(findingBox(building, finding));
    }

    /** Goes to what a person typed; false: there is no such thing. */
    find(query: string): boolean {
        const place = findItem(this.viewer.building, query);
        if (place === undefined) {
            return false;
        }
        this.goTo(place, { finding: -1, tab: "element" });
        return true;
    }

    /** Shows one story, the next one up or down from what is shown. */
    stepStory(step: 1 | -1): void {
        const { building, state } = this.viewer;
        const [lowest, highest] = allStories(building);
        const [from, to] = state.stories;
        const start = showsAllStories(building, state.stories) && lowest !== highest;
        const next = start ? (step > 0 ? lowest : highest) : (step > 0 ? to : from) + step;
        const story = Math.min(highest, Math.max(lowest, next));
        this.viewer.change({ stories: [story, story] });
    }

    showAllStories(): void {
        this.viewer.change({ stories: allStories(this.viewer.building) });
    }

    /** Looks at the stories that are shown, or at all. */
    fit(): void {
        const { building, state } = this.viewer;
        if (showsAllStories(building, state.stories)) {
            this.stage?.fit();
            return;
        }
        this.fly(storyBox(building, ...state.stories));
    }

    toggle(key: "style" | "projection"): void {
        const { state } = this.viewer;
        this.viewer.change(key === "style"
            ? { style: state.style === "line" ? "solid" : "line" }
            : { projection: state.projection === "parallel" ? "perspective" : "parallel" });
    }

    toggleTheme(): void {
        const dark = !this.viewer.state.dark;
        chooseTheme(dark);
        this.viewer.change({ dark });
    }

    private goTo(place: Place, change: Partial<ViewState>): void {
        this.reveal(place, -1);
        this.viewer.change({ selection: selectionOf(place), ...change });
        this.fly(placeBox(this.viewer.building, place));
    }

    private fly(box: Box | undefined): void {
        if (box !== undefined) {
            this.stage?.flyTo(box);
        }
    }

    /** Takes away what hides a place: a choice of stories, or a legend entry that is switched off. */
    private reveal(place: Place, story: number): void {
        if (place.kind === "nowhere") {
            return;
        }
        const { building, state } = this.viewer;
        const items = place.kind === "items" ? place.items : [];
        const node = place.kind === "node" ? building.nodeStory[place.node] : story;
        const stories = items.length > 0 ? items.map((item) => itemStory(building, item)) : [node];
        if (stories.some((shown) => shown < state.stories[0] || shown > state.stories[1])) {
            this.showAllStories();
        }
        const { entryOf } = this.viewer.legend();
        const entries = new Set(items.map((item) => entryOf[item]));
        if ([...entries].some((entry) => state.hidden.has(entry))) {
            this.viewer.change({ hidden: new Set([...state.hidden].filter((entry) => !entries.has(entry))) });
        }
    }
}

function selectionOf(place: Place): Selection {
    if (place.kind === "items") {
        return { kind: "items", items: place.items };
    }
    return place.kind === "node" ? { kind: "node", node: place.node } : kNothing;
}
