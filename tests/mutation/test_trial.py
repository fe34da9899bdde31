"""A change is linked into the programs that contain it, and into nothing else."""
import pathlib
import subprocess
import tempfile
import unittest

from changes import Change
from trial import UNITTEST, Run, Trial, Tree

FILES = {
    "CMakeLists.txt": """cmake_minimum_required(VERSION 3.20)
project(Toy CXX)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
include_directories(${PROJECT_SOURCE_DIR})
add_executable(test_user tests/user.cpp)
add_library(toy STATIC Basic/sum.cpp Basic/twice.cpp)
set_target_properties(toy PROPERTIES UNITY_BUILD ON)
add_executable(test_toy main.cpp)
target_link_libraries(test_toy toy)
add_executable(test_other other.cpp)
add_executable(test_moody moody.cpp)
target_link_libraries(test_moody toy)
add_executable(test_broken broken.cpp)
target_link_libraries(test_broken toy)
add_executable(test_lost lost.cpp)
target_link_libraries(test_lost toy)
add_executable(test_third third.cpp Basic/user0.cpp Basic/user1.cpp Basic/user2.cpp Basic/user3.cpp Basic/user4.cpp)
""",
    "Basic/sum.h": "int sum(int a, int b);\n",
    "Basic/sum.cpp": '#include "Basic/sum.h"\nint sum(int a, int b) { return a + b; }\n',
    "Basic/twice.h": '#include "Basic/sum.h"\ninline int half(int a) { return a / 2; }\nint twice(int a);\n',
    "Basic/twice.cpp": '#include "Basic/twice.h"\nint twice(int a) { return sum(a, half(2 * a)); }\n',
    # used by one source of five, and without the libraries of what it does not use
    "Basic/third.h": "inline int third(int a) { return a / 3; }\nint elsewhere();\ninline int unused() { return elsewhere(); }\n",
    **{f"Basic/user{n}.cpp": '#include "Basic/third.h"\n' for n in range(4)},
    "Basic/user4.cpp": '#include "Basic/third.h"\nint thirdOfNine() { return third(9); }\n',
    "third.cpp": "int thirdOfNine();\nint main() { return thirdOfNine() == 3 ? 0 : 1; }\n",
    "main.cpp": '#include "Basic/twice.h"\nint main() { return twice(3) == 6 && half(8) == 4 ? 0 : 1; }\n',
    "other.cpp": "int main() {}\n",
    "tests/user.cpp": '#include "Basic/twice.h"\nint main() { return half(8) == 4 ? 0 : 1; }\n',
    "broken.cpp": '#include "Basic/twice.h"\nint main() { return sum(1, 2) == 3 ? 1 : 2; }\n',
    # fails outside of the build's folder
    "lost.cpp": """#include "Basic/twice.h"
#include <filesystem>
int main(int, char** words) {
    return sum(1, 2) + std::filesystem::exists(std::filesystem::path(words[0]).parent_path() / "CMakeCache.txt") > 3 ? 0 : 1;
}
""",
    # fails beside other tests
    "moody.cpp": """#include "Basic/twice.h"
#include <cstdio>
#include <cstring>
int main(int, char** words) {
    if (std::strncmp(words[1], "--gtest_filter", 14) == 0) return sum(1, 2) == 3 ? 0 : 1;
    std::puts("[  FAILED  ] A.Test");
    return 1;
}
""",
}


class Trials(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(folder.cleanup)
        cls.root = pathlib.Path(folder.name)
        for name, text in FILES.items():
            file = cls.root / name
            file.parent.mkdir(exist_ok=True)
            file.write_text(text, encoding="utf-8")
        for command in (["cmake", "-G", "Ninja", "-S", ".", "-B", "build"], ["cmake", "--build", "build"]):
            subprocess.run(command, cwd=cls.root, check=True, capture_output=True)

    def noticed(self, path, old, new):
        """What notices the change, by program; None if it does not compile."""
        with tempfile.TemporaryDirectory(dir=self.root) as folder:
            trial = Trial(Tree(self.root, self.root / "build"), pathlib.Path(folder), longest_run=2)
            if not trial.compile(Change(path, FILES[path].index(old), old, new)):
                return None
            return {name: trial.failed_test(name) for name in trial.programs()}

    def test_a_change_that_matters_is_noticed(self):
        self.assertEqual(self.noticed("Basic/sum.cpp", "a + b", "a - b"),
                         {"test_toy": "test_toy: status 1", "test_moody": "test_moody: A.Test", "test_broken": None,
                          "test_lost": None})

    def test_a_change_that_does_not_matter_survives(self):
        self.assertEqual(self.noticed("Basic/sum.cpp", "a + b", "b + a"),
                         {"test_toy": None, "test_moody": None, "test_broken": None, "test_lost": None})

    def test_a_header_changes_all_that_include_it(self):
        self.assertEqual(self.noticed("Basic/twice.h", "a / 2", "a / 1"),
                         {"test_toy": "test_toy: status 1", "test_user": "test_user: status 1", "test_moody": None,
                          "test_broken": None, "test_lost": None})

    def test_a_header_changes_those_that_were_not_compiled_again(self):
        self.assertEqual(self.noticed("Basic/third.h", "a / 3", "a / 4"), {"test_third": "test_third: status 1"})

    def test_a_change_that_does_not_compile_is_no_trial(self):
        self.assertIsNone(self.noticed("Basic/sum.cpp", "a + b", "a +"))

    def test_the_tree_stays_as_it_is(self):
        self.noticed("Basic/sum.cpp", "a + b", "a - b")
        self.assertEqual((self.root / "Basic/sum.cpp").read_text(encoding="utf-8"), FILES["Basic/sum.cpp"])
        self.assertEqual(subprocess.run([self.root / "build/test_toy"]).returncode, 0)

    def test_a_program_that_does_not_end_is_noticed(self):
        noticed = self.noticed("Basic/sum.cpp", "{ return", "{ for (volatile int i = 0;; ++i) {} return")
        self.assertIn("did not end", noticed["test_toy"])


class Runs(unittest.TestCase):
    def test_a_test_that_did_not_end_is_named(self):
        with tempfile.TemporaryDirectory() as folder:
            (pathlib.Path(folder) / "test_slow.py").write_text(
                "import time, unittest\nclass Slow(unittest.TestCase):\n"
                "    def test_a(self): pass\n    def test_b(self): time.sleep(60)\n", encoding="utf-8")
            trial = Trial(None, None, longest_run=5)
            self.assertEqual(trial.failures(Run([*UNITTEST, "test_slow"], folder)), ["test_slow.Slow.test_b"])
            self.assertEqual(trial.failures(Run([*UNITTEST, "test_slow"], folder).alone("test_slow.Slow.test_a")), [])

    def test_the_first_that_notices_ends_the_others(self):
        trial = Trial(None, None)
        fails, takes_long, good = (Run(["sh", "-c", command], None) for command in ("exit 1", "sleep 3600", "exit 0"))
        self.assertEqual(trial.first_noticing([takes_long, fails], [good, good]), "status 1")


if __name__ == "__main__":
    unittest.main()
