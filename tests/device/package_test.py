"""package_test.py: the package, as dpkg-deb and tar read it.

In the environment: PACKAGE, BUNDLE (the folder it was made of), VERSION, SOURCE (the tree).
"""

import os
import plistlib
import subprocess
import sys
import tarfile
import unittest
from io import BytesIO
from pathlib import Path

PACKAGE, BUNDLE, VERSION = os.environ["PACKAGE"], Path(os.environ["BUNDLE"]), os.environ["VERSION"]
BUNDLES, ENTRIES = "./var/jb/Library/PreferenceBundles", "./var/jb/Library/PreferenceLoader/Preferences"
FOLDERS = [".", "./var", "./var/jb", "./var/jb/Library", BUNDLES, f"{BUNDLES}/corvexPrefs.bundle",
           "./var/jb/Library/PreferenceLoader", ENTRIES]  # fmt: skip


def output(*command):
    return subprocess.run(command, check=True, capture_output=True).stdout


def field(name):
    return output("dpkg-deb", "--field", PACKAGE, name).decode().strip()


class PackageTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.files = tarfile.open(fileobj=BytesIO(output("dpkg-deb", "--fsys-tarfile", PACKAGE)))
        cls.members = cls.files.getmembers()

    def test_its_file_is_named_for_what_is_in_it(self):
        name = f"{field('Package')}_{field('Version')}_{field('Architecture')}.deb"
        self.assertEqual(name, f"corvexprefs_{VERSION}_iphoneos-arm64.deb")
        self.assertEqual(Path(PACKAGE).name, name)

    def test_it_says_what_it_needs(self):
        needed = [item.strip() for item in field("Depends").split(",")]
        self.assertEqual(needed, ["firmware (>= 15.0)", "preferenceloader", "libarchive13", "com.mrgcgamer.libgcuniversal"])
        self.assertGreater(int(field("Installed-Size")), 0)

    def test_it_has_the_bundle_and_its_entry_and_nothing_else(self):
        files = [f"{BUNDLES}/corvexPrefs.bundle/{path.relative_to(BUNDLE)}" for path in BUNDLE.rglob("*")]
        expected = sorted([*FOLDERS, *files, f"{ENTRIES}/corvexPrefs.plist"])
        self.assertEqual(sorted(member.name for member in self.members), expected)

    def test_its_files_are_those_of_the_build(self):
        for path in filter(Path.is_file, BUNDLE.rglob("*")):
            name = path.relative_to(BUNDLE)
            content = self.files.extractfile(f"{BUNDLES}/corvexPrefs.bundle/{name}").read()
            self.assertEqual(content, path.read_bytes(), name)

    def test_its_entry_names_the_bundle_and_its_page(self):
        file = plistlib.loads(self.files.extractfile(f"{ENTRIES}/corvexPrefs.plist").read())
        info = plistlib.loads((BUNDLE / "Info.plist").read_bytes())
        self.assertEqual((file["entry"]["bundle"], file["entry"]["detail"]), ("corvexPrefs", info["NSPrincipalClass"]))
        self.assertTrue(file["entry"]["isController"])

    def test_all_belongs_to_root_and_only_code_may_be_run(self):
        for member in self.members:
            self.assertEqual((member.uid, member.gid), (0, 0), member.name)
            is_open = member.isdir() or member.name.endswith("/corvexPrefs")
            self.assertEqual(member.mode, 0o755 if is_open else 0o644, member.name)
            self.assertTrue(member.isdir() or member.isreg(), member.name)

    def test_every_date_is_that_of_the_commit(self):
        moment = int(output("git", "-C", os.environ["SOURCE"], "log", "-1", "--format=%ct"))
        self.assertEqual({member.mtime for member in self.members}, {moment})

    def test_it_is_packed_as_older_systems_unpack(self):
        self.assertEqual(output("ar", "t", PACKAGE).decode().split(), ["debian-binary", "control.tar.xz", "data.tar.xz"])


if __name__ == "__main__":
    sys.exit(unittest.main())
