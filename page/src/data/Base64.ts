// Bytes that stand in a text as base64.

const kAlphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
const kBlank = 64;
const kEnd = 65;
const kNone = 66;

/** What each character stands for: six bits, or one of the above. */
const kMeaning = new Uint8Array(128).fill(kNone);
[...kAlphabet].forEach((character, bits) => (kMeaning[character.charCodeAt(0)] = bits));
[..." \t\r\n"].forEach((character) => (kMeaning[character.charCodeAt(0)] = kBlank));
kMeaning["=".charCodeAt(0)] = kEnd;

/** The bytes of a base64 text, which may have blanks and line ends anywhere. Throws an Error on any other character. */
export function bytesOfBase64(text: string): Uint8Array<ArrayBuffer> {
    const bytes = new Uint8Array(Math.ceil((text.length * 3) / 4) + 2);
    let size = 0;
    let bits = 0;
    let held = 0;
    for (let i = 0; i < text.length; ++i) {
        const meaning = kMeaning[text.charCodeAt(i)] ?? kNone;
        if (meaning < kBlank) {
            bits = (bits << 6) | meaning;
            if (++held === 4) {
                bytes[size++] = bits >> 16;
                bytes[size++] = bits >> 8;
                bytes[size++] = bits;
                held = 0;
            }
        } else if (meaning === kEnd) {
            break;
        } else if (meaning === kNone) {
            throw new Error(`character ${i + 1} of the picture is no base64`);
        }
    }
    if (held > 1) {
        bytes[size++] = bits >> (6 * held - 8);
    }
    if (held > 2) {
        bytes[size++] = bits >> 2;
    }
    return bytes.subarray(0, size);
}
