#include "Apps/fernwick/options/suggestions.h"
#include <gtest/gtest.h>

namespace {

using cli::didYouMean;
using cli::nearestName;

const std::vector<std::string> kVerbs{"build", "check", "deploy", "devices", "dependencies", "validate", "info"};

TEST(Suggestions, FindsTypingMistakes) {
    EXPECT_EQ(nearestName("biuld", kVerbs), "build");
    EXPECT_EQ(nearestName("buid", kVerbs), "build");
    EXPECT_EQ(nearestName("device", kVerbs), "devices");
    EXPECT_EQ(nearestName("DEPLOI", kVerbs), "deploy");
}

TEST(Suggestions, CompletesABeginning) {
    EXPECT_EQ(nearestName("val", kVerbs), "validate");
    EXPECT_EQ(nearestName("depend", kVerbs), "dependencies");
}

TEST(Suggestions, PrefersTheFewestMistakes) { EXPECT_EQ(nearestName("cheek", {"cheese", "check"}), "check"); }

TEST(Suggestions, FindsNothingInOtherWords) {
    EXPECT_EQ(nearestName("", kVerbs), "");
    EXPECT_EQ(nearestName("x", kVerbs), "");
    EXPECT_EQ(nearestName("bake", kVerbs), "");
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
