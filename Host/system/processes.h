#pragma once
// Child processes that are waited for.
#include "Add-in/platform/processes.h"
#include <functional>
#include <map>
#include <string>
#include <sys/types.h>

namespace host {

/// A program has an empty standard input and writes to our standard error. SIGINT, SIGTERM and SIGHUP received during
/// the wait are forwarded to its process group, which is killed if it has not ended after two seconds. The signal is
/// then raised again for its other handlers.
class Processes : public fernwick::Processes {
public:
    /// Returns whether a command line may be run in a folder: compile steps run only for folders the user has trusted.
    using Permission = std::function<bool(const std::string& commandLine, const std::string& folder)>;

    /// Returns whether Ctrl+C was pressed before the wait began; the program is then ended as if it were pressed now.
    using Interrupted = std::function<bool()>;

    explicit Processes(
        Permission mayRun, Interrupted interrupted = [] { return false; })
        : mayRun_(std::move(mayRun)), interrupted_(std::move(interrupted)) {}

    bool FindsProgram(const std::string& commandLine, const std::string& workingFolder) const override;
    bool CreateProcess(const std::string& commandLine, const std::string& workingFolder, int showWindow,
                       std::uint32_t& process) override;
    std::uint32_t WaitForSingleObject(std::uint32_t process) override;
    /// The code is 259 while the process runs, and 128 plus the number of the signal that ended it. Returns false for
    /// an unknown handle.
    bool GetExitCodeProcess(std::uint32_t process, std::int32_t& code) override;
    void CloseHandle(std::uint32_t process) override { started_.erase(process); }

private:
    struct Started {
        pid_t id = 0;
        std::int32_t code = 0;
        bool ended = false;
    };
    static void poll(Started& child);

    Permission mayRun_;
    Interrupted interrupted_;
    std::map<std::uint32_t, Started> started_;
    std::uint32_t lastHandle_ = 0;
};

} // namespace host
