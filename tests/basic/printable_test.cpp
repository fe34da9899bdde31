#include "Basic/printable.h"
#include <gtest/gtest.h>

namespace {

using basic::printable;

TEST(Printable, LeavesOrdinaryTextAlone) {
    for (const char* text : {"", "Hello, World", "C:\\Größe\\価格.txt", "a b\\n{}", "😀"})
        EXPECT_EQ(printable(text), text);
}

TEST(Printable, ReplacesWhatATerminalObeys) {
    EXPECT_EQ(printable("\033[2J"), "\\u001B[2J");
    EXPECT_EQ(printable("a\r\nb\tc"), "a\\u000D\\nb\\u0009c");
    EXPECT_EQ(printable(std::string_view{"a\0b", 3}), "a\\u0000b");
    EXPECT_EQ(printable("\x7F\u0085\u009B"), "\\u007F\\u0085\\u009B");
}

TEST(Printable, ReplacesWhatHidesText) {
    EXPECT_EQ(printable("\u202Etxt.exe\u2069\u200F\u061C"), "\\u202Etxt.exe\\u2069\\u200F\\u061C");
    EXPECT_EQ(printable("a\u2028b"), "a\\u2028b");
}

TEST(Printable, ReplacesBytesThatAreNotUtf8) { EXPECT_EQ(printable("a\xFF\xC3(\x9B"), "a\\xFF\\xC3(\\x9B"); }

TEST(Printable, KeepsWhatTheCallerKeeps) { EXPECT_EQ(printable("a\nb\tc\r", "\n\t"), "a\nb\tc\\u000D"); }

} // namespace
