// Names of the input files, as the page shows them.

import type { Building } from "../model/Building";
import { FindingSource } from "../model/Findings";

/** The last part of a path, of whatever system. A byte that is no text stands as \xFF: its backslash parts nothing. */
export function baseName(path: string): string {
    return path.split(/\/|\\(?!x[0-9A-F]{2})/).pop() ?? path;
}

/** "structure.sat:216", or only the file where no line is known; empty where the model itself is meant. */
export function sourceText(building: Building, source: FindingSource, line: number): string {
    if (source === FindingSource.Model) {
        return "";
    }
    const { structure, load } = building.files;
    const name = baseName(source === FindingSource.StructureFile ? structure : load);
    return line > 0 ? `${name}:${line}` : name;
}
