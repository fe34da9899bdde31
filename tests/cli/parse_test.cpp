#include "Apps/fernwick/command_line/parse.h"
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::StartsWith;

cli::Parsed parsed(std::vector<const char*> arguments) {
    arguments.insert(arguments.begin(), "fernwick");
    return cli::parseCommandLine(int(arguments.size()), arguments.data());
}

TEST(Parse, NothingIsARequestForHelp) {
    EXPECT_EQ(parsed({}).output, parsed({"--help"}).output);
    EXPECT_EQ(parsed({}).error, "");
    EXPECT_EQ(parsed({"-q"}).error, "no command given");
}

TEST(Parse, TheVersionHasAShortOption) { EXPECT_THAT(parsed({"-V"}).output, StartsWith("fernwick ")); }

TEST(Parse, ArgumentsAfterTwoDashesAreNoOptions) {
    const auto steps = parsed({"settings", "set", "A.vbp", "PreCompileSteps", "--", "-x", "--format", "--", "-"});
    EXPECT_EQ(steps.error, "");
    EXPECT_THAT(steps.options.operands, ElementsAre("A.vbp", "PreCompileSteps", "-x", "--format", "--", "-"));
    EXPECT_THAT(parsed({"check", "a.bas", "--", "-b.bas"}).options.operands, ElementsAre("a.bas", "-b.bas"));
    EXPECT_EQ(parsed({"build", "--", "-x.vbp"}).options.project, "-x.vbp");
    EXPECT_EQ(parsed({"settings", "--", "-x"}).error, "unknown action -x; use list, get, set or reset");
}

TEST(Parse, BracketsAndCommasAreOrdinaryCharacters) {
    EXPECT_THAT(parsed({"check", "[a,b]", "c,d"}).options.operands, ElementsAre("[a,b]", "c,d"));
    EXPECT_EQ(parsed({"build", "--device", "[a,b]", "--output=[c]"}).options.device, "[a,b]");
    EXPECT_EQ(parsed({"build", "--format", "[x]"}).error, "build has no format [x]; use text, json or sarif");
}

TEST(Parse, NamesTheUnknownOption) {
    EXPECT_EQ(parsed({"--nonsense", "build"}).error, "unknown option --nonsense");
    EXPECT_EQ(parsed({"--device=A", "build"}).error, "--device must be written after the command build");
    EXPECT_EQ(parsed({"-n", "build"}).error, "-n must be written after the command build");
    EXPECT_EQ(parsed({"build", "A.vbp", "-x"}).error, "unknown option -x");
    EXPECT_EQ(parsed({"settings", "set", "PreCompileSteps", "-x"}).error,
              "unknown option -x; write -- before arguments that begin with a dash");
}

TEST(Parse, HelpTakesAnActionOfTheCommand) {
    EXPECT_EQ(parsed({"help", "settings", "set"}).output, parsed({"help", "settings"}).output);
    EXPECT_EQ(parsed({"help", "build", "check"}).error, "build has no action check");
}

} // namespace
