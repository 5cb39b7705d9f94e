"""What tools/gcc starts its compiler for, and what it makes of the answer, with a stand-in for it."""

import unittest

from checked_tree import CheckedTree

# Notes in which folder and with what it is started, complains of the word LOUD and refuses the word BAD.
GCC = """import json, os, pathlib, sys
if sys.argv[1:] == ["--version"]:
    print(os.environ["VERSION"])
    sys.exit()
(source,) = [argument for argument in sys.argv if argument.endswith(".cpp")]
with open(os.environ["LOG"], "a") as log:
    log.write(json.dumps([os.getcwd(), sys.argv[1:]]) + "\\n")
text = pathlib.Path(source).read_text()
for word in ["BAD", "LOUD"]:
    if word in text:
        print(f"{source}:1:1: {word}", file=sys.stderr)
sys.exit(1 if "BAD" in text else 0)
"""


class GccTest(CheckedTree):
    tool = "gcc"
    variable = "GCC"
    stand_in = GCC

    def setUp(self):
        super().setUp()
        (self.root / "build" / "desktop").mkdir(parents=True)

    def looked_at(self, database, clean=True):
        """How many times the compiler was started."""
        return len(self.check(database, clean=clean))

    def test_a_source_is_compiled_as_its_build_compiles_it_and_nothing_is_kept(self):
        self.several(A="// a\n")
        database = self.database("desktop", ("core/A.cpp", "-O2 --param=ggc-min-expand=1000 -o A.o -c"), compiler="g++")
        ((folder, arguments),) = self.check(database)
        self.assertEqual(folder, str(self.root / "build" / "desktop"))
        source = str(self.root / "core/A.cpp")
        self.assertEqual(arguments, ["-O2", "--param=ggc-min-expand=1000", "-c", source, "-S", "-o", "/dev/null"])

    def test_sources_that_are_compiled_alike_are_compiled_as_one(self):
        ((_, arguments),) = self.check(self.several(A="// a\n", B="// b\n"))
        self.assertIn(str(self.root / "build/gcc/batches/0/batch.cpp"), arguments)
        self.assertEqual(arguments[-3:], ["-S", "-o", "/dev/null"])
        self.assertNotIn("-Wno-shadow", arguments)
        self.assertIn("gcc: 2 sources looked at, 0 of them not clean", self.output)

    def test_a_source_that_is_refused_or_complained_of_is_named(self):
        for word in ["BAD", "LOUD"]:
            database = self.several(A="// a\n", B=f"{word}\n")
            self.assertEqual(self.looked_at(database, clean=False), 3)
            self.assertIn(f"core/B.cpp is not clean:\n{self.root}/core/B.cpp:1:1: {word}", self.output)
            self.assertNotIn("core/A.cpp is not clean", self.output)
            for kept in (self.root / "build" / "gcc").glob("*.clean"):
                kept.unlink()

    def test_a_clean_source_is_compiled_once_by_each_version(self):
        database = self.several(A="// a\n")
        self.assertEqual(self.looked_at(database), 1)
        self.assertEqual(self.looked_at(database), 0)
        self.version = "version 2"
        self.assertEqual(self.looked_at(database), 1)

    def test_the_settings_of_another_tool_change_nothing(self):
        database = self.several(A="// a\n")
        self.looked_at(database)
        self.write(".clang-tidy", "# changed\n")
        self.assertEqual(self.looked_at(database), 0)


if __name__ == "__main__":
    unittest.main()
