#include "Host/files/journal_file.h"
#include "tests/support/errors.h"
#include <gmock/gmock.h>

using host::decodeJournal;
using host::encodeJournal;
using test::errorOf;

namespace {

host::JournalEntry sampleEntry() {
    host::JournalEntry entry;
    entry.project = "/home/a b/Hello.vbp";
    entry.component = "modA";
    entry.type = 1;
    entry.file = "/home/a b/modA.bas";
    entry.base = host::FileStamp{1, 2, 3, -4, 5, 0xffffffffffffffffU};
    entry.written = 1700000000;
    entry.bytes = "Attribute VB_Name = \"modA\"\r\n' caf\xe9 \0 end";
    return entry;
}

std::string whyRefused(const std::string& bytes) {
    const auto error = basic::attempt([&] { decodeJournal(bytes); });
    EXPECT_EQ(error.Number, 321) << bytes;
    return error.Description;
}

} // namespace

TEST(JournalFile, IsRestoredExactly) {
    const auto entry = sampleEntry();
    const auto read = decodeJournal(encodeJournal(entry));
    EXPECT_EQ(read.project, entry.project);
    EXPECT_EQ(read.component, entry.component);
    EXPECT_EQ(read.type, 1);
    EXPECT_EQ(read.file, entry.file);
    ASSERT_TRUE(read.base);
    EXPECT_TRUE(read.base->sameFileState(*entry.base));
    EXPECT_EQ(read.base->digest, entry.base->digest);
    EXPECT_EQ(read.written, entry.written);
    EXPECT_EQ(read.bytes, entry.bytes);
}

TEST(JournalFile, RecordsAreRestoredExactly) {
    auto entry = sampleEntry();
    entry.records = {"odd\nname.frx", 70000, host::FileStamp{1, 2, 3, 4, 5, 6}, std::string("\0\n\xff", 3)};
    const auto bytes = encodeJournal(entry);
    const auto read = decodeJournal(bytes);
    EXPECT_EQ(read.bytes, entry.bytes);
    EXPECT_EQ(read.records.file, entry.records.file);
    EXPECT_EQ(read.records.from, 70000u);
    ASSERT_TRUE(read.records.base);
    EXPECT_EQ(read.records.base->digest, 6u);
    EXPECT_EQ(read.records.bytes, entry.records.bytes);
    EXPECT_TRUE(decodeJournal(encodeJournal(sampleEntry())).records.bytes.empty());
    EXPECT_THAT(whyRefused(bytes.substr(0, bytes.size() - 2)), testing::HasSubstr("ends after"));
    EXPECT_THAT(whyRefused(bytes + "x"), testing::HasSubstr("checksum"));
    auto overflow = bytes;
    overflow.replace(overflow.find("Records=3"), 9, "Records=18446744073709551615");
    EXPECT_THAT(whyRefused(overflow), testing::HasSubstr("ends after"));
}

TEST(JournalFile, AComponentWithoutAFileHasNoBase) {
    auto entry = sampleEntry();
    entry.project = entry.file = entry.bytes = "";
    entry.base.reset();
    const auto read = decodeJournal(encodeJournal(entry));
    EXPECT_EQ(read.project + read.file + read.bytes, "");
    EXPECT_FALSE(read.base);
}

TEST(JournalFile, NamesMayHaveAnyCharacter) {
    auto entry = sampleEntry();
    entry.file = "/odd\nname\\n and \\ \r\xff/x.bas\\";
    EXPECT_EQ(decodeJournal(encodeJournal(entry)).file, entry.file);
}

TEST(JournalFile, ReportsTheReasonForRefusingOtherBytes) {
    const auto whole = encodeJournal(sampleEntry());
    const auto with = [&](const std::string& part, const std::string& other) {
        auto bytes = whole;
        return bytes.replace(bytes.find(part), part.size(), other);
    };
    using testing::HasSubstr;
    EXPECT_THAT(whyRefused(""), HasSubstr("not a journal"));
    EXPECT_THAT(whyRefused("Attribute VB_Name = \"modA\"\r\n"), HasSubstr("not a journal"));
    EXPECT_THAT(whyRefused(with("journal 1", "journal 3")), HasSubstr("not a journal of this version"));
    EXPECT_THAT(whyRefused(with("Component=", "Component:")), HasSubstr("lacks its line Component="));
    EXPECT_THAT(whyRefused(with("Type=1", "Type=x")), HasSubstr("number"));
    EXPECT_THAT(whyRefused(with("Type=1\n", "Type=1x\n")), HasSubstr("not a number"));
    EXPECT_THAT(whyRefused(with("Base=1 2", "Base=1")), HasSubstr("number"));
    EXPECT_THAT(whyRefused(with("Written=17", "Written=99999999999999999999")), HasSubstr("number"));
    EXPECT_THAT(whyRefused(with("caf", "kaf")), HasSubstr("checksum"));
    EXPECT_THAT(whyRefused(with("Hello", "Other")), HasSubstr("checksum"));
    EXPECT_THAT(whyRefused(whole + "x"), HasSubstr("checksum"));
    EXPECT_THAT(whyRefused(whole.substr(0, whole.size() - 5)), HasSubstr("ends after"));
}

/// A power failure may truncate the file, and any byte may be damaged.
TEST(JournalFile, AnyDamageIsDetected) {
    const auto whole = encodeJournal(sampleEntry());
    for (std::size_t length = 0; length < whole.size(); ++length)
        EXPECT_EQ(errorOf([&] { decodeJournal(whole.substr(0, length)); }), 321) << length;
    for (std::size_t at = 0; at < whole.size(); ++at) {
        auto bytes = whole;
        bytes[at] = char(bytes[at] ^ 1);
        const auto error = basic::attempt([&] { decodeJournal(bytes); });
        EXPECT_EQ(error.Number, 321) << at;
    }
}
