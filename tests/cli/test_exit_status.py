"""Every command under every condition: one scheme of exit statuses, nothing on the wrong stream, one document.

The table has a row for each command of `fernwick --help`, and a cell for each condition. A cell is the arguments and the
status, or the reason why the condition does not exist for the command."""
import concurrent.futures
import contextlib
import json
import os
import re
import resource
import shutil
import signal
import subprocess
import unittest

from support import CAN_DROP_ROOT, Home, unprivileged

GOOD, FAILED, MISUSED, MACHINE, INTERRUPTED = 0, 1, 2, 3, 130
CONDITIONS = ("good", "errors", "wrong use", "missing file", "folder", "unreadable file", "read-only", "full disk",
              "interrupted")

PROJECT = "HelloWorld/HelloWorld.vbp"
IMAGE = "HelloWorld/HelloWorld.0000.qlx"
PACKAGE = "HelloWorld/HelloWorld.PalmOS-DragonBall.qlpkg"
PROGRAM = "HelloWorld/Program.vbp"
DEVICE = ("--device", "PalmOS-DragonBall")
TO = ("--to", "PocketPC-SH3")
KEY = r"HKEY_CURRENT_USER\Software\Quinloft"


class Cell:
    """Arguments after the command, the expected status, and what is done to the files before."""

    def __init__(self, status, *arguments, prepare=None, data=False):
        self.status, self.arguments, self.prepare = status, arguments, prepare
        self.data = data  # a failure that still has results on standard output


def damage_form(work):
    with (work / "HelloWorld/frmHello.frm").open("ab") as file:
        file.write(b"Sub x(\r\n")


def damage_package(work):
    path = work / PACKAGE
    path.write_bytes(path.read_bytes()[:-100])


def damage_image(work):
    path = work / IMAGE
    path.write_bytes(path.read_bytes()[:-1] + b"x")


def damage_project(work):
    (work / PROJECT).write_bytes(b"nonsense")


def remove_form(work):
    (work / "HelloWorld/frmHello.frm").unlink()


def make_ordinary(work):
    """The project is no longer a Fernwick project."""
    path = work / PROJECT
    path.write_bytes(path.read_bytes().split(b"[Quinloft Global]")[0])


def make_old(work):
    """The project has the format of an old version."""
    path = work / PROJECT
    path.write_bytes(path.read_bytes().replace(b"ProjectVersion=3.5", b"ProjectVersion=1.0"))


def make_ordinary_and_lock(work):
    make_ordinary(work)
    lock(PROJECT)(work)


def hide(path):
    return lambda work: (work / path).chmod(0)


def lock(path):
    """Makes a file, and the folder that a new version would be created in, read-only."""

    def prepare(work):
        (work / path).chmod(0o444)
        (work / path).parent.chmod(0o555)

    return prepare


def lock_stores(work):
    """The user's store cannot be written."""
    config = work.parent.parent / "config"
    config.mkdir(exist_ok=True)
    for path in (*config.rglob("*"), config):
        path.chmod(0o555 if path.is_dir() else 0o444)


def project_row():
    """A command that opens one project."""
    return {
        "good": Cell(GOOD, PROJECT), "wrong use": Cell(MISUSED, PROJECT, "--nonsense"),
        "missing file": Cell(MISUSED, "none.vbp"), "folder": Cell(MISUSED, "folder.vbp"),
        "unreadable file": Cell(MACHINE, PROJECT, prepare=hide(PROJECT)), "full disk": Cell(MACHINE, PROJECT),
        "interrupted": Cell(INTERRUPTED, PROJECT)}


def add_program(work):
    """A project that can run, of one module with a test."""
    (work / PROGRAM).write_text('Type=Exe\nModule=TestIt; It.bas\nStartup="Sub Main"\n')
    (work / "HelloWorld/It.bas").write_text('Attribute VB_Name = "TestIt"\nSub Main()\nDebug.Print 1\nEnd Sub\n'
                                            "Public Sub TestMain()\nMain\nEnd Sub\n")


def damage_program(work):
    (work / "HelloWorld/It.bas").write_bytes(b"Sub x(\r\n")


def program_row():
    """A command that runs the code of a project."""
    return {condition: Cell(cell.status, *(PROGRAM if part == PROJECT else part for part in cell.arguments))
            for condition, cell in project_row().items()} | {
        "errors": Cell(FAILED, PROGRAM, prepare=damage_program), "read-only": READS,
        "unreadable file": Cell(MACHINE, PROGRAM, prepare=hide(PROGRAM))}


NO_FILE = "takes no file"
READS = "writes nothing"
TABLE = {
    "build": project_row() | {"errors": Cell(FAILED, PROJECT, prepare=damage_form)},
    "validate": project_row() | {"errors": Cell(FAILED, PROJECT, prepare=remove_form)},
    "package": project_row() | {"errors": Cell(FAILED, PROJECT, prepare=damage_form)},
    "deploy": project_row() | {"errors": Cell(FAILED, PACKAGE, prepare=damage_package)},
    "install-runtime": {
        "good": Cell(GOOD, *DEVICE), "errors": Cell(FAILED, "--device", "LinuxHandheld-ARM"),
        "wrong use": Cell(MISUSED, "--device", "nonsense"), "missing file": NO_FILE, "folder": NO_FILE,
        "unreadable file": NO_FILE, "read-only": "see deploy", "full disk": Cell(MACHINE, *DEVICE),
        "interrupted": Cell(INTERRUPTED, *DEVICE)},
    "check": project_row() | {
        "errors": Cell(FAILED, PROJECT, prepare=damage_form, data=True), "read-only": READS,
        "missing file": Cell(MISUSED, PROJECT, "none.bas", data=True),
        "folder": Cell(MISUSED, "folder.vbp", data=True),
        "unreadable file": Cell(MACHINE, "HelloWorld/frmHello.frm", prepare=hide("HelloWorld/frmHello.frm"), data=True)},
    "info": project_row() | {
        "errors": Cell(FAILED, PROJECT, "--verify", prepare=remove_form, data=True), "read-only": READS},
    "image": {
        "good": Cell(GOOD, IMAGE), "errors": Cell(FAILED, IMAGE, prepare=damage_image),
        "wrong use": Cell(MISUSED, IMAGE, "--code", "Nothing"), "missing file": Cell(MISUSED, "none.qlx"),
        "folder": Cell(MISUSED, "folder.vbp"), "unreadable file": Cell(MACHINE, IMAGE, prepare=hide(IMAGE)),
        "read-only": READS, "full disk": Cell(MACHINE, IMAGE), "interrupted": Cell(INTERRUPTED, IMAGE)},
    "messages": project_row() | {
        "errors": "stored errors are its data", "read-only": READS, "full disk": Cell(MACHINE, "broken/HelloWorld.vbp")},
    "run": program_row(),
    "test": program_row(),
    "clean": project_row() | {
        "errors": Cell(FAILED, PROJECT, prepare=damage_project), "read-only": Cell(MACHINE, PROJECT, prepare=lock(PROJECT))},
    "convert": {
        "good": Cell(GOOD, PROJECT, *TO, "--in-place"),
        "errors": Cell(FAILED, PROJECT, *TO, "--output", "new/Copy.vbp", prepare=remove_form),
        "wrong use": Cell(MISUSED, PROJECT, *TO, "--output", "HelloWorld/Copy.vbp"),
        "missing file": Cell(MISUSED, "none.vbp", *TO, "--in-place"),
        "folder": Cell(MISUSED, "folder.vbp", *TO, "--in-place"),
        "unreadable file": Cell(MACHINE, PROJECT, *TO, "--in-place", prepare=hide(PROJECT)),
        "read-only": Cell(MACHINE, PROJECT, *TO, "--in-place", prepare=lock(PROJECT)),
        "full disk": Cell(MACHINE, PROJECT, *TO, "--output", "new/Copy.vbp"),
        "interrupted": Cell(INTERRUPTED, PROJECT, *TO, "--in-place")},
    "upgrade": project_row() | {
        "good": Cell(GOOD, PROJECT, prepare=make_old), "errors": Cell(FAILED, PROJECT, prepare=make_ordinary),
        "read-only": Cell(MACHINE, PROJECT, prepare=lock(PROJECT)),
        "full disk": Cell(MACHINE, PROJECT, prepare=make_old)},
    "new": {
        "good": Cell(GOOD, "Fresh", *DEVICE), "errors": "see read-only", "wrong use": Cell(MISUSED, "9x", *DEVICE),
        "missing file": Cell(MISUSED, "Fresh", *DEVICE, "--template", "none.vbp"),
        "folder": Cell(MISUSED, "Fresh", *DEVICE, "--template", "folder.vbp"),
        "unreadable file": Cell(MACHINE, "Fresh", *DEVICE, "--template", PROJECT, prepare=hide(PROJECT)),
        "read-only": Cell(FAILED, "HelloWorld/Fresh", *DEVICE, prepare=lock(PROJECT)),
        "full disk": Cell(MACHINE, "Fresh", *DEVICE), "interrupted": Cell(INTERRUPTED, "Fresh", *DEVICE)},
    "init": project_row() | {
        "good": Cell(GOOD, PROJECT, *DEVICE, "--yes", prepare=make_ordinary),
        "errors": Cell(FAILED, PROJECT, *DEVICE, prepare=make_ordinary, data=True),
        "read-only": Cell(MACHINE, PROJECT, *DEVICE, "--yes", prepare=make_ordinary_and_lock),
        "full disk": Cell(MACHINE, PROJECT, *DEVICE, "--yes", prepare=make_ordinary)},
    "steps": project_row() | {
        "good": Cell(GOOD, PROJECT, "add", "pre", "echo one"),
        "errors": Cell(FAILED, PROJECT, "add", "pre", "echo one", prepare=make_ordinary),
        "wrong use": Cell(MISUSED, PROJECT, "remove", "pre", "9"),
        "read-only": Cell(MACHINE, PROJECT, "add", "pre", "echo one", prepare=lock(PROJECT)),
        "full disk": Cell(MACHINE, "listed/HelloWorld.vbp")},
    "trust": {
        "good": Cell(GOOD, "add", PROJECT), "errors": "there is nothing to find", "wrong use": Cell(MISUSED, "add"),
        "missing file": Cell(MISUSED, "none.vbp"), "folder": "a folder is what it takes",
        "unreadable file": "reads only the store", "read-only": Cell(MACHINE, "add", PROJECT, prepare=lock_stores),
        "full disk": Cell(MACHINE, PROJECT), "interrupted": Cell(INTERRUPTED)},
    "settings": {
        "good": Cell(GOOD, "set", PROJECT, "DefaultFontSize", "9"),
        "errors": Cell(FAILED, "set", PROJECT, "DefaultFontSize", "9", prepare=make_ordinary),
        "wrong use": Cell(MISUSED, "get", PROJECT, "Nonsense"),
        "missing file": Cell(MISUSED, "list", "none.vbp"), "folder": Cell(MISUSED, "list", "folder.vbp"),
        "unreadable file": Cell(MACHINE, "list", PROJECT, prepare=hide(PROJECT)),
        "read-only": Cell(MACHINE, "set", PROJECT, "DefaultFontSize", "9", prepare=lock(PROJECT)),
        "full disk": Cell(MACHINE, "list", PROJECT), "interrupted": Cell(INTERRUPTED, "list", PROJECT)},
    "registry": {
        "good": Cell(GOOD, "set", KEY, "Name", "value"), "errors": Cell(FAILED, "get", KEY, "Nothing"),
        "wrong use": Cell(MISUSED, "set", KEY), "missing file": Cell(MISUSED, "import", "none.reg"),
        "folder": Cell(MISUSED, "import", "folder.vbp"),
        "unreadable file": Cell(MACHINE, "import", "some.reg", prepare=hide("some.reg")),
        "read-only": Cell(MACHINE, "set", KEY, "Name", "value", prepare=lock_stores),
        "full disk": Cell(MACHINE, "export", r"HKEY_LOCAL_MACHINE\SOFTWARE"),
        "interrupted": Cell(INTERRUPTED, "import", "some.reg")},
    "dependencies": {
        "good": Cell(GOOD, PROJECT, "add", "HelloWorld/data.txt"),
        "errors": Cell(FAILED, PROJECT, "add", "outside.txt", "--no"),
        "wrong use": Cell(MISUSED, PROJECT, "remove", "HelloWorld/data.txt"),
        "missing file": Cell(MISUSED, PROJECT, "add", "none.txt"),
        "folder": Cell(MISUSED, PROJECT, "add", "folder.vbp"),
        "unreadable file": Cell(MACHINE, PROJECT, prepare=hide(PROJECT)),
        "read-only": Cell(MACHINE, PROJECT, "add", "HelloWorld/data.txt", prepare=lock(PROJECT)),
        "full disk": Cell(MACHINE, "listed/HelloWorld.vbp"), "interrupted": Cell(INTERRUPTED, PROJECT)},
    "devices": {
        "good": Cell(GOOD, "add", "palmos-dragonball"), "errors": "a device that cannot be reached is its data",
        "wrong use": Cell(MISUSED, "add", "nonsense"), "missing file": NO_FILE, "folder": NO_FILE,
        "unreadable file": NO_FILE, "read-only": Cell(MACHINE, "add", "PocketPC-ARM", prepare=lock_stores),
        "full disk": Cell(MACHINE), "interrupted": Cell(INTERRUPTED)},
    "doctor": {
        "good": Cell(GOOD), "errors": Cell(MACHINE, prepare=lock_stores, data=True), "wrong use": Cell(MISUSED, "x"),
        "missing file": NO_FILE, "folder": NO_FILE, "unreadable file": NO_FILE, "read-only": "see errors",
        "full disk": Cell(MACHINE), "interrupted": Cell(INTERRUPTED)},
    "explain": {
        "good": Cell(GOOD, "FW1300"), "errors": "there is nothing to find", "wrong use": Cell(MISUSED, "1"),
        "missing file": NO_FILE, "folder": NO_FILE, "unreadable file": NO_FILE, "read-only": READS,
        "full disk": Cell(MACHINE), "interrupted": Cell(INTERRUPTED)},
    "recent": {
        "good": Cell(GOOD), "errors": "there is nothing to find", "wrong use": Cell(MISUSED, "x"),
        "missing file": NO_FILE, "folder": NO_FILE, "unreadable file": NO_FILE, "read-only": READS,
        "full disk": "an empty list prints nothing", "interrupted": Cell(INTERRUPTED)},
    "targets": {
        "good": Cell(GOOD), "errors": "see the case no_targets", "wrong use": Cell(MISUSED, "x"),
        "missing file": NO_FILE, "folder": NO_FILE, "unreadable file": NO_FILE, "read-only": READS,
        "full disk": Cell(MACHINE), "interrupted": Cell(INTERRUPTED)},
    "version": {
        "good": Cell(GOOD), "errors": "there is nothing to find", "wrong use": Cell(MISUSED, "x"),
        "missing file": NO_FILE, "folder": NO_FILE, "unreadable file": NO_FILE, "read-only": READS,
        "full disk": Cell(MACHINE), "interrupted": Cell(INTERRUPTED)},
    "completion": {
        "good": Cell(GOOD, "bash"), "errors": "there is nothing to find", "wrong use": Cell(MISUSED, "ksh"),
        "missing file": NO_FILE, "folder": NO_FILE, "unreadable file": NO_FILE, "read-only": READS,
        "full disk": Cell(MACHINE, "zsh"), "interrupted": Cell(INTERRUPTED, "fish")},
    "help": {
        "good": Cell(GOOD, "build"), "errors": "there is nothing to find", "wrong use": Cell(MISUSED, "nonsense"),
        "missing file": NO_FILE, "folder": NO_FILE, "unreadable file": NO_FILE, "read-only": READS,
        "full disk": Cell(MACHINE, "answers"), "interrupted": "printed at once"},
    "workbench": {
        "good": "see test_workbench", "errors": "see test_workbench", "wrong use": Cell(MISUSED, "--nonsense"),
        "missing file": "the desktop shows a box", "folder": "the desktop shows a box",
        "unreadable file": "the desktop shows a box", "read-only": READS, "full disk": "has no output",
        "interrupted": Cell(INTERRUPTED)},
}
for verb in ("build", "validate", "package", "deploy"):
    TABLE[verb]["read-only"] = Cell(MACHINE, PROJECT, prepare=lock(PROJECT))


@contextlib.contextmanager
def prepared(template, cell):
    """A home like the template, changed for the cell."""
    with Home() as home:
        shutil.rmtree(home.folder / "files")
        for name in ("files", "config", "data", "machine"):
            if (template.folder / name).exists():
                shutil.copytree(template.folder / name, home.folder / name, symlinks=True)
        if cell.prepare:
            cell.prepare(home.work)
        if CAN_DROP_ROOT:
            home.give_away()
        yield home


def little_memory():
    resource.setrlimit(resource.RLIMIT_AS, (150 << 20, 150 << 20))


def interrupt_at_start():
    signal.pthread_sigmask(signal.SIG_BLOCK, {signal.SIGINT})
    os.kill(os.getpid(), signal.SIGINT)


def fill_disk():
    """No file can grow, as on a full disk."""
    signal.signal(signal.SIGXFSZ, signal.SIG_IGN)
    resource.setrlimit(resource.RLIMIT_FSIZE, (0, 0))


def files_of(work):
    return {str(path.relative_to(work)): path.read_bytes() for path in work.rglob("*") if path.is_file()}


class ExitStatus(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.template = Home()
        cls.template.__enter__()
        cls.addClassCleanup(cls.template.__exit__)
        work = cls.template.work
        cls.template.sample()
        add_program(work)
        (work / "folder.vbp").mkdir()
        (work / "outside.txt").write_text("outside")
        (work / "HelloWorld/data.txt").write_text("data")
        (work / "some.reg").write_text("Windows Registry Editor Version 5.00\n")
        cls.template.fernwick("install-runtime", *DEVICE, check=True)
        cls.template.fernwick("package", PROJECT, check=True)
        shutil.copytree(work / "HelloWorld", work / "listed")
        cls.template.fernwick("dependencies", "listed/HelloWorld.vbp", "add", "listed/data.txt", check=True)
        cls.template.fernwick("steps", "listed/HelloWorld.vbp", "add", "pre", "echo one", check=True)
        shutil.copytree(work / "HelloWorld", work / "broken")
        with (work / "broken/frmHello.frm").open("ab") as file:
            file.write(b"Sub x(\r\n")
        cls.template.fernwick("build", "broken/HelloWorld.vbp")
        help_text = cls.template.fernwick("--help", check=True).stdout
        cls.verbs = re.findall(r"^  ([a-z-]+) {2,}", help_text.split("Commands:")[1].split("\n\n")[0], re.M)
        cls.formats = {verb: cls.formats_of(verb) for verb in cls.verbs}

    @classmethod
    def formats_of(cls, verb):
        found = re.search(r"--format FORMAT .*: (.*)", cls.template.fernwick("help", verb, check=True).stdout)
        return re.split(", | or ", found[1]) if found else ["text"]

    def test_the_table_has_every_command_and_condition(self):
        self.assertEqual(sorted(TABLE), sorted(self.verbs))
        for verb, row in TABLE.items():
            self.assertEqual(sorted(row), sorted(CONDITIONS), verb)

    def outcome(self, verb, condition, form):
        cell = TABLE[verb][condition]
        options = [] if form == "text" else ["--format", form]
        command = ["fernwick", verb, *cell.arguments, *options]
        with prepared(self.template, cell) as home:
            how = {}
            if CAN_DROP_ROOT:
                command = unprivileged(command)
            if condition == "interrupted":
                how["preexec_fn"] = interrupt_at_start
            if condition == "full disk":
                with open("/dev/full", "w", encoding="utf-8") as full:
                    return home.run(*command, stdout=full, stderr=subprocess.PIPE, capture_output=False, **how)
            done = home.run(*command, **how)
            done.left_behind = home.left_behind()
            return done

    def test_every_cell(self):
        cells = [(verb, condition, form) for verb, row in TABLE.items() for condition, cell in row.items()
                 for form in self.formats[verb] if isinstance(cell, Cell)]
        if not CAN_DROP_ROOT:
            cells = [cell for cell in cells if cell[1] not in ("unreadable file", "read-only")]
        self.assertGreater(len(cells), 200)
        with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
            for cell, done in zip(cells, pool.map(lambda one: self.outcome(*one), cells)):
                with self.subTest(" / ".join(cell)):
                    self.check(*cell, done)
        if not CAN_DROP_ROOT:
            self.skipTest("unreadable and read-only files need another user than root: install setpriv")

    @unittest.skipIf("ASAN_OPTIONS" in os.environ, "the sanitizer needs more memory than there is")
    def test_a_command_without_enough_memory_says_so(self):
        with prepared(self.template, Cell(MACHINE)) as home:
            (home.work / "Large.bas").write_text("x = 1\n" * 3_000_000)
            done = home.fernwick("check", "Large.bas", preexec_fn=little_memory)
            self.assertEqual((done.returncode, done.stderr),
                             (MACHINE, "fernwick: Out of memory (error 7 of VBAProject)\n"))

    def test_each_command_that_opens_a_project_takes_its_code_page(self):
        takers = [verb for verb in self.verbs
                  if "--code-page" in self.template.fernwick("help", verb, check=True).stdout]
        self.assertEqual(takers, ["build", "validate", "run", "test", "clean", "init", "convert", "upgrade", "package", "deploy", "check", "info",
                                  "messages", "settings", "dependencies", "steps"])
        for verb in takers:
            arguments = (PROJECT,) if verb == "check" else TABLE[verb]["good"].arguments
            with self.subTest(verb), prepared(self.template, Cell(GOOD)) as home:
                for page in ("12345", "x"):
                    wrong = home.fernwick(verb, *arguments, "--code-page", page)
                    self.assertEqual((wrong.returncode, wrong.stdout), (MISUSED, ""))
                    self.assertRegex(wrong.stderr, rf"--code-page: {page} is not a known code page; these are known: .*950")
                given = home.fernwick(verb, *arguments, "--code-page", "950", "-v")
                self.assertEqual(given.returncode, GOOD, given.stderr)
                if verb != "clean":  # reads only the name
                    self.assertRegex(given.stderr, r"(HelloWorld|Program)\.vbp: read in code page 950, given on the command line")

    def test_a_full_disk_leaves_all_files_as_they_are(self):
        for verb, *arguments in (("settings", "set", PROJECT, "DefaultFontSize", "9"),
                                 ("dependencies", PROJECT, "add", "HelloWorld/data.txt"),
                                 ("steps", PROJECT, "add", "pre", "echo one"), ("trust", "add", PROJECT),
                                 ("registry", "set", KEY, "Name", "value"), ("devices", "add", "PocketPC-ARM"),
                                 ("build", PROJECT), ("package", PROJECT)):
            for form in ("text", "json"):
                with self.subTest(f"{verb} / {form}"), prepared(self.template, Cell(MACHINE)) as home:
                    before = files_of(home.work)
                    done = home.run("fernwick", verb, *arguments, "--format", form, preexec_fn=fill_disk)
                    self.assertEqual(done.returncode, MACHINE, done.stdout + done.stderr)
                    self.assertEqual(files_of(home.work), before)
                    self.assertEqual(home.left_behind(), [])

    def check(self, verb, condition, form, done):
        cell = TABLE[verb][condition]
        shown = f"{done.stdout}\n{done.stderr}"
        self.assertEqual(done.returncode, cell.status, shown)
        self.assertNotRegex(done.stderr, r"Please contact|terminate called|Sanitizer|Assertion")
        if condition == "full disk":
            return self.assertIn("standard output could not be written", done.stderr)
        self.assertEqual(done.left_behind, [])
        if form == "text":
            self.check_streams(cell, done, shown)
        elif form == "json":
            self.check_json(done)
        elif form == "sarif":
            self.check_sarif(done)

    def check_streams(self, cell, done, shown):
        self.assertNotIn("fernwick: ", done.stdout)
        if cell.status == GOOD:
            self.assertNotIn("fernwick: ", done.stderr, shown)
        elif not cell.data:
            self.assertRegex(done.stderr, r"(?m)^fernwick: |error \d+: |: failed: ")
            if cell.status != FAILED:
                self.assertEqual(done.stdout, "", shown)

    def check_json(self, done):
        document = json.loads(done.stdout)
        self.assertEqual(document["schemaVersion"], 1)
        if "exitStatus" in document:
            self.assertEqual(document["exitStatus"], done.returncode)

    def check_sarif(self, done):
        document = json.loads(done.stdout)
        self.assertEqual(document["version"], "2.1.0")
        invocation = document["runs"][0]["invocations"][0]
        self.assertEqual(invocation["exitCode"], done.returncode)
        if done.returncode not in (GOOD, FAILED):
            self.assertFalse(invocation["executionSuccessful"])


if __name__ == "__main__":
    unittest.main()
