#include "Apps/fernwick/command_line/verb_line.h"
#include <fmt/format.h>

namespace cli {

namespace {

void addCommon(CLI::App& verb, Raw& raw, Result result) {
    std::vector<std::string> formats{"text", "json"};
    if (result == Result::Messages) formats.push_back("sarif");
    if (result == Result::Pages) formats.push_back("markdown");
    verb.add_option("--format", raw.format,
                    "Output format: text" + (formats.size() == 2 ? " or json" : ", json or " + formats.back()))
        ->check(CLI::IsMember(formats))
        ->type_name("FORMAT");
    verb.add_flag("-q,--quiet", raw.quiet, "Print only errors and data");
    verb.add_flag("-v,--verbose", raw.verbose, "Print more details");
}

} // namespace

CLI::App& addVerb(CLI::App& app, Raw& raw, const char* name, RunVerb run, const char* purpose,
                  const std::string& example, Result result) {
    auto& verb = *app.add_subcommand(name, purpose);
    verb.footer(fmt::format("Example:\n  {}\n\n{}", example, kExitText));
    verb.callback([&raw, name, run] {
        raw.options.verb = name;
        raw.run = run;
    });
    addCommon(verb, raw, result);
    return verb;
}

void addProject(CLI::App& verb, Raw& raw) {
    verb.add_option("PROJECT", raw.options.project, "Project file (default: the only .vbp file in the current folder)");
}

void addAnswers(CLI::App& verb, Raw& raw) {
    verb.add_flag("-y,--yes", raw.yes, "Answer yes to every question");
    verb.add_flag("--no", raw.no, "Answer no to every question")->excludes("--yes");
    verb.add_option("--answer", raw.answers, "Answer one question: NAME=yes|no|cancel|ok (see fernwick help answers)")
        ->type_name("NAME=REPLY");
}

void addSteps(CLI::App& verb, Raw& raw) {
    verb.add_flag("--trust-steps", raw.options.trustSteps, "Run the project's compile steps without asking");
    verb.add_flag("--no-steps", raw.options.noSteps, "Skip the project's compile steps")->excludes("--trust-steps");
}

void addOutput(CLI::App& verb, Raw& raw) {
    verb.add_option("--output", raw.options.output,
                    "Folder for image, package and results; nothing is stored in the project")
        ->type_name("DIR");
    verb.add_flag("--no-store", raw.options.noStore, "Store nothing in the project file");
}

void addNoWait(CLI::App& verb, Raw& raw) {
    verb.add_flag("--no-wait", raw.options.noWait, "Fail if another run writes the project, instead of waiting");
}

void addDryRun(CLI::App& verb, Raw& raw) {
    verb.add_flag("-n,--dry-run", raw.options.dryRun, "Show what would change, without writing anything")
        ->excludes("--format");
}

} // namespace cli
