"""One run at a time writes a project."""
import os
import signal
import subprocess
import time
import unittest

from support import Home


class Locking(unittest.TestCase):
    def setUp(self):
        self.home = Home()
        self.home.__enter__()
        self.addCleanup(self.home.__exit__)
        self.project = self.home.sample()
        self.locks = self.home.folder / ".local/state/fernwick/locks"
        self.home.fernwick("build", str(self.project), check=True)

    def start(self, *arguments):
        process = subprocess.Popen(["fernwick", *arguments], cwd=self.home.work, env=self.home.env,
                                   stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True)
        self.addCleanup(process.wait)
        self.addCleanup(process.kill)
        return process

    def slow_build(self):
        """A build that has the lock until the file "go" appears; its step runs when this returns."""
        step = 'sh -c "touch started; until [ -e go ]; do sleep 0.05; done"'
        self.home.fernwick("settings", "set", str(self.project), "PreCompileSteps", step, check=True)
        process = self.start("build", str(self.project), "--trust-steps")
        self.addCleanup(self.end_step)
        while not (self.project.parent / "started").exists():
            self.assertIsNone(process.poll())
            time.sleep(0.01)
        return process

    def end_step(self):
        (self.project.parent / "go").touch()

    def let_go(self, process):
        self.end_step()
        _, err = process.communicate(timeout=60)
        self.assertEqual(process.returncode, 0, err)

    def test_a_second_run_waits_and_says_so(self):
        first = self.slow_build()
        second = self.start("settings", "set", str(self.project), "DefaultFontSize", "9")
        self.assertIn("waiting for another fernwick", second.stderr.readline())
        self.let_go(first)
        _, err = second.communicate(timeout=60)
        self.assertEqual(second.returncode, 0, err)
        self.assertIn(b"DefaultFontSize=9\r\n", self.project.read_bytes())
        self.assertEqual(list(self.locks.iterdir()), [])

    def test_no_wait_fails_at_once(self):
        first = self.slow_build()
        for verb in ("build", "validate", "package", "deploy", "clean"):
            refused = self.home.fernwick(verb, str(self.project), "--no-wait")
            self.assertEqual(refused.returncode, 1, refused.stderr)
            self.assertIn("another fernwick is working on it", refused.stderr)
        for verb, *change in (("settings", "set", "DefaultFontSize", "9"), ("steps", "add", "pre", "true")):
            refused = self.home.fernwick(verb, change[0], str(self.project), *change[1:], "--no-wait")
            self.assertEqual(refused.returncode, 1, refused.stderr)
        self.assertEqual(self.home.fernwick("steps", "list", str(self.project), "--no-wait").returncode, 0)
        converted = self.home.fernwick("convert", str(self.project), "--to", "PocketPC-SH3", "--in-place", "--no-wait")
        self.assertEqual(converted.returncode, 1, converted.stderr)
        self.assertEqual(self.home.fernwick("info", str(self.project)).returncode, 0)
        self.let_go(first)

    def test_another_name_of_the_project_is_locked_too(self):
        first = self.slow_build()
        os.symlink(self.project.parent, self.home.work / "link")
        refused = self.home.fernwick("build", "link/HelloWorld.vbp", "--no-wait")
        self.assertEqual(refused.returncode, 1, refused.stderr)
        self.let_go(first)

    def test_ctrl_c_ends_the_wait(self):
        first = self.slow_build()
        second = self.start("build", str(self.project))
        self.assertIn("waiting for", second.stderr.readline())
        second.send_signal(signal.SIGINT)
        second.communicate(timeout=10)
        self.assertEqual(second.returncode, 130)
        self.let_go(first)

    def test_a_killed_run_leaves_no_lock(self):
        first = self.slow_build()
        first.kill()
        first.wait()
        # the step outlives its build, and has its standard error still open
        done = self.home.fernwick("build", str(self.project), "--no-wait", "--no-steps")
        self.assertEqual(done.returncode, 0, done.stderr)
        self.end_step()
        first.communicate(timeout=60)

    def test_a_step_can_use_the_project(self):
        self.home.fernwick("settings", "set", str(self.project), "PostCompileSteps",
                           "fernwick package HelloWorld.vbp --no-wait --no-steps", check=True)
        done = self.home.fernwick("build", str(self.project), "--trust-steps")
        self.assertEqual(done.returncode, 0, done.stderr)
        self.assertTrue((self.project.parent / "HelloWorld.PalmOS-DragonBall.qlpkg").exists(), done.stderr)

    def test_works_without_a_folder_for_locks(self):
        self.home.env["XDG_STATE_HOME"] = "/dev/null"
        done = self.home.fernwick("build", str(self.project))
        self.assertEqual(done.returncode, 0, done.stderr)

    def test_parallel_runs_all_succeed(self):
        runs = [self.start("build", str(self.project)) for _ in range(6)]
        for run in runs:
            _, err = run.communicate(timeout=60)
            self.assertEqual(run.returncode, 0, err)
            self.assertNotIn("contact", err)


if __name__ == "__main__":
    unittest.main()
