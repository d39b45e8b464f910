// Reads a file from front to back in large blocks for one who asks for small pieces: each block that a browser reads
// costs a message to another process.

const kBlock = 1 << 20;

export class ReadAhead {
    private block: Uint8Array = new Uint8Array();
    /** Where the block begins in the file. */
    private start = 0;

    /** `readBlock` returns the bytes from `from` to `to`, and throws where it cannot. */
    constructor(private readonly size: number, private readonly readBlock: (from: number, to: number) => Uint8Array) {}

    /** Fills `into` from a byte of the file on, with fewer bytes where a block ends; 0: the file ends here. */
    read(offset: number, into: Uint8Array): number {
        if (offset >= this.size) {
            return 0;
        }
        if (offset < this.start || offset >= this.start + this.block.length) {
            this.block = this.readBlock(offset, Math.min(offset + kBlock, this.size));
            this.start = offset;
        }
        const from = offset - this.start;
        const bytes = this.block.subarray(from, from + into.length);
        into.set(bytes);
        return bytes.length;
    }
}
