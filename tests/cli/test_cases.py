"""Runs each cases/NAME.cmd and compares the output with cases/NAME.golden."""
import concurrent.futures
import os
import subprocess
import unittest

from support import HERE, Home, compare

# Each case has its own home, so cases run in parallel.
WORKERS = os.cpu_count() or 1


def transcript(case):
    with Home() as home:
        script = f"set -u\n. '{HERE}/lib.sh'\n. '{case}'\n"
        done = home.run("bash", "-c", script, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, capture_output=False)
        return home.normal(done.stdout + "".join(f"# left behind: {path}\n" for path in home.left_behind()))


class Cases(unittest.TestCase):
    def test_cases(self):
        wanted = os.environ.get("FERNWICK_CASES", "").split()
        cases = [c for c in sorted((HERE / "cases").glob("*.cmd")) if not wanted or c.stem in wanted]
        self.assertTrue(cases)
        with concurrent.futures.ThreadPoolExecutor(WORKERS) as pool:
            for case, text in zip(cases, pool.map(transcript, cases)):
                with self.subTest(case.stem):
                    compare(self, case.with_suffix(".golden"), text)


if __name__ == "__main__":
    unittest.main()
