#include "Host/files/path_lookup.h"
#include "tests/support/temp_folder.h"
#include <gtest/gtest.h>

using host::PathLookup;
using host::writtenPath;
using test::TempFolder;

TEST(PathLookup, FindsPathsWithBackslashes) {
    const TempFolder folder;
    folder.write("lib/code/main.bas", "");
    PathLookup lookup;
    EXPECT_EQ(lookup.find(folder / "lib", "code\\main.bas"), folder / "lib/code/main.bas");
    EXPECT_EQ(lookup.find(folder / "app", "..\\lib\\code\\main.bas"), folder / "lib/code/main.bas");
    EXPECT_EQ(lookup.find(folder / "lib", ".\\code/main.bas"), folder / "lib/code/main.bas");
}

TEST(PathLookup, FindsAnotherLetterCaseOnlyWithoutAnExactMatch) {
    const TempFolder folder;
    folder.write("[Include]/HardCode/Größe.bas", "");
    folder.write("a.bas", "");
    folder.write("A.BAS", "");
    PathLookup lookup;
    EXPECT_EQ(lookup.find(folder.path(), "[include]\\HARDCODE\\GRÖßE.bas"), folder / "[Include]/HardCode/Größe.bas");
    EXPECT_EQ(lookup.find(folder.path(), "a.bas"), folder / "a.bas");
    EXPECT_EQ(lookup.find(folder.path(), "A.BAS"), folder / "A.BAS");
}

TEST(PathLookup, ALeadingSeparatorMakesAPathAbsolute) {
    const TempFolder folder;
    const auto path = folder.write("x.bas", "");
    PathLookup lookup;
    EXPECT_EQ(lookup.find("/elsewhere", path), path);
}

TEST(PathLookup, JoinsMissingNamesAsWritten) {
    const TempFolder folder;
    PathLookup lookup;
    EXPECT_EQ(lookup.find(folder.path(), "no\\Such.bas"), folder / "no/Such.bas");
    EXPECT_EQ(lookup.find(folder.path(), "..\\..\\..\\..\\..\\..\\x"), "/x");
}

TEST(PathLookup, WritesPathsLikeAProject) {
    EXPECT_EQ(writtenPath("/p/app", "/p/app/forms/a.frm"), "forms\\a.frm");
    EXPECT_EQ(writtenPath("/p/app", "/p/lib/a.bas"), "..\\lib\\a.bas");
    EXPECT_EQ(writtenPath("/p/app", "/p/app/a.bas"), "a.bas");
}
