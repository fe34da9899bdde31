#include "Apps/fernwick/command_line/parse.h"
#include "Apps/fernwick/command_line/help_text.h"
#include "Apps/fernwick/command_line/marked_arguments.h"
#include "Apps/fernwick/command_line/usage_errors.h"
#include "Apps/fernwick/command_line/verb_line.h"
#include "Apps/fernwick/options/suggestions.h"
#include "Apps/fernwick/output/version_line.h"
#include <algorithm>
#include <fmt/format.h>
#include <span>

namespace cli {

namespace {

/// The parser with all commands. Only those that `arguments` name have the common options, which are many.
struct CommandLine {
    explicit CommandLine(std::span<const char* const> arguments = {}) {
        app.formatter(helpFormatter());
        app.footer(kExitText);
        app.require_subcommand(1);
        app.option_defaults()->multi_option_policy(CLI::MultiOptionPolicy::TakeLast);
        app.set_help_flag("-h,--help", "Print this help and exit");
        app.set_version_flag("-V,--version", versionLine(), "Print the version and exit");
        addCommon(app, raw, {"text", "json", "sarif", "markdown"});
        defineProjectVerbs(app, raw);
        defineReadingVerbs(app, raw);
        defineStoringVerbs(app, raw);
        defineToolVerbs(app, raw);
        addCommonToVerbs(raw, arguments);
        help = app.add_subcommand("help", "Print help on a command or on answers");
        help->add_option("TOPIC", topic, "A command, or answers");
        help->add_option("ACTION", action, "One of the command's actions, which are on the same page");
        for (auto* verb : app.get_subcommands({})) verb->group("Commands");
    }

    Raw raw;
    std::string topic, action;
    CLI::App app{"Turns Visual Basic projects into applications for handheld devices.", "fernwick"};
    CLI::App* help = nullptr;
};

Parsed textToPrint(std::string text) {
    Parsed parsed;
    parsed.output = std::move(text);
    return parsed;
}

/// The help of a parser that has not parsed anything, which is the program's own.
std::string programHelp() { return CommandLine().app.help(); }

Parsed mistake(std::string error, const std::string& verb, Format format = Format::Text) {
    Parsed parsed;
    parsed.options.verb = verb;
    parsed.options.format = format;
    parsed.error = std::move(error);
    parsed.hint = fmt::format("See fernwick {}--help.", verb.empty() ? "" : verb + " ");
    return parsed;
}

Format formatNamed(std::string_view name) {
    if (name == "json") return Format::Json;
    if (name == "sarif") return Format::Sarif;
    return name == "markdown" ? Format::Markdown : Format::Text;
}

ColorUse colorNamed(std::string_view name) {
    if (name == "always") return ColorUse::Always;
    return name == "never" ? ColorUse::Never : ColorUse::Auto;
}

/// Returns what is wrong with options that are right one by one; "" if nothing is.
std::string wrongTogether(const Raw& raw, bool hasFormat) {
    if (raw.quiet && raw.verbose) return "--quiet and --verbose exclude each other";
    if (hasFormat) return {};
    return fmt::format("{} has no format {}; use {}", raw.options.verb, raw.format, listedWords(raw.formats));
}

void removeAllMarks(Raw& raw) {
    auto& options = raw.options;
    for (auto* text : {&options.project, &options.action, &options.device, &options.depfile, &options.depfileTarget,
                       &options.newFile, &options.output, &options.sourceName, &options.sourceRoot, &options.files,
                       &options.filter, &options.junitFile, &raw.format})
        removeMarks(*text);
    for (auto* list : {&options.operands, &raw.answers})
        for (auto& text : *list) removeMarks(text);
}

Parsed finish(Raw& raw) {
    auto& options = raw.options;
    removeAllMarks(raw);
    options.format = formatNamed(raw.format);
    options.color = colorNamed(raw.color);
    options.verbosity = raw.quiet ? Verbosity::Quiet : raw.verbose ? Verbosity::Verbose : Verbosity::Normal;
    const bool hasFormat = std::find(raw.formats.begin(), raw.formats.end(), raw.format) != raw.formats.end();
    if (const auto wrong = wrongTogether(raw, hasFormat); !wrong.empty())
        return mistake(wrong, options.verb, hasFormat ? options.format : Format::Text);
    if (raw.yes) options.answers.everything(Reply::Yes);
    if (raw.no) options.answers.everything(Reply::No);
    for (const auto& answer : raw.answers) {
        const auto wrong = options.answers.add(answer);
        if (wrong.empty()) continue;
        auto parsed = mistake("--answer: " + wrong, options.verb, options.format);
        parsed.hint = "See fernwick help answers.";
        return parsed;
    }
    Parsed parsed;
    parsed.options = std::move(options);
    parsed.run = raw.run;
    return parsed;
}

/// The format that a command line with a mistake asks for.
Format formatIn(const std::vector<std::string>& arguments) {
    Format format = Format::Text;
    for (std::size_t i = 0; i < arguments.size() && arguments[i] != "--"; ++i) {
        if (arguments[i].starts_with("--format=")) format = formatNamed(arguments[i].substr(9));
        if (arguments[i] == "--format" && i + 1 < arguments.size()) format = formatNamed(arguments[i + 1]);
    }
    return format;
}

/// --help ends the parsing like an error does.
Parsed ended(const CommandLine& line, const CLI::ParseError& error, const std::vector<std::string>& arguments) {
    const auto verbs = line.app.get_subcommands();
    if (error.get_exit_code() == int(CLI::ExitCodes::Success))
        return textToPrint(verbs.empty() ? programHelp() : verbs.back()->help());
    auto text = usageError(line.app, error);
    removeMarks(text);
    return mistake(text, verbs.empty() ? "" : verbs.front()->get_name(), formatIn(arguments));
}

bool hasActions(const CLI::App& verb) {
    return verb.get_name() == "dependencies" || verb.get_option_no_throw("ACTION") != nullptr;
}

Parsed helpOn(const CLI::App& app, const std::string& topic, const std::string& action) {
    if (topic.empty()) return textToPrint(programHelp());
    if (topic == "answers") return textToPrint(answersHelp());
    const auto verbs = app.get_subcommands([&](const CLI::App* one) { return one->get_name() == topic; });
    if (!verbs.empty() && (action.empty() || hasActions(*verbs.front()))) return textToPrint(verbs.front()->help());
    if (!verbs.empty()) return mistake(fmt::format("{} has no action {}", topic, action), topic);
    auto topics = verbNames(app);
    topics.push_back("answers");
    return mistake(fmt::format("no help topic {}{}", topic, didYouMean(topic, topics)), "");
}

} // namespace

Parsed parseCommandLine(int argc, const char* const* argv) {
    if (argc <= 1) return textToPrint(programHelp());
    CommandLine line{{argv, static_cast<std::size_t>(argc)}};
    auto arguments = withMarks(argc, argv);
    std::reverse(arguments.begin(), arguments.end()); // as the parser expects them
    try {
        line.app.parse(std::move(arguments));
    } catch (const CLI::CallForVersion&) {
        return textToPrint(versionLine() + "\n");
    } catch (const CLI::ParseError& error) { return ended(line, error, {argv + std::min(argc, 1), argv + argc}); }
    removeMarks(line.topic);
    removeMarks(line.action);
    return line.help->parsed() ? helpOn(line.app, line.topic, line.action) : finish(line.raw);
}

} // namespace cli
