// Finds a record by its number.

/** The index of the record that a number means; -1 where there is none. */
export type NumberIndex = (number: number) => number;

const kEmptyPlaces = 8; // for each number, in a table by number

/** Looks numbers up. Of several records with one number the last is meant. */
export function numberIndex(numbers: Int32Array): NumberIndex {
    let least = 0;
    let most = 0;
    for (const number of numbers) {
        least = Math.min(least, number);
        most = Math.max(most, number);
    }
    const range = most - least + 1;
    return range <= numbers.length * kEmptyPlaces ? tableIndex(numbers, least, range) : mapIndex(numbers);
}

function tableIndex(numbers: Int32Array, least: number, range: number): NumberIndex {
    const table = new Int32Array(range).fill(-1);
    for (let i = 0; i < numbers.length; ++i) {
        table[numbers[i] - least] = i;
    }
    return (number) => table[number - least] ?? -1;
}

function mapIndex(numbers: Int32Array): NumberIndex {
    const map = new Map<number, number>();
    numbers.forEach((number, i) => map.set(number, i));
    return (number) => map.get(number) ?? -1;
}
