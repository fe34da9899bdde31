"""An interrupted run, and one whose output is closed, leave no incomplete files."""
import fcntl
import os
import signal
import struct
import subprocess
import termios
import time
import unittest

from support import Home

MODULES, PROCEDURES = 40, 4000


def module(number, procedures):
    body = "".join(f"Public Function f{i}(ByVal a As Long) As Long\r\n    f{i} = a * {i} + 1\r\nEnd Function\r\n"
                   for i in range(procedures))
    return f'Attribute VB_Name = "m{number}"\r\nSub Main{number or ""}()\r\nEnd Sub\r\n{body}'.encode()


def fill(folder, procedures):
    for number in range(MODULES):
        (folder / f"m{number}.bas").write_bytes(module(number, procedures))


def large_project(home):
    """A large project that was built while it was small, so a build does not change its file any more."""
    folder = home.work / "Large"
    folder.mkdir()
    fill(folder, 1)
    lines = ["Type=Exe", *(f"Module=m{m}; m{m}.bas" for m in range(MODULES)), 'Startup="Sub Main"', 'Name="Large"', "",
             "[Quinloft Global]", "IsQuinloftProject=True", "ProjectVersion=3.5", "TargetDevice=PalmOS-DragonBall",
             "numCompileTargets=1", "CompileTarget1=PalmOS-DragonBall", ""]
    project = folder / "Large.vbp"
    project.write_bytes("\r\n".join(lines).encode())
    home.fernwick("build", str(project), check=True)
    (folder / "Large.0000.qlx").unlink()
    fill(folder, PROCEDURES)
    return project


class Interrupt(unittest.TestCase):
    def setUp(self):
        self.home = Home()
        self.home.__enter__()
        self.addCleanup(self.home.__exit__)

    def interrupted(self, project, when, *options, verb="build"):
        before = {p.name: p.read_bytes() for p in project.parent.iterdir()}
        process = subprocess.Popen(["fernwick", verb, str(project), *options], cwd=self.home.work,
                                   env=self.home.env, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                                   stderr=subprocess.PIPE, text=True)
        while when not in (line := process.stderr.readline()):
            self.assertTrue(line, "the run ended before it was interrupted")
        process.send_signal(signal.SIGINT)
        with process:
            out, err = process.communicate(timeout=60)
        self.assertEqual(process.returncode, 130, err)
        self.assertEqual(out, "")
        self.assertIn("interrupted", err)
        self.assertEqual({p.name: p.read_bytes() for p in project.parent.iterdir()}, before)
        self.assertEqual(self.home.left_behind(), [])

    def test_build_leaves_the_project_unchanged(self):
        self.interrupted(large_project(self.home), "Compiling m2.bas")

    def test_a_second_ctrl_c_ends_the_process_at_once(self):
        """A run whose output is not read waits, and does not see that it was interrupted."""
        project = self.home.work / "Endless.vbp"
        project.write_bytes(b'Type=Exe\r\nModule=m; m.bas\r\nStartup="Sub Main"\r\n')
        (self.home.work / "m.bas").write_bytes(b'Sub Main()\r\nDo\r\nDebug.Print String$(999, "x")\r\nLoop\r\nEnd Sub\r\n')
        process = subprocess.Popen(["fernwick", "run", str(project)], env=self.home.env, stdin=subprocess.DEVNULL,
                                   stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
        self.addCleanup(process.communicate)
        self.addCleanup(process.kill)
        self.wait_until_blocked(process.stdout)
        process.send_signal(signal.SIGINT)
        time.sleep(0.2)
        self.assertIsNone(process.poll())
        process.send_signal(signal.SIGINT)
        self.assertEqual(process.wait(30), -signal.SIGINT)

    def wait_until_blocked(self, pipe):
        """Until a pipe that is not read takes no more."""
        before, size = -1, 0
        while size == 0 or size != before:
            time.sleep(0.2)
            before, size = size, struct.unpack("i", fcntl.ioctl(pipe, termios.FIONREAD, bytes(4)))[0]

    def test_deploy_leaves_the_old_application(self):
        project = self.home.sample()
        self.home.fernwick("install-runtime", "--device", "PocketPC-ARM", check=True)
        deploy = ["deploy", str(project), "--device", "PocketPC-ARM"]
        self.home.fernwick(*deploy, check=True)
        device = self.home.folder / "data/fernwick/devices/PocketPC-ARM"
        old = {p: p.read_bytes() for p in device.rglob("*") if p.is_file()}
        self.assertIn("HelloWorld.0000.qlx", [p.name for p in old])
        (project.parent / "long.wav").write_bytes(bytes(24 << 20))
        self.home.fernwick("dependencies", str(project), "add", str(project.parent / "long.wav"), check=True)
        self.interrupted(project, "Sending long.wav", *deploy[2:], verb="deploy")
        self.assertEqual({p: p.read_bytes() for p in device.rglob("*") if p.is_file()}, old)

    def test_compile_step_is_ended(self):
        project = self.home.sample()
        self.home.fernwick("build", str(project), check=True)
        (project.parent / "HelloWorld.0000.qlx").unlink()
        self.home.fernwick("settings", "set", str(project), "PreCompileSteps", "sleep 60")
        self.interrupted(project, "Compiling HelloWorld", "--trust-steps")
        self.interrupted(project, "running: sleep 60", "--trust-steps", "--verbose")

    def test_steps_have_a_status_under_a_parent_that_ignores_sigchld(self):
        project = self.home.sample()
        self.home.fernwick("settings", "set", str(project), "PreCompileSteps", "true")
        process = subprocess.run(["fernwick", "build", str(project), "--trust-steps"], env=self.home.env, timeout=60,
                                 stdin=subprocess.DEVNULL, capture_output=True, text=True,
                                 preexec_fn=lambda: signal.signal(signal.SIGCHLD, signal.SIG_IGN))
        self.assertEqual(process.returncode, 0, process.stderr)

    def test_a_closed_pipe_keeps_the_image(self):
        project = self.home.sample()
        reading, writing = os.pipe()
        os.close(reading)
        process = subprocess.run(["fernwick", "build", str(project)], env=self.home.env, stdout=writing,
                                 stdin=subprocess.DEVNULL, stderr=subprocess.PIPE, text=True)
        os.close(writing)
        self.assertIn(process.returncode, (-signal.SIGPIPE, 3))
        self.assertTrue((project.parent / "HelloWorld.0000.qlx").exists())
        self.assertEqual(self.home.left_behind(), [])


if __name__ == "__main__":
    unittest.main()
