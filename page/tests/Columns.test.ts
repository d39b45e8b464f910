// The columns of a picture in every form, and bytes that are no picture.
import assert from "node:assert/strict";
import { test } from "node:test";

import { readColumns } from "../src/data/Columns";
import { Records } from "../src/data/Records";
import { ColumnBytes, f64, i16, i32, i8, u16, u32 } from "./ColumnBytes";

/** The integers of a column with this form and payload. */
function integers(form: number, count: number, payload: number[]): number[] {
    return [...new ColumnBytes().add("c", form, count, payload).columns().integers("c")];
}

function reals(form: number, count: number, payload: number[]): number[] {
    return [...new ColumnBytes().add("c", form, count, payload).columns().reals("c")];
}

test("integers of 8, 16 and 32 bits are signed and little-endian", () => {
    assert.deepEqual(integers(1, 3, [...i8(-128), ...i8(127), ...i8(-1)]), [-128, 127, -1]);
    assert.deepEqual(integers(2, 3, [...i16(-32768), ...i16(32767), 0x01, 0x02]), [-32768, 32767, 513]);
    assert.deepEqual(integers(3, 2, [...i32(-2147483648), 0x04, 0x03, 0x02, 0x01]), [-2147483648, 0x01020304]);
});

test("differences are summed from 0 on, and wrap at 32 bits", () => {
    assert.deepEqual(integers(4, 4, [5, 1, 0, ...i8(-10)]), [5, 6, 6, -4]);
    assert.deepEqual(integers(5, 3, [...i16(30000), ...i16(30000), ...i16(-1)]), [30000, 60000, 59999]);
    const steps = new Array<number>(65539).fill(32767);
    const sums = integers(5, steps.length, steps.flatMap(i16));
    assert.equal(sums[65537], 65538 * 32767);
    assert.equal(sums[65538], 65539 * 32767 - 2 ** 32);
});

test("one integer stands for all", () => {
    assert.deepEqual(integers(10, 3, i32(-7)), [-7, -7, -7]);
});

test("reals keep every bit, also what is no number", () => {
    const values = [0.1, -1e300, Infinity, -Infinity, NaN, 5e-324];
    assert.deepEqual(reals(6, 6, values.flatMap(f64)), values);
    assert.ok(Object.is(reals(6, 1, f64(-0))[0], -0));
});

test("reals by index, of 8 and of 16 bits", () => {
    const distinct = [...u32(2), ...f64(1.5), ...f64(-2)];
    assert.deepEqual(reals(7, 3, [...distinct, 1, 0, 1]), [-2, 1.5, -2]);
    assert.deepEqual(reals(8, 2, [...distinct, ...u16(0), ...u16(1)]), [1.5, -2]);
    const many = Array.from({ length: 300 }, (_, i) => i / 4);
    assert.deepEqual(reals(8, 1, [...u32(300), ...many.flatMap(f64), ...u16(299)]), [74.75]);
    assert.throws(() => reals(7, 1, [...distinct, 2]), /no value with the index 2/);
});

test("one real stands for all", () => {
    assert.deepEqual(reals(11, 2, f64(0.25)), [0.25, 0.25]);
});

test("columns without values", () => {
    for (const form of [1, 2, 3, 4, 5, 10]) {
        assert.deepEqual(integers(form, 0, []), []);
    }
    assert.deepEqual(reals(6, 0, []), []);
    assert.deepEqual(reals(7, 0, u32(0)), []);
    assert.deepEqual(reals(11, 0, []), []);
    assert.deepEqual(new ColumnBytes().texts("c", []).columns().texts("c"), []);
});

test("texts are UTF-8, and other bytes are shown by their numbers", () => {
    const texts = ["", "structure.sat", "层 3 – é", "😀", "\ufeffx"];
    assert.deepEqual(new ColumnBytes().texts("c", texts).columns().texts("c"), texts);
    const bytes = [0x61, 0xff, 0xe5, 0xb1, 0x82, 0xe5, 0xb1, 0x0a, 0xc3];
    const column = new ColumnBytes().add("c", 9, 1, [...u32(bytes.length), ...bytes]).columns();
    assert.deepEqual(column.texts("c"), ["a\\xFF层\\xE5\\xB1\n\\xC3"]);
});

test("a column stands between others at any place", () => {
    const columns = new ColumnBytes()
        .add("first", 1, 1, [9])
        .texts("names", ["a", "bc"])
        .reals("x", [0.5])
        .add("last", 4, 2, [1, 1])
        .columns();
    assert.deepEqual([...columns.integers("first")], [9]);
    assert.deepEqual(columns.texts("names"), ["a", "bc"]);
    assert.deepEqual([...columns.reals("x")], [0.5]);
    assert.deepEqual([...columns.integers("last")], [1, 2]);
});

test("bytes may begin inside a buffer", () => {
    const bytes = new ColumnBytes().reals("x", [0.5]).texts("t", ["é"]).bytes();
    const inside = new Uint8Array(bytes.length + 3);
    inside.set(bytes, 3);
    const columns = readColumns(inside.subarray(3));
    assert.deepEqual([...columns.reals("x")], [0.5]);
    assert.deepEqual(columns.texts("t"), ["é"]);
});

test("a missing column, and one of another type, are errors", () => {
    const columns = new ColumnBytes().integers("i", [1]).reals("x", [1]).texts("t", ["1"]).columns();
    assert.throws(() => columns.integers("j"), /no column j/);
    assert.throws(() => columns.integers("x"), /x holds no integers/);
    assert.throws(() => columns.reals("i"), /i holds no reals/);
    assert.throws(() => columns.texts("i"), /i holds no texts/);
});

test("a wrong mark, version or form is refused", () => {
    const bytes = new ColumnBytes().bytes();
    assert.throws(() => readColumns(bytes.map((byte, i) => (i === 0 ? 0x73 : byte))), /no bytes of a picture/);
    assert.throws(() => readColumns(bytes.map((byte, i) => (i === 4 ? 2 : byte))), /no bytes of a picture/);
    for (const form of [0, 12, 255]) {
        assert.throws(() => integers(form, 1, i32(1)), /unknown form/);
    }
});

test("bytes that end anywhere inside a column are refused", () => {
    const bytes = new ColumnBytes()
        .integers("i", [1])
        .add("k", 7, 2, [...u32(1), ...f64(3), 0, 0])
        .texts("t", ["ab", "c"])
        .bytes();
    const ends = [8, 8 + 1 + 1 + 1 + 4 + 4, 8 + 11 + 1 + 1 + 1 + 4 + 4 + 8 + 2, bytes.length];
    for (let size = 0; size <= bytes.length; ++size) {
        if (ends.includes(size)) {
            assert.doesNotThrow(() => readColumns(bytes.subarray(0, size)));
        } else {
            assert.throws(() => readColumns(bytes.subarray(0, size)), /ends too early/);
        }
    }
});

test("a count that is larger than all bytes is refused", () => {
    assert.throws(() => integers(3, 0xffffffff, []), /ends too early/);
    assert.throws(() => reals(7, 1, [...u32(0xffffffff), 0]), /ends too early/);
});

test("columns of records have as many values as there are records", () => {
    const columns = new ColumnBytes().integers("wall.key", [1, 2]).reals("wall.x", [1, 2, 3, 4]).texts("wall.t", ["a"])
        .columns();
    const walls = new Records(columns, "wall", "key");
    assert.equal(walls.count, 2);
    assert.deepEqual([...walls.reals("x", 2)], [1, 2, 3, 4]);
    assert.throws(() => walls.reals("x"), /wall.x has 4 values instead of 2/);
    assert.throws(() => walls.integers("key", 4), /wall.key has 2 values instead of 8/);
    assert.throws(() => walls.texts("t"), /wall.t has 1 values instead of 2/);
});
