#pragma once
#include <CLI/CLI.hpp>
#include <string>

namespace cli {

/// The formatter of all help pages.
std::shared_ptr<CLI::FormatterBase> helpFormatter();

/// The page of `fernwick help answers`.
std::string answersHelp();

} // namespace cli
