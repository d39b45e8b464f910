// Counts of findings, also where the page does not hold all of them.
import assert from "node:assert/strict";
import { test } from "node:test";

import type { Building } from "../src/model/Building";
import { Severity } from "../src/model/Findings";
import { findingGroups, honestCount, severityCount } from "../src/ui/FindingGroups";
import { testBuilding } from "./TestBuilding";

/** Findings by code and severity, and how many of each code there are in all. */
function building(findings: [string, Severity][], totals: Record<string, number>): Building {
    const made = testBuilding({ findings: findings.map(([code]) => ({ code })) });
    findings.forEach(([, severity], index) => { made.findings[index].severity = severity; });
    made.findingCodes.forEach((code) => { code.total = totals[code.name]; });
    return made;
}

test("losses come first, and codes keep their order", () => {
    const groups = findingGroups(building(
        [["b", Severity.Note], ["a", Severity.Doubt], ["c", Severity.Loss], ["a", Severity.Doubt]],
        { a: 2, b: 1, c: 1 },
    ));
    assert.deepEqual(groups.map(({ code, findings }) => [code, findings]), [["c", [2]], ["a", [1, 3]], ["b", [0]]]);
});

test("a count of what the page holds differs from the total", () => {
    const groups = findingGroups(building(
        [["a", Severity.Loss], ["a", Severity.Loss], ["b", Severity.Loss]], { a: 3000, b: 1 },
    ));
    assert.deepEqual(severityCount(groups, Severity.Loss), { held: 3, total: 3001, isExact: true });
    assert.deepEqual(severityCount(groups, Severity.Doubt), { held: 0, total: 0, isExact: true });
});

test("of a code with two severities nobody knows which are not held", () => {
    const groups = findingGroups(building([["a", Severity.Loss], ["a", Severity.Doubt]], { a: 9 }));
    const losses = severityCount(groups, Severity.Loss);
    assert.deepEqual(losses, { held: 1, total: 1, isExact: false });
    assert.equal(honestCount(losses), "1+");
    const whole = findingGroups(building([["a", Severity.Loss], ["a", Severity.Doubt]], { a: 2 }));
    assert.deepEqual(severityCount(whole, Severity.Loss), { held: 1, total: 1, isExact: true });
});
