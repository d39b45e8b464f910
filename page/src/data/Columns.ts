// The columns in which the program hands a picture of the building to the page: named lists of integers, of reals or of
// texts, each packed in the shortest of a few forms.
import { utf8Text } from "./Utf8";

/** The columns of a picture. A column is unpacked each time it is asked for. */
export interface Columns {
    /** Throws where there is no such column, or it does not hold integers. */
    integers(name: string): Int32Array;
    /** Throws where there is no such column, or it does not hold reals. */
    reals(name: string): Float64Array;
    /** Throws where there is no such column, or it does not hold texts. */
    texts(name: string): string[];
}

const enum Form {
    Bytes = 1,
    Shorts = 2,
    Integers = 3,
    ByteSteps = 4,
    ShortSteps = 5,
    Reals = 6,
    ByteIndexes = 7,
    ShortIndexes = 8,
    Texts = 9,
    OneInteger = 10,
    OneReal = 11,
}

const kMark = 0x56544153; // "SATV"
const kVersion = 1;
const kWidths = new Map([
    [Form.Bytes, 1], [Form.Shorts, 2], [Form.Integers, 4], [Form.ByteSteps, 1], [Form.ShortSteps, 2], [Form.Reals, 8],
]);

/** Where the values of a column lie. */
interface Packed {
    name: string;
    form: number;
    count: number;
    start: number;
}

/** Reads integers, steps forward, and never past the end. */
class Cursor {
    at = 0;

    constructor(readonly view: DataView) {}

    /** Steps over bytes, and returns where they begin. */
    pass(size: number): number {
        const from = this.at;
        if (size > this.view.byteLength - from) {
            throw new Error(`the picture ends too early: ${size} bytes are missing from byte ${from} on`);
        }
        this.at += size;
        return from;
    }

    byte(): number {
        return this.view.getUint8(this.pass(1));
    }

    word(): number {
        return this.view.getUint32(this.pass(4), true);
    }
}

/** Moves a cursor behind the values of a column. */
function passValues(cursor: Cursor, { name, form, count }: Packed): void {
    const width = kWidths.get(form);
    if (width !== undefined) {
        cursor.pass(count * width);
    } else if (form === Form.ByteIndexes || form === Form.ShortIndexes) {
        cursor.pass(cursor.word() * 8);
        cursor.pass(count * (form === Form.ByteIndexes ? 1 : 2));
    } else if (form === Form.Texts) {
        const lengths = cursor.pass(count * 4);
        for (let i = 0; i < count; ++i) {
            cursor.pass(cursor.view.getUint32(lengths + 4 * i, true));
        }
    } else if (form === Form.OneInteger || form === Form.OneReal) {
        cursor.pass(count === 0 ? 0 : form === Form.OneInteger ? 4 : 8);
    } else {
        throw new Error(`the picture's column ${name} has the unknown form ${form}`);
    }
}

function unpackIntegers(view: DataView, { name, form, count, start }: Packed): Int32Array {
    const values = new Int32Array(count);
    switch (form) {
        case Form.Bytes:
            return values.map((_, i) => view.getInt8(start + i));
        case Form.Shorts:
            return values.map((_, i) => view.getInt16(start + 2 * i, true));
        case Form.Integers:
            return values.map((_, i) => view.getInt32(start + 4 * i, true));
        case Form.ByteSteps:
            return summed(values.map((_, i) => view.getInt8(start + i)));
        case Form.ShortSteps:
            return summed(values.map((_, i) => view.getInt16(start + 2 * i, true)));
        case Form.OneInteger:
            return count === 0 ? values : values.fill(view.getInt32(start, true));
        default:
            throw new Error(`the picture's column ${name} holds no integers`);
    }
}

/** Turns steps into their sums, which wrap at 32 bits. */
function summed(steps: Int32Array): Int32Array {
    for (let i = 1; i < steps.length; ++i) {
        steps[i] += steps[i - 1];
    }
    return steps;
}

function unpackReals(view: DataView, packed: Packed): Float64Array {
    const { name, form, count, start } = packed;
    const values = new Float64Array(count);
    switch (form) {
        case Form.Reals:
            return values.map((_, i) => view.getFloat64(start + 8 * i, true));
        case Form.ByteIndexes:
        case Form.ShortIndexes:
            return unpackIndexes(view, packed);
        case Form.OneReal:
            return count === 0 ? values : values.fill(view.getFloat64(start, true));
        default:
            throw new Error(`the picture's column ${name} holds no reals`);
    }
}

function unpackIndexes(view: DataView, { name, form, count, start }: Packed): Float64Array {
    const first = start + 4;
    const distinct = new Float64Array(view.getUint32(start, true)).map((_, i) => view.getFloat64(first + 8 * i, true));
    const indexes = first + 8 * distinct.length;
    const values = new Float64Array(count);
    for (let i = 0; i < count; ++i) {
        const index = form === Form.ByteIndexes ? view.getUint8(indexes + i) : view.getUint16(indexes + 2 * i, true);
        if (index >= distinct.length) {
            throw new Error(`the picture's column ${name} has no value with the index ${index}`);
        }
        values[i] = distinct[index];
    }
    return values;
}

function unpackTexts(view: DataView, { name, form, count, start }: Packed): string[] {
    if (form !== Form.Texts) {
        throw new Error(`the picture's column ${name} holds no texts`);
    }
    const texts: string[] = [];
    let at = start + 4 * count;
    for (let i = 0; i < count; ++i) {
        const length = view.getUint32(start + 4 * i, true);
        texts.push(utf8Text(new Uint8Array(view.buffer, view.byteOffset + at, length)));
        at += length;
    }
    return texts;
}

/** Finds the columns in the bytes of a picture. Throws an Error on bytes that are none, or that end too early. */
export function readColumns(bytes: Uint8Array): Columns {
    const view = new DataView(bytes.buffer, bytes.byteOffset, bytes.byteLength);
    const cursor = new Cursor(view);
    if (cursor.word() !== kMark || cursor.word() !== kVersion) {
        throw new Error("these are no bytes of a picture, or of another version");
    }
    const packed = new Map<string, Packed>();
    while (cursor.at < bytes.length) {
        const length = cursor.byte();
        const name = utf8Text(bytes.subarray(cursor.pass(length), cursor.at));
        const column = { name, form: cursor.byte(), count: cursor.word(), start: cursor.at };
        passValues(cursor, column);
        packed.set(name, column);
    }
    const find = (name: string): Packed => {
        const column = packed.get(name);
        if (column === undefined) {
            throw new Error(`the picture has no column ${name}`);
        }
        return column;
    };
    return {
        integers: (name) => unpackIntegers(view, find(name)),
        reals: (name) => unpackReals(view, find(name)),
        texts: (name) => unpackTexts(view, find(name)),
    };
}
