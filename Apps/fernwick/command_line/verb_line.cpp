#include "Apps/fernwick/command_line/verb_line.h"
#include "Apps/fernwick/command_line/usage_errors.h"
#include "Apps/fernwick/options/suggestions.h"
#include <algorithm>
#include <fmt/format.h>
#include <string_view>

namespace cli {

namespace {

std::vector<std::string> formatsOf(Result result) {
    if (result == Result::Messages) return {"text", "json", "sarif"};
    if (result == Result::Pages) return {"text", "json", "markdown"};
    return {"text", "json"};
}

/// Returns the error text for a number that is not a code page, "" for others.
std::string refusalOfCodePage(const std::string& text) {
    std::string known;
    for (const auto& page : basic::CodePage::all()) {
        const auto number = std::to_string(page.number);
        if (number == text) return {};
        known += (known.empty() ? "" : ", ") + number;
    }
    return fmt::format("{} is not a known code page; these are known: {}", text, known);
}

} // namespace

void addCommon(CLI::App& to, Raw& raw, const std::vector<std::string>& formats) {
    to.add_option("--format", raw.format, "Output format: " + listedWords(formats))->type_name("FORMAT");
    if (to.get_parent() && std::find(formats.begin(), formats.end(), "sarif") != formats.end())
        to.add_option("--source-root", raw.options.sourceRoot,
                      "Folder that the paths in SARIF are relative to (default: the current folder)")
            ->type_name("FOLDER");
    to.add_flag("-q,--quiet", raw.quiet, "Print only errors and data");
    to.add_flag("-v,--verbose", raw.verbose, "Also print what is read, why something is rebuilt, and times");
    to.add_option("--color", raw.color, "Colored diagnostics: auto, always or never")
        ->type_name("WHEN")
        ->check(oneOf("value", {"auto", "always", "never"}));
}

void addCommonToVerbs(Raw& raw, std::span<const char* const> arguments) {
    for (const auto& [verb, formats] : raw.common)
        if (std::ranges::find(arguments, verb->get_name(), [](const char* each) { return std::string_view(each); }) !=
            arguments.end())
            addCommon(*verb, raw, formats);
}

CLI::App& addVerb(CLI::App& app, Raw& raw, const char* name, RunVerb run, const char* purpose,
                  const std::string& example, Result result) {
    auto& verb = *app.add_subcommand(name, purpose);
    verb.footer("Example:\n  " + example);
    const auto formats = formatsOf(result);
    verb.callback([&raw, name, run, formats] {
        raw.options.verb = name;
        raw.run = run;
        raw.formats = formats;
    });
    raw.common.emplace_back(&verb, formats);
    return verb;
}

void addProject(CLI::App& verb, Raw& raw) {
    verb.add_option("PROJECT", raw.options.project, "Project file (default: the only .vbp file in the current folder)");
}

void addAnswers(CLI::App& verb, Raw& raw) {
    verb.add_flag("-y,--yes", raw.yes, "Answer yes to every question");
    verb.add_flag("--no", raw.no, "Answer no to every question")->excludes("--yes");
    verb.add_option("--answer", raw.answers, "Answer one question: NAME=yes|no|cancel|ok (see fernwick help answers)")
        ->type_name("NAME=REPLY")
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll)
        ->allow_extra_args(false);
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

void addCodePage(CLI::App& verb, Raw& raw) {
    verb.add_option_function<std::string>(
            "--code-page",
            [&raw](const std::string& number) { raw.options.codePage = basic::CodePage(std::stoi(number)); },
            "Code page of files that are not UTF-8 (default: detected)")
        ->check(refusalOfCodePage)
        ->type_name("N");
}

void addDryRun(CLI::App& verb, Raw& raw) {
    verb.add_flag("-n,--dry-run", raw.options.dryRun, "Show what would change, without writing anything");
}

} // namespace cli
