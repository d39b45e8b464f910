// Bytes from base64.
import assert from "node:assert/strict";
import { test } from "node:test";

import { bytesOfBase64 } from "../src/data/Base64";

test("texts of the base64 standard", () => {
    const texts: [string, string][] = [
        ["", ""], ["Zg==", "f"], ["Zm8=", "fo"], ["Zm9v", "foo"], ["Zm9vYg==", "foob"], ["Zm9vYmE=", "fooba"],
        ["Zm9vYmFy", "foobar"],
    ];
    for (const [base64, text] of texts) {
        assert.equal(String.fromCharCode(...bytesOfBase64(base64)), text);
    }
});

test("all bytes in all places", () => {
    const bytes = Uint8Array.from({ length: 1021 }, (_, i) => (i * 67) % 256);
    assert.deepEqual(bytesOfBase64(Buffer.from(bytes).toString("base64")), bytes);
});

test("blanks and line ends stand anywhere, and fill may be missing", () => {
    assert.deepEqual([...bytesOfBase64("\r\n +/ A\t\n/= = \n")], [0xfb, 0xf0, 0x3f]);
    assert.deepEqual([...bytesOfBase64("+/A/")], [0xfb, 0xf0, 0x3f]);
    assert.deepEqual([...bytesOfBase64("//8")], [0xff, 0xff]);
});

test("another character is an error", () => {
    for (const text of ["Zm9-", "Zm9v!", "Zmé9"]) {
        assert.throws(() => bytesOfBase64(text), /is no base64/);
    }
});
