"""The lines of one section; each shape kind keeps its dimensions in an order of its own."""

from c_values import square_root

ELAST = {
    15: 9.297707,
    20: 8.106406,
    25: 7.39146,
    35: 6.574538,
    40: 6.319212,
    45: 6.120569,
    50: 5.961683,
    55: 5.831729,
    60: 5.723494,
    65: 5.6318,
    70: 5.553309,
    75: 5.485142,
    80: 5.425621,
}
ELAST_OTHERWISE = 6.91484  # grade 30 among them

H2T_LINE = "  %d, COMBINED, %s, CC, H2T, 2, %g, %g, %g, %g, %g, %g, %g, %g, %g\n"


def composite_properties(section):
    elast = ELAST.get(section.concreteGrade, ELAST_OTHERWISE)
    return [elast, 3.0792, 0.3, 0.2]


def section_lines(number, section):
    """(pattern, arguments) of each line of the section; none for a kind that is not written."""
    name = "Sec%d" % number
    kind = section.kind
    d0, d1, d2, d3, d4, d5 = section.dims[:6]
    composite = composite_properties(section)

    if kind == 0:
        side = square_root(d0)
        return [
            ("  %d, VALUE, %s, CC, SB, BUILT, %g, %g, 0, 0, 0, 0\n", [number, name, side, side]),
            ("    %g, 0., 0., %g, %g, %g\n", [d0, d1, d2, d3]),
            ("    0, 0, 0, 0, 0, 0, 0, 0, 0, 0\n", []),
        ]
    if kind == 1 or kind == 11:
        return [("  %d, DBUSER, %s, CC, SB, 2, %g, %g, 0, 0, 0, 0\n", [number, name, d1, d0])]
    if kind == 2:
        values = [d1, d2, d0, d3, d4, d5]
        return [("  %d, DBUSER, %s, CC, H, 2, %g, %g, %g, %g, %g, %g\n", [number, name] + values)]
    if kind == 3 or kind == 4:
        return [("  %d, DBUSER, %s, CC, SR, 2, %g, 0, 0, 0, 0, 0\n", [number, name, d0])]
    if kind == 5:
        values = [d1, abs(d2) + d0, d0, d3, abs(d4) + d0, d5]
        return [("  %d, DBUSER, %s, CC, C, 2, %g, %g, %g, %g, %g, %g\n", [number, name] + values)]
    if kind == 6:
        values = [d1, d0, d0, d0, 0.0, d5, d3, d3, d3]
        return [(H2T_LINE, [number, name] + values)]
    if kind == 7:
        values = [d1, d0, d3, d2, 0.0, d4]
        return [("  %d, DBUSER, %s, CC, B, 2, %g, %g, %g, %g, %g, %g\n", [number, name] + values)]
    if kind == 8:
        values = [d0, (d0 - d1) * 0.5]
        return [("  %d, DBUSER, %s, CC, P, 2, %g, %g, 0, 0, 0, 0\n", [number, name] + values)]
    if kind == 9:
        values = [d1, abs(d2) + d0, d0, d3, d5, 0.0]
        return [("  %d, DBUSER, %s, CC, 2C, 2, %g, %g, %g, %g, %g, %g\n", [number, name] + values)]
    if kind == 10:
        values = [d1, d5, d0, d3, 0.0, (d1 - d0) * 0.5, d5, d0, d3]
        return [(H2T_LINE, [number, name] + values)]
    if kind == 12:
        values = [d1, 0.0, d0, (d0 - d1) * 0.5]
        pattern = "  %d, SRC, %s, CC, EPC, 1, %g, %g, %g, %g\n"
        return [(pattern, [number, name] + composite), ("      %g, %g, 2, %g, %g, 0, 0, 0, 0\n", values)]
    if kind == 13:
        values = [d1, d0, d3, d4, d2, d5]
        pattern = "  %d, SRC, %s, CC, RHB, 1, %g, %g, %g, %g\n"
        return [(pattern, [number, name] + composite), ("      %g, %g, 2, %g, %g, %g, %g, 0, 0\n", values)]
    if kind == 14:
        values = [d1, d0, d3, d2, d5, d4]
        pattern = "  %d, SRC, %s, CC, RBC, 1, %g, %g, %g, %g\n"
        return [(pattern, [number, name] + composite), ("      %g, %g, 2, %g, %g, %g, %g, 0, 0\n", values)]
    return []
