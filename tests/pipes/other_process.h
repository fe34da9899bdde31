#pragma once
// Runs a function in a separate process.
#include <functional>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

namespace test {

#ifdef __SANITIZE_ADDRESS__
inline constexpr bool kHasSanitizer = true;
#else
inline constexpr bool kHasSanitizer = false;
#endif

class OtherProcess {
public:
    /// `work` returns the exit status.
    explicit OtherProcess(const std::function<int()>& work) : id_(::fork()) {
        if (id_ < 0) throw std::runtime_error("no process");
        if (id_ == 0) ::_exit(work());
    }
    OtherProcess(const OtherProcess&) = delete;
    OtherProcess& operator=(const OtherProcess&) = delete;
    ~OtherProcess() {
        if (id_ > 0) wait();
    }

    /// Returns the status from waitpid.
    int wait() {
        int status = 0;
        ::waitpid(std::exchange(id_, 0), &status, 0);
        return status;
    }
    bool succeeds() {
        const int status = wait();
        return WIFEXITED(status) && WEXITSTATUS(status) == 0;
    }
    bool wasKilled() { return WIFSIGNALED(wait()); }

private:
    pid_t id_;
};

} // namespace test
