#include "Host/files/text_file.h"
#include "tests/support/errors.h"
#include "tests/support/temp_folder.h"

using host::LineEnd;
using host::splitLines;
using test::errorOf;
using test::TempFolder;

TEST(TextFile, KeepsEachLinesOwnEnd) {
    const auto lines = splitLines("a\r\nb\nc\rd");
    ASSERT_EQ(lines.size(), 4u);
    EXPECT_EQ(lines[0].end, LineEnd::CrLf);
    EXPECT_EQ(lines[1].end, LineEnd::Lf);
    EXPECT_EQ(lines[2].end, LineEnd::Cr);
    EXPECT_EQ(lines[3].end, LineEnd::None);
    EXPECT_EQ(lines[2].text, "c");
}

TEST(TextFile, PreservesAnyBytes) {
    using namespace std::string_literals;
    for (const auto& bytes : {""s, "\r"s, "\r\r\n\n\r"s, "\0\0\r\n"s, "x"s, "x\n"s, "\n"s, "\xff\xfe\r\r"s})
        EXPECT_EQ(host::joinLines(splitLines(bytes)), bytes);
}

TEST(TextFile, NewLinesEndAsTheFirstOne) {
    EXPECT_EQ(host::ownLineEnd("a\nb\r\n"), LineEnd::Lf);
    EXPECT_EQ(host::ownLineEnd("a\r\nb\n"), LineEnd::CrLf);
    EXPECT_EQ(host::ownLineEnd("a"), LineEnd::CrLf);
    EXPECT_EQ(host::ownLineEnd(""), LineEnd::CrLf);
}

TEST(TextFile, SplitsAFileOfLoneReturnsInOnePass) {
    EXPECT_EQ(splitLines(std::string(1'000'000, '\r')).size(), 1'000'000u);
    EXPECT_EQ(splitLines(std::string(10'000'000, 'x')).size(), 1u);
}

TEST(TextFile, ReportsWhyAFileCannotBeRead) {
    const TempFolder folder;
    EXPECT_EQ(errorOf([&] { host::readFile(folder / "missing.bas"); }), 53);
    EXPECT_EQ(errorOf([&] { host::readFile(folder / "no/missing.bas"); }), 76);
    EXPECT_EQ(errorOf([&] { host::readFile(folder.path()); }), 75);
    EXPECT_EQ(errorOf([&] { host::readFile("/dev/null"); }), 75);
    const auto error = basic::attempt([&] { host::readFile(folder / "missing.bas"); });
    EXPECT_NE(error.Description.find("missing.bas"), std::string::npos);
    EXPECT_EQ(error.Source, "VBIDE");
    EXPECT_EQ(error.LastDllError, ENOENT);
}

TEST(TextFile, RefusesAHugeFile) {
    const TempFolder folder;
    const auto path = folder.write("huge.bas", "");
    std::filesystem::resize_file(path, host::kLargestFile + 1);
    EXPECT_EQ(errorOf([&] { host::readFile(path); }), 7);
}

TEST(TextFile, ReadsBytesAndState) {
    const TempFolder folder;
    const auto path = folder.write("a.bas", "x\r\n");
    const auto content = host::readFile(path);
    EXPECT_EQ(content.bytes, "x\r\n");
    EXPECT_EQ(content.stamp.size, 3u);
    EXPECT_TRUE(content.stamp.sameFileState(host::readFile(path).stamp));
}
