#pragma once
// The command line as it was given.
#include "Apps/fernwick/answers.h"
#include "Apps/fernwick/console.h"
#include <string>
#include <vector>

namespace cli {

enum class Format { Text, Json, Sarif, Markdown };

struct Options {
    std::string verb;
    /// Project file; "" to look for the one of this folder.
    std::string project;
    /// Files of `check`, or the operands of `settings` and `registry` behind their action.
    std::vector<std::string> operands;
    /// list, get, set, reset, export, import.
    std::string action;

    Format format = Format::Text;
    Verbosity verbosity = Verbosity::Normal;
    Answers answers;
    bool dryRun = false;
    std::string device;
    bool myDevices = false;
    /// `validate` scans forms too.
    bool forms = false;
    std::string depfile;
    bool trustSteps = false;
    bool noSteps = false;
    bool list = false;
    bool verify = false;
    /// Code page of source files that are not UTF-8.
    int codePage = 1252;
};

/// What parsing came to: either options to run with, or a text to print and a status to end with.
struct Parsed {
    Options options;
    bool run = false;
    std::string output;
    std::string error;
    int status = 0;
};

Parsed parseCommandLine(int argc, const char* const* argv);

} // namespace cli
