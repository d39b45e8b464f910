// The state of the page and those who watch it. A watcher is called when something it watches has changed.

import type { Building } from "../model/Building";
import { type Legend, legend } from "../model/Colouring";
import { itemStory } from "../model/Items";
import { type ViewState, firstState, showsAllStories } from "./ViewState";

type Key = keyof ViewState;

interface Watcher {
    keys: readonly Key[];
    run(state: ViewState): void;
}

export class Viewer {
    state: ViewState;
    private watchers: Watcher[] = [];
    private coloured: { of: string; legend: Legend } | undefined;

    constructor(readonly building: Building, dark: boolean) {
        this.state = firstState(building, dark);
    }

    /** Calls `run` now, and again after each change of one of the keys. */
    watch(keys: readonly Key[], run: (state: ViewState) => void): void {
        this.watchChanges(keys, run);
        run(this.state);
    }

    /** Calls `run` after each change of one of the keys. */
    watchChanges(keys: readonly Key[], run: (state: ViewState) => void): void {
        this.watchers.push({ keys, run });
    }

    /** Forgets all watchers, before the page is made anew in another language. */
    unwatch(): void {
        this.watchers = [];
    }

    change(part: Partial<ViewState>): void {
        const changed = (Object.keys(part) as Key[]).filter((key) => this.state[key] !== part[key]);
        this.state = { ...this.state, ...part };
        for (const watcher of this.watchers) {
            if (watcher.keys.some((key) => changed.includes(key))) {
                watcher.run(this.state);
            }
        }
    }

    /** The legend of the colours that are shown. */
    legend(): Legend {
        const { colourBy, dark } = this.state;
        const of = `${colourBy} ${dark}`;
        if (this.coloured?.of !== of) {
            this.coloured = { of, legend: legend(this.building, colourBy, dark) };
        }
        return this.coloured.legend;
    }

    /** For each item whether it is shown. */
    visible(): Uint8Array {
        const { hidden, stories } = this.state;
        const { entryOf } = this.legend();
        const all = showsAllStories(this.building, stories);
        const shown = new Uint8Array(this.building.itemCount);
        for (let item = 0; item < shown.length; ++item) {
            const story = itemStory(this.building, item);
            const inStories = all || (story >= stories[0] && story <= stories[1]);
            shown[item] = inStories && !hidden.has(entryOf[item]) ? 1 : 0;
        }
        return shown;
    }
}
