// Writes a text as a C++ source: two arrays of string literals, the text before a marker and the text behind it.

const kLiteralBytes = 8000;  // compilers take longer literals in different ways

/** The bytes as the inside of a C++ string literal. Three octal digits never swallow a digit that follows. */
function escaped(bytes) {
    let text = "";
    for (const byte of bytes) {
        const plain = byte >= 0x20 && byte < 0x7f && !'"\\?'.includes(String.fromCharCode(byte));
        text += plain ? String.fromCharCode(byte) : "\\" + byte.toString(8).padStart(3, "0");
    }
    return text;
}

/** A function that returns the bytes as a span of string views. */
function spanFunction(name, array, bytes) {
    const literals = [];
    for (let at = 0; at < bytes.length; at += kLiteralBytes) {
        literals.push(`    "${escaped(bytes.subarray(at, at + kLiteralBytes))}"sv,\n`);
    }
    return [
        `namespace {\n\nconstexpr std::string_view ${array}[] = {\n${literals.join("")}};\n\n}  // namespace\n\n`,
        `std::span<const std::string_view> ${name}() noexcept\n{\n    return ${array};\n}\n`,
    ].join("");
}

/** The C++ source of `text`, which holds `marker` exactly once. */
export function embeddedText(text, marker) {
    const [before, behind, ...more] = text.split(marker).map((part) => Buffer.from(part, "utf8"));
    if (behind === undefined || more.length > 0) {
        throw new Error(`the text must hold ${marker} exactly once`);
    }
    return [
        "// The viewer's page without a picture. Made by page/build.mjs: change page/, not this file.\n\n",
        '#include "picture/PageText.h"\n\n#include <span>\n#include <string_view>\n\n',
        "namespace satwecvt {\n\nusing namespace std::string_view_literals;\n\n",
        spanFunction("PageTextBeforePicture", "kBeforePicture", before),
        "\n",
        spanFunction("PageTextBehindPicture", "kBehindPicture", behind),
        "\n}  // namespace satwecvt\n",
    ].join("");
}
