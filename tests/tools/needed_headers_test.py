"""Which headers a source is found to need."""

import sys
import unittest
from pathlib import Path

sys.dont_write_bytecode = True
sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "tools"))
import needed_headers


class UsedTest(unittest.TestCase):
    def used(self, text):
        return sorted(needed_headers.used(text))

    def test_names_of_the_standard_library(self):
        self.assertEqual(self.used("std::map<std::string, int> rows;"), ["map", "string"])
        self.assertEqual(self.used("std::ranges::sort(rows); std::chrono::seconds(1);"), ["algorithm", "chrono"])
        self.assertEqual(self.used("using namespace std::chrono_literals;"), ["chrono"])

    def test_what_every_header_declares_is_not_asked_for(self):
        self.assertEqual(self.used("std::size_t size = std::move(other);"), [])

    def test_names_of_qt(self):
        self.assertEqual(self.used("QImage picture; QSize size() const;"), ["qimage.h", "qsize.h"])

    def test_what_a_file_declares_itself(self):
        self.assertEqual(needed_headers.declared("class QPainter;\nvoid paint(QPainter& painter);"), {"qpainter.h"})
        self.assertEqual(needed_headers.declared("class Queue;\nclass QRun {};\n"), set())

    def test_tests_and_matchers(self):
        self.assertEqual(self.used("TEST_F(Suite, Name) {}"), ["gtest.h"])
        self.assertEqual(self.used("    EXPECT_THAT(text, matcher);"), ["gmock.h"])

    def test_other_words_ask_for_nothing(self):
        self.assertEqual(self.used('// std::map\n/* QImage */ auto text = "std::set";\n#include <std::list>\n'), [])
        self.assertEqual(self.used("Map::map(row); map.vector; my_std::map;"), [])


class MissingTest(unittest.TestCase):
    def test_what_is_included_is_not_missing(self):
        self.assertEqual(needed_headers.missing({"map", "qimage.h"}, ["/usr/c++/map", "/qt/qimage.h"], {"qimage.h"}), [])

    def test_what_is_not_included_is(self):
        files = ["/usr/c++/multimap", "/usr/map/x.h"]
        self.assertEqual(needed_headers.missing({"map", "qimage.h"}, files, {"qimage.h"}), ["map", "qimage.h"])

    def test_a_name_that_only_looks_like_one_of_qt_is_not_missing(self):
        self.assertEqual(needed_headers.missing({"quick.h"}, [], {"qimage.h"}), [])


if __name__ == "__main__":
    unittest.main()
