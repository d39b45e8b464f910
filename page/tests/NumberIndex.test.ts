// Numbers of records, dense and sparse.
import assert from "node:assert/strict";
import { test } from "node:test";

import { numberIndex } from "../src/model/NumberIndex";

const kLists = {
    dense: [3, 1, 0, 5],
    negative: [-3, 0, 4, -2],
    sparse: [2147483647, -2147483648, 0, 1000000],
};

for (const [name, numbers] of Object.entries(kLists)) {
    test(`${name} numbers are found, and others are not`, () => {
        const indexOf = numberIndex(Int32Array.from(numbers));
        assert.deepEqual(numbers.map(indexOf), [0, 1, 2, 3]);
        for (const other of [-4, -1, 6, 7, 2147483646, 4294967296, 1.5, NaN]) {
            assert.equal(indexOf(other), -1);
        }
    });
}

test("a number between others that is missing is not found", () => {
    assert.equal(numberIndex(Int32Array.of(3, 1, 5))(4), -1);
});

test("of several records with one number the last is meant", () => {
    assert.equal(numberIndex(Int32Array.of(7, 8, 7))(7), 2);
    assert.equal(numberIndex(Int32Array.of(7, 2000000000, 7))(7), 2);
});

test("without numbers there is none", () => {
    const indexOf = numberIndex(new Int32Array());
    assert.equal(indexOf(0), -1);
    assert.equal(indexOf(1), -1);
});
