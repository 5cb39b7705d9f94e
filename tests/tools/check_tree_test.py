"""Each rule of tools/check-tree, kept and broken in small trees made for it."""

import json
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

CHECK_TREE = Path(__file__).resolve().parents[2] / "tools" / "check-tree"


class CheckTreeTest(unittest.TestCase):
    def setUp(self):
        self.folder = tempfile.TemporaryDirectory()
        self.root = Path(self.folder.name)
        self.built = []
        for folder in ["platform", "core", "backup", "desktop", "tests"]:
            (self.root / folder).mkdir()
        self.write("cmake/PaneFolders.cmake", "set(PANE_FOLDERS core cells pages pane backup)\n")

    def tearDown(self):
        self.folder.cleanup()

    def write(self, path, content="", built=True):
        target = self.root / path
        target.parent.mkdir(parents=True, exist_ok=True)
        target.write_text(content)
        if built and target.suffix == ".cpp":
            self.built.append({"directory": str(self.root), "file": path})

    def check(self, *databases):
        commands = self.root / "build" / "compile_commands.json"
        commands.parent.mkdir(exist_ok=True)
        commands.write_text(json.dumps(self.built))
        done = subprocess.run(
            [sys.executable, CHECK_TREE, self.root, commands, *databases], capture_output=True, text=True, check=False
        )
        self.assertEqual(done.returncode, 1 if done.stdout else 0, done.stderr)
        return done.stdout.splitlines()

    def test_a_tree_that_keeps_the_rules_passes(self):
        self.write("platform/Foundation/NSLog.h", "#include <string>\n")
        self.write("core/Store.h", '#include "Foundation/NSLog.h"\n')
        self.write("core/Store.cpp", '#include "Store.h"\n// catch, throw, try: only words\n')
        self.write("backup/LibArchive.cpp", "#include <archive.h>\n")
        self.write("README.md", "[the license](LICENSE)\n")
        self.write("LICENSE")
        self.assertEqual(self.check(), [])

    def test_a_file_that_a_program_left_in_the_root_is_named(self):
        self.write("CMakeLists.txt")
        self.write(".clang-format")
        self.write("core/preferences.plist")
        self.assertEqual(self.check(), [])
        self.write("preferences.plist")
        self.assertEqual(self.check(), ["preferences.plist:1: is none of the files that belong into the root"])

    def test_a_test_file_that_is_not_built_is_named(self):
        self.write("tests/core/StoreTest.cpp", built=False)
        self.assertEqual(self.check(), ["tests/core/StoreTest.cpp:1: is not in the build"])

    def test_a_fuzzer_that_is_not_built_is_named(self):
        self.write("fuzz/StoreFuzzer.cpp", built=False)
        self.assertEqual(self.check(), ["fuzz/StoreFuzzer.cpp:1: is not in the build"])

    def test_what_the_build_makes_and_what_is_fetched_is_not_looked_at(self):
        for path in ["build/desktop/Made.cpp", "node_modules/one/Fetched.cpp", "out/Left.cpp", ".git/Kept.cpp"]:
            self.write(path, built=False)
        self.assertEqual(self.check(), [])

    def test_a_folder_with_code_that_is_not_in_the_list_is_named(self):
        self.write("pages/Page.cpp")
        self.assertEqual(self.check(), [])
        self.write("cmake/PaneFolders.cmake", "set(PANE_FOLDERS core cells pane)\n")
        self.assertEqual(
            self.check(),
            ["pages:1: holds code, and is not among the pane's folders in cmake/PaneFolders.cmake"],
        )

    def test_a_folder_with_headers_alone_is_code_too(self):
        self.write("sheets/Sheet.h")
        self.assertEqual(
            self.check(),
            ["sheets:1: holds code, and is not among the pane's folders in cmake/PaneFolders.cmake"],
        )

    def test_each_folder_of_the_list_has_its_rules(self):
        self.write("sheets/Sheet.cpp", "thread_local int a;\n")
        self.write("cmake/PaneFolders.cmake", "set(PANE_FOLDERS core sheets)\n")
        self.assertEqual(
            self.check(),
            ["sheets:1: is a folder of the pane, and tools/check-tree does not know what it may include"],
        )

    def test_a_list_that_cannot_be_read_ends_the_check(self):
        self.write("cmake/PaneFolders.cmake", "set(PANE_FOLDERS)\n")
        done = subprocess.run([sys.executable, CHECK_TREE, self.root, "/dev/null"], capture_output=True, text=True, check=False)
        self.assertNotEqual(done.returncode, 0)
        self.assertIn("does not name them in one line", done.stderr)

    def test_a_source_may_be_in_any_of_the_builds(self):
        self.write("device/objc/Box.cpp", built=False)
        self.assertEqual(self.check(), ["device/objc/Box.cpp:1: is not in the build"])
        other = self.root / "build" / "other.json"
        other.write_text(json.dumps([{"directory": str(self.root), "file": "device/objc/Box.cpp"}]))
        self.assertEqual(self.check(other), [])

    def test_a_pane_folder_may_not_include_the_desktop(self):
        self.write("desktop/foundation/Device.h")
        self.write("core/Store.cpp", "\n" + '#include "Device.h"\n')
        self.assertEqual(self.check(), ["core/Store.cpp:2: core/ may not include Device.h"])

    def test_a_pane_folder_may_not_reach_around_by_a_relative_path(self):
        self.write("desktop/foundation/Device.h")
        self.write("core/Store.cpp", '#include "../desktop/foundation/Device.h"\n')
        self.assertEqual(
            self.check(), ["core/Store.cpp:1: core/ may not include ../desktop/foundation/Device.h"]
        )

    def test_the_core_may_not_include_the_backup(self):
        self.write("backup/Codec.h")
        self.write("core/Store.cpp", '#include "Codec.h"\n')
        self.assertEqual(self.check(), ["core/Store.cpp:1: core/ may not include Codec.h"])

    def test_the_contract_includes_the_standard_library_only(self):
        self.write("platform/Foundation/NSLog.h", "#include <syslog.h>\n")
        self.assertEqual(self.check(), ["platform/Foundation/NSLog.h:1: platform/ may not include syslog.h"])

    def test_only_the_codec_includes_the_archive_library(self):
        self.write("backup/Restore.cpp", "#include <archive.h>\n")
        self.assertEqual(self.check(), ["backup/Restore.cpp:1: backup/ may not include archive.h"])

    def test_the_pane_has_no_platform_switch(self):
        self.write("core/Store.cpp", "#ifdef __APPLE__\n#endif\n")
        self.assertEqual(
            self.check(), ["core/Store.cpp:1: the same code is compiled for every platform: no #if here"]
        )

    def test_what_the_device_lacks_is_named(self):
        self.write("core/Store.cpp", "thread_local int a;\nauto b = std::format(c);\nvoid d() { throw 1; }\n")
        self.assertEqual(
            self.check(),
            [
                "core/Store.cpp:1: the device has no thread_local",
                "core/Store.cpp:2: the device has no std::format and std::print",
                "core/Store.cpp:3: the device has no exceptions",
            ],
        )

    def test_files_are_reached_through_the_contract_alone(self):
        self.write("core/Store.cpp", "#include <cstdio>\nstd::FILE* a;\nauto b = std::fopen(c, d);\nauto e = std::tmpfile();\n")
        self.write("core/Print.cpp", "#include <cstdio>\nint a = std::snprintf(b, c, d);\n")
        self.assertEqual(
            self.check(),
            [f"core/Store.cpp:{line}: the device has no files but through NSFileManager and its neighbours" for line in [2, 3, 4]],
        )

    def test_the_devices_half_includes_the_contract_and_its_own_parts(self):
        self.write("platform/UIKit/UIView.h")
        self.write("device/objc/Message.h")
        self.write("desktop/uikit/Screen.h")
        self.write("device/uikit/UIView.cpp", '#include "UIKit/UIView.h"\n#include "Message.h"\n#include "Screen.h"\n')
        self.assertEqual(self.check(), ["device/uikit/UIView.cpp:3: device/ may not include Screen.h"])

    def test_the_system_is_called_where_that_is_the_files_use(self):
        self.write("device/system/DynamicLibrary.cpp", "#include <dlfcn.h>\n")
        self.write("device/uikit/UIView.cpp", "#include <dlfcn.h>\n")
        self.assertEqual(self.check(), ["device/uikit/UIView.cpp:1: device/ may not include dlfcn.h"])

    def test_only_the_runtimes_two_files_and_the_class_record_know_what_they_are_compiled_for(self):
        for path in ["device/bundle/ClassRecord.h", "device/objc/Runtime.h", "device/objc/Runtime.cpp"]:
            self.write(path, "#ifdef __APPLE__\n#endif\n")
        self.assertEqual(self.check(), [])
        self.write("device/objc/Box.cpp", "#ifdef __APPLE__\n#endif\n")
        self.assertEqual(
            self.check(), ["device/objc/Box.cpp:1: the same code is compiled for every platform: no #if here"]
        )

    def test_the_devices_half_has_no_exceptions_but_its_tools_have(self):
        self.write("device/objc/Box.cpp", "void a() { throw 1; }\n")
        self.write("device/tools/Refusal.cpp", "#include <fstream>\nvoid a() { throw 1; }\n")
        self.assertEqual(self.check(), ["device/objc/Box.cpp:1: the device has no exceptions"])

    def test_the_desktop_may_use_them(self):
        self.write("desktop/foundation/Device.cpp", "thread_local int a;\n#include <syslog.h>\n")
        self.assertEqual(self.check(), [])

    def test_subfolders_of_the_desktop_include_one_another_one_way(self):
        self.write("desktop/uikit/views/UIViewPeer.h")
        self.write("desktop/uikit/controls/UIControlPeer.h", '#include "views/UIViewPeer.h"\n')
        self.assertEqual(self.check(), [])
        self.write("desktop/uikit/views/UIViewPeer.cpp", '#include "UIKit/UIView.h"\n#include "controls/UIControlPeer.h"\n')
        self.assertEqual(
            self.check(),
            ["desktop/uikit/views/UIViewPeer.cpp:2: desktop/uikit/views/ may not include controls/UIControlPeer.h"],
        )

    def test_nobody_goes_around_the_folders_by_a_relative_path(self):
        self.write("desktop/uikit/controls/UIControlPeer.h")
        self.write("desktop/uikit/views/UIViewPeer.cpp", '#include "../controls/UIControlPeer.h"\n')
        self.write("tests/desktop/uikit/Test.cpp", '#include "here/../UIControlPeer.h"\n')
        self.assertEqual(
            self.check(),
            [
                "desktop/uikit/views/UIViewPeer.cpp:1: "
                "includes ../controls/UIControlPeer.h, which goes around the folders it is given",
                "tests/desktop/uikit/Test.cpp:1: "
                "includes here/../UIControlPeer.h, which goes around the folders it is given",
            ],
        )

    def test_rows_know_nothing_of_cells_and_cells_nothing_of_pages(self):
        self.write("desktop/preferences/specifiers/DesktopSpecifier.h")
        self.write("desktop/preferences/cells/PSTableCellPeer.h", '#include "specifiers/DesktopSpecifier.h"\n')
        self.write("desktop/preferences/SpecifierTable.h", '#include "cells/PSTableCellPeer.h"\n')
        self.assertEqual(self.check(), [])
        self.write("desktop/preferences/specifiers/RadioGroup.h", '#include "cells/PSTableCellPeer.h"\n')
        self.write("desktop/preferences/cells/RowControl.h", '#include "SpecifierTable.h"\n')
        self.assertEqual(
            self.check(),
            [
                "desktop/preferences/cells/RowControl.h:1: desktop/preferences/cells/ may not include SpecifierTable.h",
                "desktop/preferences/specifiers/RadioGroup.h:1: "
                "desktop/preferences/specifiers/ may not include cells/PSTableCellPeer.h",
            ],
        )

    def test_what_lies_beside_the_subfolders_is_above_them_all(self):
        self.write("desktop/foundation/Device.h", '#include "time/Clock.h"\n')
        self.write("desktop/foundation/time/Clock.h")
        self.assertEqual(self.check(), [])
        self.write("desktop/foundation/time/Clock.cpp", '#include "Device.h"\n')
        self.assertEqual(
            self.check(), ["desktop/foundation/time/Clock.cpp:1: desktop/foundation/time/ may not include Device.h"]
        )

    def test_a_subfolder_without_a_place_among_them_is_named(self):
        self.write("desktop/uikit/attic/Thing.h")
        self.assertEqual(
            self.check(),
            ["desktop/uikit/attic/Thing.h:1: desktop/uikit/attic/ has no place among the subfolders of desktop/uikit/"],
        )

    def test_a_folder_of_too_many_sources_is_named(self):
        for number in range(60):
            self.write(f"tests/core/Thing{number}Test.cpp")
        self.write("tests/core/pictures/Thing.cpp")
        self.assertEqual(self.check(), [])
        self.write("tests/core/Thing.h")
        self.assertEqual(
            self.check(), ["tests/core:1: holds 61 sources; more than 60 are too many to find one among"]
        )

    def test_a_dead_link_in_a_document_is_named(self):
        self.write("docs/driving.md", "see [this](missing.md#top) and [that](https://example.org)\n")
        self.assertEqual(self.check(), ["docs/driving.md:1: links to missing.md, which is not there"])
        self.write("device/README.md", "[x](gone.md)\n")
        self.assertIn("device/README.md:1: links to gone.md, which is not there", self.check())


if __name__ == "__main__":
    unittest.main()
