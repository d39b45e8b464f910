// Remembers a choice of the reader between two visits, where the browser lets a page do so: one from a file may not.

type Choice = "theme" | "language";

const key = (choice: Choice): string => `satwecvt.${choice}`;

export function remember(choice: Choice, value: string): void {
    try {
        localStorage.setItem(key(choice), value);
    } catch {
        // The choice then holds until the page is closed.
    }
}

export function recall(choice: Choice): string | undefined {
    try {
        return localStorage.getItem(key(choice)) ?? undefined;
    } catch {
        return undefined;
    }
}
