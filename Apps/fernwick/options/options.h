#pragma once
// The options and operands of one command.
#include "Apps/fernwick/options/answers.h"
#include "Apps/fernwick/options/color_use.h"
#include "Apps/fernwick/options/verbosity.h"
#include <string>
#include <vector>

namespace cli {

enum class Format { Text, Json, Sarif, Markdown };

struct Options {
    std::string verb;
    /// Project file; "" for the only one in the current folder.
    std::string project;
    /// Files, numbers, or what follows the action.
    std::vector<std::string> operands;
    /// Such as list, get or set.
    std::string action;

    Format format = Format::Text;
    Verbosity verbosity = Verbosity::Normal;
    ColorUse color = ColorUse::Auto;
    /// The folder that SARIF's paths are relative to; "" for the current one.
    std::string sourceRoot;
    Answers answers;
    bool dryRun = false;
    std::string device;
    bool myDevices = false;
    /// `validate` also scans forms.
    bool forms = false;
    std::string depfile;
    bool trustSteps = false;
    bool noSteps = false;
    bool list = false;
    bool verify = false;
    /// Code page of source files that are not UTF-8.
    int codePage = 1252;
};

} // namespace cli
