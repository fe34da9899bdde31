#pragma once
// From the arguments of the program to the options of one command.
#include "Apps/fernwick/options/options.h"
#include "Apps/fernwick/verbs/verbs.h"

namespace cli {

/// A command to run with its options, a text to print, or what is wrong with the command line.
struct Parsed {
    Options options;
    /// Null when there is only something to print.
    RunVerb run = nullptr;
    std::string output;
    /// After a mistake the options have at least the format.
    std::string error;
    /// Where to find help on the mistake.
    std::string hint;
};

Parsed parseCommandLine(int argc, const char* const* argv);

} // namespace cli
