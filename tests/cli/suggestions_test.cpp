#include "Apps/fernwick/options/suggestions.h"
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using cli::didYouMean;
using cli::nearestName;
using testing::Each;
using testing::ElementsAre;

const std::vector<std::string> kVerbs{"build", "check", "deploy", "devices", "dependencies", "validate", "info"};

/// The nearest of the commands for each word.
std::vector<std::string> nearest(const std::vector<std::string>& words) {
    std::vector<std::string> found;
    for (const auto& word : words) found.push_back(nearestName(word, kVerbs));
    return found;
}

TEST(Suggestions, FindsTypingMistakes) {
    EXPECT_THAT(nearest({"biuld", "buid", "device", "DEPLOI"}), ElementsAre("build", "build", "devices", "deploy"));
}

TEST(Suggestions, CompletesABeginning) {
    EXPECT_THAT(nearest({"val", "depend"}), ElementsAre("validate", "dependencies"));
}

TEST(Suggestions, PrefersTheFewestMistakes) { EXPECT_EQ(nearestName("cheek", {"cheese", "check"}), "check"); }

TEST(Suggestions, FindsNothingInOtherWords) {
    EXPECT_THAT(nearest({"", "x", "bake"}), Each(""));
    EXPECT_EQ(didYouMean("bake", kVerbs), "");
}

TEST(Suggestions, KeepTheSpellingOfTheName) {
    EXPECT_EQ(didYouMean("pocketpc-arn", {"PocketPC-SH3", "PocketPC-ARM"}), "; did you mean PocketPC-ARM?");
}

TEST(Suggestions, ListWords) {
    EXPECT_EQ(cli::listedWords({"text"}), "text");
    EXPECT_EQ(cli::listedWords({"text", "json", "sarif"}), "text, json or sarif");
    EXPECT_EQ(cli::listedWords({"a", "b"}, "and"), "a and b");
}

} // namespace
