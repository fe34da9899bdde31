#pragma once
// Finding a program and starting it.
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <sys/types.h>
#include <vector>

namespace host {

/// The program of a command line, found, with its arguments.
struct Program {
    std::string path;
    std::vector<std::string> words; ///< the name as written, then the arguments
};

/// The first reading of `commandLine` whose name is an executable file: as a path from `folder` (either separator, letter
/// case ignored where there is no exact match), then, for the shortest name without a separator, in PATH.
/// Where `dropExe` is set a name that ends in ".exe" is also looked for without it.
std::optional<Program> findProgram(std::string_view commandLine, const std::string& folder, bool dropExe);

/// Starts a program in a session of its own, so that it can be ended with all that it started, with nothing on its
/// standard input and its output on our standard error. 0 when it could not be started.
pid_t startProgram(const Program& program, const std::string& folder);

} // namespace host
