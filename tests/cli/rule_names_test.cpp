// What message numbers are called outside of the program, and how such names are read.
#include "Apps/fernwick/output/rule_names.h"
#include <gtest/gtest.h>

namespace {

std::string nameOf(const char* text) {
    fernwick::MessageInfo message{};
    message.text = text;
    return cli::ruleName(message);
}

TEST(RuleNames, AreNumbersAfterTheirPrefix) { EXPECT_EQ(cli::ruleId(1300), "FW1300"); }

TEST(RuleNames, AreReadWithOrWithoutThePrefix) {
    EXPECT_EQ(cli::ruleNumber("FW1300"), 1300);
    EXPECT_EQ(cli::ruleNumber("fw2000"), 2000);
    EXPECT_EQ(cli::ruleNumber("7"), 7);
}

TEST(RuleNames, AreNothingElse) {
    for (const auto* text : {"", "FW", "X7", "7X", "FW 7", "99999999999", "all"})
        EXPECT_FALSE(cli::ruleNumber(text)) << text;
}

TEST(RuleNames, AreMadeOfTheFirstWords) {
    EXPECT_EQ(nameOf("The file does not exist."), "TheFileDoesNotExist");
    EXPECT_EQ(nameOf("A project file's name has 2 dots."), "AProjectFilesNameHas2Dots");
}

TEST(RuleNames, HaveAtMostEightWords) {
    EXPECT_EQ(nameOf("One two three four five six seven eight nine ten"), "OneTwoThreeFourFiveSixSevenEight");
}

TEST(RuleNames, EndAtTheFirstPause) {
    EXPECT_EQ(nameOf("It is here. Not there"), "ItIsHere");
    EXPECT_EQ(nameOf("It is here; not there"), "ItIsHere");
    EXPECT_EQ(nameOf("It is here, not there"), "ItIsHere");
    EXPECT_EQ(nameOf("Version 1.5 is old"), "Version15IsOld");
}

TEST(RuleNames, LeaveOutWhatDiffersEachTime) { EXPECT_EQ(nameOf("No file '{name}' in {folder}."), "NoFileIn"); }

} // namespace
