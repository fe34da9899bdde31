#include "Basic/guid.h"
#include <gtest/gtest.h>
#include <set>

using namespace basic;

TEST(Guid, IsParsedAndFormatted) {
    const GUID guid{0x6BF52A50, 0x394A, 0x11D3, {0xB1, 0x53, 0x00, 0xC0, 0x4F, 0x79, 0xFA, 0xA6}};
    const std::string text = "{6BF52A50-394A-11D3-B153-00C04F79FAA6}";
    EXPECT_EQ(guidText(guid), text);
    EXPECT_EQ(guidText(GUID{}), "{00000000-0000-0000-0000-000000000000}");
    for (const std::string& form : {text, std::string("6bf52a50-394a-11d3-b153-00c04f79faa6"),
                                    std::string("{6bf52a50-394A-11d3-B153-00C04F79FAA6}")})
        EXPECT_EQ(parseGuid(form), guid) << form;
}

TEST(Guid, OtherTextsAreRejected) {
    for (const std::string text : {"", "{}", "{6BF52A50-394A-11D3-B153-00C04F79FAA6",
                                   "6BF52A50-394A-11D3-B153-00C04F79FAA6}", "6BF52A50-394A-11D3-B153-00C04F79FAA",
                                   "6BF52A50-394A-11D3-B153-00C04F79FAAG", "6BF52A50-394A-11D3-B15300C04F79-FAA6",
                                   "-BF52A50-394A-11D3-B153-00C04F79FAA6", " 6BF52A50-394A-11D3-B153-00C04F79FAA6",
                                   "6BF52A500394A011D30B153000C04F79FAA6", "(6BF52A50-394A-11D3-B153-00C04F79FAA6)"})
        EXPECT_FALSE(parseGuid(text)) << text;
}

TEST(Guid, NewOnesAreRandomVersion4) {
    std::set<GUID> seen;
    for (int i = 0; i < 100; ++i) {
        const GUID guid = newGuid();
        EXPECT_TRUE(seen.insert(guid).second);
        EXPECT_EQ(guid.Data3 >> 12, 4);
        EXPECT_EQ(guid.Data4[0] >> 6, 2);
        EXPECT_EQ(parseGuid(guidText(guid)), guid);
    }
}
