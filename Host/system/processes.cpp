#include "Host/system/processes.h"
#include "Host/files/path_lookup.h"
#include "Host/system/program.h"
#include <cerrno>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <sys/wait.h>

namespace host {
namespace {

using WaitClock = std::chrono::steady_clock;

constexpr std::int32_t kStillActive = 259;
/// Our parent ignored SIGCHLD, which is inherited, so the exit status is lost.
constexpr std::int32_t kUnknownEnd = -1;
constexpr std::uint32_t kWaitFailed = 0xFFFFFFFF;
constexpr auto kTimeToEnd = std::chrono::seconds(2);

std::int32_t exitCodeOf(int state) {
    constexpr int kEndedBySignal = 128;
    return WIFEXITED(state) ? WEXITSTATUS(state) : kEndedBySignal + WTERMSIG(state);
}

/// Receives termination signals and SIGCHLD during its lifetime.
class SignalWait {
public:
    SignalWait() {
        ::sigemptyset(&taken_);
        for (const int number : {SIGINT, SIGTERM, SIGHUP, SIGCHLD}) ::sigaddset(&taken_, number);
        ::pthread_sigmask(SIG_BLOCK, &taken_, &before_);
    }
    SignalWait(const SignalWait&) = delete;
    SignalWait& operator=(const SignalWait&) = delete;
    ~SignalWait() {
        ::pthread_sigmask(SIG_SETMASK, &before_, nullptr);
        if (ending_ != 0) ::raise(ending_);
    }

    /// Waits for a signal and returns the number of a termination signal, otherwise 0. Times out after a moment, since
    /// another thread may receive SIGCHLD.
    int next() {
        constexpr struct timespec kMoment { 0, 50'000'000 };
        const int number = ::sigtimedwait(&taken_, nullptr, &kMoment);
        if (number <= 0 || number == SIGCHLD) return 0;
        return ending_ = number;
    }

private:
    sigset_t taken_, before_;
    int ending_ = 0;
};

std::string nativeFolder(const std::string& workingFolder) {
    std::error_code ignored;
    return PathLookup().find(std::filesystem::current_path(ignored).string(), workingFolder);
}

} // namespace

bool Processes::FindsProgram(const std::string& commandLine, const std::string& workingFolder) const {
    return findProgram(commandLine, nativeFolder(workingFolder), false).has_value();
}

bool Processes::CreateProcess(const std::string& commandLine, const std::string& workingFolder, int,
                              std::uint32_t& process) {
    process = 0;
    const auto folder = nativeFolder(workingFolder);
    const auto program = findProgram(commandLine, folder, false);
    if (!program || !mayRun_(commandLine, folder)) return false;
    const auto id = startProgram(*program, folder);
    if (id == 0) return false;
    process = ++lastHandle_;
    started_[process] = {id, 0, false};
    return true;
}

void Processes::poll(Started& child) {
    if (child.ended) return;
    int state = 0;
    const auto answer = ::waitpid(child.id, &state, WNOHANG);
    if (answer == child.id) child.code = exitCodeOf(state);
    if (answer == -1 && errno == ECHILD) child.code = kUnknownEnd;
    child.ended = answer == child.id || child.code == kUnknownEnd;
}

std::uint32_t Processes::WaitForSingleObject(std::uint32_t process) {
    const auto at = started_.find(process);
    if (at == started_.end()) return kWaitFailed;
    auto& child = at->second;
    SignalWait signals;
    auto killAt = WaitClock::time_point::max();
    const auto end = [&](int ending) {
        ::kill(-child.id, ending);
        killAt = std::min(killAt, WaitClock::now() + kTimeToEnd);
    };
    if (interrupted_()) end(SIGINT);
    for (poll(child); !child.ended; poll(child)) {
        if (const int ending = signals.next(); ending != 0) end(ending);
        if (WaitClock::now() >= killAt) ::kill(-child.id, SIGKILL);
    }
    // A shell makes its background commands ignore interrupts; they must not outlive the interrupted step.
    if (killAt != WaitClock::time_point::max()) ::kill(-child.id, SIGTERM);
    return 0;
}

bool Processes::GetExitCodeProcess(std::uint32_t process, std::int32_t& code) {
    const auto at = started_.find(process);
    if (at == started_.end()) return false;
    poll(at->second);
    code = at->second.ended ? at->second.code : kStillActive;
    return true;
}

} // namespace host
