#include "messages_world.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class MessageWindow : public testing::Test, protected test::MessagesWorld {
protected:
    basic::Ref<test::TracedComponent> form = project->add("Form1", "/p/Form1.frm", vbide::vbext_ct_VBForm);
    bool showing() { return vbe->windows->last && vbe->windows->last->visible; }
};

TEST_F(MessageWindow, IsMadeOnceAndStaysHidden) {
    messages.createToolWindow();
    messages.createToolWindow();
    EXPECT_THAT(trace.effects, ElementsAre("window QLVBAddIn.udocCompileMsgs {8531D96D-DE1E-11d2-8E96-00104B78F251}",
                                           "Fernwick Messages hidden"));
    EXPECT_EQ(window->lblStatus(), "Status:");
}

TEST_F(MessageWindow, IsMadeWhenItIsFirstShown) {
    EXPECT_FALSE(messages.isToolWindowShowing());
    messages.ShowProjectCompileErrors(project, false);
    EXPECT_TRUE(messages.isToolWindowShowing());
    messages.HideProjectCompileErrors();
    EXPECT_FALSE(showing());
}

TEST_F(MessageWindow, ShowsOnlyIfThereAreMessages) {
    messages.ShowProjectCompileErrors(project, true);
    EXPECT_FALSE(showing());
    messages.AddProjectError(project, "m", "", 0, fernwick::ERROR_MSG, 0);
    messages.ShowProjectCompileErrors(project, true);
    EXPECT_TRUE(showing());
}

TEST_F(MessageWindow, IsNotShownForACountBelowZero) {
    store("NumErrors", "-3");
    messages.ShowProjectCompileErrors(project, true);
    EXPECT_FALSE(showing());
}

TEST_F(MessageWindow, IsMadeWhenAProjectIsRead) {
    store("NumErrors", "1");
    store("Error1", "ERROR||0|stored|0");
    messages.ReadProjectErrors(project);
    EXPECT_EQ(rows().size(), 1U);
    ASSERT_FALSE(trace.effects.empty());
    EXPECT_EQ(trace.effects.front(), "window QLVBAddIn.udocCompileMsgs {8531D96D-DE1E-11d2-8E96-00104B78F251}");
    EXPECT_FALSE(showing());
}

TEST_F(MessageWindow, IsMadeAgainIfItsDocumentIsMissing) {
    const auto whole = vbe->windows;
    const auto break_ = [&] {
        messages.killToolWindow();
        vbe->windows =
            basic::make<test::TracedWindows>(trace, [](const std::string&) { return basic::make<fernwick::Object>(); });
        messages.createToolWindow(); // a window without messages
        vbe->windows = whole;
    };
    break_();
    messages.createToolWindow();
    messages.AddProjectCompileError(project, "m", "", 0, 0);
    EXPECT_EQ(rows().size(), 1U);
    break_();
    messages.showToolWindow();
    EXPECT_TRUE(showing());
    messages.AddProjectCompileError(project, "m", "", 0, 0);
    EXPECT_EQ(rows().size(), 2U);
}

TEST_F(MessageWindow, HidingWithoutAWindowDoesNothing) {
    messages.HideProjectCompileErrors();
    EXPECT_THAT(trace.effects, IsEmpty());
}

TEST_F(MessageWindow, AFailedCreationIsReported) {
    vbe->addins->list.clear();
    messages.createToolWindow();
    EXPECT_THAT(errors.seen, ElementsAre("modCompileErrorManagement.createToolWindow [9]",
                                         "modCompileErrorManagement.createToolWindow [91]"));
    EXPECT_FALSE(messages.isToolWindowShowing());
}

TEST_F(MessageWindow, StateIsWrittenOnlyOnAChange) {
    messages.createToolWindow();
    trace.effects.clear();
    messages.SaveCompileErrorWindowState(project);
    EXPECT_THAT(trace.effects, IsEmpty());
    messages.showToolWindow();
    messages.SaveCompileErrorWindowState(project);
    messages.SaveCompileErrorWindowState(project);
    messages.hideToolWindow();
    messages.SaveCompileErrorWindowState(project);
    EXPECT_THAT(trace.effects,
                ElementsAre("Fernwick Messages shown", "Visible=TRUE", "Fernwick Messages hidden", "Visible=FALSE"));
}

TEST_F(MessageWindow, OnlyTheExactWordIsAStoredState) {
    store("Visible", "True");
    EXPECT_FALSE(messages.GetCompileErrorWindowState(project));
    store("Visible", "TRUE");
    EXPECT_TRUE(messages.GetCompileErrorWindowState(project));
}

TEST_F(MessageWindow, CutsOneLineEndAtTheEndOfAMessage) {
    window->add("", "", 0, "a\r\nb\r\n\r\n", fernwick::ERROR_MSG, 0, false);
    EXPECT_EQ(window->message(1).cells[fernwick::udocCompileMsgs::MessageColumn], "a\r\nb\r\n");
}

TEST_F(MessageWindow, GoesToTheFirstMessageWithALineWhateverItsType) {
    window->add("f", "", 0, "no line", fernwick::ERROR_MSG, 1, false);
    window->add("f", "Form1", 12, "warning", fernwick::WARNING_MSG, 0, false);
    window->add("f", "Form1", 20, "error", fernwick::ERROR_MSG, 2, false);
    window->gotoFirstError();
    EXPECT_EQ(window->selectedRow(), 2);
    EXPECT_THAT(trace.effects,
                ElementsAre("Form1 pane", "redraw off", "Form1 state 0", "redraw on", "Form1 focus", "12,1-12,9999"));
}

TEST_F(MessageWindow, WithoutALineNothingOpens) {
    window->add("f", "Form1", 0, "m", fernwick::ERROR_MSG, 1, false);
    window->gotoFirstError();
    EXPECT_EQ(window->selectedRow(), 0);
    window->gotoMessage(1);
    EXPECT_THAT(trace.effects, IsEmpty());
    EXPECT_EQ(window->selectedRow(), 1);
}

TEST_F(MessageWindow, TheHeaderOpensNothing) {
    window->add("f", "Form1", 3, "m", fernwick::ERROR_MSG, 1, false);
    window->gotoMessage(0);
    EXPECT_THAT(trace.effects, IsEmpty());
}

TEST_F(MessageWindow, AMissingComponentIsReportedOnce) {
    window->add("f", "Gone", 3, "m", fernwick::ERROR_MSG, 1, false);
    window->gotoMessage(1);
    EXPECT_THAT(errors.seen, ElementsAre("udocCompileMsgs.msgGrid_DblClick [9]"));
}

TEST_F(MessageWindow, ARowAfterTheLastIsReported) {
    window->gotoMessage(2);
    EXPECT_THAT(errors.seen, ElementsAre("udocCompileMsgs.gotoMessage [30009]"));
    window->gotoMessage(3); // beyond the last row
    EXPECT_EQ(errors.seen.size(), 1U);
}

TEST_F(MessageWindow, DoesNothingAfterTheAddInIsDisconnected) {
    window->add("f", "Form1", 3, "m", fernwick::ERROR_MSG, 1, false);
    window->disconnect();
    window->gotoMessage(1);
    EXPECT_THAT(trace.effects, IsEmpty());
    EXPECT_EQ(rows().size(), 1U);
}

TEST_F(MessageWindow, TenThousandErrorsAreQuick) {
    messages.createToolWindow();
    for (int i = 0; i < 10'000; ++i) messages.AddProjectCompileError(project, "m", "/p/Form1.frm", i, i);
    EXPECT_EQ(messages.errorCount(), 10'000);
    EXPECT_EQ(window->message(1).cells[fernwick::udocCompileMsgs::LineColumn], "9999");
}

} // namespace
