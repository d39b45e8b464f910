"""Numbers as C knows them: 32-bit integers, strtod, IEEE division and "%g".

Everything works on latin-1 text, one character per byte. Character classes are spelled out, because
Python's own (isdigit, isspace, upper, strip) know more characters than the "C" locale does.
"""

import math

INT_MIN = -2147483648
INT_MAX = 2147483647

WHITE_SPACE = " \t\n\v\f\r"
DIGITS = "0123456789"
HEX_DIGITS = "0123456789ABCDEFabcdef"


class InvalidArgument(Exception):
    """An index outside an array, or a record that a count promised and that is not there."""


def at(array, index):
    """Element of an array; an index outside 0 to size-1 is the invalid-argument failure."""
    if index < 0 or index >= len(array):
        raise InvalidArgument("index %d of %d" % (index, len(array)))
    return array[index]


def truncate(value):
    """Double to 32-bit integer: toward zero, saturated, 0 for a NaN."""
    if value != value:
        return 0
    if value == math.inf:
        return INT_MAX
    if value == -math.inf:
        return INT_MIN
    whole = int(value)
    if whole > INT_MAX:
        return INT_MAX
    if whole < INT_MIN:
        return INT_MIN
    return whole


def wrap(value):
    """Any integer to 32 bits, two's complement."""
    value = value % 4294967296
    if value > INT_MAX:
        value = value - 4294967296
    return value


def absolute(value):
    """Absolute value of a 32-bit integer; the smallest integer stays itself."""
    return wrap(abs(value))


def divide(dividend, divisor):
    """IEEE division; Python would raise for a divisor of zero."""
    if divisor != 0.0:
        return dividend / divisor
    if dividend != dividend or dividend == 0.0 or divisor != divisor:
        return math.nan
    if math.copysign(1.0, dividend) == math.copysign(1.0, divisor):
        return math.inf
    return -math.inf


def square_root(value):
    """IEEE square root; Python would raise for a negative value."""
    if value < 0.0:
        return math.nan
    return math.sqrt(value)


def smaller_of_one_and(value):
    """The smaller of 1.0 and the value; a NaN stays a NaN."""
    if 1.0 < value:
        return 1.0
    return value


def upper(text):
    """Upper case of a to z alone; all other bytes stay."""
    result = ""
    for character in text:
        if "a" <= character <= "z":
            character = chr(ord(character) - 32)
        result = result + character
    return result


def trim_right(text):
    """The text without its trailing white space."""
    while text != "" and text[-1] in WHITE_SPACE:
        text = text[:-1]
    return text


def strtod(text):
    """Value of the longest prefix that is a number in the "C" locale, 0.0 when there is none."""
    position = 0
    while position < len(text) and text[position] in WHITE_SPACE:
        position = position + 1
    negative = False
    if position < len(text) and text[position] in "+-":
        negative = text[position] == "-"
        position = position + 1
    value = _unsigned_value(text[position:])
    if value is None:
        return 0.0
    if negative:
        return -value
    return value


def _unsigned_value(text):
    """Value of the number that starts the text, None when no number does."""
    word = upper(text[:3])
    if word == "INF":
        return math.inf
    if word == "NAN":
        return math.nan
    if upper(text[:2]) == "0X":
        value = _hex_value(text[2:])
        if value is not None:
            return value
    return _decimal_value(text)


def _run_of(text, position, characters):
    """Position behind the run of the given characters that starts at position."""
    while position < len(text) and text[position] in characters:
        position = position + 1
    return position


def _mantissa_end(text, digits):
    """Position behind digits with at most one point among them, None when there is no digit."""
    end = _run_of(text, 0, digits)
    count = end
    if end < len(text) and text[end] == ".":
        fraction_end = _run_of(text, end + 1, digits)
        count = count + fraction_end - (end + 1)
        end = fraction_end
    if count == 0:
        return None
    return end


def _exponent_end(text, position, letters):
    """Position behind a whole exponent at position; position itself when there is none."""
    if position >= len(text) or text[position] not in letters:
        return position
    first = position + 1
    if first < len(text) and text[first] in "+-":
        first = first + 1
    end = _run_of(text, first, DIGITS)
    if end == first:
        return position
    return end


def _decimal_value(text):
    end = _mantissa_end(text, DIGITS)
    if end is None:
        return None
    end = _exponent_end(text, end, "Ee")
    return float(text[:end])  # correctly rounded; overflow gives inf, underflow a subnormal or 0


def _hex_value(text):
    """Value of a hexadecimal number; the text starts behind its 0x."""
    end = _mantissa_end(text, HEX_DIGITS)
    if end is None:
        return None
    end = _exponent_end(text, end, "Pp")
    try:
        return float.fromhex("0x" + text[:end])
    except OverflowError:
        return math.inf


def formatted(pattern, arguments):
    """The text that printf gives for "%d", "%s" and "%g"; Python's own formatting writes the same bytes.

    Reals must come as doubles, so that "%g" meets no integer; a NaN is "nan" whatever its sign.
    """
    return pattern % tuple(arguments)
