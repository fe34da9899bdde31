#include "Apps/fernwick/command_line/help_text.h"
#include "Apps/fernwick/options/answers.h"

namespace cli {

namespace {

/// Omits CLI11's notes on types and exclusions.
class HelpFormatter : public CLI::Formatter {
public:
    HelpFormatter() {
        label("Positionals", "Arguments");
        label("SUBCOMMAND", "COMMAND");
    }
    std::string make_option_opts(const CLI::Option* option) const override {
        const bool bare = option->get_items_expected_max() == 0 || !option->nonpositional();
        return bare || option->get_type_name() == "TEXT" ? std::string() : " " + option->get_type_name();
    }
    std::string make_usage(const CLI::App* app, std::string name) const override {
        return CLI::Formatter::make_usage(app, app->get_parent() ? "fernwick " + name : name);
    }
};

} // namespace

std::shared_ptr<CLI::FormatterBase> helpFormatter() { return std::make_shared<HelpFormatter>(); }

std::string answersHelp() {
    return "Questions, their answers in scripts, and their meanings:\n\n" + describeQuestions() +
           "\nForms that are not listed are cancelled; other message boxes are answered with no or cancel.\n"
           "--yes and --no answer every question, --answer NAME=REPLY answers one.\n";
}

} // namespace cli
