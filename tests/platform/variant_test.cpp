// Values of properties converted to the types of Visual Basic.
#include "Add-in/platform/variant.h"
#include <gtest/gtest.h>

using namespace fernwick;

namespace {

struct Conversion {
    Variant value;
    std::int32_t asLong;
    double asDouble;
    bool asBoolean;
    const char* asText;
};

} // namespace

TEST(Variant, ConvertsToEachType) {
    const Conversion conversions[] = {
        {{}, 0, 0, false, ""},
        {true, -1, -1, true, "True"},
        {false, 0, 0, false, "False"},
        {std::int32_t{7}, 7, 7, true, "7"},
        {std::int32_t{0}, 0, 0, false, "0"},
        {2.5, 2, 2.5, true, "2.5"},
        {0.0, 0, 0, false, "0"},
        {std::string("3"), 3, 3, true, "3"},
    };
    for (const auto& [value, number, real, flag, text] : conversions) {
        EXPECT_EQ(asLong(value), number) << text;
        EXPECT_EQ(asDouble(value), real) << text;
        EXPECT_EQ(asBoolean(value), flag) << text;
        EXPECT_EQ(asText(value), text);
    }
}
