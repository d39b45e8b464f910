// A growing list of rows, each as many numbers of one load.

type Numbers = Float32Array | Float64Array;

const kFirstCapacity = 256;

function grown<Values extends Numbers | Int32Array>(values: Values, larger: Values): Values {
    larger.set(values);
    return larger;
}

/** Begin a row, then put its numbers one after the other. */
export class LoadRows<Values extends Numbers> {
    private count = 0;
    private filled = 0;
    private ownLoads = new Int32Array(kFirstCapacity);
    private ownValues: Values;

    constructor(private readonly array: new (size: number) => Values, private readonly width: number) {
        this.ownValues = new array(kFirstCapacity * width);
    }

    begin(load: number): this {
        if (this.count === this.ownLoads.length) {
            this.ownLoads = grown(this.ownLoads, new Int32Array(2 * this.count));
            this.ownValues = grown(this.ownValues, new this.array(2 * this.count * this.width));
        }
        this.ownLoads[this.count++] = load;
        return this;
    }

    put(x: number, y: number, z: number): this {
        this.ownValues[this.filled++] = x;
        this.ownValues[this.filled++] = y;
        this.ownValues[this.filled++] = z;
        return this;
    }

    /** The load of each row. */
    loads(): Int32Array {
        return this.ownLoads.subarray(0, this.count);
    }

    /** The numbers of all rows. */
    values(): Values {
        return this.ownValues.subarray(0, this.filled) as Values;
    }
}
