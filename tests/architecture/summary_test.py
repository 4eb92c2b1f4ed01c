"""Holds tools/summary.py to what it promises. usage: summary_test.py PATH-OF-summary.py"""

import pathlib
import subprocess
import sys
import tempfile
import unittest

SUMMARY = sys.argv.pop(1)

PASSED = '<testcase name="a" status="run"><system-out>[       OK ] A.B (0 ms)\n</system-out></testcase>'
FAILED = '<testcase name="b" status="fail"><failure message=""/><system-out>oops\n</system-out></testcase>'
DISABLED = '<testcase name="c" status="disabled"><system-out>Disabled</system-out></testcase>'
NOT_THERE = """<testcase name="d" status="notrun"><skipped message="Unable to find executable"/>
<system-out>Unable to find executable: /bin/d</system-out></testcase>"""


def skipped(printed):
    """A test that prints a text behind its place in the source, and is skipped."""
    return f"""<testcase name="e" status="notrun"><skipped message="SKIP_REGULAR_EXPRESSION_MATCHED"/>
<system-out>[ RUN      ] A.B
/x/y.cpp:50: Skipped
{printed}
[  SKIPPED ] A.B (0 ms)
[  PASSED  ] 0 tests.
</system-out></testcase>"""


def run(text):
    """What the program prints of a file with this text, and its exit status."""
    with tempfile.TemporaryDirectory() as folder:
        results = pathlib.Path(folder, "tests.xml")
        results.write_text(text, encoding="utf-8")
        done = subprocess.run([sys.executable, SUMMARY, results], capture_output=True, text=True, check=False)
    return done.stdout.splitlines(), done.returncode


def lines(*tests):
    """The lines printed of these tests."""
    printed, status = run("<testsuite>" + "".join(tests) + "</testsuite>")
    assert status == 0
    return printed


class Summary(unittest.TestCase):
    def test_the_last_line_counts_what_passed_failed_and_was_skipped(self):
        self.assertEqual(lines(PASSED, PASSED, FAILED), ["2 passed, 1 failed, 0 skipped"])

    def test_each_reason_of_skipped_tests_is_told_with_their_number(self):
        self.assertEqual(
            lines(skipped("needs b\n"), skipped("needs a\n"), PASSED, skipped("needs b\n")),
            ["Skipped 1: needs a", "Skipped 2: needs b", "1 passed, 0 failed, 3 skipped"])

    def test_a_reason_of_several_lines_comes_in_one(self):
        self.assertEqual(lines(skipped("needs a\nand  b\n"))[0], "Skipped 1: needs a and b")

    def test_a_test_that_says_nothing_is_counted_all_the_same(self):
        self.assertEqual(lines(skipped("")), ["Skipped 1: no reason given", "0 passed, 0 failed, 1 skipped"])

    def test_a_disabled_test_is_skipped(self):
        self.assertEqual(lines(DISABLED), ["Skipped 1: disabled", "0 passed, 0 failed, 1 skipped"])

    def test_a_test_that_cannot_be_started_has_failed(self):
        self.assertEqual(lines(NOT_THERE), ["0 passed, 1 failed, 0 skipped"])

    def test_a_file_of_another_kind_is_an_error(self):
        self.assertNotEqual(run("no results")[1], 0)


if __name__ == "__main__":
    unittest.main()
