#include "Apps/fernwick/output/terminal.h"
#include <gtest/gtest.h>
#include <map>

namespace {

using cli::ColorUse;
using Variables = std::map<std::string, std::string>;

cli::Terminal terminal(const Variables& variables, bool isTerminal = true, ColorUse colour = ColorUse::Auto) {
    return cli::terminalFor(colour, {isTerminal, isTerminal, [variables](const char* name) {
                                         const auto found = variables.find(name);
                                         return found == variables.end() ? std::string() : found->second;
                                     }});
}

TEST(TerminalRules, ATerminalHasEverything) {
    const auto all = terminal({{"TERM", "xterm"}});
    EXPECT_TRUE(all.colour && all.progressBar && all.questions);
}

TEST(TerminalRules, AFileHasNothing) {
    const auto none = terminal({{"TERM", "xterm"}}, false);
    EXPECT_FALSE(none.colour || none.progressBar || none.questions);
}

TEST(TerminalRules, ASimpleTerminalHasQuestionsOnly) {
    const auto simple = terminal({{"TERM", "dumb"}});
    EXPECT_FALSE(simple.colour || simple.progressBar);
    EXPECT_TRUE(simple.questions);
}

TEST(TerminalRules, ABuildServerHasNothing) {
    const auto server = terminal({{"CI", "true"}});
    EXPECT_FALSE(server.colour || server.progressBar || server.questions);
    EXPECT_TRUE(terminal({{"CI", "false"}}).progressBar);
}

TEST(TerminalRules, NoColorSwitchesColoursOffOnly) {
    const auto plain = terminal({{"NO_COLOR", "1"}, {"CLICOLOR_FORCE", "1"}});
    EXPECT_FALSE(plain.colour);
    EXPECT_TRUE(plain.progressBar);
    EXPECT_TRUE(terminal({{"NO_COLOR", ""}}).colour);
}

TEST(TerminalRules, ClicolorForceColoursAFile) {
    const auto forced = terminal({{"CLICOLOR_FORCE", "1"}}, false);
    EXPECT_TRUE(forced.colour);
    EXPECT_FALSE(forced.progressBar);
    EXPECT_FALSE(terminal({{"CLICOLOR_FORCE", "0"}}, false).colour);
}

TEST(TerminalRules, TheOptionOverridesTheVariables) {
    EXPECT_TRUE(terminal({{"NO_COLOR", "1"}}, false, ColorUse::Always).colour);
    EXPECT_FALSE(terminal({{"CLICOLOR_FORCE", "1"}}, true, ColorUse::Never).colour);
}

} // namespace
