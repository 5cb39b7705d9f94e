"""A tree of sources with compile databases, for the tests of what checks them, with stand-ins for LLVM's programs."""

import json
import os
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

TOOLS = Path(__file__).resolve().parents[2] / "tools"

# Without what a Python looks for on its machine, which is most of the time that it takes to start.
PYTHON = f"#!{sys.executable} -IS\n"

# Every source includes the header of its name and those that it names, and is at its end there.
SCAN = """import json, pathlib, sys
for entry in json.loads(pathlib.Path(sys.argv[sys.argv.index("-compilation-database") + 1]).read_text()):
    source = pathlib.Path(entry["file"])
    if "UNREADABLE" not in source.read_text():
        others = [line.split()[2] for line in source.read_text().splitlines() if line.startswith("// INCLUDES ")]
        files = [source, source.with_suffix(".h"), *[source.with_name(name) for name in others]]
        print(f"{source.stem}.o: \\\\\\n  " + " \\\\\\n  ".join(str(file) for file in files if file.exists()) + "\\n")
"""


class CheckedTree(unittest.TestCase):
    # A check in the folder of tools, and the name of the environment's variable that says what program it starts.
    tool = ""
    variable = ""
    # A stand-in for that program, which appends a line of JSON to the file $LOG for each source, and has $VERSION.
    stand_in = ""

    def setUp(self):
        self.folder = tempfile.TemporaryDirectory()
        self.root = Path(self.folder.name).resolve() / "tree"
        self.root.mkdir()
        self.programs = self.root.parent
        self.log = self.programs / "log"
        self.version = "version 1"
        self.program("scan", SCAN)
        self.program("stand-in", self.stand_in)

    def tearDown(self):
        self.folder.cleanup()

    def program(self, name, text):
        (self.programs / name).write_text(PYTHON + text)
        (self.programs / name).chmod(0o755)

    def write(self, path, content=""):
        target = self.root / path
        target.parent.mkdir(parents=True, exist_ok=True)
        target.write_text(content)

    def database(self, build, *commands, compiler="c++"):
        """The database of a build, of (source, arguments)."""
        folder = self.root / "build" / build
        entries = [
            {"directory": str(folder), "file": str(self.root / source), "command": f"{compiler} {arguments} {self.root / source}"}
            for source, arguments in commands
        ]
        self.write(f"build/{build}/compile_commands.json", json.dumps(entries))
        return folder / "compile_commands.json"

    def several(self, **texts):
        """A database of core/NAME.cpp for each text, all compiled alike."""
        for name, text in texts.items():
            self.write(f"core/{name}.cpp", text)
            self.write(f"core/{name}.h")
        return self.database("desktop", *[(f"core/{name}.cpp", "-O2") for name in texts])

    def check(self, *databases, clean=True):
        """What the stand-in noted. What the check printed is the output."""
        self.log.write_text("")
        environment = {
            **os.environ,
            self.variable: str(self.programs / "stand-in"),
            "CLANG_SCAN_DEPS": str(self.programs / "scan"),
            "LOG": str(self.log),
            "VERSION": self.version,
        }
        done = subprocess.run(
            [sys.executable, TOOLS / self.tool, self.root, self.root / "build" / self.tool, *databases],
            capture_output=True, text=True, check=False, env=environment,
        )
        self.assertEqual(done.returncode, 0 if clean else 1, done.stdout + done.stderr)
        self.output = done.stdout
        return [json.loads(line) for line in self.log.read_text().splitlines()]
