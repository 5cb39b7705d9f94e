"""What becomes of sources that are put together into one text."""

import sys
import unittest
from pathlib import Path

sys.dont_write_bytecode = True
sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "tools"))
import batches


def unnamed(body):
    return f"namespace {{\n\n{body}\n\n}} // namespace\n"


class OwnNamesTest(unittest.TestCase):
    def names(self, body):
        return batches.own_names(unnamed(body))

    def test_types(self):
        self.assertEqual(self.names("class Page final : public Base {\n    int rows;\n};"), {"Page"})
        self.assertEqual(self.names("enum class Kind { Switch };\nusing Rows = std::vector<Row>;"), {"Kind", "Rows"})
        self.assertEqual(self.names("template <typename T> struct Box {};"), {"Box"})
        self.assertEqual(self.names("struct alignas(std::max_align_t) Head {\n    int size;\n};"), {"Head"})

    def test_functions_and_variables(self):
        self.assertEqual(self.names("std::function<void(int)> handler(double width) {\n    return {};\n}"), {"handler"})
        self.assertEqual(self.names("constexpr double gap = 4;\nconst Insets none{};\nint rows[2];"), {"gap", "none", "rows"})
        self.assertEqual(self.names('const FrameworkClass\n    frameworkClass("UIView");'), {"frameworkClass"})
        self.assertEqual(self.names('[[gnu::visibility("default")]] int rows(int count);'), {"rows"})

    def test_what_declares_nothing(self):
        self.assertEqual(self.names("using std::string;\nusing enum Kind;\nusing namespace std::chrono_literals;"), set())
        self.assertEqual(self.names("static_assert(sizeof(int) == 4);\nTEST(Suite, Name) {\n    run();\n}"), set())

    def test_members_are_none(self):
        self.assertEqual(self.names("class Page {\npublic:\n    void show() override;\n};"), {"Page"})

    def test_names_outside_are_not_its_own(self):
        self.assertEqual(batches.own_names("void shown() {}\n" + unnamed("int kept = 1;") + "int after = 2;\n"), {"kept"})


class MembersTest(unittest.TestCase):
    def test_what_classes_declare(self):
        body = "public:\n    [[nodiscard]] int rows() const;\n    int gap_ = 4;\n"
        self.assertEqual(batches.members(f"class Page final : public Base {{\n{body}}};\n"), {"rows", "gap_"})

    def test_classes_within_others(self):
        text = "struct Page {\n    struct alignas(8) Row {\n        int gap;\n    };\n    int count;\n};\n"
        self.assertEqual(batches.members(text), {"Row", "gap", "count"})

    def test_what_is_defined_for_a_class_that_is_declared_elsewhere(self):
        self.assertEqual(batches.members("int Page::rows() const {\n    return Rows::count(2);\n}\n"), {"rows"})

    def test_a_constructor_is_none(self):
        for alignment in ("", "alignas(8) "):
            text = f"struct {alignment}Page {{\n    explicit Page(int rows);\n    int rows;\n}};\n"
            self.assertEqual(batches.members(text), {"rows"})

    def test_what_stands_within_functions_is_none(self):
        self.assertEqual(batches.members("int rows() {\n    int gap = 4;\n    return gap;\n}\n"), set())


class JoinedTest(unittest.TestCase):
    def joined(self, *texts):
        return batches.joined([(f"{number}.cpp", text) for number, text in enumerate(texts)])

    def test_the_sources_stand_one_after_the_other(self):
        self.assertEqual(self.joined("int a;\n", "int b;\n"), "// 0.cpp\nint a;\n\n// 1.cpp\nint b;\n\n")

    def test_a_name_that_two_sources_keep_to_themselves_is_told_apart(self):
        both = self.joined(unnamed("int gap = 4;") + "int a() { return gap; }\n", unnamed("int gap = 5;"))
        self.assertIn("int gapIn0 = 4;", both)
        self.assertIn("return gapIn0;", both)
        self.assertIn("int gapIn1 = 5;", both)

    def test_a_name_that_others_may_have_from_their_headers_is_told_apart(self):
        both = self.joined(unnamed("int gap = 4;"), '#include "gap.h"\nint b(int gap) { return gap; }\n')
        self.assertIn("int gapIn0 = 4;", both)
        self.assertIn("int b(int gap) { return gap; }", both)

    def test_only_the_name_itself_is_told_apart(self):
        uses = "int wide_gap = gap; // the gap\nauto text = \"gap\";\n"
        text = '#include "gap.h"\n' + unnamed("int gap = 4;") + uses
        both = self.joined(text, unnamed("int gap = 5;"))
        self.assertIn('#include "gap.h"', both)
        self.assertIn("int wide_gap = gapIn0; // the gap", both)
        self.assertIn('auto text = "gap";', both)

    def test_texts_and_digits_do_not_end_early(self):
        text = unnamed("auto quote = \"a \\\" gap\";\nauto raw = R\"x(\" gap)x\";\nint big = 1'000'000, gap = 1;")
        both = self.joined(text, unnamed("int gap = 5;"))
        self.assertIn('"a \\" gap"', both)
        self.assertIn('R"x(" gap)x"', both)
        self.assertIn("1'000'000, gap", both.replace("gapIn0", "gap"))

    def test_the_like_named_member_of_something_else_stays(self):
        text = unnamed("int gap(const Piece& piece) { return piece.gap + Piece::gap + offsetof(Piece, gap); }")
        self.assertIn("int gapIn0(const Piece& piece) { return piece.gap + Piece::gap + offsetof(Piece, gap); }",
                      self.joined(text))

    def test_what_a_class_of_the_source_has_as_well_stays(self):
        text = unnamed("struct Piece {\n    int gap;\n};\n\nint gap(const Piece& piece) { return piece.gap; }")
        self.assertIn("int gap(const PieceIn0& piece) { return piece.gap; }", self.joined(text))

    def test_what_is_found_by_its_name_stays(self):
        text = unnamed("void PrintTo(const Piece& piece, std::ostream* out);")
        self.assertIn(text, self.joined(text))

    def test_what_is_included_before_is_left_out(self):
        both = self.joined('#include "A.h"\n#include <map>\n', '#include "B.h"\n#include <map> // again\n')
        self.assertEqual(both.count("<map>"), 1)
        self.assertIn('#include "A.h"', both)
        self.assertIn('#include "B.h"', both)

    def test_what_a_source_includes_twice_stays(self):
        both = self.joined("#include <map>\n", "#include <map>\n#include <map>\n")
        self.assertEqual(both.count("#include <map>"), 2)

    def test_a_program_is_known_by_its_entry(self):
        self.assertTrue(batches.is_program("int main(int count, char** arguments) {\n}\n"))
        self.assertTrue(batches.is_program('extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data,\n'))
        self.assertFalse(batches.is_program("void remain() {}\n"))


if __name__ == "__main__":
    unittest.main()
