// The actions of a double-click and of keys on a message.
#include "messages_world.h"

using testing::AnyOf;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;
using testing::StartsWith;

namespace {

constexpr char kPicturesPage[] = "start Hh.exe ms-its:/install/VB Toolkit/doc/Quinloft_Tamarik_and_Components.chm::/"
                                 "Quinloft_Tamarik_and_Components_Tamarik And PNG Files.html";
constexpr char kFontConverterPath[] = "/install/VB Toolkit/Bin/QLFonC.exe";

class MessageActions : public testing::Test, protected test::MessagesWorld {
protected:
    void add(const std::string& title, int line, int number, const std::string& message = "m") {
        window->add("f", title, line, message, fernwick::ERROR_MSG, number, false);
    }
    /// Returns the effects of a double-click on the row.
    std::vector<std::string> doubleClick(int row = 1) {
        window->select(row);
        trace.effects.clear();
        window->msgGrid_DblClick();
        return trace.effects;
    }
    std::vector<std::string> press(int key, int shift = 0, int row = 1) {
        window->select(row);
        trace.effects.clear();
        window->msgGrid_KeyDown(key, shift);
        return trace.effects;
    }
    basic::Ref<test::TracedComponent> form = project->add("Form1", "/p/Form1.frm", vbide::vbext_ct_VBForm);
};

TEST_F(MessageActions, AMessageOpensItsLine) {
    add("Form1", 12, 1042);
    EXPECT_THAT(doubleClick(),
                ElementsAre("Form1 pane", "redraw off", "Form1 state 0", "redraw on", "Form1 focus", "12,1-12,9999"));
    EXPECT_EQ(form->code->pane->window->state, vbide::vbext_ws_Normal);
}

TEST_F(MessageActions, WithoutALineOrATitleNothingOpens) {
    add("Form1", 0, 0);
    add("", 12, 0);
    add("Form1", -1, 0);
    for (int row = 1; row <= 3; ++row) EXPECT_THAT(doubleClick(row), IsEmpty()) << row;
}

TEST_F(MessageActions, WithoutALineTheNumberStillActs) {
    add("Form1", 0, 8208);
    EXPECT_THAT(doubleClick(), ElementsAre(kPicturesPage));
}

TEST_F(MessageActions, TheHeaderDoesNothing) {
    add("Form1", 12, 8208);
    EXPECT_THAT(doubleClick(0), IsEmpty());
}

TEST_F(MessageActions, AnUnsupportedComponentOpensTheCompilerSettings) {
    add("", 0, 4119);
    vbe->active = basic::make<test::TracedProject>(trace, "Other", "/p/Other.vbp");
    EXPECT_THAT(doubleClick(), ElementsAre("cursor 11", "settings Compiler Settings"));
    EXPECT_EQ(noted.settingsOf, vbe->active);
    EXPECT_FALSE(noted.scansInSettings);
}

TEST_F(MessageActions, AMissingFontStartsTheConverter) {
    add("", 0, 8193);
    EXPECT_THAT(doubleClick(), ElementsAre(std::string("start ") + kFontConverterPath));
}

TEST_F(MessageActions, AConverterThatDoesNotStartIsReportedInABox) {
    programs.missing = kFontConverterPath;
    add("", 0, 8193);
    EXPECT_THAT(doubleClick(),
                ElementsAre(StartsWith("start"), "box 16 Fernwick: ERROR!\r\n\r\nCould Launch Converter/Viewer;\r\n"
                                                 "Application is missing or not in default location."));
    EXPECT_THAT(errors.seen, ElementsAre("modViewConvertManagement.OpenViewerConverter [53]"));
}

TEST_F(MessageActions, AMessageMayOpenItsLineAndAct) {
    add("Form1", 3, 8208);
    EXPECT_THAT(doubleClick(), ElementsAre("Form1 pane", "redraw off", "Form1 state 0", "redraw on", "Form1 focus",
                                           "3,1-3,9999", kPicturesPage));
}

TEST_F(MessageActions, AMissingComponentIsReportedAndTheNumberActs) {
    add("Gone", 3, 8208);
    EXPECT_THAT(doubleClick(), ElementsAre(kPicturesPage));
    EXPECT_THAT(errors.seen, ElementsAre("udocCompileMsgs.msgGrid_DblClick [9]"));
    EXPECT_EQ(window->selectedRow(), 1);
}

TEST_F(MessageActions, OtherNumbersDoNothing) {
    for (const int number : {1042, 2999, 4097, 8198, 8205, 12289, -1}) {
        window->clearMessages();
        add("", 0, number);
        EXPECT_THAT(doubleClick(), IsEmpty()) << number;
    }
}

TEST_F(MessageActions, ShowSourceOpensTheLineOnly) {
    add("Form1", 3, 4119);
    add("", 0, 8193);
    window->showSource(1);
    EXPECT_EQ(trace.effects.back(), "3,1-3,9999");
    trace.effects.clear();
    window->showSource(2);
    EXPECT_EQ(window->selectedRow(), 2);
    window->showSource(0);
    EXPECT_EQ(window->selectedRow(), 0);
    EXPECT_THAT(trace.effects, IsEmpty());
    window->showSource(3);
    EXPECT_THAT(errors.seen, ElementsAre("udocCompileMsgs.showSource [30009]"));
}

TEST_F(MessageActions, MessagesClearedDuringASelectionDoNothing) {
    add("Form1", 3, 8208);
    const auto watch = window->chosen.connect([this] { window->clearMessages(); });
    window->gotoMessage(1);
    EXPECT_THAT(trace.effects, IsEmpty());
    EXPECT_TRUE(errors.seen.empty());
}

/// Each call fails in turn: one report, and the rest unchanged. Opening the line depends on the pane.
TEST_F(MessageActions, AFailingStepIsReportedAndTheNextOneRuns) {
    add("Form1", 3, 4119);
    const auto baseline = doubleClick();
    ASSERT_EQ(baseline.size(), 8U);
    for (int failing = 1;; ++failing) {
        errors.seen.clear();
        trace.calls = 0;
        trace.failing = failing;
        const auto effects = doubleClick();
        trace.failing = 0;
        if (trace.calls < failing) break;
        EXPECT_THAT(errors.seen, ElementsAre("udocCompileMsgs.msgGrid_DblClick [50000]")) << failing;
        EXPECT_THAT(test::lost(baseline, effects), AnyOf(SizeIs(1), SizeIs(6))) << failing;
    }
}

// ---- keys
// --------------------------------------------------------------------------------------------------------------

TEST_F(MessageActions, F1ShowsTheHelpOnTheNumber) {
    files.files["/install/VB Toolkit/doc/Quinloft_Error_Codes/1042.html"] = {};
    add("Form1", 12, 1042);
    EXPECT_THAT(press(112), ElementsAre("start Hh.exe -mapid 1042 /install/VB Toolkit/doc/Quinloft_Error_Codes.chm"));
}

TEST_F(MessageActions, F1OnANumberWithoutAPageSaysSoAndShowsTheList) {
    add("Form1", 12, 999);
    EXPECT_THAT(press(112),
                ElementsAre("box 64 Fernwick: There is no help page for message 999. The list of all help pages "
                            "opens instead.",
                            "start Hh.exe -mapid 999 /install/VB Toolkit/doc/Quinloft_Error_Codes.chm"));
}

TEST_F(MessageActions, WithoutAnInstallationNoHelpInTheCurrentFolderOpens) {
    registry.set(fernwick::HKEY_LOCAL_MACHINE, "Software\\Quinloft", "RootDir", "");
    add("Form1", 12, 999);
    EXPECT_THAT(press(112), Not(Contains(HasSubstr("start "))));
    EXPECT_THAT(errors.seen, ElementsAre("udocCompileMsgs.msgGrid_KeyDown [53]"));
    add("Form1", 0, 8208);
    EXPECT_THAT(doubleClick(), Not(Contains(HasSubstr("start "))));
}

TEST_F(MessageActions, F1OnTheHeaderIsReported) {
    add("Form1", 12, 1042);
    EXPECT_THAT(press(112, 0, 0), IsEmpty());
    EXPECT_THAT(errors.seen, ElementsAre("udocCompileMsgs.msgGrid_KeyDown [13]"));
}

TEST_F(MessageActions, F1OnAMessageWithoutANumberIsReported) {
    add("Form1", 12, 0);
    EXPECT_THAT(press(112), IsEmpty());
    EXPECT_THAT(errors.seen, ElementsAre("udocCompileMsgs.msgGrid_KeyDown [13]"));
}

TEST_F(MessageActions, MissingHelpIsReported) {
    programs.missing = "Hh.exe -mapid 999 /install/VB Toolkit/doc/Quinloft_Error_Codes.chm";
    add("Form1", 12, 999);
    press(112);
    EXPECT_THAT(errors.seen, ElementsAre("udocCompileMsgs.msgGrid_KeyDown [53]"));
}

TEST_F(MessageActions, ControlCReplacesTheClipboardByTheRow) {
    add("Form1", 12, 1042, "No such name");
    EXPECT_THAT(press(67, 2), ElementsAre("clipboard cleared", "copy text/plain;charset=windows-1252"));
    EXPECT_EQ(copied.texts.size(), 1U);
    EXPECT_EQ(copied.texts[fernwick::kAnsiTextFormat],
              std::string("File Title: Form1, Line: 12, Error Number: 1042, Message: No such name") + '\0');
}

TEST_F(MessageActions, ACopyKeepsEmptyCellsAndLineBreaks) {
    add("", 0, 0, "first\r\nsecond");
    press(67, 2);
    EXPECT_EQ(copied.texts[fernwick::kAnsiTextFormat],
              std::string("File Title: , Line: , Error Number: , Message: first\r\nsecond") + '\0');
}

TEST_F(MessageActions, ACopyIsInTheSingleByteCodePage) {
    add("Menü", 12, 0, "10 €");
    press(67, 2);
    EXPECT_EQ(copied.texts[fernwick::kAnsiTextFormat],
              std::string("File Title: Men\xFC, Line: 12, Error Number: , Message: 10 \x80") + '\0');
}

TEST_F(MessageActions, CharactersBeyondTheCodePageAreCopiedInFullText) {
    add("Form1", 12, 0, "中 é");
    press(67, 2);
    EXPECT_EQ(copied.texts[fernwick::kAnsiTextFormat],
              std::string("File Title: Form1, Line: 12, Error Number: , Message: ? \xE9") + '\0');
    EXPECT_EQ(copied.texts[fernwick::kTextFormat], "File Title: Form1, Line: 12, Error Number: , Message: 中 é");
}

TEST_F(MessageActions, OtherKeysAndTheHeaderCopyNothing) {
    add("Form1", 12, 1042);
    EXPECT_THAT(press(67, 0), IsEmpty());
    EXPECT_THAT(press(67, 3), IsEmpty());
    EXPECT_THAT(press(112, 1), IsEmpty());
    EXPECT_THAT(press(67, 2, 0), IsEmpty());
    EXPECT_TRUE(errors.seen.empty());
}

TEST_F(MessageActions, ALockedClipboardIsReported) {
    add("Form1", 12, 1042);
    for (const int failing : {1, 2}) {
        trace.calls = 0;
        trace.failing = failing;
        EXPECT_EQ(press(67, 2).size(), 1U);
        trace.failing = 0;
    }
    EXPECT_EQ(errors.seen.size(), 2U);
}

} // namespace
