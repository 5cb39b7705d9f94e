"""bundle_test.py: the bundle's folder and its code, as other programs read them; and what verify-device notices.

In the environment: VERIFY, BUNDLE, CODE (a small bundle to spoil), STUBS (its list), EXPORTS (what it exports).
"""

import os
import plistlib
import re
import struct
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

CODE, STUBS, EXPORTS = Path(os.environ["CODE"]), Path(os.environ["STUBS"]), os.environ["EXPORTS"].split(":")
BUNDLE = Path(os.environ["BUNDLE"])
SCALES = ["", "@2x", "@3x"]


def verify(code=CODE, stubs=STUBS, exports=EXPORTS, classes=()):
    command = [os.environ["VERIFY"], str(code), "--stubs", str(stubs), "--exports", *exports, "--classes", *classes]
    return subprocess.run(command, text=True, capture_output=True)


class VerifyDeviceTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)

    def spoilt(self, offset, change):
        """The code with one byte of its arm64 half changed."""
        code = bytearray(CODE.read_bytes())
        code[struct.unpack_from(">I", code, 16)[0] + offset] ^= change
        path = self.folder / "code"
        path.write_bytes(code)
        return path

    def other_stubs(self, before, after):
        path = self.folder / "stubs.txt"
        path.write_text(STUBS.read_text().replace(before, after))
        return path

    def assert_breach(self, text, run):
        self.assertEqual(run.returncode, 1, run.stderr)
        self.assertIn(text, run.stdout)

    def test_what_is_sound_is_accepted(self):
        run = verify(classes=["ChainRecord"])
        self.assertEqual((run.returncode, run.stdout, run.stderr), (0, "", ""))

    def test_an_import_that_is_not_listed(self):
        run = verify(stubs=self.other_stubs("symbol _strcmp\n", ""))
        self.assert_breach("arm64e: imports _strcmp from libchain, which the stubs do not list", run)

    def test_another_library(self):
        run = verify(stubs=self.other_stubs("/usr/lib/libchain", "/usr/lib/libother"))
        self.assert_breach("arm64: loads ['/usr/lib/libchain.dylib'], where the stubs list ['/usr/lib/libother.dylib']", run)
        self.assert_breach("imports _memcpy from libchain", run)

    def test_a_library_that_is_not_loaded_weakly(self):
        run = verify(stubs=self.other_stubs("library /usr", "weak library /usr"))
        for architecture in ["arm64", "arm64e"]:
            breach = "loads [] weakly, where the stubs list ['/usr/lib/libchain.dylib']"
            self.assert_breach(f"{architecture}: {breach}", run)

    def test_a_listed_name_that_nothing_imports(self):
        run = verify(stubs=self.other_stubs("symbol _strcmp\n", "symbol _strcmp\nsymbol _strtod\n"))
        self.assert_breach("the stubs of libchain list _strtod, which nothing imports", run)

    def test_exports(self):
        self.assert_breach("arm64: exports _runChecks", verify(exports=EXPORTS[1:]))
        self.assert_breach("arm64e: does not export _missing", verify(exports=[*EXPORTS, "_missing"]))

    def test_a_class_that_it_does_not_have(self):
        self.assert_breach("arm64: does not name the class cxMissing", verify(classes=["cxMissing"]))

    def test_a_change_after_signing(self):
        self.assert_breach("arm64: has a wrong hash of page 4", verify(code=self.spoilt(0x4000, 1)))

    def test_names_that_any_library_may_answer(self):
        self.assert_breach("arm64: has the flags ['DYLDLINK', 'NOUNDEFS']", verify(code=self.spoilt(24, 0x80)))

    def test_what_cannot_be_read(self):
        self.assert_breach("llvm-lipo cannot read it", verify(code=STUBS))

    def test_one_architecture(self):
        path = self.folder / "code"
        subprocess.run(["llvm-lipo-22", "-thin", "arm64", "-output", str(path), str(CODE)], check=True)
        self.assert_breach("has the architectures ['arm64']", verify(code=path))


class BundleTest(unittest.TestCase):
    def libraries(self, architecture, command):
        """What the code loads by load commands of a kind."""
        options = ["--macho", "--private-headers", f"--arch={architecture}"]
        headers = subprocess.check_output(["llvm-objdump-22", *options, str(BUNDLE / "corvexPrefs")], text=True)
        return re.findall(rf"cmd {command}\n.*\n +name (\S+)", headers)

    def test_its_files(self):
        lists = ["Background", "Banner", "BackupRestore", "Color", "Extra", "General", "Label", "Organize", "Root"]
        icons = ["backup", "background", "banner", "colors", "extra", "general", "labels", "organize"]
        expected = ["Assets", "Info.plist", "corvexPrefs", "de.lproj", "en.lproj"]
        expected += [f"{name}.plist" for name in lists]
        expected += [f"{folder}.lproj/{name}.strings" for folder in ["de", "en"] for name in lists]
        expected += [f"{name}{scale}.png" for name in ["icon", "rowIcon", *[f"Assets/{icon}" for icon in icons]] for scale in SCALES]
        names = [str(path.relative_to(BUNDLE)) for path in BUNDLE.rglob("*")]
        self.assertEqual(sorted(names), sorted(expected))

    def test_what_it_says_of_itself(self):
        info = plistlib.loads((BUNDLE / "Info.plist").read_bytes())
        self.assertEqual(info["CFBundleExecutable"], "corvexPrefs")
        self.assertEqual(info["NSPrincipalClass"], "cxRootListController")
        self.assertEqual(info["MinimumOSVersion"], "15.0")
        self.assertEqual(info["CFBundleSupportedPlatforms"], ["iPhoneOS"])

    def test_its_code_is_loaded_without_the_cells_of_other_packages_too(self):
        for architecture in ["arm64", "arm64e"]:
            self.assertEqual(self.libraries(architecture, "LC_LOAD_WEAK_DYLIB"), ["@rpath/libgcuniversal.dylib"])
            needed = self.libraries(architecture, "LC_LOAD_DYLIB")
            self.assertIn("/usr/lib/libSystem.B.dylib", needed)
            others = [path for path in needed if not path.startswith(("/usr/lib/", "/System/"))]
            self.assertEqual(others, ["@rpath/libarchive.13.dylib"])

    def test_its_pictures_are_in_three_scales(self):
        for name, points in [("icon", 60), ("rowIcon", 29)]:
            for scale, factor in zip(SCALES, [1, 2, 3], strict=True):
                content = (BUNDLE / f"{name}{scale}.png").read_bytes()
                self.assertEqual(struct.unpack_from(">II", content, 16), (factor * points, factor * points))


if __name__ == "__main__":
    sys.exit(unittest.main())
