// The balance of the loads and the resultants.
import assert from "node:assert/strict";
import { test } from "node:test";

import { resultants } from "../src/model/Balance";
import { testBuilding } from "./TestBuilding";

const { balance } = testBuilding({
    stories: [1, 5],
    balance: [
        { story: 1, case: 0, model: [3, 1, 2, 1000] }, { story: 5, case: 0, model: [1, 0, 0, 400] },
        { case: 0, model: [0, 0, 0, 0] }, { story: 1, case: 1, model: [2, 10, -4, 500] },
        { story: 5, case: 1, model: [0, 0, 0, 0] }, { case: 1, model: [1, 0, 0, -7] },
    ],
});

test("rows name their stories by index", () => {
    assert.deepEqual(balance.map(({ story, loadCase }) => [story, loadCase]), [
        [0, "dead"], [1, "dead"], [-1, "dead"], [0, "live"], [1, "live"], [-1, "live"],
    ]);
});

test("a row has what was read, what the model has, and what was lost", () => {
    const { read, model, lost, notSummed, holds } = balance[0];
    assert.deepEqual(read, { count: 6, fx: 2, fy: 4, fz: 2000 });
    assert.deepEqual(model, { count: 3, fx: 1, fy: 2, fz: 1000 });
    assert.deepEqual(lost, { count: 3, fx: 1, fy: 2, fz: 1000 });
    assert.deepEqual([notSummed, holds, balance[1].holds], [3, true, false]);
});

test("resultants of a choice, for each story that has loads", () => {
    const [one, five] = [{ story: 0, fx: 1, fy: 2, fz: 1000 }, { story: 1, fx: 0, fy: 0, fz: 400 }];
    assert.deepEqual(resultants(balance, "dead"), [one, five]);
    const [live, none] = [{ story: 0, fx: 10, fy: -4, fz: 500 }, { story: -1, fx: 0, fy: 0, fz: -7 }];
    assert.deepEqual(resultants(balance, "live"), [live, none]);
    assert.deepEqual(resultants(balance, "both"), [{ story: 0, fx: 11, fy: -2, fz: 1500 }, five, none]);
    assert.deepEqual(resultants([], "both"), []);
});
