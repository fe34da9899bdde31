#pragma once
#include <CLI/CLI.hpp>
#include <string>
#include <vector>

namespace cli {

/// Returns what is wrong with the command line, in words of this program instead of the parser's.
std::string usageError(const CLI::App& app, const CLI::ParseError& error);

/// The names of the commands.
std::vector<std::string> verbNames(const CLI::App& app);

/// Accepts one of the names. `what` is their kind, as in "unknown action".
CLI::Validator oneOf(std::string what, std::vector<std::string> names);

} // namespace cli
