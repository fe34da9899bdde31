"""JSON results match their schemas, and SARIF contains what viewers need."""
import json
import unittest
import zipfile

import jsonschema

from support import ROOT, Home

BREAK = "\r\nSub Broken()\r\n  x = = 1\r\nEnd Sub\r\n"


def schema(name):
    loaded = json.loads((ROOT / "installation/schemas" / f"{name}-1.json").read_text())
    jsonschema.Draft7Validator.check_schema(loaded)
    return jsonschema.Draft7Validator(loaded)


def regions(done):
    """Where the findings of a SARIF document are."""
    results = json.loads(done.stdout)["runs"][0]["results"]
    return [result["locations"][0]["physicalLocation"]["region"] for result in results]


class Schemas(unittest.TestCase):
    def setUp(self):
        self.home = Home()
        self.home.__enter__()
        self.addCleanup(self.home.__exit__)
        self.project = self.home.sample()

    def fernwick_json(self, *arguments, status=0):
        done = self.home.fernwick(*arguments, "--format", "json")
        self.assertEqual(done.returncode, status, done.stderr)
        return json.loads(done.stdout)

    def fits(self, name, *arguments, status=0):
        result = self.fernwick_json(*arguments, status=status)
        errors = [f"{error.json_path}: {error.message}" for error in schema(name).iter_errors(result)]
        self.assertEqual(errors, [], json.dumps(result, indent=1))
        return result

    def broken(self):
        form = self.project.parent / "frmHello.frm"
        with form.open("ab") as file:
            file.write(BREAK.encode())

    def test_reports_of_projects(self):
        good = self.fits("report", "build", str(self.project))
        self.assertTrue(good["image"].endswith("HelloWorld.0000.qlx"))
        self.fits("report", "messages", str(self.project))
        self.fits("report", "check", str(self.project))
        self.fits("report", "build", "missing.vbp", status=2)
        self.fits("report", "check", "missing.vbp", status=2)
        self.broken()
        bad = self.fits("report", "build", str(self.project), status=1)
        self.assertEqual([m["severity"] for m in bad["messages"]], ["error"])
        self.fits("report", "messages", str(self.project))
        self.fits("report", "check", str(self.project), status=1)

    def test_reports_of_devices(self):
        project = str(self.project)
        self.fits("report", "validate", project, "--forms")
        packed = self.fits("report", "package", project)["devices"][0]
        self.assertTrue(packed["good"])
        sent = self.fits("report", "deploy", project)["devices"][0]
        self.assertEqual([m["number"] for m in sent["messages"]], [3100])
        self.assertIn("HelloWorld.0000.qlx", " ".join(sent["places"]))
        self.fits("report", "install-runtime", "--device", "PalmOS-DragonBall")
        self.home.fernwick("devices", "add", "PalmOS-DragonBall", "LinuxHandheld-ARM")
        mixed = self.fits("report", "deploy", project, "--my-devices", status=4)["devices"]
        self.assertEqual([d["good"] for d in mixed], [True, False])
        listed = self.fits("package-listing", "package", "--list", packed["places"][0])
        self.fits("package-listing", "package", "--verify", packed["places"][0])
        self.assertEqual(listed["device"], "PalmOS-DragonBall")
        sarif = self.home.fernwick("deploy", project, "--my-devices", "--format", "sarif")
        results = json.loads(sarif.stdout)["runs"][0]["results"]
        self.assertEqual([r["ruleId"] for r in results], ["FW20300"])

    def test_failures_of_other_commands_are_reports(self):
        for verb in (["info"], ["settings", "list"], ["messages"]):
            self.fits("report", *verb, "missing.vbp", status=2)
        self.fits("report", "registry", "get", "HKEY_NOWHERE\\x", status=2)

    def test_other_results(self):
        self.fits("info", "info", str(self.project))
        self.fits("info", "info", "--verify", str(self.project))
        self.fits("settings", "settings", "list", str(self.project))
        self.fits("settings", "settings", "get", str(self.project), "TargetDevice")
        self.fits("recent", "recent")
        self.fits("targets", "targets")
        self.fits("version", "version")
        self.fits("explain", "explain")
        self.fits("explain", "explain", "1300", "2999")
        key = r"HKEY_CURRENT_USER\Software\Quinloft"
        self.home.fernwick("registry", "set", key, "Name", "value")
        self.fits("registry", "registry", "get", key)
        self.fits("registry", "registry", "export", key)

    def test_programs(self):
        folder = self.home.work / "Program"
        folder.mkdir()
        (folder / "Program.vbp").write_text('Type=Exe\nModule=TestIt; It.bas\nStartup="Sub Main"\n')
        (folder / "It.bas").write_text('Attribute VB_Name = "TestIt"\nPublic Sub TestGood()\nEnd Sub\nPublic Sub TestBad()\n'
                                       "Main\nEnd Sub\nSub Main()\nDebug.Print 1\nError 5\nEnd Sub\n")
        project = str(folder / "Program.vbp")
        ran = self.fits("run", "run", project, "--leaks", "--profile", status=1)
        self.assertEqual((ran["output"], ran["error"]["callers"][0]["line"]), (" 1 \n", 9))
        self.assertTrue(self.fits("run", "run", project, "--budget", "1", "--seed", "7", status=3)["stopped"])
        tested = self.fits("test", "test", project, status=1)
        self.assertEqual([(one["name"], one["passed"]) for one in tested["tests"]], [("TestGood", True), ("TestBad", False)])
        self.assertEqual(self.fits("test", "test", project, "--filter", "Good")["failures"], 0)

    def test_devices_and_doctor(self):
        self.fits("devices", "devices")
        self.home.fernwick("devices", "add", "PalmOS-DragonBall", "LinuxHandheld-ARM")
        self.home.fernwick("devices", "set", "LinuxHandheld-ARM", "Port=77")
        listed = {d["key"]: d for d in self.fits("devices", "devices", "list")["devices"]}
        self.assertTrue(listed["PalmOS-DragonBall"]["mine"])
        self.assertFalse(listed["PocketPC-ARM"]["mine"])
        self.assertEqual(listed["LinuxHandheld-ARM"]["settings"], {"Port": "77"})
        found = self.fits("doctor", "doctor", status=3)  # one of My Devices has no host
        self.assertFalse(found["usable"])
        self.assertIn("cure", next(f for f in found["findings"] if f["subject"] == "device LinuxHandheld-ARM"))

    def test_groups_and_clean(self):
        group = self.project.parent / "All.vbg"
        group.write_bytes(b"VBGROUP 5.0\r\nStartupProject=HelloWorld.vbp\r\n")
        built = self.fits("report", "build", str(group))["projects"]
        self.assertEqual([member["exitStatus"] for member in built], [0])
        image = str(self.project.parent / "HelloWorld.0000.qlx")
        contents = self.fits("image", "image", image)
        self.assertEqual((contents["image"], contents["project"]), (image, "HelloWorld"))
        stored = self.fits("image", "image", str(ROOT / "fuzz/corpus/image_code/program.qlx"), "--code", "Main")
        self.assertIn("CallNative", stored["procedures"][0]["code"])
        self.assertNotIn("code", stored["procedures"][1])
        self.assertEqual(self.fits("clean", "clean", "--dry-run", str(group))["deleted"], [image])
        self.assertEqual(self.fits("clean", "clean", str(self.project))["deleted"], [image])

    def test_conversions(self):
        project = str(self.project)
        same = self.fits("convert", "convert", project, "--to", "PalmOS-DragonBall", "--in-place")
        self.assertEqual((same["converted"], "backup" in same), (False, False))
        copy = self.fits("convert", "convert", project, "--to", "PocketPC-SH3", "--output", str(self.home.work / "new/A"))
        self.assertEqual((copy["project"], copy["device"]), (str(self.home.work / "new/A.vbp"), "PocketPC-SH3"))
        copy = self.fits("convert", "convert", project, "--to", "PocketPC-SH3", "--output", "new/A.vbp", "--dry-run")
        self.assertEqual({(file["missing"], file["replaces"], file["outside"]) for file in copy["plan"]["files"]},
                         {(False, True, False)})
        planned = self.fits("convert", "convert", project, "--to", "PocketPC-SH3", "--in-place", "--dry-run")
        self.assertEqual((planned["converted"], planned["plan"]["files"]), (False, []))
        changed = self.fits("convert", "convert", project, "--to", "PocketPC-SH3", "--in-place")
        self.assertEqual((changed["converted"], changed["backup"]), (True, project + ".bak"))

    def test_upgrades(self):
        present = self.project.read_bytes()
        self.assertFalse(self.fits("upgrade", "upgrade", str(self.project))["upgraded"])
        old = present.replace(b"ProjectVersion=3.5", b"OldOption=7")
        self.project.write_bytes(old)
        done = self.fits("upgrade", "upgrade", str(self.project))
        self.assertEqual((done["upgraded"], done["unknownLines"]), (True, ["OldOption=7"]))
        self.assertEqual(self.project.with_name("HelloWorld.vbp.bak").read_bytes(), old)

    def test_new_projects(self):
        made = self.fits("new", "new", "Game", "--device", "PalmOS-DragonBall")
        self.assertEqual(made["files"], [str(self.home.work / "Game" / name) for name in ("Form1.frm", "Game.vbp")])
        self.assertEqual((made["project"], made["device"]), (made["files"][1], "PalmOS-DragonBall"))

    def test_adoptions(self):
        same = self.fits("init", "init", str(self.project))
        self.assertEqual((same["written"], same["added"]), (False, []))
        own = self.project.read_bytes().split(b"[Quinloft Global]")[0]
        self.project.write_bytes(own)
        form = self.project.with_name("frmHello.frm")
        form.write_bytes(form.read_bytes().replace(b"TavletsCtl.QLButton", b"VB.CommandButton", 1) + BREAK.encode())
        init = ("init", str(self.project), "--device", "PalmOS-DragonBall")
        shown = self.fits("init", *init, status=1)
        self.assertEqual((shown["written"], self.project.read_bytes()), (False, own))
        self.assertEqual([control["class"] for control in shown["controls"]], ["VB.CommandButton"])
        self.assertTrue([message for message in shown["messages"] if message["severity"] == "error"])
        done = self.fits("init", *init, "--yes")
        self.assertEqual((done["written"], done["added"]), (True, shown["added"]))
        self.assertIn("TargetDevice=PalmOS-DragonBall", done["added"])

    def test_steps_and_trust(self):
        changed = self.fits("steps", "steps", str(self.project), "add", "pre", "one", "two")
        self.assertEqual((changed["preCompileSteps"], changed["postCompileSteps"]), (["one", "two"], []))
        self.assertEqual(self.fits("steps", "steps", str(self.project)), changed)
        folder = str(self.project.parent)
        self.assertEqual(self.fits("trust", "trust", folder)["folders"], [{"folder": folder, "trusted": False}])
        self.fits("trust", "trust", "add", str(self.project))
        self.assertEqual(self.fits("trust", "trust")["folders"], [{"folder": folder, "trusted": True}])

    def test_dependencies(self):
        self.fits("dependencies", "dependencies", str(self.project))
        (self.project.parent / "prices.pdb").write_text("12345")
        self.home.fernwick("dependencies", str(self.project), "add", str(self.project.parent / "prices.pdb"))
        listed = self.fits("dependencies", "dependencies", str(self.project), "list")["dependencies"]
        self.assertEqual(listed, [{"name": "prices.pdb", "type": "PDB", "size": 5, "missing": False}])
        (self.project.parent / "prices.pdb").unlink()
        missing = self.fits("dependencies", "dependencies", str(self.project))["dependencies"][0]
        self.assertEqual((missing["size"], missing["missing"]), (None, True))

    def test_packages(self):
        self.fits("report", "package", str(self.project))
        package = self.project.with_suffix(".PalmOS-DragonBall.qlpkg")
        self.fits("package-listing", "package", str(package), "--list")
        self.fits("package-listing", "package", str(package), "--verify")
        with zipfile.ZipFile(package) as opened:
            name = next(n for n in opened.namelist() if n.endswith("manifest.json"))
            manifest = json.loads(opened.read(name))
        self.assertEqual([e.message for e in schema("package").iter_errors(manifest)], [])

    def test_sarif(self):
        self.broken()
        for verb in ("build", "check", "messages"):
            done = self.home.fernwick(verb, str(self.project), "--format", "sarif")
            run = json.loads(done.stdout)["runs"][0]
            self.assertEqual(run["tool"]["driver"]["name"], "fernwick")
            result = run["results"][0]
            self.assertRegex(result["ruleId"], r"^FW\d+$")
            rule = next(r for r in run["tool"]["driver"]["rules"] if r["id"] == result["ruleId"])
            self.assertTrue(rule["help"]["text"])
            self.assertRegex(rule["name"], r"^([A-Z][a-z]+)+$")
            self.assertEqual(rule["helpUri"], f"https://www.quinloft.example/messages/{rule['id'][2:]}.html")
            self.assertEqual(run["tool"]["driver"]["informationUri"], "https://www.quinloft.example/")
            self.assertEqual(run["automationDetails"]["id"], f"fernwick-{verb}/")
            self.assertTrue(run["invocations"][0]["executionSuccessful"])
            place = result["locations"][0]["physicalLocation"]
            self.assertEqual(place["artifactLocation"], {"uri": "HelloWorld/frmHello.frm", "uriBaseId": "SRCROOT"})
            self.assertEqual(run["originalUriBaseIds"]["SRCROOT"]["uri"], self.home.work.as_uri() + "/")
            if verb != "messages":  # stored messages have only the code window's lines
                self.assertGreater(place["region"]["startLine"], 1)
                self.assertGreater(place["region"]["startColumn"], 1)
                self.assertGreater(place["region"]["endColumn"], place["region"]["startColumn"])
        failed = self.home.fernwick("build", "missing.vbp", "--format", "sarif")
        invocation = json.loads(failed.stdout)["runs"][0]["invocations"][0]
        self.assertFalse(invocation["executionSuccessful"])
        self.assertEqual(invocation["exitCode"], 2)

    def test_sarif_names_files_from_the_source_root(self):
        self.broken()

        def first_uri(root):
            done = self.home.fernwick("check", str(self.project), "--format", "sarif", "--source-root", root)
            location = json.loads(done.stdout)["runs"][0]["results"][0]["locations"][0]
            return location["physicalLocation"]["artifactLocation"]

        self.assertEqual(first_uri("HelloWorld"), {"uri": "frmHello.frm", "uriBaseId": "SRCROOT"})
        (self.home.work / "link").symlink_to(self.home.work)
        self.assertEqual(first_uri("link")["uri"], "HelloWorld/frmHello.frm")
        (self.home.work / "other").mkdir()
        self.assertEqual(first_uri("other"), {"uri": (self.project.parent / "frmHello.frm").as_uri()})

    def test_sarif_ends_a_region_after_the_word(self):
        (self.home.work / "a.bas").write_bytes(b"Sub A()\r\n  x = 1 xyz9_ 2\r\nEnd Sub\r\n")
        done = self.home.fernwick("check", "a.bas", "--format", "sarif")
        self.assertIn({"startLine": 2, "startColumn": 9, "endColumn": 14}, regions(done))

    def test_sarif_ends_regions_of_standard_input(self):
        done = self.home.fernwick("check", "-", "--format", "sarif", input="Sub A()\n  x = 1 xyz9_ 2\nEnd Sub\n", stdin=None)
        self.assertIn({"startLine": 2, "startColumn": 9, "endColumn": 14}, regions(done))

    def test_sarif_counts_characters_of_the_code_page(self):
        line = "    計算 = 數量 數量\r\n".encode("big5")
        (self.home.work / "a.bas").write_bytes(b"Sub A()\r\n" + line + b"End Sub\r\n")
        done = self.home.fernwick("check", "a.bas", "--code-page", "950", "--format", "sarif")
        end = {"startLine": 2, "startColumn": 13, "endColumn": 15}
        self.assertEqual(regions(done), [end])
        form = self.project.parent / "frmHello.frm"
        head = form.read_bytes().count(b"\r\n")
        form.write_bytes(form.read_bytes() + b"\r\nSub A()\r\n" + line + b"End Sub\r\n")
        done = self.home.fernwick("build", str(self.project), "--code-page", "950", "--format", "sarif")
        self.assertEqual(regions(done), [end | {"startLine": head + 3}])

    def test_commands_that_only_change_something_have_a_document(self):
        project = str(self.project)
        (self.project.parent / "prices.pdb").write_text("12345")
        for arguments in (["dependencies", project, "add", str(self.project.parent / "prices.pdb")],
                          ["devices", "add", "PalmOS-DragonBall"], ["devices", "remove", "palmos-dragonball"],
                          ["registry", "set", r"HKEY_CURRENT_USER\Software\Quinloft", "Name", "value"]):
            report = self.fits("report", *arguments)
            self.assertEqual((report["verb"], report["exitStatus"], report["failure"]), (arguments[0], 0, None))
        change = self.fits("settings-changes", "settings", "set", project, "DefaultFontSize", "9")
        self.assertEqual([(c["name"], c["after"], change["dryRun"]) for c in change["changes"]],
                         [("DefaultFontSize", "9", False)])

    def test_dry_runs_have_a_document(self):
        project = str(self.project)
        plan = self.fits("build-plan", "build", "-n", project)
        self.assertTrue(plan["image"].endswith("HelloWorld.0000.qlx"))
        self.assertEqual([s.split("/")[-1] for s in plan["sources"]], ["frmHello.frm"])
        group = self.project.parent / "All.vbg"
        group.write_bytes(b"VBGROUP 5.0\r\nStartupProject=HelloWorld.vbp\r\nProject=none.vbp\r\n")
        plans = self.fits("build-plan", "build", "-n", str(group), status=1)
        self.assertEqual((plans["project"], plans["exitStatus"]), (str(group), 1))
        for key in ("project", "device", "sources", "libraries", "steps", "image"):
            self.assertEqual(plans["projects"][0][key], plan[key])
        self.assertEqual(plans["projects"][1]["failure"], f"{self.project.parent}/none.vbp: file not found")
        self.assertFalse((self.project.parent / "HelloWorld.0000.qlx").exists())
        change = self.fits("settings-changes", "settings", "set", "-n", project, "PreCompileSteps", "a", "b")
        self.assertEqual((change["dryRun"], change["changes"][0]["after"]), (True, ["a", "b"]))
        key = r"HKEY_CURRENT_USER\Software\Quinloft"
        values = self.fits("registry", "registry", "set", "-n", key, "Name", "value")["values"]
        self.assertEqual([(v["name"], v["value"]) for v in values], [("Name", '"value"')])
        self.fits("report", "registry", "get", key, status=1)

    def test_mistakes_on_the_command_line_have_a_document(self):
        for arguments in (["biuld"], ["build", "--nonsense"], ["build", "-q", "-v"], ["settings"],
                          ["build", "--answer", "x=yes"], ["-q"]):
            report = self.fits("report", *arguments, status=2)
            self.assertTrue(report["failure"])
        first = self.home.fernwick("--format=json", "build", "--nonsense")
        self.assertEqual(json.loads(first.stdout)["verb"], "build")

    def test_migration(self):
        plain = self.fits("migration", "check", str(self.project), "--migrate", "PalmOS-DragonBall")
        self.assertEqual([p["places"] for p in plain["projects"]], [[]])
        form = self.project.parent / "frmHello.frm"
        form.write_bytes(form.read_bytes().replace(b"TavletsCtl.QLButton", b"VB.CommandButton"))
        found = self.fits("migration", "check", str(self.project), "--migrate", "PalmOS-DragonBall")
        self.assertEqual({p["instead"] for p in found["projects"][0]["places"]}, {"Use QLButton"})
        self.broken()
        broken = self.fits("migration", "check", str(self.project), "--migrate", "PalmOS-DragonBall", status=1)
        self.assertTrue(broken["projects"][0]["errors"])
        self.fits("migration", "check", "missing.vbp", "--migrate", "PalmOS-DragonBall", status=2)

    def test_every_schema_is_tested(self):
        # package-1 is the manifest, see test_packages
        self.assertEqual(sorted(p.stem for p in (ROOT / "installation/schemas").glob("*.json")),
                         ["build-plan-1", "clean-1", "convert-1", "dependencies-1", "devices-1", "doctor-1",
                          "explain-1", "image-1", "info-1", "init-1", "migration-1", "new-1", "package-1", "package-listing-1", "recent-1", "registry-1", "report-1", "run-1",
                          "settings-1", "settings-changes-1", "steps-1",
                          "targets-1", "test-1", "trust-1", "upgrade-1", "version-1"])


if __name__ == "__main__":
    unittest.main()
