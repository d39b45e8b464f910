// Findings by severity and code, with counts that are honest where the page does not hold all findings of a code.

import type { Building } from "../model/Building";
import { Severity } from "../model/Findings";
import { countText } from "./Numbers";
import type { StringKey } from "./Strings";

export const kSeverities = [Severity.Loss, Severity.Doubt, Severity.Note] as const;

export const kSeverityNames: Readonly<Record<Severity, StringKey>> = {
    [Severity.Loss]: "losses",
    [Severity.Doubt]: "doubts",
    [Severity.Note]: "notes",
};

/** How many findings the program made; at least so many where `isExact` is false. */
export interface HonestTotal {
    total: number;
    isExact: boolean;
}

/** "10", or "10+" where there may be more. */
export function honestCount({ total, isExact }: HonestTotal): string {
    return isExact ? countText(total) : `${countText(total)}+`;
}

export interface FindingGroup extends HonestTotal {
    code: string;
    severity: Severity;
    /** Indexes of the findings that the page holds. */
    findings: number[];
}

/** Losses first, then doubts and notes; within a severity in the order in which the codes occur. */
export function findingGroups(building: Building): FindingGroup[] {
    const groups = new Map<string, FindingGroup>();
    building.findings.forEach(({ code, severity }, index) => {
        const key = `${severity} ${code}`;
        const group = groups.get(key) ?? { code, severity, findings: [], total: 0, isExact: true };
        group.findings.push(index);
        group.total = group.findings.length;
        groups.set(key, group);
    });
    const all = [...groups.values()];
    for (const { name, total } of building.findingCodes) {
        addMissing(all.filter((group) => group.code === name), total);
    }
    return all.sort((a, b) => a.severity - b.severity);
}

/** Counts what the page does not hold. Of a code with two severities nobody knows which of them it is. */
function addMissing(groups: FindingGroup[], total: number): void {
    const held = groups.reduce((sum, group) => sum + group.findings.length, 0);
    if (groups.length === 1) {
        groups[0].total = total;
    } else if (held < total) {
        groups.forEach((group) => { group.isExact = false; });
    }
}

/** How many findings have a severity, and how many of them the page holds. */
export function severityCount(
    groups: readonly FindingGroup[], severity: Severity
): HonestTotal & { held: number } {
    const own = groups.filter((group) => group.severity === severity);
    return {
        held: own.reduce((sum, group) => sum + group.findings.length, 0),
        total: own.reduce((sum, group) => sum + group.total, 0),
        isExact: own.every((group) => group.isExact),
    };
}
