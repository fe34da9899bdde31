#include "Components/Language/library.h"
#include "tests/language_library/lookup.h"
#include <gtest/gtest.h>

namespace {

using language::languageLibrary;
using lookup::anyMember;

TEST(LanguageLibrary, HasTheFunctionsOfTheLanguage) {
    const auto* mid = anyMember(languageLibrary(), "Mid$");
    ASSERT_TRUE(mid);
    EXPECT_EQ(mid->type, "String");
    ASSERT_EQ(mid->parameters.size(), 3U);
    EXPECT_EQ(mid->parameters[1].name, "Start");
    EXPECT_TRUE(mid->parameters[2].optional);
    EXPECT_TRUE(mid->pure);
    EXPECT_FALSE(anyMember(languageLibrary(), "Rnd")->pure);
}

TEST(LanguageLibrary, NamesWhatDevicesLack) {
    const auto* shell = anyMember(languageLibrary(), "Shell");
    ASSERT_TRUE(shell);
    EXPECT_FALSE(shell->onDevices);
    EXPECT_NE(shell->instead, "");
}

TEST(LanguageLibrary, HasTheDefaultMembersOfItsClasses) {
    EXPECT_TRUE(lookup::member(*lookup::group(languageLibrary(), "Collection"), "Item")->isDefault);
    EXPECT_TRUE(lookup::member(*lookup::group(languageLibrary(), "ErrObject"), "Number")->isDefault);
}

TEST(LanguageLibrary, IsReadOnce) { EXPECT_EQ(&languageLibrary(), &languageLibrary()); }

} // namespace
