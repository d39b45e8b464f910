// Whether the reader has asked the system for less motion.

export function wantsRest(): boolean {
    return matchMedia("(prefers-reduced-motion: reduce)").matches;
}
