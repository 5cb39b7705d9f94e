"""Which sources tools/tidy looks at, and which it knows to be clean, with stand-ins for LLVM's programs."""

import json
import unittest

from checked_tree import CheckedTree

# Notes which source it is given with which command, or for several at once their names with the settings that hold
# there, and finds the word BAD, and CLASH where it stands twice.
CLANG_TIDY = """import json, os, pathlib, sys
if sys.argv[1:] == ["--version"]:
    print(os.environ["VERSION"])
    sys.exit()
quiet, option, folder, source = sys.argv[1:]
assert (quiet, option) == ("-quiet", "-p")
entries = json.loads(pathlib.Path(folder, "compile_commands.json").read_text())
(entry,) = [entry for entry in entries if entry["file"] == source]
text = pathlib.Path(source).read_text()
name, note = pathlib.Path(source).name, entry["arguments"]
if name == "batch.cpp":
    name = " ".join(line[3:] for line in text.splitlines() if line.startswith("// ") and line.endswith(".cpp"))
    settings = [folder / ".clang-tidy" for folder in pathlib.Path(source).parents]
    note = next((path.read_text() for path in settings if path.exists()), "")
with open(os.environ["LOG"], "a") as log:
    log.write(json.dumps([name, note]) + "\\n")
if "BAD" in text:
    print(f"{source}:1:1: error: BAD")
if "LOUD" in text:
    print(f"{source}:1:1: warning: LOUD")
if "CRASH" in text:
    print("it crashed", file=sys.stderr)
sys.exit(1 if "BAD" in text or "CRASH" in text or text.count("CLASH") > 1 else 0)
"""


class TidyTest(CheckedTree):
    tool = "tidy"
    variable = "CLANG_TIDY"
    stand_in = CLANG_TIDY

    def tidy(self, *databases, clean=True):
        """What clang-tidy was started for: names with arguments."""
        return dict(self.check(*databases, clean=clean))

    def looked_at(self, *databases, clean=True):
        return sorted(self.tidy(*databases, clean=clean))

    def one_source(self, content="", arguments="-O2"):
        self.write("core/Store.cpp", content)
        self.write("core/Store.h")
        return self.database("desktop", ("core/Store.cpp", arguments))

    def test_a_clean_source_is_looked_at_once(self):
        database = self.one_source()
        self.assertEqual(self.looked_at(database), ["Store.cpp"])
        self.assertEqual(self.looked_at(database), [])
        self.assertIn("0 sources looked at, 0 of them not clean; 1 known to be clean", self.output)

    def test_whatever_it_depends_on_makes_it_unknown(self):
        database = self.one_source()
        self.looked_at(database)
        for path in ["core/Store.cpp", "core/Store.h", ".clang-tidy", "core/.clang-tidy"]:
            self.write(path, "// changed\n")
            self.assertEqual(self.looked_at(database), ["Store.cpp"], path)
            self.assertEqual(self.looked_at(database), [], path)
        self.version = "version 2"
        self.assertEqual(self.looked_at(database), ["Store.cpp"])
        self.assertEqual(self.looked_at(self.one_source("// changed\n", "-O3")), ["Store.cpp"])

    def test_what_it_does_not_depend_on_changes_nothing(self):
        database = self.one_source()
        self.looked_at(database)
        self.write("core/Other.h", "// new\n")
        self.write("desktop/.clang-tidy", "# new\n")
        self.assertEqual(self.looked_at(database), [])

    def test_a_source_that_is_not_clean_is_never_known(self):
        for word in ["BAD", "LOUD"]:
            database = self.one_source(word)
            self.assertEqual(self.looked_at(database, clean=False), ["Store.cpp"])
            self.assertIn(f"core/Store.cpp is not clean:\n{self.root}/core/Store.cpp:1:1: ", self.output)
            self.assertEqual(self.looked_at(database, clean=False), ["Store.cpp"])

    def test_what_ends_without_a_finding_but_badly_is_not_clean(self):
        database = self.one_source("CRASH")
        self.assertEqual(self.looked_at(database, clean=False), ["Store.cpp"])
        self.assertIn("it crashed", self.output)
        self.assertEqual(self.looked_at(database, clean=False), ["Store.cpp"])

    def test_a_source_that_is_put_right_is_looked_at_again(self):
        self.looked_at(self.one_source("BAD"), clean=False)
        self.assertEqual(self.looked_at(self.one_source()), ["Store.cpp"])

    def test_a_source_whose_headers_are_unknown_is_always_looked_at(self):
        database = self.one_source("UNREADABLE")
        self.assertEqual(self.looked_at(database), ["Store.cpp"])
        self.assertEqual(self.looked_at(database), ["Store.cpp"])

    def test_one_source_that_is_not_clean_does_not_hide_another(self):
        self.one_source("BAD")
        self.write("core/Other.cpp", "BAD")
        database = self.database("desktop", ("core/Store.cpp", ""), ("core/Other.cpp", ""))
        self.assertEqual(self.looked_at(database, clean=False), ["Other.cpp", "Store.cpp", "core/Other.cpp core/Store.cpp"])
        self.assertIn("2 of them not clean", self.output)

    def test_a_source_that_includes_less_than_it_uses_is_not_clean(self):
        database = self.one_source("std::map<int, int> rows;\n")
        self.assertEqual(self.looked_at(database, clean=False), ["Store.cpp"])
        self.assertIn("core/Store.cpp is not clean:\nerror: it uses what map declares", self.output)
        self.write("core/map")
        self.assertEqual(self.looked_at(self.one_source("// INCLUDES map\nstd::map<int, int> rows;\n")), ["Store.cpp"])

    def test_what_one_header_declares_another_may_use(self):
        self.write("core/qpainter.h")
        self.write("core/Other.h", "class QPainter;\n")
        self.several(A="// INCLUDES Other.h\nvoid paint(QPainter&);\n", B="// INCLUDES qpainter.h\nQPainter p;\n")
        database = self.database("desktop", ("core/A.cpp", "-a"), ("core/B.cpp", "-b"))
        self.assertEqual(self.looked_at(database), ["A.cpp", "B.cpp"])
        self.write("core/Other.h", "// nothing\n")
        self.looked_at(database, clean=False)
        self.assertIn("core/A.cpp is not clean:\nerror: it uses what qpainter.h declares", self.output)

    def test_a_header_asks_for_what_it_uses_too(self):
        database = self.one_source()
        self.write("core/Store.h", "std::map<int, int> rows;\n")
        self.looked_at(database, clean=False)
        self.assertIn("it uses what map declares", self.output)

    def test_one_of_several_that_includes_less_than_it_uses_is_found(self):
        database = self.several(A="// a\n", B="std::map<int, int> rows;\n")
        self.assertEqual(self.looked_at(database, clean=False), ["core/A.cpp core/B.cpp"])
        self.assertIn("core/B.cpp is not clean:\nerror: it uses what map declares", self.output)
        self.assertNotIn("core/A.cpp is not clean", self.output)

    def test_sources_that_are_compiled_alike_are_looked_at_as_one(self):
        database = self.several(A="// a\n", B="// b\n", C="// c\n")
        self.assertEqual(self.looked_at(database), ["core/A.cpp core/B.cpp core/C.cpp"])
        self.assertIn("-Wno-shadow", self.arguments_of_all())
        self.assertIn("3 sources looked at", self.output)
        self.assertEqual(self.looked_at(database), [])

    def test_what_is_found_in_several_is_looked_for_in_halves(self):
        database = self.several(A="// a\n", B="// b\n", C="BAD\n", D="// d\n")
        self.assertEqual(
            self.looked_at(database, clean=False),
            ["C.cpp", "D.cpp", "core/A.cpp core/B.cpp", "core/A.cpp core/B.cpp core/C.cpp core/D.cpp", "core/C.cpp core/D.cpp"],
        )
        self.assertIn("core/C.cpp is not clean:\n", self.output)
        self.assertIn("4 sources looked at, 1 of them not clean", self.output)
        self.assertEqual(self.looked_at(database, clean=False), ["C.cpp"])

    def test_sources_that_are_right_only_apart_are_clean(self):
        together = self.several(A="CLASH\n", B="// b\n", C="CLASH\n")
        self.assertEqual(self.looked_at(together), ["A.cpp", "core/A.cpp core/B.cpp core/C.cpp", "core/B.cpp core/C.cpp"])
        self.assertEqual(self.looked_at(together), [])

    def test_at_most_forty_eight_are_one(self):
        database = self.several(**{f"S{number:02}": "" for number in range(97)})
        self.assertEqual(sorted(len(names.split()) for names in self.looked_at(database)), [32, 32, 33])

    def test_sources_that_are_compiled_differently_are_looked_at_alone(self):
        self.several(A="", B="")
        database = self.database("desktop", ("core/A.cpp", "-O1"), ("core/B.cpp", "-O2"))
        self.assertEqual(self.looked_at(database), ["A.cpp", "B.cpp"])

    def test_only_names_of_objects_make_no_difference(self):
        self.several(A="", B="")
        database = self.database("desktop", ("core/A.cpp", "-O2 -o A.o -c"), ("core/B.cpp", "-O2 -o B.o -c"))
        self.assertEqual(self.looked_at(database), ["core/A.cpp core/B.cpp"])

    def arguments_of_all(self):
        (entry,) = json.loads((self.root / "build/tidy/batches/0/compile_commands.json").read_text())
        return entry["arguments"]

    def test_options_that_later_ones_replace_make_no_difference(self):
        self.several(A="", B="")
        alike = ("core/A.cpp", "-O2 -fPIC -Wall -O0 -fPIC"), ("core/B.cpp", "-O3 -fPIE -Wall -O0 -fPIC")
        self.assertEqual(self.looked_at(self.database("desktop", *alike)), ["core/A.cpp core/B.cpp"])
        self.assertEqual(self.arguments_of_all()[1:4], ["-Wall", "-O0", "-fPIC"])
        others = ("core/A.cpp", "-O0 -fPIC -Wall -O2"), ("core/B.cpp", "-O2 -fPIC -Wall -O0")
        self.assertEqual(self.looked_at(self.database("desktop", *others)), ["A.cpp", "B.cpp"])

    def test_where_headers_are_is_put_together(self):
        self.several(A="", B="")
        database = self.database(
            "desktop", ("core/A.cpp", "-I/a -I/both -isystem /s -O2"), ("core/B.cpp", "-I/both -isystem/t -I/b -O2")
        )
        self.assertEqual(self.looked_at(database), ["core/A.cpp core/B.cpp"])
        folders = [argument for argument in self.arguments_of_all() if argument.startswith(("-I", "-isystem"))]
        self.assertEqual(folders, ["-I/a", "-I/both", "-isystem/s", "-isystem/t", "-I/b"])

    def test_what_is_defined_is_put_together_where_it_agrees(self):
        self.several(A="", B="", C="")
        database = self.database("desktop", ("core/A.cpp", "-DX=1"), ("core/B.cpp", "-DX=1 -DY"), ("core/C.cpp", "-DX=2"))
        self.assertEqual(self.looked_at(database), ["C.cpp", "core/A.cpp core/B.cpp"])
        self.assertEqual([argument for argument in self.arguments_of_all() if argument.startswith("-D")], ["-DX=1", "-DY"])

    def test_two_programs_are_looked_at_apart(self):
        database = self.several(A="", B="int main() {}\n", C="", D="int main() {}\n")
        self.assertEqual(self.looked_at(database), ["core/A.cpp core/B.cpp", "core/C.cpp core/D.cpp"])

    def test_one_program_is_looked_at_with_others(self):
        database = self.several(A="int main() {}\n", B="")
        self.assertEqual(self.looked_at(database), ["core/B.cpp core/A.cpp"])

    def test_several_are_looked_at_with_the_settings_of_all_of_them(self):
        self.write(".clang-tidy", "root")
        self.write("tests/.clang-tidy", "tests")
        for path in ["core/A.cpp", "core/B.cpp", "tests/core/A.cpp", "tests/pane/B.cpp"]:
            self.write(path)
        database = self.database(
            "desktop", *[(path, "") for path in ["core/A.cpp", "core/B.cpp", "tests/core/A.cpp", "tests/pane/B.cpp"]]
        )
        self.assertEqual(
            self.tidy(database), {"core/A.cpp core/B.cpp": "root", "tests/core/A.cpp tests/pane/B.cpp": "tests"}
        )

    def test_the_first_database_that_has_a_source_says_how_it_is_compiled(self):
        first = self.one_source(arguments="-first")
        self.write("fuzz/StoreFuzzer.cpp")
        second = self.database("fuzz", ("core/Store.cpp", "-second"), ("fuzz/StoreFuzzer.cpp", "-second"))
        looked_at = self.tidy(first, second)
        self.assertEqual(looked_at["Store.cpp"][1], "-first")
        self.assertEqual(looked_at["StoreFuzzer.cpp"][1], "-second")

    def test_what_the_build_made_is_left_out(self):
        self.one_source()
        self.write("build/desktop/made.cpp")
        database = self.database("desktop", ("core/Store.cpp", ""), ("build/desktop/made.cpp", ""))
        self.assertEqual(self.looked_at(database), ["Store.cpp"])

    def test_no_source_at_all_is_a_failure(self):
        self.assertEqual(self.looked_at(self.database("desktop"), clean=False), [])

    def test_precompiled_headers_are_left_out_of_the_command(self):
        source = str(self.root / "core/Store.cpp")
        for arguments in [
            "-Winvalid-pch -include /b/x.dir/cmake_pch.hxx",
            "-Winvalid-pch -fpch-instantiate-templates -Xclang -include-pch -Xclang /b/cmake_pch.hxx.pch -Xclang -include -Xclang /b/cmake_pch.hxx",
        ]:
            looked_at = self.tidy(self.one_source(arguments=f"-Wall {arguments} -include own.h -O2"))
            self.assertEqual(looked_at["Store.cpp"], ["c++", "-Wall", "-include", "own.h", "-O2", source])
            for kept in (self.root / "build" / "tidy").glob("*.clean"):
                kept.unlink()

    def test_a_compilers_cache_is_left_out_of_the_command(self):
        self.one_source()
        for compiler in ["/usr/bin/g++", "/opt/clang++-22"]:
            cached = f"/usr/bin/cmake -E env A=b /usr/bin/ccache {compiler}"
            looked_at = self.tidy(self.database("desktop", ("core/Store.cpp", "-O2"), compiler=cached))
            self.assertEqual(looked_at["Store.cpp"], [compiler, "-O2", str(self.root / "core/Store.cpp")])

    def test_limits_of_the_building_compiler_are_left_out_of_the_command(self):
        looked_at = self.tidy(self.one_source(arguments="--param=ggc-min-heapsize=1048576 -O2"))
        self.assertEqual(looked_at["Store.cpp"], ["c++", "-O2", str(self.root / "core/Store.cpp")])

    def test_a_source_for_several_processors_is_looked_at_for_the_first(self):
        looked_at = self.tidy(self.one_source(arguments="-arch arm64 -arch arm64e -fuse-lipo=lipo -Os"))
        self.assertEqual(looked_at["Store.cpp"], ["c++", "-arch", "arm64", "-Os", str(self.root / "core/Store.cpp")])


if __name__ == "__main__":
    unittest.main()
