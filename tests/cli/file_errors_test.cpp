// The status of a command for a file that could not be opened.
#include "Apps/fernwick/options/exit_status.h"
#include "Apps/fernwick/output/file_errors.h"
#include "Basic/runtime_error.h"
#include "tests/support/temp_folder.h"
#include <gtest/gtest.h>

namespace {

TEST(FileErrors, AMissingFileIsWrongUse) {
    EXPECT_EQ(cli::statusOfOpening(basic::kFileNotFound), cli::kWrongUse);
    EXPECT_EQ(cli::statusOfOpening(basic::kPathNotFound), cli::kWrongUse);
}

TEST(FileErrors, AFileThatTheMachineRefusesIsTroubleOfTheMachine) {
    for (const int number : {basic::kPermissionDenied, basic::kPathFileAccessError, basic::kDeviceIOError})
        EXPECT_EQ(cli::statusOfOpening(number), cli::kMachineTrouble) << number;
}

TEST(FileErrors, AnyOtherErrorIsOneOfTheProject) {
    EXPECT_EQ(cli::statusOfOpening(basic::kTypeMismatch), cli::kProjectErrors);
}

TEST(FileErrors, AFolderInPlaceOfAFileIsWrongUse) {
    const test::TempFolder folder;
    EXPECT_EQ(cli::statusOfNamedFile(folder.path(), basic::kPathFileAccessError), cli::kWrongUse);
    EXPECT_EQ(cli::statusOfNamedFile(folder.path() + "/none", basic::kPathFileAccessError), cli::kMachineTrouble);
}

TEST(FileErrors, NameTheFileOnce) {
    EXPECT_EQ(cli::withFile("a.bas", "Path not found"), "a.bas: Path not found");
    EXPECT_EQ(cli::withFile("a.bas", "a.bas: Path not found"), "a.bas: Path not found");
}

} // namespace
