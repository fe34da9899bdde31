#pragma once
// Starting programs and waiting for them.
#include <cstdint>
#include <string>

namespace fernwick {

enum ShowWindow : int { SW_SHOWMINIMIZED = 2 };

class Processes {
public:
    virtual ~Processes() = default;

    /// Whether the program of a command line exists, beside a folder or in PATH.
    virtual bool FindsProgram(const std::string& commandLine, const std::string& workingFolder) const = 0;

    /// `commandLine` is split by the quoting rules of Windows command lines, without a shell. False, and `process` 0,
    /// if the program could not be started or is not allowed.
    virtual bool CreateProcess(const std::string& commandLine, const std::string& workingFolder, int showWindow,
                               std::uint32_t& process) = 0;
    /// Waits until the process has ended, without a time limit. Returns 0 on success.
    virtual std::uint32_t WaitForSingleObject(std::uint32_t process) = 0;
    virtual bool GetExitCodeProcess(std::uint32_t process, std::int32_t& code) = 0;
    virtual void CloseHandle(std::uint32_t process) = 0;
};

} // namespace fernwick
