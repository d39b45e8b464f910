// The size of a file, as a person compares it.

import { countText } from "../ui/Numbers";
import { words } from "./Words";

/** Four digits at most from 10,000 bytes on: 9,999 B, 57.3 kB, 1,208 MB. */
export function sizeText(bytes: number): string {
    if (bytes < 10_000) {
        return words("bytes", countText(bytes));
    }
    const [unit, size] = bytes < 1e6 ? ["kilobytes", bytes / 1e3] as const : ["megabytes", bytes / 1e6] as const;
    return words(unit, size < 100 ? size.toFixed(1) : countText(Math.round(size)));
}
