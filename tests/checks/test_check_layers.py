"""scripts/check-layers over small trees: each rule that it holds, broken once."""
import pathlib
import subprocess
import tempfile
import unittest

SCRIPT = pathlib.Path(__file__).resolve().parents[2] / "scripts" / "check-layers"

GOOD = {
    "Basic/CMakeLists.txt": "fernwick_library(basic LINK)",
    "Basic/text.h": "#include <string>\n",
    "Add-in/core/CMakeLists.txt": "fernwick_library(core LINK basic fmt::fmt)",
    "Add-in/core/low.h": '#include "Basic/text.h"\n#include <fmt/format.h>\n',
    "Add-in/build/CMakeLists.txt": "# the order\nfernwick_library(build FOLDERS messages lists\n  LINK core)",
    "Add-in/build/messages/store.h": '#include "Add-in/core/low.h"\n',
    "Add-in/build/lists/list.h": '#include "Add-in/build/messages/store.h"\n#include "Basic/text.h"\n',
    "Add-in/build/driver.cpp": '#include "Add-in/build/lists/list.h"\n#include "Add-in/build/other.h"\n',
    "Add-in/build/other.h": "",
}


class CheckLayers(unittest.TestCase):
    def check(self, files=None):
        """The script's status and words for the good tree with these files changed."""
        with tempfile.TemporaryDirectory() as folder:
            root = pathlib.Path(folder)
            for name, text in (GOOD | (files or {})).items():
                (root / name).parent.mkdir(parents=True, exist_ok=True)
                (root / name).write_text(text)
            subprocess.run(["git", "init", "-q", folder], check=True)
            run = subprocess.run([SCRIPT, "--root", folder], text=True, capture_output=True)
            return run.returncode, run.stdout + run.stderr

    def refuses(self, files, words):
        status, output = self.check(files=files)
        self.assertEqual(status, 1, output)
        self.assertIn(words, output)

    def test_accepts_what_goes_down(self):
        self.assertEqual(self.check(), (0, "layers: no forbidden include\n"))

    def test_refuses_a_library_that_is_not_linked(self):
        self.refuses({"Add-in/core/up.h": '#include "Add-in/build/other.h"\n'},
                     "Add-in/core/up.h:1: must not include Add-in/build/other.h")

    def test_refuses_a_room_above(self):
        self.refuses({"Add-in/build/messages/up.h": '#include "Add-in/build/lists/list.h"\n'},
                     "from the ground up: messages, lists, build")

    def test_refuses_the_folder_above_its_rooms(self):
        self.refuses({"Add-in/build/lists/up.cpp": '\n#include "Add-in/build/other.h"\n'}, "up.cpp:2: must not include")

    def test_a_folder_may_be_below_its_rooms(self):
        lists = {"Add-in/build/CMakeLists.txt": "fernwick_library(build FOLDERS . messages lists LINK core)"}
        self.refuses(lists, "Add-in/build/driver.cpp:1")
        status, output = self.check(files=lists | {"Add-in/build/driver.cpp": "",
                                                   "Add-in/build/lists/up.cpp": '#include "Add-in/build/other.h"\n'})
        self.assertEqual(status, 0, output)

    def test_refuses_foreign_headers_where_only_the_standard_library_is_allowed(self):
        for header in ("unistd.h", "unicode/uchar.h", "sys/stat.h", "fmt/format.h", "filesystem", "thread"):
            self.refuses({"Basic/text.cpp": f"#include <{header}>\n"}, f"must not include {header}")

    def test_refuses_a_folder_without_a_library(self):
        self.refuses({"Host/files/text.h": ""}, "Host/files/text.h: belongs to no library")

    def test_refuses_libraries_that_link_each_other(self):
        self.refuses({"Basic/CMakeLists.txt": "fernwick_library(basic LINK build)"}, "in a circle")

    def test_follows_a_name_for_several_libraries(self):
        status, output = self.check(files={
            "Host/CMakeLists.txt": "add_library(host INTERFACE)\ntarget_link_libraries(host INTERFACE files)",
            "Host/files/CMakeLists.txt": "fernwick_library(files LINK basic)",
            "Host/files/text.h": '#include "Basic/text.h"\n',
            "Apps/common/CMakeLists.txt": "fernwick_library(apps LINK host)",
            "Apps/common/machine.h": '#include "Host/files/text.h"\n'})
        self.assertEqual(status, 0, output)


if __name__ == "__main__":
    unittest.main()
