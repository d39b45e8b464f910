// Files read in large blocks.
import assert from "node:assert/strict";
import { test } from "node:test";

import { ReadAhead } from "../src/convert/ReadAhead";

const kMega = 1 << 20;

/** A file of so many bytes, and the parts of it that are read. */
function watched(size: number): { bytes: Uint8Array; reader: ReadAhead; parts: [number, number][] } {
    const bytes = Uint8Array.from({ length: size }, (_, i) => (i * 31) % 251);
    const parts: [number, number][] = [];
    const reader = new ReadAhead(size, (from, to) => {
        parts.push([from, to]);
        return bytes.slice(from, to);
    });
    return { bytes, reader, parts };
}

/** Reads from front to back in pieces of a size. */
function readAll(reader: ReadAhead, pieceSize: number): number[] {
    const piece = new Uint8Array(pieceSize);
    const all: number[] = [];
    for (let count = -1; count !== 0;) {
        count = reader.read(all.length, piece);
        piece.subarray(0, count).forEach((byte) => all.push(byte));
    }
    return all;
}

test("small pieces make a file in blocks of one mebibyte", () => {
    const { bytes, reader, parts } = watched(2 * kMega + 500);
    assert.deepEqual(Uint8Array.from(readAll(reader, 1000)), bytes);
    assert.deepEqual(parts, [[0, kMega], [kMega, 2 * kMega], [2 * kMega, 2 * kMega + 500]]);
});

test("a piece larger than a block is filled as far as the block goes", () => {
    const { reader } = watched(kMega + 1);
    assert.equal(reader.read(0, new Uint8Array(3 * kMega)), kMega);
    assert.equal(reader.read(kMega, new Uint8Array(3 * kMega)), 1);
});

test("a file that is read once more begins anew", () => {
    const { bytes, reader, parts } = watched(kMega + 9);
    readAll(reader, 65536);
    assert.deepEqual(Uint8Array.from(readAll(reader, 65536)), bytes);
    assert.equal(parts.length, 4);
});

test("at the end, and in an empty file, nothing is read", () => {
    const { reader, parts } = watched(0);
    assert.equal(reader.read(0, new Uint8Array(10)), 0);
    assert.deepEqual(parts, []);
    const short = watched(5);
    assert.equal(short.reader.read(5, new Uint8Array(10)), 0);
    assert.deepEqual(short.parts, []);
});

test("a file that cannot be read throws, and is read when it can again", () => {
    let isGone = true;
    const reader = new ReadAhead(4, (from, to) => {
        if (isGone) {
            throw new Error("gone");
        }
        return Uint8Array.of(1, 2, 3, 4).slice(from, to);
    });
    const piece = new Uint8Array(4);
    assert.throws(() => reader.read(0, piece), /gone/);
    isGone = false;
    assert.equal(reader.read(1, piece), 3);
    assert.deepEqual([...piece], [2, 3, 4, 0]);
});
