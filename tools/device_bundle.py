"""The device's bundle as it was linked, and its tests as they are run over it, on an emulator."""

import filecmp
import os
import re
import subprocess
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
PROGRAM = ROOT / "build/device-shipped/tests/device/shipped/shipped_pane_test"
BUNDLE = ROOT / "build/device/corvexPrefs.bundle/corvexPrefs"
LINK = ROOT / "build/device/bundle/corvexPrefs.link"
SCENARIO = ROOT / "build/device-contract/scenario.journal"
EMULATOR = ["qemu-aarch64", "-cpu", "max"]

# The library's templates are compiled for all that they are used with, and bring what nobody calls.
OWN, LIBRARY = KINDS = "the project's own code", "the C++ library's templates"

SYMBOL = re.compile(r"^(0x[0-9A-F]+)\t(0x[0-9A-F]+)\t\[ *(\d+)\] (\S+)$")
INSTRUCTION = re.compile(r"^0x([0-9a-f]+): ")


def lines_of_map(architecture):
    """The linker's account of what it has linked, without what it has left out."""
    for line in (LINK / architecture / "corvexPrefs.map").read_text().splitlines():
        if line.startswith("# Dead Stripped"):
            break
        yield line


def functions(architecture):
    """The functions of the code as the linker laid them out: (address, size, name), in order."""
    text, found = None, {}
    for line in lines_of_map(architecture):
        if match := re.match(r"^(0x[0-9A-F]+)\t(0x[0-9A-F]+)\t__TEXT\t__text$", line):
            text = range(int(match[1], 16), int(match[1], 16) + int(match[2], 16))
        elif match := SYMBOL.match(line):
            address, size = int(match[1], 16), int(match[2], 16)
            if text and address in text and size > 0:
                found.setdefault(address, (address, size, match[4]))
    return sorted(found.values())


def functions_from(folders):
    """The names of the functions that the linker took from objects of these folders."""
    objects, names = set(), set()
    for line in lines_of_map("arm64"):  # that of the other half names copies of the objects
        if match := re.match(r"^\[ *(\d+)\] \S*/build/device/(\w+)/", line):
            objects |= {match[1]} if match[2] in folders else set()
        elif (match := SYMBOL.match(line)) and match[3] in objects:
            names.add(match[4])
    return names


def environment(folder, **more):
    """What the tests run in, with a folder for their temporary files."""
    return dict(os.environ, QEMU_LD_PREFIX=str(ROOT / "build/sysroot"), TMP=str(folder), **more)


def is_survived(bundle, architecture, folder, *options):
    """Whether all tests pass over a bundle, and it tells the frameworks the same as the sources do."""
    journal = Path(folder) / "journal"
    command = ["timeout", "120", *EMULATOR, PROGRAM, bundle, architecture, *options]
    for more, variables in ([], {}), (["--gtest_filter=ScenarioTest.*"], {"SCENARIO_JOURNAL": str(journal)}):
        run = subprocess.run([*command, *more], capture_output=True, cwd=folder, env=environment(folder, **variables))
        if run.returncode != 0:
            return False
    return filecmp.cmp(journal, SCENARIO, shallow=False)


def reached(architecture, folder):
    """The addresses of the instructions that were come to, as the file has them."""
    log = Path(folder) / "log"
    run = subprocess.run(
        [*EMULATOR, "-d", "in_asm", "-D", log, PROGRAM, BUNDLE, architecture, "--tell-place", "--gtest_brief=1"],
        cwd=folder, env=environment(folder), text=True, capture_output=True,
    )
    place = re.search(r"loaded at 0x([0-9a-f]+)", run.stderr)
    if run.returncode != 0 or not place:
        sys.exit(f"the tests of {architecture} do not pass:\n{run.stdout}{run.stderr}")
    start = int(place[1], 16)
    with log.open() as lines:
        return {int(match[1], 16) - start for match in map(INSTRUCTION.match, lines) if match}


def demangled(names):
    text = "\n".join(name.removeprefix("_") for name in names)
    return subprocess.run(["llvm-cxxfilt-22"], input=text, text=True, capture_output=True, check=True).stdout.splitlines()


def kind_of(name):
    """What a function's figures are counted in."""
    return LIBRARY if re.match(r"^__Z(N|NK)St|^__ZSt", name) else OWN
