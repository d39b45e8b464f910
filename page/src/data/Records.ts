// Columns that tell of the same records: all of them have as many values as there are records, or a multiple of it.
import type { Columns } from "./Columns";

function checked<Values extends { length: number }>(values: Values, count: number, name: string): Values {
    if (values.length !== count) {
        throw new Error(`the picture's column ${name} has ${values.length} values instead of ${count}`);
    }
    return values;
}

/** The columns of one kind of records, as "node". */
export class Records {
    readonly count: number;

    /** A column of integers, one for each record, tells how many there are. */
    constructor(private readonly columns: Columns, private readonly kind: string, counting: string) {
        this.count = columns.integers(`${kind}.${counting}`).length;
    }

    /** `size` values for each record. Throws where the column has more or fewer. */
    integers(name: string, size = 1): Int32Array {
        return checked(this.columns.integers(`${this.kind}.${name}`), size * this.count, `${this.kind}.${name}`);
    }

    /** `size` values for each record. Throws where the column has more or fewer. */
    reals(name: string, size = 1): Float64Array {
        return checked(this.columns.reals(`${this.kind}.${name}`), size * this.count, `${this.kind}.${name}`);
    }

    /** One text for each record. Throws where the column has more or fewer. */
    texts(name: string): string[] {
        return checked(this.columns.texts(`${this.kind}.${name}`), this.count, `${this.kind}.${name}`);
    }
}
