// The balance of the loads: for each story and load case what was read, what the model has, and what was lost.
import type { Columns } from "../data/Columns";
import { Records } from "../data/Records";
import type { LoadChoice } from "./Loads";
import type { Story } from "./Stories";

/** A sum of loads. Vertical forces are positive downward. */
export interface LoadSum {
    count: number;
    fx: number;
    fy: number;
    fz: number;
}

export interface BalanceRow {
    /** Index of the story; -1: the loads of blocks that found no story. */
    story: number;
    loadCase: "dead" | "live";
    read: LoadSum;
    model: LoadSum;
    lost: LoadSum;
    /** How many loads could not be summed. */
    notSummed: number;
    /** Whether what was read, less what was lost, is in the model. */
    holds: boolean;
}

/** The resultant of the loads of a story. */
export interface Resultant {
    /** Index of the story; -1: none. */
    story: number;
    fx: number;
    fy: number;
    /** Positive downward. */
    fz: number;
}

function sumAt(values: Float64Array, row: number): LoadSum {
    const [count, fx, fy, fz] = values.subarray(4 * row, 4 * row + 4);
    return { count, fx, fy, fz };
}

export function readBalance(columns: Columns, stories: Story[]): BalanceRow[] {
    const records = new Records(columns, "balance", "story");
    const hasStory = records.integers("hasStory");
    const loadCase = records.integers("case");
    const read = records.reals("read", 4);
    const model = records.reals("model", 4);
    const lost = records.reals("lost", 4);
    const notSummed = records.integers("notSummed");
    const holds = records.integers("holds");
    return Array.from(records.integers("story"), (key, i) => ({
        story: hasStory[i] === 1 ? stories.findIndex((story) => story.key === key) : -1,
        loadCase: loadCase[i] === 0 ? "dead" : "live",
        read: sumAt(read, i),
        model: sumAt(model, i),
        lost: sumAt(lost, i),
        notSummed: notSummed[i],
        holds: holds[i] === 1,
    }));
}

/** The resultants of the loads that the model has, in the order of the balance; stories without any are left out. */
export function resultants(balance: BalanceRow[], choice: LoadChoice): Resultant[] {
    const sums = new Map<number, Resultant>();
    for (const { story, loadCase, model } of balance) {
        if ((choice === "both" || choice === loadCase) && model.count > 0) {
            const { fx, fy, fz } = sums.get(story) ?? { fx: 0, fy: 0, fz: 0 };
            sums.set(story, { story, fx: fx + model.fx, fy: fy + model.fy, fz: fz + model.fz });
        }
    }
    return [...sums.values()];
}
