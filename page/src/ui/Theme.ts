// Light or dark: what the system says, until the reader says otherwise.

import type { StageTheme } from "../stage/Stage";
import { recall, remember } from "./Memory";

const kDark = matchMedia("(prefers-color-scheme: dark)");

function apply(dark: boolean): void {
    document.documentElement.dataset.theme = dark ? "dark" : "light";
}

/** Applies the theme to start with, and tells whether it is dark. */
export function startTheme(): boolean {
    const choice = recall("theme");
    const dark = choice === undefined ? kDark.matches : choice === "dark";
    apply(dark);
    return dark;
}

/** Applies a theme that the reader has chosen. */
export function chooseTheme(dark: boolean): void {
    remember("theme", dark ? "dark" : "light");
    apply(dark);
}

/** Calls when the system changes its theme and the reader has not chosen one, until `signal` ends it. */
export function watchSystemTheme(changed: (dark: boolean) => void, signal?: AbortSignal): void {
    kDark.addEventListener("change", () => {
        if (recall("theme") === undefined) {
            apply(kDark.matches);
            changed(kDark.matches);
        }
    }, { signal });
}

/** The colours of the picture, as 0xrrggbb. */
export function stageColours(dark: boolean): StageTheme {
    return dark
        ? {
            background: 0x12171d, line: 0x9fb0c0, text: 0xe8edf2, warning: 0xff6b5e, load: 0x4fd1b5,
            support: 0x7ee0a1, selection: 0xffb454,
        }
        : {
            background: 0xf4f6f8, line: 0x2b3640, text: 0x17202a, warning: 0xc4221a, load: 0x00796b,
            support: 0x0f6b3c, selection: 0xe8590c,
        };
}
