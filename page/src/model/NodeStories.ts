// Which stories use which nodes.
import { isDrawable } from "./Box";
import type { Frames } from "./Frames";
import type { Nodes } from "./Nodes";
import type { Planars } from "./Planars";
import type { Story } from "./Stories";

/** Calls `visit` for each end and corner that is there. */
function visitUses(frames: Frames, planars: Planars, visit: (node: number, story: number) => void): void {
    const visitThere = (node: number, story: number): void => {
        if (node >= 0 && story >= 0) {
            visit(node, story);
        }
    };
    for (let i = 0; i < frames.count; ++i) {
        visitThere(frames.nodeI[i], frames.story[i]);
        visitThere(frames.nodeJ[i], frames.story[i]);
    }
    for (let i = 0; i < planars.nodes.length; ++i) {
        visitThere(planars.nodes[i], planars.story[i >> 2]);
    }
}

/** For each node its own story, or the lowest one of which an item uses it; -1: no item does. */
export function nodeStories(nodes: Nodes, frames: Frames, planars: Planars): Int32Array {
    const stories = nodes.story.slice();
    visitUses(frames, planars, (node, story) => {
        if (nodes.story[node] < 0 && (stories[node] < 0 || story < stories[node])) {
            stories[node] = story;
        }
    });
    return stories;
}

/** Tells each story the lowest and the highest z of what its items use. */
export function setLevels(stories: Story[], nodes: Nodes, frames: Frames, planars: Planars): void {
    const from = new Float64Array(stories.length).fill(Infinity);
    const to = new Float64Array(stories.length).fill(-Infinity);
    visitUses(frames, planars, (node, story) => {
        const z = nodes.z[node];
        if (isDrawable(z)) {
            from[story] = Math.min(from[story], z);
            to[story] = Math.max(to[story], z);
        }
    });
    stories.forEach((story, i) => (story.level = from[i] <= to[i] ? [from[i], to[i]] : undefined));
}
