"""Tests of the reference conversion: every expected value here was worked out by hand."""

import contextlib
import io
import json
import math
import os
import sys
import tempfile
import unittest

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))

import block_headers
import reference
from c_values import InvalidArgument, absolute, at, divide, formatted, square_root, strtod, truncate, upper, wrap
from geometry import angle_deg, distance, normalize
from line_tokens import check_line, evaluate_number, parse_numbers, parse_words
from output_files import output_path
from physical_lines import LineFile, text_of_piece
from records import Model, Section
from section_lines import section_lines


def same(first, second):
    """Equal as values, with NaN like NaN and -0.0 unlike 0.0."""
    return repr(first) == repr(second)


class NumberTest(unittest.TestCase):
    def test_strtod_takes_the_longest_prefix(self):
        table = [
            ("12", 12.0), ("-5", -5.0), ("+5", 5.0), ("1.5E-3", 0.0015), ("1E+3", 1000.0),
            (".5", 0.5), ("5.", 5.0), ("5.E1", 50.0), (".E1", 0.0), (".", 0.0), ("", 0.0), ("-", 0.0),
            ("1E", 1.0), ("1E+", 1.0), ("1EX", 1.0), ("1D5", 1.0), ("12ABC", 12.0), ("ABC", 0.0),
            ("-0", -0.0), ("-X", 0.0), ("--1", 0.0), (" \t\n\v\f\r7", 7.0), ("\xa07", 0.0), ("1\xb2", 1.0),
            ("1_000", 1.0), ("1\0" + "2", 1.0), ("1\n2", 1.0),
            ("1E400", math.inf), ("-1E400", -math.inf), ("1E-400", 0.0), ("-1E-400", -0.0),
            ("5E-324", 5e-324), ("2E-324", 0.0), ("1E99999999999999999999", math.inf), ("0E99999999999999999999", 0.0),
            ("INF", math.inf), ("-inf", -math.inf), ("INFINITY", math.inf), ("INFIX", math.inf), ("IN", 0.0),
            ("NAN", math.nan), ("-NAN", math.nan), ("nan(123)", math.nan), ("NAN(", math.nan), ("NA", 0.0),
            ("0X10", 16.0), ("0x1P4", 16.0), ("0X.8", 0.5), ("0X1.8P1", 3.0), ("0X", 0.0), ("-0X", -0.0),
            ("0XG", 0.0), ("0X.P1", 0.0), ("0X1P", 1.0), ("0X1P+", 1.0), ("0X1E", 30.0), ("-0XA", -10.0),
            ("0X1P99999", math.inf), ("-0X1P99999", -math.inf), ("0X1P-99999", 0.0), ("0X1P-1074", 5e-324),
            ("0X0P99999", 0.0),
        ]
        for text, value in table:
            with self.subTest(text=text):
                self.assertTrue(same(strtod(text), value), strtod(text))

    def test_integers_truncate_saturate_and_wrap(self):
        table = [
            (2.9, 2), (-1.7, -1), (-0.5, 0), (2147483647.5, 2147483647), (2147483648.0, 2147483647),
            (-2147483648.9, -2147483648), (-2147483649.0, -2147483648), (1e300, 2147483647),
            (math.inf, 2147483647), (-math.inf, -2147483648), (math.nan, 0),
        ]
        for value, whole in table:
            self.assertEqual(truncate(value), whole)
        self.assertEqual(wrap(2147483648), -2147483648)
        self.assertEqual(wrap(-2147483649), 2147483647)
        self.assertEqual(absolute(-15), 15)
        self.assertEqual(absolute(-2147483648), -2147483648)

    def test_division_and_square_root_follow_ieee(self):
        self.assertEqual(divide(1.0, 0.0), math.inf)
        self.assertEqual(divide(1.0, -0.0), -math.inf)
        self.assertEqual(divide(-1.0, 0.0), -math.inf)
        self.assertTrue(math.isnan(divide(0.0, 0.0)))
        self.assertTrue(math.isnan(divide(math.nan, 0.0)))
        self.assertTrue(math.isnan(square_root(-1.0)))
        self.assertTrue(math.isnan(square_root(math.nan)))
        self.assertTrue(same(square_root(-0.0), -0.0))
        self.assertEqual(square_root(math.inf), math.inf)

    def test_g_writes_six_significant_digits(self):
        table = [
            (1500.0, "1500"), (0.25, "0.25"), (1e-7, "1e-07"), (0.0001, "0.0001"), (0.00001, "1e-05"),
            (123456.0, "123456"), (999999.5, "1e+06"), (1234567.0, "1.23457e+06"), (1e100, "1e+100"),
            (0.0, "0"), (-0.0, "-0"), (math.inf, "inf"), (-math.inf, "-inf"), (9.297707, "9.29771"),
            (math.nan, "nan"), (math.copysign(math.nan, -1.0), "nan"), (200.0000001, "200"),
        ]
        for value, text in table:
            self.assertEqual(formatted("%g", [value]), text)

    def test_upper_case_is_ascii_alone(self):
        self.assertEqual(upper("az\xe4\xb5\xdf\xff{`"), "AZ\xe4\xb5\xdf\xff{`")

    def test_an_index_outside_an_array_is_an_invalid_argument(self):
        self.assertEqual(at([7], 0), 7)
        for index in (-1, 1):
            with self.assertRaises(InvalidArgument):
                at([7], index)


class TokenTest(unittest.TestCase):
    def test_lines_to_skip(self):
        for text in ["c any text\n", "C any text\n", "C", "\n", " \t\n", "", " ", "8", "  X=5\n", "\t \n"]:
            with self.subTest(text=text):
                self.assertEqual(check_line(text)[0], 0)

    def test_data_lines(self):
        for text in [" C 1 2\n", "X=5\n", " =5\n", "=\n", ",\n", "1\n", "\r\n", "12", "\x0b\n", "1 "]:
            with self.subTest(text=text):
                self.assertEqual(check_line(text), (1, text))

    def test_the_accepted_text_is_upper_case(self):
        self.assertEqual(check_line("1e3 abc\n"), (1, "1E3 ABC\n"))

    def test_words(self):
        table = [
            (" C 1 2\n", ["C", "1", "2"]),
            ("X=5\n", ["X=5"]),
            ("A =5\n", ["A"]),
            ("1 2 NAME=7\n", ["1", "2"]),
            ("1,2,,4\n", ["1", "2", "", "4\n"]),
            ("1,2,\n", ["1", "2"]),
            ("1,2, N=3\n", ["1", "2"]),
            (",\n", [""]),
            ("12 34", ["12", "3"]),
            ("1\t2\n", ["1", "2"]),
        ]
        for text, words in table:
            with self.subTest(text=text):
                self.assertEqual(parse_words(text), words)

    def test_numbers(self):
        table = [
            (" C 1 2\n", [0, 1, 2]),
            ("X=5\n", [0]),
            ("1 2 NAME=7\n", [1, 2]),
            ("1 2 NAME = 7\n", [1, 2, 0]),
            ("1 2 A=1 B=2 3\n", [1, 2]),
            ("1\t2\tN=7\n", [1, 2, 0]),
            ("1\t2 \tN=7\n", [1, 2]),
            ("1,2,,4\n", [1, 2, 0, 4]),
            ("1, 2 ,3\n", [1, 2, 3]),
            ("1 2, 3\n", [12, 3]),
            ("1,2\r\r\n", [1, 2]),
            ("1,2* N=3\n", [1, 0]),
            ("1,2*\n", [1, 2]),
            ("1,2 N=3", [1, 2]),
            ("1 2 N=3", [1, 2]),
            ("7 8", [7]),
            ("7,8", [7, 8]),
            ("7 8 ", [7, 8]),
            ("  7   8  \n", [7, 8]),
            ("7 4 0 0.2 1 2\n3 4\n", [7, 4, 0, 0.2, 1, 2, 4]),
            ("1 2\n-3 4\n", [1, -1, 4]),
            ("1 2 \n-3 4\n", [1, 2, -3, 4]),
            ("1 2\n,3\n", [12, 3]),
            ("  7,4\nX=5\n", []),
        ]
        for text, numbers in table:
            with self.subTest(text=text):
                self.assertEqual(parse_numbers(text), numbers)

    def test_operators_go_from_left_to_right(self):
        table = [
            ("2+3*4", 20.0), ("3*-2", -2.0), ("10/4", 2.5), ("-5", -5.0), ("1E+3", 1000.0), ("1.5E-3", 0.0015),
            ("1/0", math.inf), ("-1/0", -math.inf), ("0/0", math.nan), ("5-", 5.0), ("5-\r\n", 5.0), ("--5", -5.0),
            ("1D-3", -2.0), ("0X1P-3", -2.0), ("0X1E-3", 30.0), ("E-5", 0.0), ("1e-3", 0.001), ("2*3-", 6.0),
            ("*5", 0.0), ("+", 0.0), ("INF-INF", math.nan), ("1E308*10", math.inf), ("A+B", 0.0), ("7+-+1", 8.0),
        ]
        for token, value in table:
            with self.subTest(token=token):
                self.assertTrue(same(evaluate_number(token), value), evaluate_number(token))


class LineTest(unittest.TestCase):
    def pieces(self, content):
        with tempfile.TemporaryDirectory() as folder:
            path = os.path.join(folder, "lines")
            with open(path, "wb") as file:
                file.write(content)
            lines = LineFile(path)
        result = []
        while True:
            piece = lines.read_piece()
            if piece is None:
                return result
            result.append(piece)

    def test_line_ends_are_those_of_a_windows_text_stream(self):
        table = [
            (b"", []),
            (b"a\nb", ["a\n", "b"]),
            (b"a\r\nb\r\n", ["a\n", "b\n"]),
            (b"a\rb\r", ["a\rb\r"]),
            (b"a\r\r\n", ["a\r\n"]),
            (b"a\n\x1ab\n", ["a\n"]),
            (b"a\r\x1a\nb", ["a\r"]),
            (b"\xe4\n", ["\xe4\n"]),
            (b"a\0b\nc\n", ["a\0b\n", "c\n"]),
        ]
        for content, pieces in table:
            with self.subTest(content=content):
                self.assertEqual(self.pieces(content), pieces)

    def test_a_nul_ends_the_text_of_its_piece(self):
        self.assertEqual(text_of_piece("1 2\0 3\n"), "1 2")
        self.assertEqual(text_of_piece("\0 3\n"), "")

    def test_long_lines_come_in_pieces_of_499(self):
        self.assertEqual([len(p) for p in self.pieces(b"1" * 599 + b"\n")], [499, 101])
        self.assertEqual([len(p) for p in self.pieces(b"1" * 499 + b"\n")], [499, 1])
        self.assertEqual([len(p) for p in self.pieces(b"1" * 498 + b"\r\n2\n")], [499, 2])
        self.assertEqual([len(p) for p in self.pieces(b"\0" * 1000)], [499, 499, 2])


class GeometryTest(unittest.TestCase):
    def test_distance(self):
        self.assertEqual(distance([1.0, 2.0, 3.0], [1.0, 2.0, 3.0]), 0.0)
        self.assertEqual(distance([0.0, 0.0, 0.0], [3.0, 4.0, 12.0]), 13.0)

    def test_angle(self):
        self.assertEqual(angle_deg([1.0, 0.0, 0.0], [1.0, 0.0, 0.0]), 0.0)
        self.assertEqual(angle_deg([1.0, 0.0, 0.0], [-1.0, 0.0, 0.0]), 180.0)
        self.assertEqual(angle_deg([1.0, 0.0, 0.0], [0.0, 1.0, 0.0]), 90.0)
        self.assertEqual(angle_deg([1.0000000001, 0.0, 0.0], [1.0, 0.0, 0.0]), 0.0)
        self.assertTrue(math.isnan(angle_deg([math.nan, 0.0, 0.0], [1.0, 0.0, 0.0])))

    def test_normalize(self):
        for short in ([0.0, 0.0, 0.0], [1e-16, 0.0, 0.0]):
            result = [7.0, 8.0, 9.0]
            self.assertEqual(normalize(short, result), 0)
            self.assertEqual(result, [7.0, 8.0, 9.0])
        self.assertEqual(normalize([3.0, 0.0, 4.0], result), 1)
        self.assertEqual(result, [0.6, 0.0, 0.8])


class NumberingTest(unittest.TestCase):
    def test_thicknesses_are_compared_exactly(self):
        model = Model()
        values = [200.0, 250.0, 200.0, 200.0000001, 0.0, -0.0, math.nan, math.nan]
        self.assertEqual([model.find_or_add_thickness(v) for v in values], [1, 2, 1, 3, 4, 4, 5, 6])

    def test_materials_differ_by_type(self):
        model = Model()
        triples = [(0, 16, 0), (1, 16, 0), (0, 16, 0), (2, 16, 0), (2, 16, 3)]
        self.assertEqual([model.find_or_add_material(*t) for t in triples], [1, 2, 1, 3, 4])

    def test_grades_tell_composite_sections_apart_alone(self):
        model = Model()
        for key, kind in [(1, 12), (2, 2), (3, 15)]:
            model.inputSections[key] = Section()
            model.inputSections[key].kind = kind
        uses = [(1, 30, 3), (1, 40, 3), (2, 30, 3), (2, 40, 3), (9, 1, 1), (8, 2, 2), (3, 30, 3), (3, 40, 3)]
        self.assertEqual([model.find_or_add_section(*u) for u in uses], [1, 2, 3, 3, 4, 4, 5, 6])
        self.assertEqual(model.inputSections[1].concreteGrade, 0)

    def test_a_section_with_a_nan_is_never_found_again(self):
        model = Model()
        model.inputSections[1] = Section()
        model.inputSections[1].dims[9] = math.nan
        self.assertEqual([model.find_or_add_section(1, 0, 0) for _ in range(3)], [1, 2, 3])


class SectionLineTest(unittest.TestCase):
    def text(self, kind, dims, grade=0):
        section = Section()
        section.kind = kind
        section.dims[:len(dims)] = dims
        section.concreteGrade = grade
        return "".join(formatted(pattern, arguments) for pattern, arguments in section_lines(3, section))

    def test_every_kind(self):
        dims = [10.0, 20.0, -30.0, 40.0, -50.0, 60.0]
        second = "      20, 10, 2, %s, 0, 0\n"
        table = [
            (1, "  3, DBUSER, Sec3, CC, SB, 2, 20, 10, 0, 0, 0, 0\n"),
            (2, "  3, DBUSER, Sec3, CC, H, 2, 20, -30, 10, 40, -50, 60\n"),
            (3, "  3, DBUSER, Sec3, CC, SR, 2, 10, 0, 0, 0, 0, 0\n"),
            (4, "  3, DBUSER, Sec3, CC, SR, 2, 10, 0, 0, 0, 0, 0\n"),
            (5, "  3, DBUSER, Sec3, CC, C, 2, 20, 40, 10, 40, 60, 60\n"),
            (6, "  3, COMBINED, Sec3, CC, H2T, 2, 20, 10, 10, 10, 0, 60, 40, 40, 40\n"),
            (7, "  3, DBUSER, Sec3, CC, B, 2, 20, 10, 40, -30, 0, -50\n"),
            (8, "  3, DBUSER, Sec3, CC, P, 2, 10, -5, 0, 0, 0, 0\n"),
            (9, "  3, DBUSER, Sec3, CC, 2C, 2, 20, 40, 10, 40, 60, 0\n"),
            (10, "  3, COMBINED, Sec3, CC, H2T, 2, 20, 60, 10, 40, 0, 5, 60, 10, 40\n"),
            (11, "  3, DBUSER, Sec3, CC, SB, 2, 20, 10, 0, 0, 0, 0\n"),
            (12, "  3, SRC, Sec3, CC, EPC, 1, 6.91484, 3.0792, 0.3, 0.2\n      20, 0, 2, 10, -5, 0, 0, 0, 0\n"),
            (13, "  3, SRC, Sec3, CC, RHB, 1, 6.91484, 3.0792, 0.3, 0.2\n" + second % "40, -50, -30, 60"),
            (14, "  3, SRC, Sec3, CC, RBC, 1, 6.91484, 3.0792, 0.3, 0.2\n" + second % "40, -30, 60, -50"),
            (15, ""), (-1, ""), (99, ""),
        ]
        for kind, text in table:
            with self.subTest(kind=kind):
                self.assertEqual(self.text(kind, dims), text)

    def test_a_value_section_is_a_square_of_its_area(self):
        zeros = "    0, 0, 0, 0, 0, 0, 0, 0, 0, 0\n"
        expected = "  3, VALUE, Sec3, CC, SB, BUILT, %s, %s, 0, 0, 0, 0\n    %s, 0., 0., 1, 2, 3\n" + zeros
        self.assertEqual(self.text(0, [400.0, 1.0, 2.0, 3.0]), expected % ("20", "20", "400"))
        self.assertEqual(self.text(0, [-4.0, 1.0, 2.0, 3.0]), expected % ("nan", "nan", "-4"))

    def test_a_pipe_and_the_elastic_ratios(self):
        self.assertIn("P, 2, 300, 10, 0", self.text(8, [300.0, 280.0]))
        for grade, ratio in [(15, "9.29771"), (25, "7.39146"), (30, "6.91484"), (80, "5.42562"), (85, "6.91484")]:
            self.assertIn("EPC, 1, %s, " % ratio, self.text(12, [], grade))


class PathTest(unittest.TestCase):
    def test_the_path_is_cut_at_its_last_point(self):
        self.assertEqual(output_path("D:\\proj\\tower.sat"), "D:\\proj\\tower.vkm")
        self.assertEqual(output_path("D:\\proj\\tower"), "D:\\proj\\tower.vkm")
        self.assertEqual(output_path("D:\\rev1.2\\tower"), "D:\\rev1.vkm")


READ_STAGE = ["!!! Read Data File !!!"]
ALL_STAGES = READ_STAGE + [
    "!!! Write Data File : Node !!!", "!!! Write Data File : Element !!!", "!!! Write Data File : Material !!!",
    "!!! Write Data File : Section !!!", "!!! Write Data File : Thickness !!!", "!!! Write Data File : Support !!!",
    "!!! Write Data File : Beam End Release !!!", "!!! Write Data File : Beam End Offset !!!",
    "!!! Write Data File : Load Case !!!", "!!! Write File : Static Load !!!",
]

VERSION = "*VERSION\n  5.8.0\n\n"
LOAD_CASES = "*STLDCASE    ; Static Load Cases\n; LCNAME, LCTYPE, DESC\n  DeadLoad, D, \n  LiveLoad, L, \n\n"

SECTION_PAIR = "1 1 6 0 300 600 0 0 0 0\n0 0 0 0\n"
NO_STORY = "0 1 1\n" + SECTION_PAIR + "1 11 0 1.5 0 -0.0\n"
NO_STORY_MODEL = (
    VERSION
    + block_headers.NODE + "  11, 1.5, 0, -0\n\n"
    + block_headers.CONSTRAINT + "  11, 111111\n\n"
    + LOAD_CASES
)


class ConversionTest(unittest.TestCase):
    def setUp(self):
        self.before = os.getcwd()
        self.folder = tempfile.TemporaryDirectory()
        os.chdir(self.folder.name)
        os.mkdir("in")

    def tearDown(self):
        os.chdir(self.before)
        self.folder.cleanup()

    def convert(self, structure, load, cancelAt=None):
        for name, text in [("in/a.sat", structure), ("in/b.sat", load)]:
            with open(name, "wb") as file:
                file.write(text.encode("latin-1"))
        return reference.convert("in/a.sat", "in/b.sat", cancelAt)

    def read(self, name):
        with open(name, "rb") as file:
            return file.read().decode("ascii")

    def model(self):
        return self.read("in/a.vkm")

    def log(self):
        return self.read("satwecvt.msg")

    def assert_nothing_written(self):
        self.assertFalse(os.path.exists("in/a.vkm"))
        self.assertFalse(os.path.exists("satwecvt.msg"))

    def assert_fails_in_reading(self, structure, steps, lineCounter=None):
        outcome = self.convert(structure, "0\n")
        expected = {
            "result": -1, "messages": [], "stages": READ_STAGE, "steps": steps,
            "total": len(structure.splitlines()) + 1, "lineCounter": steps if lineCounter is None else lineCounter,
        }
        self.assertEqual(outcome, expected)
        self.assert_nothing_written()

    # Without stories

    def test_model_without_stories(self):
        outcome = self.convert(NO_STORY, "never read\n")
        expected = {
            "result": 0, "messages": [], "stages": ALL_STAGES, "total": 5, "lineCounter": 4, "steps": 4,
        }
        self.assertEqual(outcome, expected)
        self.assertEqual(self.model(), NO_STORY_MODEL)
        self.assertEqual(self.log(), "")

    def test_comments_and_line_ends_do_not_matter(self):
        self.convert(("c head\n\n" + NO_STORY).replace("\n", "\r\n") + "\x1atail", "")
        self.assertEqual(self.model(), NO_STORY_MODEL)

    def test_last_line_without_newline_loses_its_last_character(self):
        self.convert(NO_STORY[:-1] + "5", "")
        self.assertEqual(self.model(), NO_STORY_MODEL)

    def test_nodes_are_sorted_by_key_and_written_by_number(self):
        nodes = "5 1 0 0 0 0\n2 2 0 0 0 0\n9 3 0 0 0 0\n-1 4 0 0 0 0\n"
        self.convert("0 1 4\n" + SECTION_PAIR + nodes, "")
        block = "  4, 0, 0, 0\n  2, 0, 0, 0\n  1, 0, 0, 0\n  3, 0, 0, 0\n\n"
        self.assertIn(block_headers.NODE + block, self.model())
        self.assertIn("  4, 111111\n  2, 111111\n  1, 111111\n  3, 111111\n\n", self.model())

    def test_a_key_twice_leaves_the_model_text_where_the_node_is_missing(self):
        outcome = self.convert("0 1 2\n" + SECTION_PAIR + "1 11 0 1 2 3\n1 12 0 4 5 6\n", "")
        self.assertEqual((outcome["result"], outcome["messages"]), (-1, []))
        self.assertEqual(outcome["stages"], ALL_STAGES[:2])
        self.assertEqual(self.model(), VERSION + block_headers.NODE + "  12, 4, 5, 6\n")
        self.assertEqual(self.log(), "")

    # Reading that fails

    def test_files_that_cannot_be_opened(self):
        outcome = reference.convert("none.sat", "none2.sat")
        self.assertEqual((outcome["result"], outcome["total"], outcome["steps"]), (-1, 0, 0))
        self.assertEqual(outcome["messages"], ["Can't open structure input file!"])
        with open("in/a.sat", "w", encoding="ascii") as file:
            file.write(NO_STORY)
        outcome = reference.convert("in/a.sat", "in")
        self.assertEqual((outcome["result"], outcome["total"], outcome["steps"]), (-1, 4, 4))
        self.assertEqual(outcome["messages"], ["Can't open load file!"])
        self.assert_nothing_written()

    def test_end_of_file_has_been_polled_and_counted(self):
        self.assert_fails_in_reading("C only\nc comments\n", 3)

    def test_counts_below_one_in_the_header_take_the_rest_of_the_file(self):
        self.assert_fails_in_reading("0 0 1\n" + SECTION_PAIR, 4)
        self.assert_fails_in_reading("0 -1 1\n" + SECTION_PAIR, 4)
        self.assert_fails_in_reading("0 1 0\n" + SECTION_PAIR + "1 11 0 0 0 0\n", 5)
        self.assert_fails_in_reading("0 2147483647 1\n" + SECTION_PAIR, 4)

    def test_a_short_record_fails_after_its_block_is_read(self):
        self.assert_fails_in_reading("0 2 1\n1 2\n0 0 0 0\n" + SECTION_PAIR + "1 2 3 4 5 6\n", 5)

    def test_a_beam_line_of_two_numbers_fails_at_once(self):
        story = "1 1 0\n0\n1 1 1 1 1 1\n0 2 0 0 0 0\n"
        structure = "1 1 1\n" + SECTION_PAIR + "1 11 0 0 0 0\n" + story + "1 2\n1 1 1 1 1 1 1\n"
        self.assert_fails_in_reading(structure, 4 + 5 + 1)

    def test_a_wall_with_one_point_too_many_fails(self):
        story = "1 1 0\n0\n1 1 1 1 1 1\n0 0 0 0 1 0\n1 4 0 0 0 0.2 0 0 0 0\n"
        head = "1 1 1\n" + SECTION_PAIR + "1 11 0 0 0 0\n"
        self.assert_fails_in_reading(head + story + "1 2 3 4 5 6 7 8 9\n1\n", 4 + 5 + 2)
        self.assert_fails_in_reading(head + story + "1 2 3 4 5 6 7\n8 9\n", 4 + 5 + 3)

    def test_an_endless_plate_takes_the_rest_of_the_file(self):
        story = "1 1 0\n0\n1 1 1 1 1 1\n0 0 0 0 0 1\n1 2147483647 0 0.1 1 2 3\n4 5\n6 7\n"
        self.assert_fails_in_reading("1 1 1\n" + SECTION_PAIR + "1 11 0 0 0 0\n" + story, 4 + 5 + 3 + 1)

    # Cancel

    def test_cancel(self):
        structure = "1 1 1\n" + SECTION_PAIR + "1 11 0 0 0 0\n1\n0\n1\n0\n"
        for cancelAt in range(1, 11):
            outcome = self.convert(structure, "0\n", cancelAt)
            expected = {
                "result": 1, "messages": [], "stages": READ_STAGE, "total": 9,
                "lineCounter": cancelAt - 1, "steps": cancelAt,
            }
            self.assertEqual(outcome, expected)
            self.assert_nothing_written()
        outcome = self.convert(structure, "0\n", 11)
        self.assertEqual((outcome["result"], outcome["steps"], outcome["lineCounter"]), (0, 10, 10))

    # Story line 3

    def test_repeats_of_story_line_3_are_dropped(self):
        story = "1\n0\n1 2 3 4 5 a\nc\n1 2 3 4 5 A\n\n1 2 3 4 5 a\n0\n"
        outcome = self.convert("1 1 1\n" + SECTION_PAIR + "1 11 0 0 0 0\n" + story, "0\n")
        self.assertEqual((outcome["result"], outcome["steps"], outcome["total"]), (0, 14, 13))

    def test_a_story_line_4_like_line_3_counts_as_a_repeat(self):
        story = "1\n0\n0 0 0 0 0 0\n0 0 0 0 0 0\n1 0\n1 21 0 1 2 3\n"
        self.convert("1 1 1\n" + SECTION_PAIR + "1 11 0 0 0 0\n" + story, "0\n")
        self.assertIn("  11, 0, 0, 0\n  21, 1, 2, 3\n\n", self.model())

    # File errors

    def test_model_text_that_cannot_be_created(self):
        os.mkdir("in/a.vkm")
        outcome = self.convert(NO_STORY, "")
        self.assertEqual((outcome["result"], outcome["stages"]), (0, READ_STAGE))
        self.assertEqual(len(outcome["messages"]), 1)
        self.assertIn("in/a.vkm", outcome["messages"][0])
        self.assertEqual(self.log(), "")

    def test_an_input_is_never_overwritten(self):
        with open("in/c.vkm", "w", encoding="ascii") as file:
            file.write(NO_STORY)
        outcome = reference.convert("in/c.vkm", "in/c.vkm")
        self.assertEqual((outcome["result"], len(outcome["messages"])), (0, 1))
        self.assertEqual(self.read("in/c.vkm"), NO_STORY)

    def test_a_log_that_cannot_be_created_matters_with_the_first_warning(self):
        os.mkdir("satwecvt.msg")
        outcome = self.convert(NO_STORY, "")
        self.assertEqual((outcome["result"], outcome["messages"]), (0, []))
        outcome = self.convert(BUILDING, BUILDING_LOADS)
        self.assertEqual(outcome["result"], 0)
        self.assertEqual(len(outcome["messages"]), 1)
        self.assertIn("satwecvt.msg", outcome["messages"][0])
        self.assertEqual(outcome["stages"], ALL_STAGES[:3])

    # Stories with members and loads

    def test_building(self):
        outcome = self.convert(BUILDING, BUILDING_LOADS)
        lines = BUILDING.count("\n") + BUILDING_LOADS.count("\n")
        expected = {
            "result": 0, "messages": [], "stages": ALL_STAGES,
            "total": lines, "lineCounter": lines + 1, "steps": lines + 1,
        }
        self.assertEqual(outcome, expected)
        self.maxDiff = None
        self.assertEqual(self.model(), BUILDING_MODEL)
        self.assertEqual(self.log(), BUILDING_LOG)

    def test_a_plate_corner_outside_the_list_ends_the_conversion(self):
        # Number 2 is 3 on the first physical line, but 3*2 = 6 in the joined text.
        plate = "1 3\n*2 0 0.1 1 2 3 4\n"
        nodes = "".join("%d %d 0 %d %d 0\n" % (n, n, n, n * n) for n in range(1, 5))
        story = "1\n0\n0 0 0 0 30\n4 0 0 0 0 1\n" + nodes + plate
        outcome = self.convert("1 1 1\n" + SECTION_PAIR + "1 11 0 0 0 0\n" + story, "0\n")
        self.assertEqual((outcome["result"], outcome["messages"]), (-1, []))
        self.assertEqual(outcome["stages"], ALL_STAGES[:3])
        tail = "  1, PLATE, 1, 1, 1, 2, 3, 0, 1\n  2, PLATE, 1, 1, 1, 3, 4, 0, 1\n"
        self.assertTrue(self.model().endswith(block_headers.ELEMENT + tail))

    def test_a_wall_force_on_a_missing_wall_ends_the_conversion(self):
        story = "1\n0\n1 2 3\n0 0\n"
        outcome = self.convert("1 1 1\n" + SECTION_PAIR + "1 11 0 0 0 0\n" + story, "2\n1 11 11 0 5\n1 9 21 0 5\n")
        self.assertEqual(outcome["result"], -1)
        self.assertEqual(outcome["stages"], ALL_STAGES)
        tail = "*USE-STLD, DeadLoad\n\n" + block_headers.CONLOAD + "11, 0, 0, -5, 0, 0, 0\n"
        self.assertTrue(self.model().endswith(LOAD_CASES + tail))

    def test_a_load_file_that_ends_early_keeps_its_loads(self):
        story = "1\n0\n1 2 3\n0 0\n"
        outcome = self.convert("1 1 1\n" + SECTION_PAIR + "1 11 0 0 0 0\n" + story, "5\n1 11 12 1 5 6 7\n")
        self.assertEqual((outcome["result"], outcome["steps"]), (0, 4 + 5 + 3))
        dead = "*USE-STLD, DeadLoad\n\n\n\n\n; End of data for load case [DeadLoad] -------------------------\n\n"
        live = "*USE-STLD, LiveLoad\n\n" + block_headers.CONLOAD + "11, 6, 7, -5, 0, 0, 0\n\n\n\n"
        end = "; End of data for load case [LiveLoad] -------------------------\n\n\n"
        self.assertTrue(self.model().endswith(LOAD_CASES + dead + live + end))

    def test_command_line_prints_json(self):
        self.convert(NO_STORY, "")
        arguments = sys.argv
        sys.argv = ["reference.py", "in/a.sat", "in/b.sat", "--cancel-at", "2"]
        try:
            with contextlib.redirect_stdout(io.StringIO()) as printed:
                reference.main()
        finally:
            sys.argv = arguments
        outcome = json.loads(printed.getvalue())
        self.assertEqual((outcome["result"], outcome["steps"]), (1, 2))


# One story over a base node: 6 x 4 in plan at z 0, a second row of nodes at z 3.
BUILDING = """\
c building
1 3 1 0 0
1 1 6 0 300 600 0 0 0 0
0 0 0 0
2 2 5 0 10 20 30 40 50 60
0 0 0 0
3 12 0 0 300 280 0 0 0 0
0 0 0 0
1 100 0 0 0 -3
1 -2 1
1 2 3
1 30 40 35 25 16
8 3 3 2 2 3
1 1 0 0 0 0
2 2 0 6 0 0
3 3 0 6 4 0
4 4 0 0 4 0
5 5 0 0 0 3
6 6 0 6 0 3
7 7 0 6.1 4 3
8 8 0 3 0 0
2 -5 6 1 12 0 90
0.25 0 1e-7 0 0 0
1 5 6 2 1 0 0
9 -2147483648 6 99 9 0 0
1 0 0 0 0 0
1 1 -5 3 14 0 0
77 100
2 2 6 1 2 0 45
3 3 7 3 3 0 0
1 1 6 1 12 0 0
2 2 5 2 4 0 0
2 3 0 0 0 0.2 0 0 0 nan
1 8 2 5 8
6
1 2 0 0 0 0.3 0 1 0 0
2 3 6 7
10 4 0 0.2 1 2 3 4
11 5 0 0.25 1 8 2
3 4 4
12 4 0 nan 1 2 99 3
"""

BUILDING_LOADS = """\
12
1 2 1 0 10 3
2 2 1 1 10 9
3 1 2 1 1 2 0 6
4 1 3 1 5 1 2
5 1 4 1 5 2.9975
6 1 4 1 5 1.8
7 1 4 0 0.000001 1
8 1 5 1
9 5 11 1 1 2 3
10 2 21 1 12 1.5
11 1 22 0 15
12 33 22 1 1
"""

# Sequence numbers in reading order: beams 1 to 3 (the first read has key 2), columns 4 with 5, 6, 7, braces
# 8 and 9, walls 10 (key 2) and 11 (key 1), plates 12 (two triangles), 14 (three) and 17 (two).
# Materials in order of use: steel 16 (beam of section 2), C30 (beams), composite C40 with 16 (columns of
# section 3), C40 (column), C35 (the one valid wall), C25 (plates).
# Plate 11 has a token fused over its line end, 2 and 3 give 2: its vertices are 1 8 2 4 4. The triangle 1 8 2
# is straight, 1 2 4 is written, 1 4 4 has two equal edges.
# Plate 12: both triangles have corner 99, which is no node; each takes a thickness number for its NaN.
BUILDING_MODEL = (
    VERSION
    + block_headers.NODE
    + "  100, 0, 0, -3\n"
    + "  1, 0, 0, 0\n"
    + "  2, 6, 0, 0\n"
    + "  3, 6, 4, 0\n"
    + "  4, 0, 4, 0\n"
    + "  5, 0, 0, 3\n"
    + "  6, 6, 0, 3\n"
    + "  7, 6.1, 4, 3\n"
    + "  8, 3, 0, 0\n"
    + "\n"
    + block_headers.ELEMENT
    + "  2, BEAM, 1, 1, 5, 6, 0\n"
    + "  1, BEAM, 2, 2, 5, 6, 90\n"
    + "  3, BEAM, 2, 3, -2147483648, 6, 0\n"
    + "  4, BEAM, 3, 4, 1, 100, 0\n"
    + "  5, BEAM, 3, 4, 100, 5, 0\n"
    + "  6, BEAM, 4, 2, 2, 6, 45\n"
    + "  7, BEAM, 3, 4, 3, 7, 0\n"
    + "  8, BEAM, 2, 2, 1, 6, 0\n"
    + "  9, BEAM, 1, 1, 2, 5, 0\n"
    + "  10, WALL, 5, 2, 5, 6, 2, 1, 1, 1\n"
    + "  12, PLATE, 6, 2, 1, 2, 3, 0, 1\n"
    + "  13, PLATE, 6, 2, 1, 3, 4, 0, 1\n"
    + "  15, PLATE, 6, 3, 1, 2, 4, 0, 1\n"
    + "\n"
    + block_headers.MATERIAL
    + "  1, STEEL, 16Mn, 0, 0, 1, GB(S), 16Mn\n"
    + "  2, CONC, C30, 0, 0, 1, GB(RC), C30\n"
    + "  3, SRC, SRC1, 0, 0, 1, GB(S), 16Mn, 1, GB(RC), C40\n"
    + "  4, CONC, C40, 0, 0, 1, GB(RC), C40\n"
    + "  5, CONC, C35, 0, 0, 1, GB(RC), C35\n"
    + "  6, CONC, C25, 0, 0, 1, GB(RC), C25\n"
    + "\n"
    + block_headers.SECTION
    + "  1, DBUSER, Sec1, CC, H, 2, 20, 30, 10, 40, 50, 60\n"
    + "  2, DBUSER, Sec2, CC, SB, 2, 600, 300, 0, 0, 0, 0\n"
    + "  3, VALUE, Sec3, CC, SB, BUILT, 0, 0, 0, 0, 0, 0\n"
    + "    0, 0., 0., 0, 0, 0\n"
    + "    0, 0, 0, 0, 0, 0, 0, 0, 0, 0\n"
    + "  4, SRC, Sec4, CC, EPC, 1, 6.31921, 3.0792, 0.3, 0.2\n"
    + "      280, 0, 2, 300, 10, 0, 0, 0, 0\n"
    + "\n"
    + block_headers.THICKNESS
    + "  1, VALUE, YES, 0.3, 0\n"
    + "  2, VALUE, YES, 0.2, 0\n"
    + "  3, VALUE, YES, 0.25, 0\n"
    + "  4, VALUE, YES, nan, 0\n"
    + "  5, VALUE, YES, nan, 0\n"
    + "\n"
    + block_headers.CONSTRAINT
    + "  100, 111111\n"
    + "\n"
    + block_headers.FRAME_RLS
    + "  1, 000011, 0, 0, 0, 0, 0, 0\n"
    + "      000000, 0, 0, 0, 0, 0, 0,\n"
    + "  4, 000011, 0, 0, 0, 0, 0, 0\n"
    + "      000000, 0, 0, 0, 0, 0, 0,\n"
    + "  5, 000000, 0, 0, 0, 0, 0, 0\n"
    + "      000011, 0, 0, 0, 0, 0, 0,\n"
    + "  6, 000011, 0, 0, 0, 0, 0, 0\n"
    + "      000000, 0, 0, 0, 0, 0, 0,\n"
    + "  7, 000000, 0, 0, 0, 0, 0, 0\n"
    + "      000011, 0, 0, 0, 0, 0, 0,\n"
    + "  9, 000011, 0, 0, 0, 0, 0, 0\n"
    + "      000011, 0, 0, 0, 0, 0, 0,\n"
    + "\n"
    + block_headers.OFFSET
    + "  1, GLOBAL, 0.25, 0, 1e-07, 0, 0, 0,  \n"
    + "  3, GLOBAL, 1, 0, 0, 0, 0, 0,  \n"
    + "\n"
    + LOAD_CASES
    + "*USE-STLD, DeadLoad\n\n"
    + "\n"
    + block_headers.BEAMLOAD
    + "1, BEAM, CONLOAD, GZ, NO, 0.5, -10, 0, 0, 0, 0, 0, 0\n"
    + "\n"
    + block_headers.PRESSURE
    + "11, PRES, PLATE, EDGE, 3, GZ, 0, 0, 0, -15, 0, 0,\n"
    + "\n"
    + "; End of data for load case [DeadLoad] -------------------------\n\n"
    + "*USE-STLD, LiveLoad\n\n"
    + block_headers.CONLOAD
    + "5, 0, 0, -1, 2, 3, 0\n"
    + "1, 0, 0, -9, 0, 0, 0\n"
    + "2, 0, 0, -3, 0, 0, 0\n"
    + "\n"
    + block_headers.BEAMLOAD
    + "1, BEAM, CONLOAD, GZ, NO, 0.5, -10, 0, 0, 0, 0, 0, 0\n"
    + "1, BEAM, CONLOAD, GZ, NO, 1, -10, 0, 0, 0, 0, 0, 0\n"
    + "2, BEAM, UNILOAD, GZ, NO, 0, -1, 1, -2, 0, 0, 0, 0\n"
    + "2, BEAM, UNILOAD, GZ, NO, 0.166667, 0, 0.5, -5, 0.833333, 0, 0, 0\n"
    + "2, BEAM, UNILOAD, GZ, NO, 0, 0, 0.5, -5, 1, 0, 0, 0\n"
    + "2, BEAM, UNILOAD, GZ, NO, 0, 0, 0.3, -5, 0.7, -5, 1, 0\n"
    + "\n"
    + block_headers.PRESSURE
    + "11, PRES, PLATE, EDGE, 3, GZ, 0, 0, 0, -15, 0, 0,\n"
    + "\n"
    + "; End of data for load case [LiveLoad] -------------------------\n\n"
    + "\n"
)

BUILDING_LOG = (
    "The wall(story id:-2,wall id:1) has invalid shape\n"
    + "Opening of the wall(story id:-2,wall id:2) is not converted\n"
    + "The plate(story id:-2,plate id:12) has invalid shape\n"
    + "Beam load value '0'(story id:1,beam id:1) is not converted\n" * 2
)


if __name__ == "__main__":
    unittest.main()
