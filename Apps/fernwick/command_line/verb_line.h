#pragma once
// Helpers for the definitions of the commands.
#include "Apps/fernwick/options/options.h"
#include "Apps/fernwick/verbs/verbs.h"
#include <CLI/CLI.hpp>

namespace cli {

/// Values as CLI11 stores them, before they become Options.
struct Raw {
    Options options;
    RunVerb run = nullptr;
    std::string format = "text";
    std::vector<std::string> answers;
    bool yes = false, no = false, quiet = false, verbose = false;
};

inline constexpr const char* kExitText = "Exit status: 0 success, 1 errors in the project, 2 wrong usage,\n"
                                         "3 a problem with the installation or the system, 130 interrupted;\n"
                                         "4 some of My Devices failed, 5 all of them failed.";

/// Commands that report messages can write SARIF, and the one that documents messages can write Markdown.
enum class Result { Data, Messages, Pages };

/// Adds a command with --format, --quiet and --verbose.
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
/// --dry-run of a command that only writes.
void addDryRun(CLI::App& verb, Raw& raw);

// The commands in the order of `fernwick help`.
void defineProjectVerbs(CLI::App& app, Raw& raw);
void defineReadingVerbs(CLI::App& app, Raw& raw);
void defineStoringVerbs(CLI::App& app, Raw& raw);
void defineToolVerbs(CLI::App& app, Raw& raw);

} // namespace cli
