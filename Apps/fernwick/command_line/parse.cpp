#include "Apps/fernwick/command_line/parse.h"
#include "Apps/fernwick/command_line/verb_line.h"
#include "Apps/fernwick/options/exit_status.h"
#include "Apps/fernwick/output/version_line.h"
#include <fmt/format.h>

namespace cli {

namespace {

/// Omits CLI11's notes on types and exclusions.
class HelpFormatter : public CLI::Formatter {
public:
    std::string make_option_opts(const CLI::Option* option) const override {
        const auto type = option->get_type_name();
        const auto colon = type.find(':'); // IsMember appends its values
        const bool bare = option->get_items_expected_max() == 0 || !option->nonpositional() || type == "TEXT";
        return bare ? std::string() : " " + type.substr(0, colon);
    }
    std::string make_usage(const CLI::App* app, std::string name) const override {
        return CLI::Formatter::make_usage(app, app->get_parent() ? "fernwick " + name : name);
    }
};

std::string answersHelp() {
    return "Questions, their answers in scripts, and their meanings:\n\n" + describeQuestions() +
           "\nForms that are not listed are cancelled; other message boxes are answered with no or cancel.\n"
           "--yes and --no answer every question, --answer NAME=REPLY answers one.\n";
}

Format formatNamed(std::string_view name) {
    if (name == "json") return Format::Json;
    if (name == "sarif") return Format::Sarif;
    return name == "markdown" ? Format::Markdown : Format::Text;
}

Parsed finish(Raw& raw) {
    Parsed parsed;
    auto& options = raw.options;
    options.format = formatNamed(raw.format);
    options.verbosity = raw.quiet ? Verbosity::Quiet : raw.verbose ? Verbosity::Verbose : Verbosity::Normal;
    if (raw.yes) options.answers.everything(Reply::Yes);
    if (raw.no) options.answers.everything(Reply::No);
    for (const auto& answer : raw.answers) {
        if (options.answers.add(answer)) continue;
        parsed.status = kWrongUse;
        parsed.error =
            fmt::format("fernwick: --answer {}: unknown question or reply; see fernwick help answers", answer);
        return parsed;
    }
    parsed.options = std::move(options);
    parsed.run = raw.run;
    return parsed;
}

std::string wrongVerb(const std::string& given, const CLI::ParseError& error) {
    if (given.empty()) return "no command given";
    return given.front() == '-' ? error.what() : "unknown command: " + given;
}

Parsed textToPrint(std::string text) {
    Parsed parsed;
    parsed.output = std::move(text);
    return parsed;
}

/// --help ends the parsing like an error does.
Parsed ended(CLI::App& app, const CLI::ParseError& error, const std::string& given) {
    const auto verbs = app.get_subcommands();
    if (error.get_exit_code() == int(CLI::ExitCodes::Success))
        return textToPrint(verbs.empty() ? app.help() : verbs.back()->help());
    Parsed parsed;
    parsed.status = kWrongUse;
    parsed.error =
        fmt::format("fernwick: {}\nSee fernwick {}--help.", verbs.empty() ? wrongVerb(given, error) : error.what(),
                    verbs.empty() ? "" : verbs.front()->get_name() + " ");
    return parsed;
}

Parsed helpOn(CLI::App& app, const std::string& topic) {
    if (topic.empty()) return textToPrint(app.help());
    if (topic == "answers") return textToPrint(answersHelp());
    const auto verbs = app.get_subcommands([&](const CLI::App* one) { return one->get_name() == topic; });
    if (!verbs.empty()) return textToPrint(verbs.front()->help());
    Parsed parsed;
    parsed.status = kWrongUse;
    parsed.error = fmt::format("fernwick: no help topic {}; see fernwick --help", topic);
    return parsed;
}

} // namespace

Parsed parseCommandLine(int argc, const char* const* argv) {
    Raw raw;
    std::string topic;
    CLI::App app{"Turns Visual Basic projects into applications for handheld devices.", "fernwick"};
    app.formatter(std::make_shared<HelpFormatter>());
    app.footer(kExitText);
    app.require_subcommand(1);
    app.set_version_flag("--version", versionLine());
    defineProjectVerbs(app, raw);
    defineReadingVerbs(app, raw);
    defineStoringVerbs(app, raw);
    defineToolVerbs(app, raw);
    auto* help = app.add_subcommand("help", "Print help on a command or on answers");
    help->add_option("TOPIC", topic, "A command, or answers");

    try {
        app.parse(argc, argv);
    } catch (const CLI::CallForVersion&) {
        return textToPrint(versionLine() + "\n");
    } catch (const CLI::ParseError& error) { return ended(app, error, argc > 1 ? argv[1] : ""); }
    return help->parsed() ? helpOn(app, topic) : finish(raw);
}

} // namespace cli
