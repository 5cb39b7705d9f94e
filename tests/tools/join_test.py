"""What tools/join makes of sources."""

import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

JOIN = Path(__file__).resolve().parents[2] / "tools" / "join"


class JoinTest(unittest.TestCase):
    def setUp(self):
        self.folder = tempfile.TemporaryDirectory()
        self.root = Path(self.folder.name).resolve()
        self.text = self.root / "build" / "all.cpp"
        self.sources = []

    def tearDown(self):
        self.folder.cleanup()

    def write(self, path, content):
        target = self.root / path
        target.parent.mkdir(parents=True, exist_ok=True)
        target.write_text(content)
        return target

    def source(self, path, content):
        self.sources.append(self.write(path, content))

    def with_own(self, path, declaration, rest=""):
        """A source with something of its own."""
        self.source(path, f"namespace {{\n\n{declaration}\n\n}} // namespace\n\n{rest}\n")

    def joined(self):
        texts = self.write("build/list", " ".join(map(str, [self.text, *self.sources])) + "\n")
        done = subprocess.run([sys.executable, JOIN, texts, self.root], capture_output=True, text=True, check=False)
        self.assertEqual((done.returncode, done.stdout, done.stderr), (0, "", ""))
        return self.text.read_text()

    def program(self):
        """What the text says as a program."""
        self.joined()
        program = self.root / "program"
        subprocess.run(["c++", self.text, "-o", program], check=True)
        return subprocess.run([program], capture_output=True, text=True, check=True).stdout

    def test_what_two_sources_call_alike_is_each_ones_own(self):
        first = 'const char* first() {\n    return name();\n}'
        self.with_own("a/First.cpp", 'const char* name() {\n    return "first";\n}', first)
        main = '#include <cstdio>\nconst char* first();\nint main() {\n    std::printf("%s and %s", first(), name());\n}'
        self.with_own("a/Second.cpp", 'const char* name() {\n    return "second";\n}', main)
        self.assertEqual(self.program(), "first and second")

    def test_other_names_stay(self):
        self.with_own("a/First.cpp", "class Fixture {};")
        self.with_own("a/Second.cpp", "class Other {};")
        text = self.joined()
        self.assertIn("class Fixture {};", text)
        self.assertIn("class Other {};", text)

    def test_a_word_of_a_header_is_no_sources_own(self):
        self.write("b/Header.h", "double gap();\n")
        self.write("build/Made.h", "double margin();\n")
        self.write("node_modules/b/Foreign.h", "double inset();\n")
        self.with_own("a/First.cpp", "constexpr int gap = 4;\nconstexpr int margin = 2;\nconstexpr int inset = 1;")
        self.source("a/Second.cpp", "")
        text = self.joined()
        self.assertIn("constexpr int gapIn0 = 4;", text)
        self.assertIn("constexpr int margin = 2;", text)
        self.assertIn("constexpr int inset = 1;", text)

    def test_what_is_a_member_too_or_found_by_its_name_stays(self):
        for source in ("a/First.cpp", "a/Second.cpp"):
            self.with_own(source, "int rows();\nvoid PrintTo(int);\nclass Page {\n    int rows;\n};")
        text = self.joined()
        self.assertEqual((text.count("int rows();"), text.count("int rows;"), text.count("void PrintTo(int);")), (2, 2, 2))
        self.assertIn("class PageIn1", text)

    def test_lines_are_those_of_the_sources(self):
        self.source("a/First.cpp", "int one;\nint two;")
        main = '#include <cstdio>\nint main() {\n    std::printf("%s %d", __FILE__, __LINE__);\n}\n'
        self.source("a/Second.cpp", main)
        self.assertEqual(self.program(), f"{self.root}/a/Second.cpp 3")

    def test_a_header_beside_a_source_comes_first(self):
        for folder in "ab":
            self.write(f"{folder}/Value.h", f'constexpr auto value{folder} = "{folder}";\n')
        self.source("a/First.cpp", '#include "Value.h"\n')
        main = '#include "Value.h"\n#include <cstdio>\nint main() {\n    std::printf("%s%s", valuea, valueb);\n}\n'
        self.source("b/Second.cpp", main)
        self.assertEqual(self.program(), "ab")

    def test_headers_elsewhere_are_looked_for(self):
        self.source("a/First.cpp", '#include "Elsewhere.h"\n#include <First.h>\n')
        self.write("a/First.h", "")
        self.assertIn('#include "Elsewhere.h"\n#include <First.h>\n', self.joined())

    def test_what_stays_as_it_is_is_not_written(self):
        self.source("a/First.cpp", "int one;\n")
        self.joined()
        before = self.text.stat().st_mtime_ns
        self.joined()
        self.assertEqual(self.text.stat().st_mtime_ns, before)
        self.sources[0].write_text("int two;\n")
        self.assertIn("int two;", self.joined())

    def test_each_line_is_a_text(self):
        one, two = self.write("a/One.cpp", "int one;\n"), self.write("a/Two.cpp", "int two;\n")
        texts = self.write("list", f"{self.root}/made/1.cpp {one}\n{self.root}/made/2.cpp {two}\n")
        subprocess.run([JOIN, texts, self.root], check=True)
        self.assertIn("int one;", (self.root / "made/1.cpp").read_text())
        self.assertIn("int two;", (self.root / "made/2.cpp").read_text())

    def test_says_how_it_is_used(self):
        done = subprocess.run([JOIN], capture_output=True, text=True, check=False)
        self.assertEqual(done.returncode, 1)
        self.assertIn("join LIST ROOT", done.stderr)


if __name__ == "__main__":
    unittest.main()
