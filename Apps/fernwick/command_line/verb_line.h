#pragma once
// Helpers for the definitions of the commands.
#include "Apps/fernwick/options/options.h"
#include "Apps/fernwick/verbs/verbs.h"
#include <CLI/CLI.hpp>
#include <span>

namespace cli {

/// Values as CLI11 stores them, before they become Options.
struct Raw {
    Options options;
    RunVerb run = nullptr;
    std::string format = "text", color = "auto";
    std::vector<std::string> answers;
    bool yes = false, no = false, quiet = false, verbose = false;
    /// The formats of the named command.
    std::vector<std::string> formats{"text"};
    /// The commands that take the common options.
    std::vector<std::pair<CLI::App*, std::vector<std::string>>> common;
};

inline constexpr const char* kExitText = "Exit status:\n"
                                         "  0    success\n"
                                         "  1    errors in the project; refused or failed work\n"
                                         "  2    wrong usage, such as an unknown name or a missing file\n"
                                         "  3    a problem with the installation or the system\n"
                                         "  4    some of My Devices failed\n"
                                         "  5    all of My Devices failed\n"
                                         "  130  interrupted";

/// Commands that report messages can write SARIF, and the one that documents messages can write Markdown.
enum class Result { Data, Messages, Pages };

/// Adds --format, --quiet, --verbose and --color.
void addCommon(CLI::App& to, Raw& raw, const std::vector<std::string>& formats);
/// Adds them to each command of addVerb that the arguments name, after the command's own options.
void addCommonToVerbs(Raw& raw, std::span<const char* const> arguments);

/// Adds a command that takes the common options.
CLI::App& addVerb(CLI::App& app, Raw& raw, const char* name, RunVerb run, const char* purpose,
                  const std::string& example, Result result = Result::Data);
void addProject(CLI::App& verb, Raw& raw);
/// --yes, --no and --answer.
void addAnswers(CLI::App& verb, Raw& raw);
/// --trust-steps and --no-steps.
void addSteps(CLI::App& verb, Raw& raw);
/// --output and --no-store.
void addOutput(CLI::App& verb, Raw& raw);
/// --no-wait.
void addNoWait(CLI::App& verb, Raw& raw);
/// --code-page, for each command that opens a project or a source.
void addCodePage(CLI::App& verb, Raw& raw);
/// --dry-run of a command that only writes.
void addDryRun(CLI::App& verb, Raw& raw);

// The commands in the order of `fernwick help`.
void defineProjectVerbs(CLI::App& app, Raw& raw);
void defineReadingVerbs(CLI::App& app, Raw& raw);
void defineStoringVerbs(CLI::App& app, Raw& raw);
void defineToolVerbs(CLI::App& app, Raw& raw);

} // namespace cli
