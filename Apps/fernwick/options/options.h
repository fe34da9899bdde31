#pragma once
// The options and operands of one command.
#include "Apps/fernwick/options/answers.h"
#include "Apps/fernwick/options/color_use.h"
#include "Apps/fernwick/options/verbosity.h"
#include "Basic/code_page.h"
#include <cstdint>
#include <optional>
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
    /// The target in the depfile; "" for the image.
    std::string depfileTarget;
    /// The folder for image, package and results; "" for the project's.
    std::string output;
    /// `convert` changes the project itself, or makes this project file.
    bool inPlace = false;
    std::string newFile;
    /// `new`: the name or path of the template; "" for that of all Fernwick projects.
    std::string templateName;
    /// The project file receives no results.
    bool noStore = false;
    /// Fail if another run writes the project.
    bool noWait = false;
    /// `settings reset` of every setting.
    bool all = false;
    /// `registry get` of the data alone.
    bool bare = false;
    /// `registry export` in regedit's own encoding.
    bool utf16 = false;
    /// Of standard input, for `check -`.
    std::string sourceName = "stdin.bas";
    bool trustSteps = false;
    bool noSteps = false;
    bool list = false;
    bool verify = false;
    /// `image` shows instructions.
    bool code = false;
    /// `check` also warns of what is allowed but seldom meant.
    bool warnsOptionally = false;
    /// Of a program: the first random number's seed, and the instructions after which it is stopped.
    std::optional<std::uint32_t> seed;
    std::optional<std::int64_t> budget;
    std::string files; ///< the folder of a program's files; "" to keep them in memory
    bool leaks = false;
    bool profile = false;
    std::string filter;          ///< a part of the names of tests; "" for all
    std::string junitFile;       ///< "" for none
    std::string migrationDevice; ///< of the report about moving to a device; "" for none
    /// Code page of source files that are not UTF-8; detected if none is given.
    std::optional<basic::CodePage> codePage;
};

} // namespace cli
