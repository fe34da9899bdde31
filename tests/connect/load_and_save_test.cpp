// Loading and writing projects of older versions.
#include "connect_world.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class LoadAndSave : public testing::Test, protected test::ConnectWorld {
protected:
    LoadAndSave() { connect(); }
    /// Returns what is shown before the host loads a project with this text.
    std::vector<std::string> load(const std::string& text) {
        files.files["/p/Old.vbp"] = {text};
        trace.effects.clear();
        vbe->events->allFiles->BeforeLoadFile.raise(project, {"/p/Form1.frm"});
        return trace.effects;
    }
    /// `before` is what an earlier handler decided.
    bool cancelled(const test::Ref<test::TracedProject>& written, bool before = false) {
        connection->FileControlHandler = vbe->events->files;
        bool cancel = before;
        vbe->events->files->RequestWriteFile.raise(written, written->file, cancel);
        return cancel;
    }
    test::Ref<test::TracedProject> project = basic::make<test::TracedProject>(trace, "Old", "/p/Old.vbp");
};

TEST_F(LoadAndSave, AnOldProjectGetsOneBox) {
    EXPECT_THAT(load("Type=Exe\r\nIsQuinloftProject=True\r\nName=\"x\"\r\n"),
                ElementsAre("box 48 Warning: Pre Quinloft Fernwick 3.5 Project: This project was created with an older "
                            "version of Quinloft Fernwick and will not work with this version. The project must be "
                            "converted before it can be run safely in this version of Fernwick. After any additional "
                            "error dialogs are dismissed, Fernwick will start the Project Converter. Follow the "
                            "Project Converter instructions to make this a valid Fernwick 3.5 project."));
}

TEST_F(LoadAndSave, ACurrentProjectGetsNone) {
    EXPECT_THAT(load("IsQuinloftProject=True\r\nProjectVersion=3.5\r\n"), IsEmpty());
    EXPECT_THAT(load("ProjectVersion=3.5\r\nIsQuinloftProject=True\r\n"), IsEmpty());
}

TEST_F(LoadAndSave, AForeignProjectGetsNone) {
    EXPECT_THAT(load("Type=Exe\r\n"), IsEmpty());
    EXPECT_THAT(load("ProjectVersion=1\r\n"), IsEmpty());
}

TEST_F(LoadAndSave, LetterCaseCounts) { EXPECT_THAT(load("isquinloftproject=true\r\n"), IsEmpty()); }

TEST_F(LoadAndSave, OnlyTheStartOfALineCounts) {
    EXPECT_THAT(load(" IsQuinloftProject=True\r\n"), IsEmpty());
    EXPECT_EQ(load("IsQuinloftProject=True, more\r\nXProjectVersion=2\r\n").size(), 1U);
}

TEST_F(LoadAndSave, ANewProjectIsNotRead) {
    project->file.clear();
    vbe->events->allFiles->BeforeLoadFile.raise(project, {});
}

TEST_F(LoadAndSave, LeavesAnUnreadableFileToTheHost) {
    const auto err = basic::attempt([&] { vbe->events->allFiles->BeforeLoadFile.raise(project, {}); });
    EXPECT_EQ(err.Number, basic::kFileNotFound);
    EXPECT_THAT(errors.seen, IsEmpty());
}

TEST_F(LoadAndSave, AnOldProjectIsNotWritten) {
    const auto old = ProjectsWorld::open("A");
    set(old, "ProjectVersion", "1.0");
    EXPECT_TRUE(cancelled(old));
    EXPECT_THAT(errors.seen, IsEmpty());
}

TEST_F(LoadAndSave, OthersAreWrittenUnlessAnotherHandlerCancels) {
    const auto current = ProjectsWorld::open("A"), foreign = ProjectsWorld::open("B", "none");
    set(foreign, "ProjectVersion", "1.0");
    for (const bool before : {false, true}) {
        EXPECT_EQ(cancelled(current, before), before);
        EXPECT_EQ(cancelled(foreign, before), before);
    }
}

TEST_F(LoadAndSave, AProjectThatIsNotListedIsWrittenSilently) {
    EXPECT_FALSE(cancelled(project));
    EXPECT_THAT(errors.seen, IsEmpty());
}

} // namespace
