"""Test programs with one source changed, linked without building the rest again.

The changed source is compiled alone and comes first when a program is linked, so that its functions replace those of
the library (inline ones too, because nothing is inlined in a debug build). A changed header is compiled with some of
the sources that include it, and all its inline functions are kept: those sources need not be the ones that call them.
The tree itself stays as it is.
"""
import concurrent.futures
import dataclasses
import functools
import json
import os
import pathlib
import re
import shlex
import shutil
import signal
import subprocess
import sys
import tempfile
import threading
import time

PRODUCT = ("Basic", "Add-in", "Host", "Components", "Apps")
SOURCES_OF_A_HEADER = 4
SHARDS = 4
UNITTEST = [sys.executable, "-B", "-m", "unittest", "-v"]
FAILED = rb"^\[  FAILED  \] ([\w./]+)|^(?:FAIL|ERROR): \w+ \(([\w.]+)\)"
BEGUN = rb"^\[ RUN      \] ([\w./]+)|^\w+ \(([\w.]+)\)"


class Tree:
    """A clone that is built."""

    def __init__(self, source, build):
        self.source = source
        self.build = build

    @functools.cached_property
    def commands(self):
        """How each source is compiled; in a unity build it has the command of the file that includes it."""
        found = {}
        for entry in json.loads((self.build / "compile_commands.json").read_text(encoding="utf-8")):
            file = pathlib.Path(entry["file"])
            is_unity = "Unity" in file.parts
            for part in re.findall(r'#include "([^"]+\.cpp)"', file.read_text(encoding="utf-8")) if is_unity else [file]:
                found[os.path.relpath(part, self.source)] = shlex.split(entry["command"])
        return found

    def files(self, ending):
        return [path for room in (*PRODUCT, "tests") for path in sorted((self.source / room).rglob("*" + ending))]

    @functools.cached_property
    def includers(self):
        found = {}
        for path in self.files(".cpp") + self.files(".h"):
            for header in re.findall(r'#include "([^"]+)"', path.read_text(encoding="utf-8")):
                found.setdefault(header, []).append(path.relative_to(self.source).as_posix())
        return found

    def sources_of(self, path):
        """The sources that see a change to `path`, those beside it first; of a header some, and some tests."""
        if path.endswith(".cpp"):
            return [path]
        seen, waiting, sources, tests = {path}, [path], [], []
        while waiting and min(len(sources), len(tests)) < SOURCES_OF_A_HEADER:
            header = waiting.pop(0)
            names = [header] + [os.path.basename(header)] * header.startswith("tests/")
            for user in (user for name in names for user in self.includers.get(name, [])):
                if user not in seen:
                    seen.add(user)
                    known = tests if user.startswith("tests/") else sources
                    (waiting if user.endswith(".h") else known if user in self.commands else []).append(user)
        sources.sort(key=lambda source: os.path.dirname(source) != os.path.dirname(path))
        return sources[:SOURCES_OF_A_HEADER] + tests[:SOURCES_OF_A_HEADER]

    @functools.cached_property
    def links(self):
        """The command that links each program, by the program's path below the build folder."""
        lines = subprocess.check_output(["ninja", "-C", self.build, "-t", "commands", "all"], text=True).splitlines()
        found = {}
        for line in lines:
            link = re.match(r": && (\S*c\+\+ .*? -o (\S+) .*?) && ", line)
            if link:
                found[link[2]] = shlex.split(link[1])
        return found

    def programs_with(self, source):
        """The programs that contain a source: they link its object or its library."""
        command = self.commands[source]
        part = command[command.index("-o") + 1]
        target = re.match(r"(.*/)?CMakeFiles/([^/]+)\.dir/", part)
        library = f"{target[1] or ''}lib{target[2]}.a"
        return [name for name, words in self.links.items() if part in words or library in words]


class Trial:
    """A change compiled in a folder of its own."""

    def __init__(self, tree, folder, longest_run=900):
        self.tree = tree
        self.folder = folder
        self.longest_run = longest_run
        self.objects = {}  # and the programs that contain each
        self.changes_saving = False
        self.is_noticed = threading.Event()

    def compile(self, change):
        """False if it does not compile."""
        self.changes_saving = change.path.startswith("Host/files/")
        text = (self.tree.source / change.path).read_text(encoding="utf-8")
        changed = self.folder / "tree" / change.path
        changed.parent.mkdir(parents=True, exist_ok=True)
        changed.write_text(change.applied(text), encoding="utf-8")
        for source in self.tree.sources_of(change.path):
            object_file = self.folder / f"{len(self.objects)}.o"
            command = list(self.tree.commands[source])
            command[command.index("-o") + 1] = str(object_file)
            command[command.index("-c") + 1] = str(changed if source == change.path else self.tree.source / source)
            command[1:1] = ["-I" + str(self.folder / "tree"), "-I" + str(self.tree.source / os.path.dirname(source))]
            command[1:1] = ["-fkeep-inline-functions"] * (source != change.path)
            if subprocess.run(command, cwd=self.tree.build, capture_output=True).returncode != 0:
                return False
            self.objects[str(object_file)] = self.tree.programs_with(source)
        return bool(self.objects)

    def programs(self):
        return {name for names in self.objects.values() for name in names}

    def link(self, name):
        """The program with the change in it."""
        program = self.folder / os.path.basename(name)
        command = list(self.tree.links[name])
        command[command.index("-o") + 1] = str(program)
        first = next(at for at, word in enumerate(command) if word.endswith((".o", ".a")))
        changed = [file for file, programs in self.objects.items() if name in programs]
        # Inline functions that nothing calls may need libraries that the program does not have.
        command[first:first] = [*changed, "-Wl,-z,muldefs", "-Wl,--gc-sections"]
        subprocess.run(command, cwd=self.tree.build, check=True)
        return program

    def copy(self, name):
        """The program without the change, which finds as much beside it as the changed one."""
        program = self.folder / "unchanged" / os.path.basename(name)
        program.parent.mkdir(exist_ok=True)
        shutil.copy(self.tree.build / name, program)
        return program

    def failed_test(self, name):
        """The test of a program that fails because of the change; None if none does."""
        if not self.runs(self.folder, name):
            return None
        programs = [self.link(name), self.copy(name)]
        try:
            test = self.first_noticing(*(self.runs(program, name) for program in programs))
        finally:
            for program in programs:
                program.unlink()
        return f"{name}: {test}" if test else None

    def first_noticing(self, changed, unchanged):
        """The test that is the first to notice the change; the other runs end at once."""
        self.is_noticed.clear()
        with concurrent.futures.ThreadPoolExecutor(len(changed)) as pool:
            for done in concurrent.futures.as_completed(map(functools.partial(pool.submit, self.noticed), changed, unchanged)):
                if done.result():
                    self.is_noticed.set()
                    return done.result()
        return None

    def noticed(self, changed, unchanged):
        """The test that notices the change: it fails alone with the change, and not without it."""
        failed = self.failures(changed)
        if failed and not self.is_proof(failed[0], changed, unchanged):
            failed = self.failures(changed.to_the_end())  # the load of the machine may have failed it: try the others
        return next((test for test in failed if self.is_proof(test, changed, unchanged)), None)

    def is_proof(self, test, changed, unchanged):
        return bool(self.failures(changed.alone(test))) and not self.failures(unchanged.alone(test))

    def runs(self, program, name):
        """How a program is tested, all at the same time: tests of windows wait more than they work."""
        base = os.path.basename(name)
        tests = self.tree.source / "tests"
        if base.startswith("test_"):
            return [Run([program, "--gtest_fail_fast"], self.tree.build / os.path.dirname(name),
                        {"GTEST_TOTAL_SHARDS": str(SHARDS), "GTEST_SHARD_INDEX": str(shard)}) for shard in range(SHARDS)]
        if base == "fernwick":
            desktop = self.tree.build / os.path.dirname(name) / "../workbench"
            variables = {"FERNWICK_BUILD": str(self.tree.build), "FERNWICK_PROGRAM": str(program),
                         "PATH": f"{desktop}:{os.environ['PATH']}"}
            saves = Run([sys.executable, tests / "faults/save_faults_test.py", program,
                         self.tree.build / "tests/faults/increment_revision"], self.folder)  # takes ten minutes
            return [Run([*UNITTEST, "-f", *self.modules(part)], tests / "cli", variables)
                    for part in range(SHARDS)] + [saves] * self.changes_saving
        if base == "fernwick-workbench":
            return [Run([self.tree.build / "tests/workbench_x11/test_workbench_x11", "--gtest_filter=Program.*"],
                        self.folder, {"FERNWICK_WORKBENCH": str(program)})]
        if base == "tamarik-headless":
            return [Run([sys.executable, "-B", tests / "machines/test_headless.py", program,
                         self.tree.build / "tests/language_programs/language_images"], self.folder)]
        return []

    def modules(self, part):
        return sorted(file.stem for file in (self.tree.source / "tests/cli").glob("test_*.py"))[part::SHARDS]

    def failures(self, run):
        """The tests that fail in a run, or how it ended; the last one that began if it crashed or did not end."""
        output, end = self.ended(run)
        if end == "status 0" or self.is_noticed.is_set():
            return []
        return named(FAILED, output) or named(BEGUN, output)[-1:] or [end]

    def ended(self, run):
        """What a run printed, and its end. It has a group of processes of its own, so that all of them can be ended."""
        with tempfile.TemporaryFile() as printed, subprocess.Popen(
                run.args, cwd=run.cwd, env=os.environ | run.variables, stdin=subprocess.DEVNULL, stdout=printed,
                stderr=subprocess.STDOUT, start_new_session=True) as process:
            latest, end = time.monotonic() + self.longest_run, None
            while end is None and time.monotonic() < latest and not self.is_noticed.is_set():
                try:
                    end = f"status {process.wait(0.1)}"
                except subprocess.TimeoutExpired:
                    pass
            if end is None:
                os.killpg(process.pid, signal.SIGKILL)
            printed.seek(0)
            return printed.read(), end or "it did not end"


@dataclasses.dataclass
class Run:
    """A command that runs tests."""

    args: list
    cwd: pathlib.Path
    variables: dict = dataclasses.field(default_factory=dict)

    def to_the_end(self):
        return Run([word for word in self.args if word not in ("--gtest_fail_fast", "-f")], self.cwd, self.variables)

    def alone(self, test):
        """All of it again where the name of a test is unknown."""
        if self.args[: len(UNITTEST)] == UNITTEST and "." in test:
            return Run([*UNITTEST, test], self.cwd, self.variables)
        if "--gtest_fail_fast" in self.args and "." in test:
            return Run([self.args[0], f"--gtest_filter={test}"], self.cwd)
        return self


def named(pattern, output):
    return [(gtest or python).decode() for gtest, python in re.findall(pattern, output, re.M)]
