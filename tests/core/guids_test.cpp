#include "Add-in/core/guids.h"
#include "Basic/runtime_error.h"
#include <gtest/gtest.h>

using namespace fernwick;

TEST(Guids, WithAndWithoutBraces) {
    const std::string bare = "8a515BDE-2BCC-4ed4-8F0A-99E4522CC1BB";
    bool hadBraces = true;
    EXPECT_TRUE(IsGuidText(bare, hadBraces));
    EXPECT_FALSE(hadBraces);
    EXPECT_TRUE(IsGuidText("{" + bare + "}", hadBraces));
    EXPECT_TRUE(hadBraces);
    for (const std::string& wrong : std::initializer_list<std::string>{
             bare + "1", "{" + bare, bare.substr(1), "g" + bare.substr(1), "", "((" + bare,
             "8a515BDE-2BCC-4ed4-8F0A-99E4522CC1-B", "8a515BDE02BCC-4ed4-8F0A-99E4522CC1BB"})
        EXPECT_FALSE(IsGuidText(wrong, hadBraces)) << wrong;

    auto text = bare;
    EXPECT_TRUE(NormaliseGuidText(text));
    EXPECT_EQ(text, "{" + bare + "}");
    EXPECT_TRUE(NormaliseGuidText(text));
    EXPECT_EQ(text, "{" + bare + "}");
    text = "none";
    EXPECT_FALSE(NormaliseGuidText(text));
    EXPECT_EQ(text, "none");
}

TEST(Guids, WithoutANewOneTheTextSaysSo) {
    EXPECT_EQ(CreateGUID([]() -> basic::GUID { throw basic::RuntimeError(basic::kInvalidProcedureCall); }), "{Error}");
}

TEST(Guids, NewOnesHaveNoBracesAndDiffer) {
    const auto one = CreateGUID(), other = CreateGUID();
    bool hadBraces = true;
    EXPECT_TRUE(IsGuidText(one, hadBraces));
    EXPECT_FALSE(hadBraces);
    EXPECT_EQ(one.find_first_of("abcdef"), one.npos);
    EXPECT_NE(one, other);
}
