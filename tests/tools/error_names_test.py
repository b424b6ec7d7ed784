"""Tests of tools/error_names.py on small made-up trees."""

import os
import sys
import tempfile
import unittest

sys.dont_write_bytecode = True
sys.path.insert(0, os.path.join(os.path.dirname(__file__), "..", "..", "tools"))
from error_names import check


class ErrorNames(unittest.TestCase):
    def faults(self, files):
        with tempfile.TemporaryDirectory() as top:
            for path, text in files.items():
                full = os.path.join(top, path)
                os.makedirs(os.path.dirname(full), exist_ok=True)
                with open(full, "w", encoding="utf-8") as file:
                    file.write(text)
            return check(top)

    def test_a_code_that_a_test_or_a_table_names_is_no_fault(self):
        self.assertEqual(self.faults({
            "main/data/A.cpp": 'VELTRIA_ASSERT(f(x) >= 0, 0x0000ABCD);\nthrow E(u"E_AutoGen_0x0000ABCE");\n',
            "tests/data/ATest.cpp": '"LogicException_LogicAssert_0x0000abcd"',
            "tests/vectors/a.tsv": "!E_AutoGen_0x0000ABCE",
        }), [])

    def test_a_code_without_a_test_is_told_with_its_place(self):
        self.assertEqual(self.faults({"main/data/A.cpp": "\nVELTRIA_FAIL(u\")\", 0x0000ABCD);\n"}),
                         ["main/data/A.cpp:2: no test names 0x0000ABCD"])

    def test_numbers_outside_of_a_throw_and_codes_in_comments_do_not_count(self):
        self.assertEqual(self.faults({
            "main/data/A.cpp": "int a = 0x12345678;\n// VELTRIA_FAIL(x, 0x0000ABCD)\n/* VELTRIA_FAIL(x, 0x0000ABCD) */\n",
        }), [])

    def test_one_code_at_two_places_is_told(self):
        self.assertEqual(self.faults({
            "include/velcoredata/data/A.h": "VELTRIA_THROW(E, 0x0000ABCD, u\"m\");\n",
            "main/data/A.cpp": "VELTRIA_THROW_NAMED(E, N, 0x0000ABCD, 2, 2,\n u\"m\");\n",
            "tests/data/ATest.cpp": "0x0000ABCD",
        }), ["main/data/A.cpp:1, include/velcoredata/data/A.h:1: one code at 2 places: 0x0000ABCD"])

    def test_the_list_of_the_codes_excuses_and_is_held_to_the_truth(self):
        listed = "| 0x0000ABCF |\n## No test can raise\n| 0x0000ABCD |\n| 0x0000ABCE |\n"
        self.assertEqual(self.faults({
            "main/data/A.cpp": "VELTRIA_FAIL(x, 0x0000ABCD);\n",
            "docs/error-codes.md": listed,
            "tests/data/ATest.cpp": "0x0000ABCE",
        }), ["docs/error-codes.md: 0x0000ABCE has a test", "docs/error-codes.md: the sources do not raise 0x0000ABCE"])


if __name__ == "__main__":
    unittest.main()
