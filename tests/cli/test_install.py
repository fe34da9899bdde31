"""The installed program works without the source tree."""
import gzip
import os
import pathlib
import shutil
import subprocess
import unittest

from support import PROGRAM, VERSION, Home

BUILD = pathlib.Path(os.environ.get("FERNWICK_BUILD", PROGRAM.parent.parent.parent))


class Install(unittest.TestCase):
    def test_installed_program_finds_its_own_tree(self):
        with Home() as home:
            prefix = home.folder / "usr"
            home.run("cmake", "--install", BUILD, "--prefix", prefix, check=True)
            program = prefix / "bin/fernwick"
            samples = prefix / "share/fernwick/VB Toolkit/Samples"
            self.assertFalse(samples.is_symlink())
            self.assertTrue((prefix / "share/fernwick/VB Toolkit/Bin/welcome.jpg").is_file())
            for completion in ("bash-completion/completions/fernwick", "zsh/vendor-completions/_fernwick",
                               "fish/vendor_completions.d/fernwick.fish"):
                self.assertTrue((prefix / "share" / completion).is_file())
            page = gzip.decompress((prefix / "share/man/man1/fernwick.1.gz").read_bytes()).decode()
            self.assertIn(f"\n.Os Fernwick {VERSION}\n", page)
            changes = gzip.decompress((prefix / "share/doc/fernwick/changelog.gz").read_bytes()).decode()
            self.assertTrue(changes.startswith(f"fernwick ({VERSION}) "), changes)

            shutil.copytree(samples / "HelloWorld", home.work / "HelloWorld")
            target = prefix / "share/fernwick/targets/PalmOS-DragonBall.toml"
            target.write_text(target.read_text().replace('"&Palm OS"', '"&Palm OS as installed"'))
            self.assertIn("Palm OS as installed", home.run(program, "targets", check=True).stdout)
            built = home.run(program, "build", "HelloWorld/HelloWorld.vbp", stderr=subprocess.STDOUT,
                             stdout=subprocess.PIPE, capture_output=False)
            self.assertEqual(built.returncode, 0, built.stdout)


if __name__ == "__main__":
    unittest.main()
