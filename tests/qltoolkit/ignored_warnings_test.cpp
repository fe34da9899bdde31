// Comments that ignore warnings of one statement.
#include "Components/QLToolkit/source/ignored_warnings.h"
#include "tests/qltoolkit/checked_program.h"
#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// With all warnings.
std::vector<std::string> warningsOf(const std::string& code) {
    test::CheckedProgram program;
    program.options.warnsOptionally = program.options.warnsOfDevices = true;
    return program.add("Module1.bas", code).messages();
}

} // namespace

TEST(IgnoredWarnings, ACommentIgnoresTheWarningOfItsLine) {
    EXPECT_THAT(warningsOf("Sub A()\nx = 1 ' fernwick: ignore 2900\ny = 1\nEnd Sub"), ElementsAre("3:1 2900"));
    EXPECT_THAT(warningsOf("Sub A()\nShell \"a\" 'FERNWICK:IGNORE 2803\nEnd Sub"), IsEmpty());
}

TEST(IgnoredWarnings, ACommentListsSeveralNumbersAndReasons) {
    EXPECT_THAT(warningsOf("Sub A()\nx = Shell(\"a\") ' fernwick: ignore 2900, 2803 only on the desktop\nEnd Sub"),
                IsEmpty());
    EXPECT_THAT(warningsOf("Sub A()\nx = Shell(\"a\") ' total ' fernwick: ignore 2803,2900\nEnd Sub"), IsEmpty());
}

TEST(IgnoredWarnings, TheCommentOfAContinuedStatementCountsForAllItsLines) {
    EXPECT_THAT(warningsOf("Sub A()\nx = _\n  Shell( _\n  \"a\") ' fernwick: ignore 2900, 2803\nEnd Sub"), IsEmpty());
    EXPECT_THAT(warningsOf("Sub A()\ny = 1\nx = _\n  1 ' fernwick: ignore 2900\nEnd Sub"), ElementsAre("2:1 2900"));
}

TEST(IgnoredWarnings, AWarningOfTheParserIsIgnoredToo) {
    EXPECT_THAT(warningsOf("Sub A()\nEnd Function"), ElementsAre("2:1 1333"));
    EXPECT_THAT(warningsOf("Sub A()\nEnd Function ' fernwick: ignore 1333"), IsEmpty());
}

TEST(IgnoredWarnings, ErrorsAndUnknownNumbersCannotBeIgnored) {
    EXPECT_THAT(warningsOf("Option Explicit\nSub A()\nx = 1 ' fernwick: ignore 2000\nEnd Sub"),
                ElementsAre("3:1 2000", "3:26 2910"));
    EXPECT_THAT(warningsOf("' fernwick: ignore 9999, x"), ElementsAre("1:20 2910", "1:26 2910"));
    EXPECT_THAT(warningsOf("' fernwick: ignore"), ElementsAre("1:19 2910"));
}

TEST(IgnoredWarnings, ANumberThatIgnoresNothingIsMentionedOnRequest) {
    const std::string code = "Sub A()\nBeep ' fernwick: ignore 2900, 2803\nEnd Sub";
    EXPECT_THAT(warningsOf(code), ElementsAre("2:25 2911", "2:31 2911"));
    EXPECT_THAT(test::messagesOf(code), IsEmpty());
    test::CheckedProgram desktop;
    desktop.options.warnsOptionally = true;
    EXPECT_THAT(desktop.add("Module1.bas", code).messages(), ElementsAre("2:25 2911"));
    desktop.options.lacksFiles = true; // which may have declared what the warning is for
    EXPECT_THAT(desktop.messages(), IsEmpty());
}

TEST(IgnoredWarnings, OtherCommentsAndTextsIgnoreNothing) {
    EXPECT_THAT(warningsOf("Sub A()\nx = \"' fernwick: ignore 2900\"\nEnd Sub"), ElementsAre("2:1 2900"));
    EXPECT_THAT(warningsOf("Sub A()\nx = 1 ' fernwick: ignored 2900\nEnd Sub"), ElementsAre("2:1 2900"));
    EXPECT_THAT(warningsOf("Sub A()\nx = 1 ' the fernwick: ignore 2900\nEnd Sub"), ElementsAre("2:1 2900"));
    EXPECT_THAT(warningsOf("Sub A()\nx = 1 ' fernwick ignore: 2900\nEnd Sub"), ElementsAre("2:1 2900"));
    EXPECT_THAT(warningsOf("Sub A()\nx = 1 ' fernwick: accept 2900\nEnd Sub"), ElementsAre("2:1 2900"));
}

TEST(IgnoredWarnings, ALongLineOfCommentsIsReadInNoTime) {
    for (const std::string part : {"fernwick: ignore 2900, '", "2900, "}) {
        std::string code = "x = \"\" ' fernwick: ignore 2900, ";
        for (int i = 0; i < 100'000; ++i) code += part;
        const qltoolkit::SourceText source{"Module1.bas", code};
        EXPECT_THAT(qltoolkit::IgnoredWarnings{source}.listed(), testing::SizeIs(1));
    }
}
