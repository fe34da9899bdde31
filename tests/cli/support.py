"""Shared by the tests of the command line: a private home, and output without what differs between runs."""
import difflib
import os
import pathlib
import re
import shutil
import subprocess
import tempfile

HERE = pathlib.Path(__file__).resolve().parent
ROOT = HERE.parent.parent
PROGRAM = pathlib.Path(os.environ.get("FERNWICK_PROGRAM", ROOT / "build/release/Apps/fernwick/fernwick")).resolve()
VERSION = re.search(r"project\(Fernwick VERSION ([\d.]+)", (ROOT / "CMakeLists.txt").read_text())[1]
APPROVE = os.environ.get("FERNWICK_APPROVE") == "1"
NOBODY = 65534
IS_ROOT = os.geteuid() == 0
CAN_DROP_ROOT = not IS_ROOT or shutil.which("setpriv") is not None


class Home:
    """A temporary folder for everything that the program stores for the user and the machine."""

    def __enter__(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="fernwick-cli-")).resolve()
        self.work = self.folder / "files/work"
        (self.folder / "bin").mkdir()
        (self.folder / "tmp").mkdir()
        self.work.mkdir(parents=True)
        os.symlink(PROGRAM, self.folder / "bin/fernwick")
        self.env = {
            "PATH": f"{self.folder}/bin:{os.environ['PATH']}", "HOME": str(self.folder), "LC_ALL": "C.UTF-8",
            "XDG_CONFIG_HOME": str(self.folder / "config"), "XDG_DATA_HOME": str(self.folder / "data"),
            "FERNWICK_MACHINE_STORE": str(self.folder / "machine"), "TMPDIR": str(self.folder / "tmp"),
            "SAMPLES": str(ROOT / "samples"), "FERNWICK_SOURCE": str(ROOT), "CLI_TESTS": str(HERE),
        }
        self.env.update({k: v for k, v in os.environ.items() if k.endswith("SAN_OPTIONS")})
        return self

    def __exit__(self, *_):
        subprocess.run(["chmod", "-R", "u+rwX", self.folder], check=False)
        shutil.rmtree(self.folder, ignore_errors=True)

    def run(self, *arguments, **options):
        options = {"cwd": self.work, "env": self.env, "stdin": subprocess.DEVNULL, "text": True,
                   "capture_output": True, "timeout": 120} | options
        return subprocess.run(arguments, **options)

    def fernwick(self, *arguments, **options):
        return self.run("fernwick", *arguments, **options)

    def sample(self, name="HelloWorld"):
        shutil.copytree(ROOT / "samples" / name, self.work / name)
        return self.work / name / f"{name}.vbp"

    def give_away(self):
        """Makes everything in it belong to the user of `unprivileged`."""
        if IS_ROOT:
            subprocess.run(["chown", "-R", "--no-dereference", f"{NOBODY}:{NOBODY}", self.folder], check=True)

    def left_behind(self):
        """The contents of the private temporary folder, which every run must leave empty."""
        return sorted(str(p) for p in (self.folder / "tmp").rglob("*"))

    def normal(self, text):
        for path, name in ((str(self.work), "WORK"), (str(self.folder), "HOME"), (str(ROOT), "SOURCE")):
            text = text.replace(path, name)
        text = re.sub(r"\bin \d+\.\d+ s\b", "in N s", text)
        text = re.sub(r"(?m)^(! )?\[\d+\.\d+ s\] ", r"\1[N s] ", text)
        return text.replace(f"fernwick {VERSION}", "fernwick VERSION").replace(f'"version": "{VERSION}"',
                                                                               '"version": "VERSION"')


def unprivileged(command):
    """Root may read and write everything, so the command runs as another user."""
    if not IS_ROOT:
        return command
    return ["setpriv", f"--reuid={NOBODY}", f"--regid={NOBODY}", "--clear-groups", *command]


def under_strace(trace, calls, failure=None):
    """What goes before a command to list these system calls of it in a file, or to let them fail in this way."""
    injected = ["-e", f"inject={calls}:{failure}"] if failure else []
    # A filter makes it four times as fast, but with it signals are never sent.
    filtered = [] if "signal=" in (failure or "") else ["--seccomp-bpf"]
    return ["strace", "-f", *filtered, "-qq", "-o", str(trace), "-e", f"trace={calls}", *injected]


def compare(test, path, actual):
    """Fails if the text differs from the file, or rewrites the file if FERNWICK_APPROVE is set."""
    path = pathlib.Path(path)
    expected = path.read_text(encoding="utf-8") if path.exists() else ""
    if actual == expected:
        return
    if APPROVE:
        path.write_text(actual, encoding="utf-8")
        print(f"approved {path.relative_to(ROOT)}")
        return
    diff = difflib.unified_diff(expected.splitlines(), actual.splitlines(), str(path.name), "actual", lineterm="")
    test.fail("\n".join(diff) + "\n(scripts/approve accepts the change)")
