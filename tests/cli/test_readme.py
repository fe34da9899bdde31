"""The transcript in the README is the output of the program."""
import re
import shutil
import subprocess
import unittest

from support import APPROVE, ROOT, Home

README = ROOT / "README.md"
BLOCK = re.compile(r"```console\n(.*?)```", re.S)


class Readme(unittest.TestCase):
    def test_transcript(self):
        readme = README.read_text(encoding="utf-8")
        written = BLOCK.search(readme).group(1)
        commands = [line[2:] for line in written.splitlines() if line.startswith("$ ")]
        with Home() as home:
            shutil.copytree(ROOT / "samples", home.work / "samples")
            printed = ""
            for command in commands:
                done = home.run("bash", "-c", command, stderr=subprocess.STDOUT, stdout=subprocess.PIPE,
                                capture_output=False)
                printed += f"$ {command}\n" + home.normal(done.stdout).replace("WORK/", "/home/you/")
        if APPROVE and printed != written:
            README.write_text(readme.replace(written, printed), encoding="utf-8")
            return
        self.assertEqual(written, printed)


if __name__ == "__main__":
    unittest.main()
