"""How a file is written: every way to write a number, a line or nothing that the formats allow.

A number is always read back as the very value that it stands for, and a line as the numbers that it was made of.
"""

WORDS = ("NOTE=REVISED", "ID=B-07,08", "rev=2", "PHASE=1 of 2, see C 4", "N=", "LOAD=1.5E3+x")
COMMENTS = ("C", "c nothing to see", "C 1 2 3 4 5 6", "Column heads = none", "C\tbeams, walls", "", "  ", "\t", " \t ")


class Plain:
    """Numbers with blanks between them, as most programs write them."""

    end = "\n"

    def number(self, value):
        return str(int(value)) if value == int(value) and abs(value) < 1e15 else repr(value)

    def line(self, values, exact=False):
        """`exact`: nothing may stand behind the numbers."""
        return " ".join(self.number(value) for value in values)

    def slab(self, values):
        return [self.line(values)]

    def between(self):
        """Lines that count nowhere."""
        return []

    def may_leave_out(self):
        """Whether zeros at the end of a line are left out where the format lets them."""
        return False

    def repeats(self, line):
        """How often the third line of a story stands there again, and how."""
        return []

    def line_end(self):
        return self.end


class Columns(Plain):
    """Right-aligned, as programs with fixed columns write them, under Windows."""

    end = "\r\n"

    def line(self, values, exact=False):
        return "".join(f" {self.number(value):>9}" for value in values)


class Tabs(Plain):
    def line(self, values, exact=False):
        return "\t".join(self.number(value) for value in values)


class Commas(Plain):
    def line(self, values, exact=False):
        return ", ".join(self.number(value) for value in values)


class Anyhow(Plain):
    """Each number and each line in one way or another."""

    def __init__(self, random):
        self.random = random
        self.wildness = random.choice([0.05, 0.3])

    def now_and_then(self, share=1.0):
        return self.random.random() < self.wildness * share

    def number(self, value):
        text = super().number(value)
        if not self.now_and_then():
            return text
        other = self.random.choice([self.sum, self.quotient, self.product, self.power, self.padded])(value, text)
        return other if evaluate(other) == value else text

    def sum(self, value, text):
        part = self.random.randint(1, 500)
        return f"{super().number(value - part)}+{part}" if self.random.random() < 0.5 else f"{text}+{part}-{part}"

    def quotient(self, value, text):
        return f"{super().number(value * 4)}/4"

    def product(self, value, text):
        return f"{super().number(value / 2)}*2"

    def power(self, value, text):
        thousandth = super().number(value / 1000)
        return f"{value:.15E}" if self.random.random() < 0.3 or "e" in thousandth else thousandth + "E+3"

    def padded(self, value, text):
        if not text.replace(".", "").isdigit():
            return text  # a sign or an exponent
        return self.random.choice(["+" + text, "0" + text, text + ("0" if "." in text else ".0")])

    def line(self, values, exact=False):
        words = [self.number(value) for value in values]
        if not exact and self.now_and_then(0.5):
            words += ["0", "7.5"]
        separated = self.separated(words)
        if self.now_and_then(0.5):
            separated += " " + self.random.choice(WORDS)
        elif self.now_and_then(0.5):
            separated += self.random.choice([" ", "\t", "   "])
        return separated

    def separated(self, words):
        if not self.now_and_then():
            return " ".join(words)
        way = self.random.choice(["tabs", "blanks", "commas", "commas", "last comma"])
        if way == "tabs":
            return "\t".join(words)
        if way == "blanks":
            return "  " + " \t ".join(words)
        return self.random.choice([",", ", ", " , ", ",\t"]).join(words) + ("," if way == "last comma" else "")

    def slab(self, values):
        """Over several lines, each of which starts with a blank or with the last corner again."""
        words = [self.number(value) for value in values]
        if len(words) < 7 or not self.now_and_then(3):
            return [" ".join(words)]
        lines = [words[:6]]
        for word in words[6:]:
            if self.random.random() < 0.4:
                last = lines[-1][-1]  # a calculation would be carried on
                lines.append([last if last.isdigit() and self.random.random() < 0.5 else ""])
            lines[-1].append(word)
        return [" ".join(line) for line in lines]

    def between(self):
        count = self.random.randint(1, 3) if self.now_and_then(0.3) else 0
        return [self.random.choice(COMMENTS) for _ in range(count)]

    def may_leave_out(self):
        return self.now_and_then()

    def repeats(self, line):
        return [self.random.choice([str.lower, str.upper])(line) for _ in range(2)] if self.now_and_then() else []

    def line_end(self):
        return "\r\n" if self.now_and_then() else "\n"


def evaluate(text):
    """From left to right, as the formats have it; the first sign is none of the operators, nor is an exponent's."""
    starts = [i for i, c in enumerate(text) if c in "+-*/" and 0 < i < len(text) - 1 and text[i - 1] not in "eE"]
    value = float(text[:starts[0]] if starts else text)
    for start, end in zip(starts, [*starts[1:], len(text)]):
        operand = float(text[start + 1:end])
        if text[start] == "+":
            value += operand
        elif text[start] == "-":
            value -= operand
        elif text[start] == "*":
            value *= operand
        else:
            value /= operand
    return value


def dressing(random):
    return random.choice([Plain, Plain, Columns, Tabs, Commas])() if random.random() < 0.4 else Anyhow(random)
