"""What tools/count-tests makes of the reports of CTest."""

import subprocess
import sys
import tempfile
import unittest
from pathlib import Path
from xml.sax.saxutils import escape

COUNT_TESTS = Path(__file__).resolve().parents[2] / "tools" / "count-tests"

TWO_TESTS = """Note: Randomizing tests' orders with a seed of 7 .
[==========] Running 2 tests from 1 test suite.
[ RUN      ] Store.Keeps
said on the way[       OK ] Store.Keeps (0 ms)
[ RUN      ] Kinds/Store.Forgets/1
[       OK ] Kinds/Store.Forgets/1 (0 ms)
[==========] 2 tests from 1 test suite ran. (0 ms total)
[  PASSED  ] 2 tests.
"""
ONE_FAILS = """[==========] Running 2 tests from 1 test suite.
[ RUN      ] Store.Keeps
[       OK ] Store.Keeps (0 ms)
[ RUN      ] Kinds/Store.Forgets/1
[  FAILED  ] Kinds/Store.Forgets/1, where GetParam() = "a.b" (0 ms)
[==========] 2 tests from 1 test suite ran. (0 ms total)
[  PASSED  ] 1 test.
[  FAILED  ] 1 test, listed below:
[  FAILED  ] Kinds/Store.Forgets/1, where GetParam() = "a.b"

 1 FAILED TEST
"""
ENDS_IN_THE_SECOND = """[==========] Running 4 tests from 1 test suite.
[ RUN      ] Store.Keeps
[       OK ] Store.Keeps (0 ms)
[ RUN      ] Store.Forgets
"""
ONE_IS_SKIPPED = """[==========] Running 2 tests from 1 test suite.
[       OK ] Store.Keeps (0 ms)
[  SKIPPED ] Store.Forgets (0 ms)
"""


class CountTestsTest(unittest.TestCase):
    def count(self, *cases):
        """Of (name, status, output): the passed, the number of failures, and their names."""
        with tempfile.TemporaryDirectory() as folder:
            report = Path(folder) / "report.xml"
            report.write_text(
                "<testsuite>"
                + "".join(
                    f'<testcase name="{name}" status="{status}"><system-out>{escape(output)}</system-out></testcase>'
                    for name, status, output in cases
                )
                + "</testsuite>"
            )
            done = subprocess.run([sys.executable, COUNT_TESTS, report], capture_output=True, text=True, check=True)
        passed, failed = map(int, done.stdout.split())
        return passed, failed, [line.removeprefix("failed: ") for line in done.stderr.splitlines()]

    def test_the_tests_of_a_program_count_one_by_one(self):
        self.assertEqual(self.count(("GoogleTest.core", "run", TWO_TESTS)), (2, 0, []))

    def test_several_programs_and_other_tests_add_up(self):
        self.assertEqual(
            self.count(("GoogleTest.core", "run", TWO_TESTS), ("GoogleTest.pane", "run", TWO_TESTS), ("tools", "run", "")),
            (5, 0, []),
        )

    def test_a_failed_test_counts_once_and_the_others_passed(self):
        self.assertEqual(
            self.count(("GoogleTest.core", "fail", ONE_FAILS)), (1, 1, ["GoogleTest.core: Kinds/Store.Forgets/1"])
        )

    def test_what_a_program_that_crashes_has_not_come_to_did_not_pass(self):
        left = ["GoogleTest.core: the program, which ended with 3 of its 4 tests to go"]
        self.assertEqual(self.count(("GoogleTest.core", "fail", ENDS_IN_THE_SECOND)), (1, 1, left))

    def test_a_program_that_ends_early_as_if_all_were_well_failed_too(self):
        left = ["GoogleTest.core: the program, which ended with 3 of its 4 tests to go"]
        self.assertEqual(self.count(("GoogleTest.core", "run", ENDS_IN_THE_SECOND)), (1, 1, left))

    def test_a_program_that_fails_after_its_tests_failed(self):
        self.assertEqual(
            self.count(("GoogleTest.core", "fail", TWO_TESTS)), (2, 1, ["GoogleTest.core: the program, after its tests"])
        )

    def test_a_program_without_tests_failed(self):
        none = "[==========] Running 0 tests from 0 test suites.\n[  PASSED  ] 0 tests.\n"
        for output in [none, ""]:
            self.assertEqual(
                self.count(("GoogleTest.core", "run", output)), (0, 1, ["GoogleTest.core: the program, which ran no tests"])
            )

    def test_a_skipped_test_counts_as_nothing(self):
        self.assertEqual(self.count(("GoogleTest.core", "run", ONE_IS_SKIPPED)), (1, 0, []))

    def test_other_tests_count_by_how_they_end(self):
        self.assertEqual(
            self.count(("good", "run", ""), ("bad", "fail", TWO_TESTS), ("absent", "notrun", "")), (1, 2, ["bad", "absent"])
        )

    def test_a_report_without_tests_is_a_failure(self):
        passed, failed, names = self.count()
        self.assertEqual((passed, failed), (0, 1))
        self.assertIn("no tests", names[0])


if __name__ == "__main__":
    unittest.main()
