#include "messages_world.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class MessageStore : public testing::Test, protected test::MessagesWorld {
protected:
    MessageStore() {
        form = project->add("Form1", "/p/Form1.frm", vbide::vbext_ct_VBForm);
        module = project->add("Module1", "/p/sub/Module1.bas");
        messages.createToolWindow();
        messages.clearToolWindow();
        trace.effects.clear();
    }
    void error(const std::string& text, int line = 3) {
        messages.AddProjectCompileError(project, text, "/p/Form1.frm", line, 1042);
    }
    void warning(const std::string& text) { messages.AddProjectCompileWarning(project, text, "", 0, 0); }
    std::string status() {
        std::string success = "fine", warned = "$WARNINGNUM$ warnings", failed = "$ERRORNUM$ errors, $WARNINGNUM$";
        messages.ProjectStatusText(success, warned, failed);
        return window->lblStatusText();
    }

    basic::Ref<test::TracedComponent> form, module;
};

TEST_F(MessageStore, ShowsAndStoresAMessage) {
    error("No such name");
    EXPECT_THAT(rows(), ElementsAre("Form1|3|1042|No such name"));
    EXPECT_EQ(stored("NumErrors"), "1");
    EXPECT_EQ(stored("Error1"), "ERROR|/p/Form1.frm|3|No such name|1042");
}

TEST_F(MessageStore, CountsBeforeItWritesTheMessage) {
    error("a");
    EXPECT_THAT(trace.effects, ElementsAre("NumErrors=1", "Error1=ERROR|/p/Form1.frm|3|a|1042"));
}

TEST_F(MessageStore, ErrorsComeAtTheTopAndWarningsAtTheEnd) {
    error("first");
    warning("early");
    error("second");
    warning("late");
    EXPECT_THAT(rows(), ElementsAre("Form1|3|1042|second", "Form1|3|1042|first", "|||early", "|||late"));
    EXPECT_EQ(stored("Error2"), "WARNING||0|early|0");
}

TEST_F(MessageStore, AWarningAfterTheFirstErrorDoesNotCount) {
    error("a");
    for (int i = 0; i < 3; ++i) warning("w");
    EXPECT_EQ(messages.errorCount(), 1);
    EXPECT_EQ(messages.warningCount(), 0);
}

TEST_F(MessageStore, WarningsBeforeTheFirstErrorStayCounted) {
    warning("w");
    warning("w");
    error("a");
    EXPECT_EQ(messages.warningCount(), 2);
    EXPECT_EQ(status(), "1 errors, 2");
}

TEST_F(MessageStore, StatusFollowsTheCounts) {
    EXPECT_EQ(status(), "fine");
    warning("w");
    warning("w");
    EXPECT_EQ(messages.errorCount(), 0);
    EXPECT_EQ(status(), "2 warnings");
    error("a");
    EXPECT_EQ(status(), "1 errors, 2");
}

TEST_F(MessageStore, TheNumbersAreWrittenIntoTheCallersText) {
    error("a");
    std::string success = "$ERRORNUM$", warned, failed = "$ERRORNUM$";
    messages.ProjectStatusText(success, warned, failed);
    EXPECT_EQ(failed, "1");
    EXPECT_EQ(success, "$ERRORNUM$");
}

TEST_F(MessageStore, AnEmptyFailureTextIsShownAsItIs) {
    error("a");
    std::string success = "fine", warned, failed;
    messages.ProjectStatusText(success, warned, failed);
    EXPECT_EQ(window->lblStatusText(), "");
}

TEST_F(MessageStore, OnlyTheStoredCopyIsFiltered) {
    error("a|b \"c\"\r\nd\re\nf");
    EXPECT_THAT(rows(), ElementsAre("Form1|3|1042|a|b \"c\"\r\nd\re\nf"));
    EXPECT_EQ(stored("Error1"), "ERROR|/p/Form1.frm|3|a:b 'c' d e f|1042");
    messages.ReadProjectErrors(project);
    EXPECT_THAT(rows(), ElementsAre("Form1|3|1042|a:b 'c' d e f"));
}

TEST_F(MessageStore, ReadsBackInStoredOrderAndCountsAgain) {
    warning("w");
    error("a");
    error("b");
    messages.ReadProjectErrors(project);
    EXPECT_THAT(rows(), ElementsAre("|||w", "Form1|3|1042|a", "Form1|3|1042|b"));
    EXPECT_EQ(messages.errorCount(), 2);
    EXPECT_EQ(messages.warningCount(), 1);
    EXPECT_EQ(window->lblStatusText(), "FAILED - Errors (2 items) must be fixed to deploy this project.");
    EXPECT_EQ(window->lblStatus(), "Compile Status:");
}

TEST_F(MessageStore, AMissingMessageIsSkipped) {
    for (const char* text : {"a", "b", "c"}) error(text);
    project->properties.erase({test::kMessagesSection, "Error2"});
    messages.ReadProjectErrors(project);
    EXPECT_THAT(rows(), ElementsAre("Form1|3|1042|a", "Form1|3|1042|c"));
}

TEST_F(MessageStore, AnUnknownTypeReadsAsThePreviousMessagesType) {
    store("NumErrors", "3");
    store("Error1", "UNKNOWN||0|first|0");
    store("Error2", "WARNING||0|second|0");
    store("Error3", "UNKNOWN||0|third|0");
    messages.ReadProjectErrors(project);
    EXPECT_EQ(window->message(1).type, 0);
    EXPECT_EQ(window->message(3).type, fernwick::WARNING_MSG);
    EXPECT_EQ(messages.warningCount(), 2);
}

TEST_F(MessageStore, OtherTypesAreStoredAsUnknown) {
    messages.AddProjectError(project, "m", "f", 7, 0, 9);
    EXPECT_EQ(stored("Error1"), "UNKNOWN|f|7|m|9");
    EXPECT_THAT(rows(), IsEmpty());
}

TEST_F(MessageStore, ReadsValuesOfEarlierVersionsWithoutANumber) {
    store("NumErrors", "1");
    store("Error1", "ERROR|/p/Form1.frm|5|old");
    messages.ReadProjectErrors(project);
    EXPECT_THAT(rows(), ElementsAre("Form1|5||old"));
}

TEST_F(MessageStore, ALaterFieldKeepsItsSeparators) {
    store("NumErrors", "1");
    store("Error1", "ERROR||5|text|12|34");
    messages.ReadProjectErrors(project);
    EXPECT_THAT(rows(), ElementsAre("|5||text"));
}

TEST_F(MessageStore, DamagedEntriesAreSkipped) {
    store("NumErrors", "3");
    store("Error1", "");
    store("Error2", "ERROR|only");
    store("Error3", "ERROR||x|text|y");
    messages.ReadProjectErrors(project);
    EXPECT_THAT(rows(), ElementsAre("|||text"));
}

TEST_F(MessageStore, ADamagedCountReadsAsZero) {
    store("NumErrors", "many");
    messages.ReadProjectErrors(project);
    EXPECT_EQ(messages.NumProjectCompileErrors(project), 0);
    EXPECT_EQ(window->lblStatusText(), "Compiling and validating...");
    error("a");
    EXPECT_EQ(stored("NumErrors"), "1");
}

TEST_F(MessageStore, ADamagedCountIsAnEmptyList) {
    store("Error1", "ERROR||0|stored|0");
    for (const char* count : {"100001", "2147483647", "-1", "-2147483648", "99999999999"}) {
        store("NumErrors", count);
        ASSERT_EQ(messages.NumProjectCompileErrors(project), 0) << count; // reading such a list takes minutes
        trace.calls = 0;
        messages.ReadProjectErrors(project);
        EXPECT_THAT(rows(), IsEmpty()) << count;
        EXPECT_LT(trace.calls, 10) << count; // no entry is read
        error("new");
        EXPECT_EQ(stored("NumErrors"), "1") << count;
    }
}

TEST_F(MessageStore, ALongListIsRead) {
    store("NumErrors", "100000");
    store("Error1", "ERROR||0|first|0");
    store("Error100000", "WARNING||0|last|0");
    messages.ReadProjectErrors(project);
    EXPECT_THAT(rows(), ElementsAre("|||first", "|||last"));
}

/// One more would make the whole list unreadable.
TEST_F(MessageStore, AFullListIsNotExtended) {
    store("NumErrors", "99999");
    error("the last");
    error("one more");
    EXPECT_EQ(stored("NumErrors"), "100000");
    EXPECT_EQ(stored("Error100000"), "ERROR|/p/Form1.frm|3|the last|1042");
    EXPECT_EQ(rows().size(), 2U);
}

/// File names are stored as they are, although such a one cannot be read back.
TEST_F(MessageStore, AFileNameWithASeparatorIsMisread) {
    messages.AddProjectCompileError(project, "m", "/p/a|b.frm", 3, 1042);
    EXPECT_EQ(stored("Error1"), "ERROR|/p/a|b.frm|3|m|1042");
    messages.ReadProjectErrors(project);
    EXPECT_THAT(rows(), ElementsAre("|||3"));
    EXPECT_THAT(errors.seen, IsEmpty());
}

TEST_F(MessageStore, ClearingKeepsTheEntriesAndResetsTheCount) {
    error("a");
    messages.ClearProjectCompileErrors(project);
    EXPECT_THAT(rows(), IsEmpty());
    EXPECT_EQ(messages.errorCount(), 0);
    EXPECT_EQ(stored("NumErrors"), "0");
    EXPECT_EQ(stored("Error1"), "ERROR|/p/Form1.frm|3|a|1042");
    EXPECT_EQ(window->lblStatusText(), "Compiling and validating...");
}

TEST_F(MessageStore, ClearingNothingWritesNothing) {
    messages.ClearProjectCompileErrors(project);
    EXPECT_FALSE(project->dirty);
    EXPECT_THAT(trace.effects, IsEmpty());
}

TEST_F(MessageStore, AReadOnlyProjectIsSilent) {
    error("a");
    project->readOnly = true;
    error("b");
    messages.ClearProjectCompileErrors(project);
    EXPECT_THAT(errors.seen, IsEmpty());
    EXPECT_EQ(stored("NumErrors"), "1");
}

TEST_F(MessageStore, WithoutAWindowTheMessageIsStillStored) {
    messages.killToolWindow();
    error("a");
    EXPECT_EQ(messages.errorCount(), 0);
    EXPECT_EQ(stored("NumErrors"), "1");
}

TEST_F(MessageStore, TitlesIgnoreCaseAndFolder) {
    EXPECT_EQ(messages.FindFileTitle(project, "/elsewhere/MODULE1.BAS"), "Module1");
    EXPECT_EQ(messages.FindFileTitle(project, "/p/Other.bas"), "");
    EXPECT_EQ(messages.FindFileTitle(project, ""), "");
}

TEST_F(MessageStore, TheFirstOfTwoFilesWithOneNameIsUsed) {
    project->add("Copy", "/q/Form1.frm");
    EXPECT_EQ(messages.FindFileTitle(project, "/q/Form1.frm"), "Form1");
}

TEST_F(MessageStore, AMessageWithoutAFileHasNoTitle) {
    project->add("New", "");
    EXPECT_EQ(messages.FindFileTitle(project, ""), "");
}

TEST_F(MessageStore, FollowsARenamedAndARemovedComponent) {
    EXPECT_EQ(messages.FindFileTitle(project, "Form1.frm"), "Form1");
    form->name = "Main";
    EXPECT_EQ(messages.FindFileTitle(project, "Form1.frm"), "Main");
    project->components->Remove(form);
    project->add("Second", "/q/Form1.frm");
    EXPECT_EQ(messages.FindFileTitle(project, "Form1.frm"), "Second");
}

TEST_F(MessageStore, ClearingSetsLabelAndStatus) {
    window->SetStatusLabel("Label:");
    window->SetStatusText("Text");
    messages.clearToolWindow();
    EXPECT_EQ(window->lblStatus(), "Compile Status:");
    EXPECT_EQ(window->lblStatusText(), "Compiling and validating...");
}

TEST_F(MessageStore, ANewComponentIsSeenAtOnce) {
    EXPECT_EQ(messages.FindFileTitle(project, "Late.bas"), "");
    project->add("Late", "/p/Late.bas");
    EXPECT_EQ(messages.FindFileTitle(project, "Late.bas"), "Late");
}

TEST_F(MessageStore, ANewRunSeesNewComponents) {
    EXPECT_EQ(messages.FindFileTitle(project, "Late.bas"), "");
    form->file = "/p/Late.bas";                                 // saved under another name
    EXPECT_EQ(messages.FindFileTitle(project, "Late.bas"), ""); // the run's lookups are cached
    messages.clearToolWindow();
    EXPECT_EQ(messages.FindFileTitle(project, "Late.bas"), "Form1");
}

TEST_F(MessageStore, AfterARunNothingIsCached) {
    EXPECT_EQ(messages.FindFileTitle(project, "Late.bas"), "");
    status();
    EXPECT_EQ(messages.FindFileTitle(project, "Module1.bas"), "Module1");
    form->file = "/p/Module1.bas";
    EXPECT_EQ(messages.FindFileTitle(project, "Module1.bas"), "Form1");
}

TEST_F(MessageStore, LookupsAreCached) {
    for (int i = 0; i < 300; ++i) project->add("C" + std::to_string(i), "/p/C" + std::to_string(i) + ".bas");
    trace.calls = 0;
    for (int i = 0; i < 10'000; ++i) messages.FindFileTitle(project, "/p/C299.bas");
    for (int i = 0; i < 10'000; ++i) messages.FindFileTitle(project, "/p/None.bas");
    EXPECT_LT(trace.calls, 65'000); // not one call for each component
}

TEST_F(MessageStore, AFailingComponentIsReportedOnceAndUsed) {
    trace.calls = 0;
    trace.failing = 3; // the calls: the components, their list, the first one's file
    EXPECT_EQ(messages.FindFileTitle(project, "Module1.bas"), "Form1");
    EXPECT_THAT(errors.seen, ElementsAre("modCompileErrorManagement.FindFileTitle [50000]"));
}

} // namespace
