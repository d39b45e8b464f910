"""From the text of a line to its numbers, step by step as the line format tells it."""

from c_values import divide, strtod, trim_right, upper

# Stands where the newline stood once an assignment tail is cut off. No line text holds a NUL of its own.
TERMINATOR = "\0"


def check_line(raw_text):
    """(accepted, upper-cased text): accepted is 1 for a data line, 0 for a line to skip."""
    text = upper(raw_text)
    if text[:1] == "C":
        return 0, text
    if len(parse_words(text)) > 0:
        return 1, text
    return 0, text


def parse_words(text):
    """The tokens of a line as strings."""
    return split(preprocess(text))


def parse_numbers(text):
    """The tokens of a line as doubles."""
    numbers = []
    for token in split(preprocess(text)):
        numbers.append(evaluate_number(token))
    return numbers


def preprocess(text):
    """Cut the assignment tail, then insert one blank in front of the last character."""
    if text == "":
        return text
    text = cut_assignment_tail(text)
    return text[:-1] + " " + text[-1]


def cut_assignment_tail(text):
    equals = text.find("=")
    if equals < 0:
        return text
    position = equals
    while position >= 1:
        if text[position] == " ":
            return text[:position + 1] + TERMINATOR
        position = position - 1
    return text


def split(text):
    """The tokens of a preprocessed text."""
    text = text.replace("\t", " ")
    if "," in text:
        return split_at_commas(text)
    return split_at_blanks(text)


def split_at_blanks(text):
    tokens = []
    position = 0
    in_token = False
    while position < len(text):
        if text[position] != " ":
            in_token = True
            position = position + 1
        elif not in_token:
            position = position + 1
        else:
            tokens.append(text[:position].replace(" ", ""))
            text = text[position + 1:]
            position = 0
            in_token = False
    return tokens


def split_at_commas(text):
    tokens = []
    text = text.replace(" ", "")
    while "," in text:
        comma = text.find(",")
        tokens.append(text[:comma])
        text = text[comma + 1:]
    if text != "" and text != TERMINATOR and text != "\n":
        tokens.append(text)
    return tokens


def operator_positions(text):
    """Indices of the operators: no leading sign, no last character, no sign of an exponent."""
    positions = []
    for index in range(len(text)):
        if text[index] not in "+-*/":
            continue
        if index == 0 or index == len(text) - 1:
            continue
        if text[index - 1] == "E" or text[index - 1] == " ":
            continue
        positions.append(index)
    return positions


def evaluate_number(token):
    """Value of a token: operators from left to right, without precedence."""
    text = trim_right(upper(token))
    positions = operator_positions(text)
    if len(positions) == 0:
        return strtod(text)
    value = strtod(text[:positions[0]])
    for number, position in enumerate(positions):
        if number + 1 < len(positions):
            end = positions[number + 1]
        else:
            end = len(text)
        operand = strtod(text[position + 1:end])
        if text[position] == "+":
            value = value + operand
        elif text[position] == "-":
            value = value - operand
        elif text[position] == "*":
            value = value * operand
        else:
            value = divide(value, operand)
    return value
