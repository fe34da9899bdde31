#pragma once
// Runs OpenSSH programs for tests.
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <spawn.h>
#include <stdexcept>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>
#include <vector>

extern char** environ;

namespace test {

/// Runs a program until this object is destroyed. Its output is written to a file.
class RunningProgram {
public:
    RunningProgram(const std::vector<std::string>& command, const std::string& output) {
        std::vector<char*> arguments;
        for (const auto& argument : command) arguments.push_back(const_cast<char*>(argument.c_str()));
        arguments.push_back(nullptr);
        posix_spawn_file_actions_t actions;
        posix_spawn_file_actions_init(&actions);
        posix_spawn_file_actions_addopen(&actions, 0, "/dev/null", O_RDONLY, 0);
        posix_spawn_file_actions_addopen(&actions, 1, output.c_str(), O_WRONLY | O_CREAT | O_APPEND, 0600);
        posix_spawn_file_actions_adddup2(&actions, 1, 2);
        const int problem = ::posix_spawnp(&pid_, arguments[0], &actions, nullptr, arguments.data(), environ);
        posix_spawn_file_actions_destroy(&actions);
        if (problem != 0) throw std::runtime_error("can't start " + command[0]);
    }
    RunningProgram(RunningProgram&& other) noexcept : pid_(std::exchange(other.pid_, 0)) {}
    ~RunningProgram() { stop(); }

    pid_t pid() const { return pid_; }
    /// Returns whether the program has exited.
    bool hasEnded() {
        if (pid_ != 0 && ::waitpid(pid_, nullptr, WNOHANG) == pid_) pid_ = 0;
        return pid_ == 0;
    }
    /// The exit status after it has exited.
    int wait() {
        int status = 0;
        ::waitpid(std::exchange(pid_, 0), &status, 0);
        return status;
    }
    void stop() {
        if (pid_ == 0) return;
        ::kill(pid_, SIGTERM);
        wait();
    }

private:
    pid_t pid_ = 0;
};

/// Runs a program and waits for it.
inline void runProgram(const std::vector<std::string>& command, const std::string& output) {
    if (RunningProgram{command, output}.wait() != 0) throw std::runtime_error(command[0] + " failed");
}

} // namespace test
