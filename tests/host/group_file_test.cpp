#include "Host/files/group_file.h"
#include "Host/files/workspace_file.h"
#include <gtest/gtest.h>

using basic::CodePage;
using host::GroupFile;
using host::WorkspaceFile;

TEST(GroupFile, ListsItsProjects) {
    const std::string bytes = "VBGROUP 5.0\r\nProject=Lib\\Lib.vbp\r\nStartupProject=Test\\Test.vbp\r\nodd line";
    const GroupFile group(bytes, CodePage::windows1252());
    ASSERT_EQ(group.entries().size(), 2u);
    EXPECT_EQ(group.entries()[0].path, "Lib\\Lib.vbp");
    EXPECT_FALSE(group.entries()[0].startUp);
    EXPECT_TRUE(group.entries()[1].startUp);
    EXPECT_EQ(group.entries()[1].line, 3u);
    EXPECT_EQ(group.bytes(), bytes);
}

TEST(GroupFile, IsRecognisedByItsFirstLine) {
    EXPECT_TRUE(GroupFile::looksLikeGroup("VBGROUP 5.0\r\n"));
    EXPECT_FALSE(GroupFile::looksLikeGroup("Type=Exe\r\n"));
    EXPECT_FALSE(GroupFile::looksLikeGroup(""));
}

TEST(WorkspaceFile, ReadsOneWindowAndTwo) {
    const std::string bytes =
        "modMain = 10, 20, 300, 400, \r\nfrmMain = 1, 2, 3, 4, C, 5, 6, 7, 8, CZ\r\nbad = x, y\r\n\r\n";
    const WorkspaceFile file(bytes, CodePage::windows1252());
    ASSERT_EQ(file.entries().size(), 2u);
    EXPECT_EQ(file.entries()[0].component, "modMain");
    EXPECT_EQ(file.entries()[0].code.bottom, 400);
    EXPECT_FALSE(file.entries()[0].designer);
    EXPECT_EQ(file.entries()[1].code.state, "C");
    EXPECT_EQ(file.entries()[1].designer->state, "CZ");
    EXPECT_EQ(file.bytes(), bytes);
    EXPECT_TRUE(WorkspaceFile("", CodePage::windows1252()).entries().empty());
}
