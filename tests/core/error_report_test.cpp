#include "Add-in/core/modAddInErrorManagement.h"
#include "tests/support/scripted_user.h"

using namespace fernwick;

namespace {
struct ErrorReportTest : ::testing::Test {
    test::ScriptedUser user;
    App app{"QLVBAddIn", "", "http://support.example", "", ""};
    modAddInErrorManagement errors{user, app};
};
} // namespace

TEST_F(ErrorReportTest, SaysWhereWhatAndWhomToAsk) {
    user.expectBox("An Error Has Occurred in Connect.AboutHandler_Click (VBIDE)\r\n"
                   "Error: [75] Path/File access error\r\n"
                   "LastDllError: 13\r\n"
                   "Please contact Quinloft at http://support.example",
                   vbOK, vbCritical);
    errors.Error_ShowAddInError("Connect.AboutHandler_Click", basic::RuntimeError(75, "", "VBIDE", 13));
}

TEST_F(ErrorReportTest, ErrorsOfOurOwnCarryTheAddInsName) {
    user.expectBox("An Error Has Occurred in modX.Y (QLVBAddIn)\r\n"
                   "Error: [91] Object variable or With block variable not set\r\n"
                   "LastDllError: 0\r\n"
                   "Please contact Quinloft at http://support.example",
                   vbOK, vbCritical);
    errors.Error_ShowAddInError("modX.Y", basic::RuntimeError(91));
}

TEST_F(ErrorReportTest, KeepsBracesInTexts) {
    user.expectBox("An Error Has Occurred in {location} (QLVBAddIn)\r\nError: [5] {0}\r\nLastDllError: 0\r\n"
                   "Please contact Quinloft at http://support.example",
                   vbOK, vbCritical);
    errors.Error_ShowAddInError("{location}", basic::RuntimeError(5, "{0}"));
}

TEST_F(ErrorReportTest, TheCurrentLocationIsAlwaysEmpty) {
    errors.Error_SetCurrentLocation("modX.Y");
    EXPECT_EQ(errors.Error_GetCurrentLocation(), "");
}
