// Texts from bytes that should be UTF-8 and may be anything: names of files and quotes from them.

const kStrict = new TextDecoder("utf-8", { fatal: true, ignoreBOM: true });

function strictText(bytes: Uint8Array): string | undefined {
    try {
        return kStrict.decode(bytes);
    } catch {
        return undefined;
    }
}

/** How many bytes a character has that begins with this one, if it is one. */
function sizeFrom(lead: number): number {
    return lead < 0xc0 ? 1 : lead < 0xe0 ? 2 : lead < 0xf0 ? 3 : 4;
}

/** \xNN, in upper case, as the program shows such a byte everywhere. */
function escaped(byte: number): string {
    return `\\x${byte.toString(16).toUpperCase().padStart(2, "0")}`;
}

/** Bytes as UTF-8. Each byte that belongs to no character is shown as \xNN. */
export function utf8Text(bytes: Uint8Array): string {
    const whole = strictText(bytes);
    if (whole !== undefined) {
        return whole;
    }
    let text = "";
    for (let at = 0; at < bytes.length; ) {
        const size = sizeFrom(bytes[at]);
        const character = at + size <= bytes.length ? strictText(bytes.subarray(at, at + size)) : undefined;
        text += character ?? escaped(bytes[at]);
        at += character === undefined ? 1 : size;
    }
    return text;
}
