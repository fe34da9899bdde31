#include "Apps/fernwick/command_line/usage_errors.h"
#include "Apps/fernwick/options/suggestions.h"
#include <algorithm>
#include <fmt/format.h>

namespace cli {

namespace {

// What users of other tools type, and the command that does it here.
constexpr std::pair<std::string_view, std::string_view> kOtherNames[] = {
    {"compile", "build"}, {"make", "build"},     {"lint", "check"},      {"list", "targets"},   {"boards", "targets"},
    {"upload", "deploy"}, {"install", "deploy"}, {"config", "settings"}, {"open", "workbench"}, {"status", "info"}};

/// The command that was named, or the program itself.
const CLI::App& namedVerb(const CLI::App& app) {
    const auto verbs = app.get_subcommands();
    return verbs.empty() ? app : *verbs.front();
}

std::vector<std::string> optionNames(const CLI::App& verb) {
    std::vector<std::string> names;
    for (const auto* option : verb.get_options())
        for (const auto& name : option->get_lnames()) names.push_back("--" + name);
    return names;
}

std::string unknownOption(const CLI::App& verb, const std::string& argument) {
    const auto name = argument.substr(0, argument.find('='));
    const auto near = didYouMean(name, optionNames(verb));
    const bool mayBeOperand = near.empty() && verb.get_option_no_throw("OPERANDS") != nullptr;
    return fmt::format("unknown option {}{}", name,
                       mayBeOperand ? "; write -- before arguments that begin with a dash" : near);
}

/// An option before the command.
std::string misplacedOption(const CLI::App& app, const CLI::App& verb, const std::string& argument) {
    const auto name = argument.substr(0, argument.find('='));
    if (&verb == &app || !verb.get_option_no_throw(name)) return unknownOption(app, argument);
    return fmt::format("{} must be written after the command {}", name, verb.get_name());
}

std::string unknownVerb(const CLI::App& app, const std::string& name) {
    for (const auto& [other, own] : kOtherNames)
        if (name == other) return fmt::format("unknown command {}; did you mean {}?", name, own);
    return fmt::format("unknown command {}{}", name, didYouMean(name, verbNames(app)));
}

/// "" if none of the arguments looks like an option.
std::string firstOption(const std::vector<std::string>& arguments) {
    const auto isOption = [](const std::string& argument) { return argument.size() > 1 && argument.front() == '-'; };
    const auto found = std::find_if(arguments.begin(), arguments.end(), isOption);
    return found == arguments.end() ? std::string() : *found;
}

/// The arguments that nothing takes.
std::string unexpectedArguments(const CLI::App& app) {
    const auto& verb = namedVerb(app);
    if (const auto option = firstOption(app.remaining()); !option.empty()) return misplacedOption(app, verb, option);
    const auto rest = verb.remaining();
    if (const auto option = firstOption(rest); !option.empty()) return unknownOption(verb, option);
    if (&verb == &app) return rest.empty() ? "no command given" : unknownVerb(app, rest.front());
    return fmt::format("unexpected argument {}", rest.empty() ? "" : rest.front());
}

/// The parser begins such messages with the option's name.
std::string optionIn(const std::string& message) { return message.substr(0, message.find_first_of(": ")); }

std::string missingValue(const CLI::App& verb, const std::string& message) {
    const auto name = optionIn(message);
    const auto* option = verb.get_option_no_throw(name);
    return fmt::format("{} needs a value{}", name, option ? ": " + option->get_type_name() : "");
}

std::string missingArgument(const CLI::App& verb, const std::string& name) {
    const auto* option = verb.get_option_no_throw(name);
    return option ? fmt::format("{} is missing: {}", name, option->get_description()) : name + " is missing";
}

/// The parser says "A excludes B".
std::string exclusion(const std::string& message) {
    const auto names = CLI::detail::split(message, ' ');
    return names.size() == 3 ? fmt::format("{} and {} exclude each other", names.front(), names.back()) : message;
}

/// The parser says "NAME: " and the validator's words. The name of an argument adds nothing to them.
std::string invalidValue(const std::string& message) {
    const auto words = message.find(": ");
    return message.starts_with('-') || words == message.npos ? message : message.substr(words + 2);
}

template <class Kind>
bool is(const CLI::ParseError& error) {
    return dynamic_cast<const Kind*>(&error) != nullptr;
}

} // namespace

std::string usageError(const CLI::App& app, const CLI::ParseError& error) {
    const auto& verb = namedVerb(app);
    const std::string message = error.what();
    const bool isMissing = is<CLI::RequiredError>(error);
    if (is<CLI::ExtrasError>(error) || (isMissing && &verb == &app)) return unexpectedArguments(app);
    if (isMissing) return missingArgument(verb, optionIn(message));
    if (is<CLI::ArgumentMismatch>(error)) return missingValue(verb, message);
    if (is<CLI::ExcludesError>(error)) return exclusion(message);
    if (is<CLI::ValidationError>(error)) return invalidValue(message);
    return message;
}

std::vector<std::string> verbNames(const CLI::App& app) {
    std::vector<std::string> names;
    for (const auto* verb : app.get_subcommands({})) names.push_back(verb->get_name());
    return names;
}

CLI::Validator oneOf(std::string what, std::vector<std::string> names) {
    const auto check = [what = std::move(what), names = std::move(names)](std::string& given) {
        if (std::find(names.begin(), names.end(), given) != names.end()) return std::string();
        const auto use = listedWords(names), near = didYouMean(given, names);
        return fmt::format("unknown {} {}{}", what, given, near.empty() ? "; use " + use : near);
    };
    return CLI::Validator(check, "", "");
}

} // namespace cli
