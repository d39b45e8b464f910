// The stories of the building, in the order of their keys.
import type { Columns } from "../data/Columns";
import { Records } from "../data/Records";

export interface Story {
    key: number;
    number: number;
    /** Line of the structure file. */
    line: number;
    /** Lowest and highest z of the nodes of its items; undefined: none of these nodes has a place. */
    level: [number, number] | undefined;
}

/** The stories, their levels still unknown. */
export function readStories(columns: Columns): Story[] {
    const records = new Records(columns, "story", "key");
    const number = records.integers("number");
    const line = records.integers("line");
    return Array.from(records.integers("key"), (key, i) => ({
        key,
        number: number[i],
        line: line[i],
        level: undefined,
    }));
}
