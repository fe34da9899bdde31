#pragma once
// From the arguments of the program to the options of one command.
#include "Apps/fernwick/options/options.h"
#include "Apps/fernwick/verbs/verbs.h"

namespace cli {

/// Either a command to run with its options, or a text to print and an exit status.
struct Parsed {
    Options options;
    /// Null when there is only something to print.
    RunVerb run = nullptr;
    std::string output;
    std::string error;
    int status = 0;
};

Parsed parseCommandLine(int argc, const char* const* argv);

} // namespace cli
