#pragma once
// Programs that are started and waited for.
#include "Add-in/platform/processes.h"
#include <functional>
#include <map>
#include <string>
#include <sys/types.h>

namespace host {

/// A program gets nothing on its standard input and writes to our standard error. Ctrl+C, SIGTERM and SIGHUP that
/// come while it is waited for go to it and to all that it started; who has not ended after two seconds is killed.
/// The signal is then raised again, for whoever else waits for it.
class Processes : public fernwick::Processes {
public:
    /// Whether a command line may be run in a folder: a project's steps need the user's trust.
    using Permission = std::function<bool(const std::string& commandLine, const std::string& folder)>;

    /// Whether Ctrl+C came before the wait for a program began: the program is then ended as if it came now.
    using Interrupted = std::function<bool()>;

    explicit Processes(
        Permission mayRun, Interrupted interrupted = [] { return false; })
        : mayRun_(std::move(mayRun)), interrupted_(std::move(interrupted)) {}

    bool CreateProcess(const std::string& commandLine, const std::string& workingFolder, int showWindow,
                       std::uint32_t& process) override;
    std::uint32_t WaitForSingleObject(std::uint32_t process) override;
    /// 259 while it runs, 128 and the signal's number for one that a signal ended. False for an unknown handle.
    bool GetExitCodeProcess(std::uint32_t process, std::int32_t& code) override;
    void CloseHandle(std::uint32_t process) override { started_.erase(process); }

private:
    struct Started {
        pid_t id = 0;
        std::int32_t code = 0;
        bool ended = false;
    };
    static void look(Started& at);

    Permission mayRun_;
    Interrupted interrupted_;
    std::map<std::uint32_t, Started> started_;
    std::uint32_t lastHandle_ = 0;
};

} // namespace host
