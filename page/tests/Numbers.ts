// Compares numbers that were computed.
import assert from "node:assert/strict";

/** Asserts that two lists hold the same numbers, but for rounding to single precision. */
export function assertNear(actual: ArrayLike<number>, expected: ArrayLike<number>, tolerance = 1e-5): void {
    const message = `[${Array.from(actual).join(", ")}] is not [${Array.from(expected).join(", ")}]`;
    assert.equal(actual.length, expected.length, message);
    for (let i = 0; i < expected.length; ++i) {
        assert.ok(Math.abs(actual[i] - expected[i]) <= tolerance * Math.max(1, Math.abs(expected[i])), message);
    }
}
