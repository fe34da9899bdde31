"""The Debian package that scripts/package-deb has built: what it contains, and what it does on a system without anything
else."""
import gzip
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
sys.path.insert(0, str(ROOT / "tests/cli"))
from support import VERSION # noqa: E402

BUILD = pathlib.Path(os.environ.get("FERNWICK_BUILD", ROOT / "build/release")).resolve()
PACKAGE = pathlib.Path(os.environ.get("FERNWICK_PACKAGE", ROOT / f"build/package/fernwick_{VERSION}_amd64.deb")).resolve()
PROGRAMS = ("fernwick", "fernwick-workbench")


def output(*command):
    return subprocess.run(command, capture_output=True, text=True, check=True).stdout


def loaded_libraries():
    """File names of the libraries that the programs load at run time, each with the package that the source names."""
    found = {}
    for path in ROOT.glob("*/**/*"):
        if path.suffix not in (".h", ".cpp") or path.relative_to(ROOT).parts[0] not in ("Apps", "Components", "Host"):
            continue
        text = path.read_text(encoding="utf-8")
        found.update(re.findall(r'^ *LateLibrary library\{"([^"]+)", "([^"]+)"\}', text, re.M))
        found.update((name, "") for name in re.findall(r'dlopen\("([^"]+)"', text))
    return found


class Contents(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        temporary = tempfile.TemporaryDirectory(prefix="fernwick-package-")
        cls.addClassCleanup(temporary.cleanup)
        cls.tree = pathlib.Path(temporary.name).resolve() / "package"
        cls.prefix = cls.tree.parent / "usr"
        subprocess.run(["dpkg-deb", "-x", PACKAGE, cls.tree], check=True)
        subprocess.run(["cmake", "--install", BUILD, "--prefix", cls.prefix, "--strip"], check=True, capture_output=True)

    def field(self, name):
        return output("dpkg-deb", "-f", PACKAGE, name).strip()

    def dependencies(self):
        return set(re.findall(r"(?:^|, )([^ ,]+)", self.field("Depends")))

    def test_holds_what_an_install_lays_down(self):
        def files(folder):
            return {str(path.relative_to(folder)): path.read_bytes() for path in folder.rglob("*") if not path.is_dir()}
        packed, installed = files(self.tree / "usr"), files(self.prefix)
        self.assertEqual(sorted(packed), sorted(installed))
        self.assertEqual([name for name, content in installed.items() if packed[name] != content], [])
        self.assertEqual([path.name for path in self.tree.iterdir()], ["usr"])

    def test_holds_the_whole_installation_and_the_samples(self):
        shared = self.tree / "usr/share/fernwick"
        for folder, to in ((ROOT / "installation", shared), (ROOT / "samples", shared / "VB Toolkit/Samples")):
            for path in folder.rglob("*"):
                self.assertTrue(path.is_dir() or (to / path.relative_to(folder)).is_file(), path)

    def test_permissions(self):
        for row in output("dpkg-deb", "-c", PACKAGE).splitlines():
            mode, owner, *_, name = row.split(maxsplit=5)
            expected = "drwxr-xr-x" if name.endswith("/") else "-rwxr-xr-x" if "/bin/" in name else "-rw-r--r--"
            self.assertEqual((mode, owner), (expected, "root/root"), name)

    def test_lintian_is_content(self):
        done = subprocess.run(["lintian", "--allow-root", "--fail-on", "error,warning", PACKAGE], capture_output=True,
                              text=True, check=False, env=dict(os.environ, LC_ALL="C.UTF-8"))
        self.assertEqual((done.returncode, done.stdout), (0, ""), done.stderr)

    def test_depends_on_linked_and_loaded_libraries(self):
        loaded = loaded_libraries()
        self.assertGreaterEqual(set(loaded), {"libfontconfig.so.1", "libssh.so.4", "libz.so.1", "libzip.so.4"})
        for library, named in loaded.items():
            package = output("dpkg-query", "-S", f"*/{library}").split(":")[0]
            self.assertIn(named, ("", package))
            self.assertIn(package, self.dependencies())
        self.assertLessEqual({"libc6", "libqt6widgets6", "libqscintilla2-qt6-15"}, self.dependencies())

    def test_copyright_describes_every_library(self):
        text = (self.tree / "usr/share/doc/fernwick/copyright").read_text(encoding="utf-8")
        described = set(re.findall(r"^  \* ([\w+ -]+?)(?::| \()", text, re.M))
        names = {"libQt6": "Qt 6", "libqscintilla2": "QScintilla", "libfmt": "fmt", "libzip": "libzip",
                 "libz.": "zlib", "libssh": "libssh", "libfontconfig": "fontconfig",
                 **dict.fromkeys(("libc.", "libm.", "libstdc++", "libgcc_s"), "the C library")}
        linked = set()
        for program in PROGRAMS:
            linked.update(re.findall(r"NEEDED +(\S+)", output("objdump", "-p", self.tree / "usr/bin" / program)))
        self.assertLessEqual({"libQt6Widgets.so.6", "libfmt.so.9", "libstdc++.so.6"}, linked)
        for library in linked | set(loaded_libraries()):
            name = next((name for start, name in names.items() if library.startswith(start)), library)
            self.assertIn(name, described, library)
        self.assertLessEqual({"CLI11", "nettle", "nlohmann-json", "SQLite", "toml++"}, described)

    def test_one_version(self):
        self.assertEqual(self.field("Version"), VERSION)
        for program in PROGRAMS:
            page = gzip.open(self.tree / f"usr/share/man/man1/{program}.1.gz", "rt", encoding="utf-8").read()
            self.assertIn(f"\n.Os Fernwick {VERSION}\n", page)
            shown = subprocess.run([self.tree / "usr/bin" / program, "--version"], capture_output=True, text=True, check=True,
                                   env=dict(os.environ, QT_QPA_PLATFORM="offscreen")).stdout
            self.assertEqual(shown.split()[-1], VERSION)
        changes = gzip.open(self.tree / "usr/share/doc/fernwick/changelog.gz", "rt", encoding="utf-8").readline()
        self.assertTrue(changes.startswith(f"fernwick ({VERSION}) "), changes)
        metainfo = (self.tree / "usr/share/metainfo/fernwick-workbench.metainfo.xml").read_text(encoding="utf-8")
        self.assertEqual(re.search(r'<release version="([^"]+)"', metainfo)[1], VERSION)

    def test_knows_no_folder_of_the_build(self):
        for path in self.tree.rglob("*"):
            if path.is_file():
                self.assertNotIn(bytes(ROOT), path.read_bytes(), path)


def why_no_clean_root():
    if os.geteuid() != 0:
        return "only root can make and enter a clean root"
    missing = [program for program in ("mmdebstrap", "unshare", "chroot") if not shutil.which(program)]
    if missing:
        return f"{missing[0]} is not installed"
    if subprocess.run(["unshare", "--mount", "--pid", "--fork", "true"], capture_output=True, check=False).returncode:
        return "name spaces can't be made here"
    return None


STORE = "/var/lib/fernwick"
VALUE = r"'HKEY_LOCAL_MACHINE\Software\Quinloft' Test"


@unittest.skipIf(why_no_clean_root(), why_no_clean_root())
class CleanRoot(unittest.TestCase):
    """Debian's smallest system, with the package and what it depends on. Tests run in the order of their names."""

    @classmethod
    def setUpClass(cls):
        folder = pathlib.Path(tempfile.mkdtemp(prefix="fernwick-root-"))
        cls.addClassCleanup(shutil.rmtree, folder, ignore_errors=True)
        folder.chmod(0o755)
        cls.root = folder / "root"
        suite = re.search(r"^VERSION_CODENAME=(\w+)", pathlib.Path("/etc/os-release").read_text(encoding="utf-8"), re.M)[1]
        copy = folder / "fernwick.deb"
        shutil.copy(PACKAGE, copy)
        done = subprocess.run(
            ["mmdebstrap", "--quiet", "--variant=apt", "--mode=root", "--dpkgopt=force-unsafe-io",
             f"--customize-hook=copy-in {copy} /var/tmp",
             '--customize-hook=chroot "$1" apt-get install --yes --no-install-recommends /var/tmp/fernwick.deb',
             '--customize-hook=chroot "$1" useradd --create-home anna && chroot "$1" useradd --create-home ben',
             '--customize-hook=chroot "$1" useradd --create-home olga',
             '--customize-hook=chroot "$1" adduser anna fernwick && chroot "$1" adduser ben fernwick',
             suite, cls.root],
            stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, check=False)
        if done.returncode:
            raise AssertionError(f"The package can't be installed:\n{done.stdout}")

    def run_as(self, user, script, status=0):
        home = "/root" if user == "root" else f"/home/{user}"
        done = subprocess.run(
            ["unshare", "--mount", "--pid", "--fork", f"--mount-proc={self.root}/proc", "chroot", f"--userspec={user}",
             self.root, "env", "-i", "PATH=/usr/sbin:/usr/bin:/sbin:/bin", f"HOME={home}", "LC_ALL=C.UTF-8",
             "QT_QPA_PLATFORM=offscreen", "sh", "-ec", f"umask 022; cd; {script}"],
            stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, check=False, timeout=300)
        self.assertEqual(done.returncode, status, f"{script}\n{done.stdout}")
        return done.stdout

    def copy_sample(self, user, sample):
        self.run_as(user, f"cp -r '/usr/share/fernwick/VB Toolkit/Samples/{sample}' .")

    def test_any_user_builds_packs_and_deploys(self):
        self.assertEqual(self.run_as("olga", "fernwick --version"), f"fernwick {VERSION}\n")
        self.copy_sample("olga", "HelloWorld")
        self.run_as("olga", "fernwick build HelloWorld/HelloWorld.vbp && test -s HelloWorld/HelloWorld.0000.qlx")
        self.run_as("olga", "cd HelloWorld && fernwick package && fernwick package --verify ./*.qlpkg")
        self.run_as("olga", "fernwick install-runtime --device PalmOS-DragonBall && fernwick deploy HelloWorld/HelloWorld.vbp")
        self.assertIn("usable", self.run_as("olga", "fernwick targets"))
        self.run_as("olga", "fernwick doctor")

    def test_connections_need_no_further_package(self):
        self.run_as("olga", "fernwick devices add LinuxHandheld-ARM")
        self.run_as("olga", "fernwick devices set LinuxHandheld-ARM Host=127.0.0.1")
        self.assertIn("127.0.0.1", self.run_as("olga", "fernwick devices"))
        refused = self.run_as("olga", "fernwick install-runtime --device LinuxHandheld-ARM || true")
        self.assertIn("refused", refused)

    def test_desktop_starts(self):
        self.assertIn(VERSION, self.run_as("olga", "fernwick-workbench --version"))
        self.copy_sample("olga", "AddressBook")
        shown = self.run_as("olga", "timeout 4 fernwick-workbench AddressBook/AddressBook.vbp", status=124)
        self.assertNotRegex(shown, "(?i)error|cannot|can't|could not")

    def test_members_of_the_group_share_the_store(self):
        self.run_as("anna", f"fernwick registry set {VALUE} first")
        self.assertIn("first", self.run_as("ben", f"fernwick registry get {VALUE}"))
        self.run_as("ben", f"fernwick registry set {VALUE} second")
        self.assertIn("second", self.run_as("anna", f"fernwick registry get {VALUE}"))
        self.assertEqual(self.run_as("root", f"stat -c '%a %U %G' {STORE}").split(), ["2775", "root", "fernwick"])
        self.run_as("anna", "test ! -e ~/.local/share/fernwick/machine.sqlite")

    def test_others_have_a_store_of_their_own(self):
        self.run_as("olga", f"fernwick registry set {VALUE} private")
        self.assertIn("private", self.run_as("olga", f"fernwick registry get {VALUE}"))
        self.run_as("olga", "test -e ~/.local/share/fernwick/machine.sqlite")
        self.assertNotIn("private", self.run_as("anna", f"fernwick registry get {VALUE} || true"))

    def test_upgrade_keeps_what_the_administrator_chose(self):
        self.run_as("root", f"dpkg-statoverride --add --update root fernwick 2770 {STORE}")
        self.run_as("root", "dpkg --install /var/tmp/fernwick.deb")
        self.assertEqual(self.run_as("root", f"stat -c %a {STORE}"), "2770\n")

    def test_zz_purge_leaves_nothing(self):
        self.run_as("root", "dpkg --purge fernwick")
        self.run_as("root", f"! ls -d /usr/share/fernwick /usr/bin/fernwick* /usr/share/doc/fernwick {STORE}")


if __name__ == "__main__":
    unittest.main()
