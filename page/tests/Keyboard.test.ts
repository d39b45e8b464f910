// The names of keys, and that none of them does two things.
import assert from "node:assert/strict";
import { test } from "node:test";

import { keyName, kKeyGroups } from "../src/ui/Keyboard";

test("letters are the same under Caps Lock", () => {
    assert.equal(keyName({ key: "L", shiftKey: false }), "l");
    assert.equal(keyName({ key: "l", shiftKey: true }), "l");
    assert.equal(keyName({ key: "?", shiftKey: true }), "?");
    assert.equal(keyName({ key: "Escape", shiftKey: false }), "Escape");
});

test("arrows differ with Shift", () => {
    assert.equal(keyName({ key: "ArrowUp", shiftKey: false }), "ArrowUp");
    assert.equal(keyName({ key: "ArrowUp", shiftKey: true }), "Shift+ArrowUp");
});

test("each key does one thing, and a press can have its name", () => {
    const keys = kKeyGroups.flatMap((group) => group.keys.flatMap((shortcut) => Object.keys(shortcut.keys)));
    assert.equal(new Set(keys).size, keys.length);
    for (const name of keys) {
        const [key, shiftKey] = name.startsWith("Shift+") ? [name.slice(6), true] : [name, false];
        assert.equal(keyName({ key, shiftKey }), name);
    }
});
