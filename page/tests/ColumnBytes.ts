// Makes the bytes of a picture, in the forms that a test asks for.
import { type Columns, readColumns } from "../src/data/Columns";

const kUtf8 = new TextEncoder();

/** Little-endian bytes of a number. */
function bytesOf(size: number, write: (view: DataView) => void): number[] {
    const view = new DataView(new ArrayBuffer(size));
    write(view);
    return [...new Uint8Array(view.buffer)];
}

export const u32 = (value: number): number[] => bytesOf(4, (view) => view.setUint32(0, value, true));
export const i8 = (value: number): number[] => bytesOf(1, (view) => view.setInt8(0, value));
export const i16 = (value: number): number[] => bytesOf(2, (view) => view.setInt16(0, value, true));
export const i32 = (value: number): number[] => bytesOf(4, (view) => view.setInt32(0, value, true));
export const u16 = (value: number): number[] => bytesOf(2, (view) => view.setUint16(0, value, true));
export const f64 = (value: number): number[] => bytesOf(8, (view) => view.setFloat64(0, value, true));

export class ColumnBytes {
    private readonly all: number[] = [..."SATV"].map((letter) => letter.charCodeAt(0)).concat(u32(1));

    /** A column with its payload as it is. */
    add(name: string, form: number, count: number, payload: number[]): this {
        this.all.push(name.length, ...kUtf8.encode(name), form, ...u32(count));
        payload.forEach((byte) => this.all.push(byte));
        return this;
    }

    integers(name: string, values: number[]): this {
        return this.add(name, 3, values.length, values.flatMap(i32));
    }

    reals(name: string, values: number[]): this {
        return this.add(name, 6, values.length, values.flatMap(f64));
    }

    texts(name: string, values: string[]): this {
        const bytes = values.map((value) => [...kUtf8.encode(value)]);
        return this.add(name, 9, values.length, [...bytes.flatMap(({ length }) => u32(length)), ...bytes.flat()]);
    }

    bytes(): Uint8Array {
        return Uint8Array.from(this.all);
    }

    columns(): Columns {
        return readColumns(this.bytes());
    }
}
