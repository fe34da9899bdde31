"""`doctor` reports damage to an installation and how to fix it, and does not fail itself."""
import json
import os
import random
import shutil
import unittest

from support import CAN_DROP_ROOT, PROGRAM, ROOT, Home, unprivileged

PARTS = ["Fonts", "Template/Projects/Fernwick Project.vbp", "VB Toolkit/Bin/QLCOMPILE.AVI",
         "VB Toolkit/Template/Projects/PalmOS-DragonBall.vbp", "VB Toolkit/doc/Quinloft_Error_Codes",
         "VB Toolkit/doc/Quinloft_Error_Codes.html", "libraries", "maker.toml", "registry/installation.reg",
         "registry/tavlets.reg", "tavlets", "targets"]
KEPT = ("VB Toolkit/doc", "VB Toolkit/Samples", "VB Toolkit/Bin", "schemas")
DEVICES_KEY = r"HKEY_CURRENT_USER\SOFTWARE\Quinloft\AddinPrefs\MyDevices"


class Doctor(unittest.TestCase):
    def setUp(self):
        self.home = Home()
        self.home.__enter__()
        self.addCleanup(self.home.__exit__)
        self.program = self.home.work / "elsewhere/bin/fernwick"
        self.installed = self.home.work / "elsewhere/share/fernwick"
        self.program.parent.mkdir(parents=True)
        try:
            os.link(PROGRAM, self.program)
        except OSError:
            shutil.copy(PROGRAM, self.program)
        self.examining = [self.program, "doctor", "--format", "json"]
        self.install()

    def install(self):
        shutil.rmtree(self.installed, ignore_errors=True)
        shutil.copytree(ROOT / "installation", self.installed, ignore=shutil.ignore_patterns("Samples"))

    def examine(self):
        done = self.home.run(*self.examining, text=False)
        self.assertIn(done.returncode, (0, 3), done.stderr)
        result = json.loads(done.stdout)
        self.assertEqual(done.returncode, 0 if result["usable"] else 3)
        for finding in result["findings"]:
            self.assertEqual("cure" in finding, finding["state"] != "good", finding)
            self.assertNotIn("\n", finding["detail"] + finding.get("cure", ""))
        return result["findings"]

    def troubles(self):
        return [f"{f['subject']}: {f['detail']}" for f in self.examine() if f["state"] == "trouble"]

    def test_an_undamaged_installation_is_usable(self):
        self.assertEqual(self.troubles(), [])

    def test_changes_nothing_and_neither_does_devices(self):
        before = self.everything()
        self.assertEqual(self.home.run(self.program, "devices", text=False).returncode, 0)
        self.examine()
        self.assertEqual(self.everything(), before)

    def everything(self):
        return sorted((str(path), path.lstat().st_mtime_ns) for path in self.home.folder.rglob("*") if path.name != "tmp")

    def test_names_each_missing_part(self):
        for part in PARTS:
            with self.subTest(part):
                self.install()
                path = self.installed / part
                shutil.rmtree(path) if path.is_dir() else path.unlink()
                self.assertIn(part, "\n".join(self.troubles()))

    def test_names_all_missing_files(self):
        folders = [self.installed / folder for folder in ("VB Toolkit/Bin", "Template/Projects")]
        files = [file for folder in folders for file in folder.iterdir() if file.is_file()]
        guides = (self.installed / "VB Toolkit/doc").glob("Quinloft_*.html")
        files += [guide for guide in guides if " " not in guide.name]
        for file in files:
            file.unlink()
        troubles = self.troubles()
        for file in files:
            self.assertIn(f"installation: {file} is missing", troubles)

    def finding(self, subject):
        return next((f["state"], f["detail"], f.get("cure")) for f in self.examine() if f["subject"] == subject)

    def change(self, part, old, new):
        path = self.installed / part
        text = path.read_text()
        self.assertIn(old, text)
        path.write_text(text.replace(old, new))

    def test_says_what_is_wrong_with_a_target(self):
        file, subject = "targets/PalmOS-DragonBall.toml", "target PalmOS-DragonBall"
        for old, new, detail, cure in (
                ("Classes/Fernwick Class.cls", "Classes/Gone.cls",
                 f"its template {self.installed}/VB Toolkit/Template/Classes/Gone.cls is missing",
                 "Correct the name in its file in targets/, or reinstall Fernwick."),
                ("QLPipePalmOS", "QLPipePocketPC", "its pipe QLPipePocketPC does not support it",
                 "Correct its pipe or key in its file in targets/, or reinstall Fernwick."),
                ('"QLPipePalmOS"', '"Gone"',
                 "its pipe Gone cannot be created: ActiveX component can't create object: Gone.Validation",
                 "Correct its pipe or key in its file in targets/, or reinstall Fernwick.")):
            with self.subTest(detail):
                self.install()
                self.change(file, old, new)
                self.assertEqual(self.finding(subject), ("trouble", detail, cure))
        self.install()
        self.change(file, '"QLPipePalmOS"', '""')
        self.assertEqual(self.finding(subject),
                         ("good", "is not offered, because it has no platform or no pipe", None))

    def test_says_what_is_wrong_with_the_stores_and_values(self):
        (self.installed / "registry/tavlets.reg").write_text("Windows Registry Editor Version 5.00\n")
        state, detail, cure = self.finding("target PalmOS-DragonBall")
        self.assertTrue(detail.startswith("these controls are not registered: "), detail)
        self.assertEqual((state, cure), ("trouble", "Reinstall Fernwick: registry/tavlets.reg registers them."))
        self.install()
        shutil.rmtree(self.installed / "VB Toolkit/Runtime/PalmOS")
        self.assertEqual(self.finding("target PalmOS-DragonBall")[2],
                         "Reinstall Fernwick: the runtimes are in VB Toolkit/Runtime.")
        self.install()
        (self.installed / "maker.toml").write_text("= broken")
        state, detail, cure = self.finding("maker.toml")
        self.assertRegex(detail, r"maker\.toml:1: ")
        self.assertEqual((state, cure), ("trouble", "Reinstall Fernwick: maker.toml is part of it."))
        store = self.home.folder / "config/fernwick/user.sqlite"
        store.parent.mkdir(parents=True, exist_ok=True)
        store.write_bytes(b"no store")
        self.assertEqual(self.finding("user's store")[2],
                         "Restore a copy of the file, or move it away: a new one is created when needed.")

    def test_names_missing_and_damaged_runtimes(self):
        (self.installed / "VB Toolkit/Runtime/Common/errors.txt").unlink()
        shutil.rmtree(self.installed / "VB Toolkit/Runtime/PalmOS")
        found = "\n".join(self.troubles())
        self.assertIn("target PalmOS-DragonBall: This installation has no runtime for PalmOS", found)
        self.assertRegex(found, "target PocketPC-ARM: The runtime .*errors.txt is missing or cannot be read")

    def test_reports_files_in_place_of_folders(self):
        for part in ("Fonts", "registry", "targets", "tavlets"):
            with self.subTest(part):
                self.install()
                shutil.rmtree(self.installed / part)
                (self.installed / part).write_text("a file")
                self.assertNotEqual(self.troubles(), [])

    def test_survives_damaged_files(self):
        noise = random.Random(1)
        for path in sorted(p for p in self.installed.rglob("*") if p.is_file()):
            if str(path.relative_to(self.installed)).startswith(KEPT):
                continue
            whole = path.read_bytes()
            for damaged in (whole[:len(whole) // 2], whole[:100] + noise.randbytes(300)):
                with self.subTest(path.name, bytes=len(damaged)):
                    path.write_bytes(damaged)
                    self.examine()
            path.write_bytes(whole)

    def test_names_damaged_stores(self):
        for place, name in (("config/fernwick", "user"), ("machine", "machine")):
            with self.subTest(name):
                folder = self.home.folder / place
                folder.mkdir(parents=True, exist_ok=True)
                for damage in (b"no store", b"SQLite format 3\0" + b"x" * 4096):
                    (folder / f"{name}.sqlite").write_bytes(damage)
                    self.assertIn(f"{name}'s store", "\n".join(self.troubles()))
                (folder / f"{name}.sqlite").unlink()
                (folder / f"{name}.sqlite").mkdir()
                self.assertIn(f"{name}'s store", "\n".join(self.troubles()))
                (folder / f"{name}.sqlite").rmdir()

    @unittest.skipUnless(CAN_DROP_ROOT, "root may write everything: install setpriv")
    def test_says_which_store_is_read_only(self):
        expected = {}
        for key, name, state, cure in (
                ("HKEY_CURRENT_USER", "user", "trouble", "Give yourself write access to it and its folder, or set XDG_CONFIG_HOME."),
                ("HKEY_LOCAL_MACHINE", "machine", "warning",
                 "Give your group write access to it and its folder, or set FERNWICK_MACHINE_STORE.")):
            self.home.run(self.program, "registry", "set", rf"{key}\Software\Mine", "Name", "value", check=True)
            file = next(self.home.folder.rglob(f"{name}.sqlite"))
            file.chmod(0o444)
            expected[f"{name}'s store"] = (state, f"{file} is read-only", cure)
        self.home.give_away()
        self.examining = unprivileged(self.examining)
        for subject, finding in expected.items():
            self.assertEqual(self.finding(subject), finding)

    def test_fixes_a_wrong_root_dir(self):
        self.home.run(self.program, "registry", "set", r"HKEY_LOCAL_MACHINE\Software\Quinloft", "RootDir", "/nowhere",
                      check=True)
        _, detail, cure = self.finding("RootDir")
        self.assertEqual(detail, f"is /nowhere, not {self.installed}")
        self.home.run("bash", "-c", cure.replace("fernwick", str(self.program), 1), check=True)
        self.assertEqual(self.troubles(), [])

    def test_fixes_an_empty_root_dir(self):
        self.home.run(self.program, "registry", "set", r"HKEY_LOCAL_MACHINE\Software\Quinloft", "RootDir", "", check=True)
        _, detail, cure = self.finding("RootDir")
        self.assertEqual(detail, "is not stored")
        self.home.run("bash", "-c", cure.replace("fernwick", str(self.program), 1), check=True)
        self.assertEqual(self.troubles(), [])

    def test_names_a_device_that_cannot_be_reached(self):
        place = self.home.work / "devices"
        self.home.env["FERNWICK_DEVICES"] = str(place)
        self.home.run(self.program, "devices", "add", "PalmOS-DragonBall", check=True)
        self.assertEqual(self.troubles(), [])
        place.write_text("no folder")
        self.assertRegex("\n".join(self.troubles()), "^device PalmOS-DragonBall: ")

    def test_fixes_my_devices_without_a_target(self):
        self.home.run(self.program, "devices", "add", "PocketPC-ARM", check=True)
        (self.installed / "targets/PocketPC-ARM.toml").unlink()
        found = next(f for f in self.examine() if f["subject"] == "device PocketPC-ARM")
        self.home.run("bash", "-c", found["cure"].replace("fernwick", str(self.program), 1), check=True)
        self.assertEqual(self.troubles(), [])

    def test_finds_the_installation_through_its_stored_folder(self):
        moved = self.home.work / "moved"
        self.installed.rename(moved)
        self.assertEqual(self.finding("installation")[:2],
                         ("trouble", "was not found beside the program or through RootDir"))
        self.home.run(self.program, "registry", "set", r"HKEY_LOCAL_MACHINE\Software\Quinloft", "RootDir", moved, check=True)
        self.assertEqual(self.finding("installation"), ("good", str(moved), None))
        self.assertIn("PalmOS-DragonBall", self.home.run(self.program, "targets", check=True).stdout)
        gone = self.home.work / "gone"
        moved.rename(gone)
        self.assertEqual(self.finding("installation")[:2], ("trouble", f"{moved} does not exist"))

    def test_new_says_that_the_templates_are_missing(self):
        shutil.rmtree(self.installed / "Template")
        done = self.home.run(self.program, "new", "Shop")
        self.assertEqual(done.returncode, 3)
        self.assertIn("Template/Projects/Fernwick Project.vbp is missing", done.stderr)

    def test_describes_the_runtime_of_a_device(self):
        subject = "device PalmOS-DragonBall"
        place = self.home.work / "devices"
        self.home.env["FERNWICK_DEVICES"] = str(place)
        self.home.run(self.program, "devices", "add", "PalmOS-DragonBall", check=True)
        state, detail, cure = self.finding(subject)
        self.assertRegex(detail, r"^.*/PalmOS-DragonBall, [\d.]+ [KMGT]B free, no runtime$")
        self.assertEqual((state, cure), ("warning", "fernwick install-runtime --device PalmOS-DragonBall"))
        self.home.run("bash", "-c", cure.replace("fernwick", str(self.program), 1), check=True)
        state, detail, cure = self.finding(subject)
        self.assertRegex(detail, r"free, runtime 3\.5\.0 \(0624\)$")
        self.assertEqual((state, cure), ("good", None))
        next(place.rglob("runtime/manifest*")).write_text("broken")
        self.assertRegex(self.finding(subject)[1], r"free, runtime damaged: \S")

    def test_survives_a_damaged_list_of_devices(self):
        self.home.run(self.program, "registry", "set", DEVICES_KEY, "MyDeviceCount", "many", check=True)
        self.examine()


if __name__ == "__main__":
    unittest.main()
