// Each command line in the catalogue of messages and in the help is one that the program accepts.
#include "Apps/fernwick/command_line/parse.h"
#include "Apps/fernwick/output/catalogue.h"
#include <gtest/gtest.h>
#include <sstream>

namespace {

/// Splits at spaces outside of quotation marks, up to a redirection.
std::vector<std::string> wordsOf(const std::string& line) {
    std::vector<std::string> words{""};
    char quote = 0;
    for (const char c : line) {
        if (!quote && c == '>') break;
        if (c == '\'' || c == '"')
            quote = quote == c ? char(0) : c;
        else if (c == ' ' && !quote)
            words.emplace_back();
        else
            words.back() += c;
    }
    std::erase(words, "");
    return words;
}

/// What the program says about a command line; "" if it accepts it.
std::string complaint(const std::string& line) {
    const auto words = wordsOf(line);
    std::vector<const char*> arguments;
    for (const auto& word : words) arguments.push_back(word.c_str());
    return cli::parseCommandLine(int(arguments.size()), arguments.data()).error;
}

std::vector<std::string> commandsIn(const std::string& text) {
    std::vector<std::string> commands;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        line.erase(0, line.find_first_not_of(' '));
        if (line.starts_with("fernwick ")) commands.push_back(line);
    }
    return commands;
}

std::string helpOn(const std::string& topic) {
    const char* arguments[] = {"fernwick", "help", topic.c_str()};
    return cli::parseCommandLine(3, arguments).output;
}

TEST(Examples, OfTheCatalogueAreAccepted) {
    std::size_t commands = 0;
    for (const auto& message : cli::catalogue())
        for (const auto& command : commandsIn(std::string(message.example))) {
            EXPECT_EQ(complaint(command), "") << message.number << ": " << command;
            ++commands;
        }
    EXPECT_GT(commands, 10u);
}

TEST(Examples, OfTheHelpAreAccepted) {
    const char* general[] = {"fernwick", "--help"};
    std::istringstream lines(cli::parseCommandLine(2, general).output);
    std::size_t commands = 0;
    for (std::string line; std::getline(lines, line) && !line.starts_with("Exit status");) {
        if (!line.starts_with("  ") || line[2] == '-') continue;
        const auto verb = line.substr(2, line.find(' ', 2) - 2);
        const auto page = helpOn(verb);
        for (const auto& command : commandsIn(page.substr(page.find("Example:") + 1))) {
            EXPECT_EQ(complaint(command), "") << command;
            ++commands;
        }
    }
    EXPECT_GT(commands, 15u);
}

TEST(Examples, AWrongOneIsNoticed) {
    EXPECT_NE(complaint("fernwick deploy --no-build"), "");
    EXPECT_NE(complaint("fernwick build --answer device"), "");
}

TEST(Examples, AnOptionTakesOneValue) {
    const char* arguments[] = {"fernwick", "build", "--answer", "copy-file=yes", "A.vbp"};
    const auto parsed = cli::parseCommandLine(5, arguments);
    EXPECT_EQ(parsed.error, "");
    EXPECT_EQ(parsed.options.project, "A.vbp");
}

TEST(Examples, TheLastOfRepeatedOptionsCounts) {
    const char* arguments[] = {"fernwick", "--format", "json", "build", "--device", "A", "--device=B", "A.vbp"};
    const auto parsed = cli::parseCommandLine(8, arguments);
    EXPECT_EQ(parsed.options.device, "B");
    EXPECT_EQ(parsed.options.format, cli::Format::Json);
}

} // namespace
