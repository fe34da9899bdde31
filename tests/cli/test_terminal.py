"""Progress bar, colours and questions on a terminal."""
import os
import pty
import select
import signal
import time
import unittest

from support import Home


class Terminal(unittest.TestCase):
    def setUp(self):
        self.home = Home()
        self.home.__enter__()
        self.addCleanup(self.home.__exit__)
        self.project = self.home.sample()

    def at_terminal(self, *arguments, typed="", **environment):
        child, terminal = pty.fork()
        if child == 0:
            os.chdir(self.home.work)
            os.execvpe("fernwick", ["fernwick", *arguments], self.home.env | {"TERM": "xterm"} | environment)
        os.write(terminal, typed.encode())
        shown, deadline = b"", time.monotonic() + 60
        while True:
            ready, _, _ = select.select([terminal], [], [], max(0, deadline - time.monotonic()))
            if not ready:
                os.kill(child, signal.SIGKILL)
                self.fail(f"no output for a minute after: {shown.decode()}")
            try:
                piece = os.read(terminal, 65536)
            except OSError:  # the program has ended
                break
            if not piece:
                break
            shown += piece
        os.close(terminal)
        return os.waitstatus_to_exitcode(os.waitpid(child, 0)[1]), shown.decode()

    def test_shows_a_progress_bar(self):
        status, shown = self.at_terminal("build", str(self.project), typed="\n")
        self.assertEqual(status, 0, shown)
        self.assertIn("[yes/no, Return for Yes]", shown)
        self.assertRegex(shown, r"\r\[#*\.*\] +\d+% ")
        self.assertIn("SUCCESS - Compile and validate completed successfully.", shown)

    def test_uses_colours_unless_no_color_is_set(self):
        form = self.project.parent / "frmHello.frm"
        form.write_bytes(form.read_bytes() + b"Sub x(\r\n")
        _, shown = self.at_terminal("build", str(self.project), typed="\n")
        self.assertIn("\033[31m", shown)
        _, shown = self.at_terminal("build", str(self.project), typed="\n", NO_COLOR="1")
        self.assertNotIn("\033[31m", shown)

    def test_a_percentage_is_shown_once(self):
        _, shown = self.at_terminal("build", str(self.project), typed="\n")
        self.assertNotIn("% completed", shown)
        self.assertRegex(shown, r"\d+% Compiling frmHello.frm")

    def test_color_overrides_the_terminal(self):
        form = self.project.parent / "frmHello.frm"
        form.write_bytes(form.read_bytes() + b"Sub x(\r\n")
        check = ["check", str(self.project)]
        _, shown = self.at_terminal(*check, "--color", "never")
        self.assertNotIn("\033[31m", shown)
        _, shown = self.at_terminal(*check, "--color=always", NO_COLOR="1")
        self.assertIn("\033[31m", shown)
        self.assertIn("\033[31m", self.home.fernwick("--color", "always", *check).stderr)
        self.assertNotIn("\033", self.home.fernwick(*check).stderr)
        self.home.env["CLICOLOR_FORCE"] = "1"
        self.assertIn("\033[31m", self.home.fernwick(*check).stderr)

    def test_simple_terminals_and_build_servers_get_lines(self):
        for variable in ({"TERM": "dumb"}, {"CI": "true"}):
            status, shown = self.at_terminal("build", str(self.project), "--yes", **variable)
            self.assertEqual(status, 0, shown)
            self.assertNotIn("\033", shown)
            self.assertNotIn("[###", shown)
            self.assertIn("Compiling frmHello.frm\r\n", shown)

    def test_a_build_server_is_not_asked(self):
        status, shown = self.at_terminal("build", str(self.project), CI="true")
        self.assertEqual(status, 0, shown)
        self.assertNotIn("Return for", shown)

    def test_asks_once_for_trust(self):
        self.home.fernwick("settings", "set", str(self.project), "PreCompileSteps", "touch ran", "touch too")
        ran = self.project.parent / "ran"
        status, shown = self.at_terminal("build", str(self.project), typed="\n\n\n")
        self.assertIn("  touch ran\r\n  touch too\r\n", shown)
        self.assertFalse(ran.exists())
        status, shown = self.at_terminal("build", str(self.project), typed="\nyes\n")
        self.assertEqual(status, 0, shown)
        self.assertTrue(ran.exists())
        ran.unlink()
        status, shown = self.at_terminal("build", str(self.project))
        self.assertEqual(status, 0, shown)
        self.assertNotIn("Trust this folder", shown)
        self.assertTrue(ran.exists())

    def test_asks_after_a_failed_step(self):
        self.home.fernwick("settings", "set", str(self.project), "PreCompileSteps", "false")
        status, shown = self.at_terminal("build", str(self.project), "--trust-steps", typed="\nyes\n")
        self.assertEqual(status, 0, shown)
        status, shown = self.at_terminal("build", str(self.project), "--trust-steps", typed="\n\n")
        self.assertEqual(status, 1, shown)


if __name__ == "__main__":
    unittest.main()
