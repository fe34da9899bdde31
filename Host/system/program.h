#pragma once
// Finds and starts programs.
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <sys/types.h>
#include <vector>

namespace host {

/// The program that a command line runs.
struct Program {
    std::string path;
    std::vector<std::string> words; ///< the name as written, then the arguments
};

/// Returns the first reading of `commandLine` whose name is an executable file: relative to `folder` (either separator,
/// letter case ignored if there is no exact match), then in PATH for the shortest name if it has no separator. With
/// `dropExe` a name ending in ".exe" is also looked up without it.
std::optional<Program> findProgram(std::string_view commandLine, const std::string& folder, bool dropExe);

/// Starts a program in a new session, so that it can be ended together with its children. Its standard input is empty
/// and its output goes to our standard error. Returns 0 if it could not be started.
pid_t startProgram(const Program& program, const std::string& folder);

} // namespace host
