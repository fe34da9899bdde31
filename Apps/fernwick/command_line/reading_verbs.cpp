// Commands that only read.
#include "Apps/fernwick/command_line/verb_line.h"
#include <fmt/format.h>

namespace cli {

namespace {

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

void defineCheck(CLI::App& app, Raw& raw) {
    auto& check = addVerb(app, raw, "check", runCheck, "Parse source files or whole projects and report all errors",
                          "fernwick check Form1.frm Module1.bas", Result::Messages);
    check.add_option("FILE", raw.options.operands,
                     ".bas, .cls, .frm, .ctl, .vbp or .vbg files, folders, or - for standard input");
    check.add_option("--name", raw.options.sourceName, "File name of standard input, whose extension says what it is")
        ->type_name("FILE");
    check
        .add_option_function<std::string>(
            "--code-page",
            [&raw](const std::string& number) { raw.options.codePage = basic::CodePage(std::stoi(number)); },
            "Code page of files that are not UTF-8 (default: detected)")
        ->check(refusalOfCodePage)
        ->type_name("N");
}

void defineInfo(CLI::App& app, Raw& raw) {
    auto& info =
        addVerb(app, raw, "info", runInfo, "Show the contents of a project", "fernwick info AddressBook.vbp --verify");
    addProject(info, raw);
    info.add_flag("--verify", raw.options.verify, "Check that every file would be written back byte for byte");
}

} // namespace

void defineReadingVerbs(CLI::App& app, Raw& raw) {
    defineCheck(app, raw);
    defineInfo(app, raw);
    auto& messages = addVerb(app, raw, "messages", runMessages, "Print the messages stored by a project's last build",
                             "fernwick messages AddressBook.vbp --format json", Result::Messages);
    addProject(messages, raw);
    addVerb(app, raw, "targets", runTargets, "List the installed design targets", "fernwick targets");
    addVerb(app, raw, "version", runVersion, "Print the version", "fernwick version");
}

} // namespace cli
