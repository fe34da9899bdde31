#include "Host/system/processes.h"
#include "tests/host_system/temp_folder.h"
#include <chrono>
#include <csignal>
#include <fstream>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace {

class RunningProcesses : public testing::Test {
protected:
    /// Runs a step like RunProcess: -1 if it cannot be started.
    std::int32_t run(const std::string& commandLine) { return runIn(commandLine, folder.path().string()); }
    std::int32_t runIn(const std::string& commandLine, const std::string& in) {
        std::uint32_t process = 0;
        std::int32_t code = -1;
        if (!processes.CreateProcess(commandLine, in, fernwick::SW_SHOWMINIMIZED, process)) return -1;
        EXPECT_EQ(processes.WaitForSingleObject(process), 0u);
        EXPECT_TRUE(processes.GetExitCodeProcess(process, code));
        processes.CloseHandle(process);
        return code;
    }
    std::string script(const std::string& name, const std::string& text) {
        const auto path = folder.write(name, text);
        std::filesystem::permissions(path, std::filesystem::perms(0755));
        return path;
    }

    TempFolder folder;
    bool allowed = true;
    std::string asked;
    host::Processes processes{[this](const std::string& line, const std::string& in) {
        asked = line + " in " + in;
        return allowed;
    }};
};

} // namespace

TEST_F(RunningProcesses, GiveTheExitCode) {
    EXPECT_EQ(run("true"), 0);
    EXPECT_EQ(run("sh -c \"exit 7\""), 7);
    EXPECT_EQ(run("sh -c \"kill -9 $$\""), 137);
}

TEST_F(RunningProcesses, AMissingProgramGivesMinusOne) {
    EXPECT_EQ(run("no-such-program-anywhere x"), -1);
    EXPECT_EQ(run(""), -1);
    EXPECT_EQ(run("  "), -1);
    folder.write("plain.txt", "no program");
    EXPECT_EQ(run("./plain.txt"), -1);
    script("noformat", "neither a script nor a program");
    EXPECT_EQ(run("./noformat"), -1);
    EXPECT_EQ(runIn("true", (folder / "absent").string()), -1);
    EXPECT_EQ(asked.find("true in"), 0u);
}

TEST_F(RunningProcesses, ThereIsNoShell) {
    EXPECT_EQ(run("touch a;b $HOME *"), 0);
    EXPECT_TRUE(std::filesystem::exists(folder / "a;b"));
    EXPECT_TRUE(std::filesystem::exists(folder / "$HOME"));
    EXPECT_TRUE(std::filesystem::exists(folder / "*"));
    EXPECT_EQ(run("exit 0"), -1);
}

TEST_F(RunningProcesses, RunInTheirFolderAndFindProgramsThere) {
    script("Tools/My Step.sh", "#!/bin/sh\npwd > where\nexit 3\n");
    EXPECT_EQ(run("\"tools\\my step.sh\""), 3);
    EXPECT_EQ(run("Tools\\My Step.sh"), 3); // a name with blanks needs no quotes if the file exists
    EXPECT_EQ(folder.read("where"), folder.path().string() + "\n");
    script("local-step", "#!/bin/sh\nexit 4\n");
    EXPECT_EQ(run("local-step"), 4);
}

TEST_F(RunningProcesses, HaveEmptyInputAndWriteToStandardError) {
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    EXPECT_EQ(run("sh -c \"cat; echo out; echo err >&2\""), 0);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "out\nerr\n");
}

TEST_F(RunningProcesses, AForbiddenProgramIsNotStarted) {
    allowed = false;
    EXPECT_EQ(run("touch ran"), -1);
    EXPECT_EQ(asked, "touch ran in " + folder.path().string());
    EXPECT_FALSE(std::filesystem::exists(folder / "ran"));
}

TEST_F(RunningProcesses, UnknownHandlesFail) {
    std::int32_t code = 0;
    EXPECT_EQ(processes.WaitForSingleObject(99), 0xFFFFFFFFu);
    EXPECT_FALSE(processes.GetExitCodeProcess(99, code));
}

TEST_F(RunningProcesses, ARunningProcessIsStillActive) {
    std::uint32_t process = 0;
    std::int32_t code = 0;
    ASSERT_TRUE(processes.CreateProcess("sleep 0.2", folder.path().string(), 0, process));
    EXPECT_TRUE(processes.GetExitCodeProcess(process, code));
    EXPECT_EQ(code, 259);
    processes.WaitForSingleObject(process);
    EXPECT_TRUE(processes.GetExitCodeProcess(process, code));
    EXPECT_EQ(code, 0);
}

TEST_F(RunningProcesses, AnUnknownExitStatusCountsAsFailed) {
    const auto before = ::signal(SIGCHLD, SIG_IGN);
    EXPECT_EQ(run("true"), -1);
    ::signal(SIGCHLD, before);
}

namespace {

volatile sig_atomic_t interrupted = 0;

/// A child that waits for a step. Its exit code is 50 if the interrupt ended the step, 51 if the step had to be killed.
pid_t waitForStepInAChild(const std::string& step, const std::string& in) {
    const auto child = ::fork();
    if (child != 0) return child;
    ::signal(SIGINT, [](int) { interrupted = 1; });
    // the interrupt may arrive before the wait begins
    host::Processes processes{[](const auto&, const auto&) { return true; }, [] { return interrupted != 0; }};
    std::uint32_t process = 0;
    std::int32_t code = 0;
    processes.CreateProcess(step, in, 0, process);
    processes.WaitForSingleObject(process);
    processes.GetExitCodeProcess(process, code);
    ::_exit(interrupted && code == 128 + SIGINT ? 50 : interrupted && code == 128 + SIGKILL ? 51 : 1);
}

int endOf(pid_t child) {
    int state = 0;
    ::waitpid(child, &state, 0);
    return WIFEXITED(state) ? WEXITSTATUS(state) : -1;
}

void waitForFile(const std::filesystem::path& file) {
    for (int i = 0; i < 500 && !std::filesystem::exists(file); ++i)
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
}

/// A zombie, which its parent has not yet waited for, is not running.
bool isGone(pid_t process) {
    for (int i = 0; i < 200; ++i) {
        std::ifstream status("/proc/" + std::to_string(process) + "/stat");
        std::string id, name, state;
        if (!(status >> id >> name >> state) || state == "Z") return true;
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    return false;
}

} // namespace

TEST_F(RunningProcesses, AnInterruptEndsTheStepAndItsChildren) {
    script("step", "#!/bin/sh\ntouch started\nsleep 60 &\necho $! > sleeper\nwait\n");
    const auto child = waitForStepInAChild("./step", folder.path().string());
    waitForFile(folder / "sleeper");
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
    ::kill(child, SIGINT);
    EXPECT_EQ(endOf(child), 50);
    pid_t sleeper = 0;
    std::ifstream(folder / "sleeper") >> sleeper;
    ASSERT_GT(sleeper, 0);
    EXPECT_TRUE(isGone(sleeper));
}

TEST_F(RunningProcesses, AStepThatIgnoresTheInterruptIsKilled) {
    script("step", "#!/bin/sh\ntrap '' INT\ntouch started\nwhile :; do sleep 0.1; done\n");
    const auto child = waitForStepInAChild("./step", folder.path().string());
    waitForFile(folder / "started");
    ::kill(child, SIGINT);
    EXPECT_EQ(endOf(child), 51);
}
