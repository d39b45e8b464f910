// Numbers as texts: six digits, as the model text file and `satwecvt check` write them.

const kDigits = 6;

function notFinite(value: number): string {
    return Number.isNaN(value) ? "nan" : value > 0 ? "inf" : "-inf";
}

const withoutEndZeros = (digits: string): string =>
    digits.includes(".") ? digits.replace(/\.?0+$/, "") : digits;

/** A number with six digits, as %g writes it: 1500, 0.25, 1e-07, 1.23457e+06, inf, nan. */
export function numberText(value: number): string {
    if (!Number.isFinite(value)) {
        return notFinite(value);
    }
    if (value === 0) {
        return "0";
    }
    const [digits, power] = value.toExponential(kDigits - 1).split("e");
    const exponent = Number(power);
    if (exponent >= -4 && exponent < kDigits) {
        return withoutEndZeros(value.toFixed(kDigits - 1 - exponent));
    }
    const size = String(Math.abs(exponent)).padStart(2, "0");
    return `${withoutEndZeros(digits)}e${exponent < 0 ? "-" : "+"}${size}`;
}

/** A force with six digits, without an exponent where a person can still count its zeros: 1583200. */
export function forceText(force: number): string {
    const size = Math.abs(force);
    if (!(size >= 1e-4 && size < 1e9)) {
        return numberText(force);
    }
    const rounded = Number(force.toPrecision(kDigits));
    const inFront = size < 1 ? 0 : Math.floor(Math.log10(size)) + 1;
    return withoutEndZeros(rounded.toFixed(Math.max(0, kDigits - inFront)));
}

/** A count in groups of three: 1,000,000. */
export function countText(count: number): string {
    return count.toLocaleString("en-US");
}
