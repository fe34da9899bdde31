#include "project_world.h"
#include <filesystem>

using namespace fernwick;

namespace {
struct SaveFiles : test::ProjectTest {
    static constexpr const char* kReadOnlyTitle = "ERROR: Cannot save file!";
    basic::Ref<clsQLProject> project = open(test::SampleProject{}.form("frmMain").module("modOne").handheld());

    basic::Ref<vbide::VBComponent> component(const char* name) {
        return project->VBProject()->VBComponents()->Item(name);
    }
    void change(const char* name) { component(name)->CodeModule()->InsertLines(1, "' changed"); }
    bool isChangedOnDisk(const std::string& file) {
        return host.folder.read(file).find("' changed") != std::string::npos;
    }
    void makeReadOnly(const std::string& file) {
        std::filesystem::permissions(path(file),
                                     std::filesystem::perms::owner_read | std::filesystem::perms::group_read);
    }
};
} // namespace

TEST_F(SaveFiles, SavesDirtyComponentsAndTheProject) {
    change("modOne");
    project->Autosave(true);
    project->SaveFiles();
    EXPECT_TRUE(isChangedOnDisk("modOne.bas"));
    EXPECT_FALSE(component("modOne")->IsDirty());
    EXPECT_FALSE(project->VBProject()->IsDirty());
    EXPECT_THAT(host.folder.read("Hello.vbp"), ::testing::HasSubstr("AutoSaveProject=True\r\n"));
    EXPECT_TRUE(user.sawNothing());
    EXPECT_TRUE(reports().empty());
}

TEST_F(SaveFiles, AProjectOfTheOldFormatIsNotTouched) {
    project->VBProject()->WriteProperty("Quinloft Global", "ProjectVersion", "1.0");
    change("modOne");
    project->SaveFiles();
    EXPECT_FALSE(isChangedOnDisk("modOne.bas"));
    EXPECT_TRUE(component("modOne")->IsDirty());
}

TEST_F(SaveFiles, AReadOnlyComponentGivesItsBoxEachTimeAndStaysDirty) {
    change("frmMain");
    makeReadOnly("frmMain.frm");
    const auto text = "File '" + path("frmMain.frm") + "' is read-only.";
    user.expectBox(text, vbOK, vbExclamation, kReadOnlyTitle);
    user.expectBox(text, vbOK, vbExclamation, kReadOnlyTitle);
    project->SaveFiles();
    project->SaveFiles();
    EXPECT_TRUE(component("frmMain")->IsDirty());
    EXPECT_FALSE(isChangedOnDisk("frmMain.frm"));
}

TEST_F(SaveFiles, AReadOnlyProjectGivesTheSameBox) {
    makeReadOnly("Hello.vbp");
    project->Autosave(true);
    user.expectBox("File '" + path("Hello.vbp") + "' is read-only.", vbOK, vbExclamation, kReadOnlyTitle);
    project->SaveFiles();
    EXPECT_TRUE(project->VBProject()->IsDirty());
}

TEST_F(SaveFiles, ATemplateIsNotSavedButItsComponentsAre) {
    const auto vbp = test::SampleProject{"Base"}.module("modBase").handheld().writeTo(host.folder, "Template/Projects");
    const auto whileItLiesThere = host.ide->Events()->VBProjectsEvents()->ItemAdded.connect([&](auto added) {
        project = wrap(added);
        change("modBase");
        project->Autosave(true);
        project->SaveFiles();
    });
    host.openFile(vbp);
    EXPECT_TRUE(isChangedOnDisk("Template/Projects/modBase.bas"));
    EXPECT_THAT(host.folder.read("Template/Projects/Base.vbp"), ::testing::Not(::testing::HasSubstr("AutoSave")));
}

TEST_F(SaveFiles, AReadOnlyTemplateGivesTheSameBox) {
    const auto vbp = test::SampleProject{"Base"}.handheld().writeTo(host.folder, "Template/Projects");
    makeReadOnly("Template/Projects/Base.vbp");
    user.expectBox("File '" + vbp + "' is read-only.", vbOK, vbExclamation, kReadOnlyTitle);
    const auto whileItLiesThere =
        host.ide->Events()->VBProjectsEvents()->ItemAdded.connect([&](auto added) { wrap(added)->SaveFiles(); });
    host.openFile(vbp);
}

TEST_F(SaveFiles, AFailedSaveLeavesTheDirtyMark) {
    const auto vbProject = traced();
    host.folder.write("modTwo.bas", "");
    vbProject->properties[{"Quinloft Global", "ProjectVersion"}] = "3.5";
    const auto module = vbProject->add("modTwo", path("modTwo.bas"));
    project = wrap(vbProject);
    for (int failing = 1; failing < 40; ++failing) {
        module->dirty = true;
        trace = {};
        trace.failing = failing;
        project->SaveFiles();
        const auto& done = trace.effects;
        const bool saved = std::find(done.begin(), done.end(), "modTwo saved " + path("modTwo.bas")) != done.end();
        EXPECT_TRUE(saved || module->dirty) << failing;
    }
}

TEST_F(SaveFiles, AComponentWithoutAFileIsSkipped) {
    project->VBProject()->VBComponents()->Add(vbide::vbext_ct_StdModule);
    project->SaveFiles();
    EXPECT_TRUE(user.sawNothing());
    EXPECT_FALSE(project->FilesHaveBeenSaved());
}

TEST_F(SaveFiles, FilesHaveBeenSavedWhenAllExist) {
    EXPECT_TRUE(project->FilesHaveBeenSaved());
    std::filesystem::remove(path("modOne.bas"));
    EXPECT_FALSE(project->FilesHaveBeenSaved());
}

namespace {
/// Forms with designer windows, in a project in memory.
struct SavedDesigners : SaveFiles {
    SavedDesigners() {
        vbProject->properties[{"Quinloft Global", "ProjectVersion"}] = "3.5";
        project = wrap(vbProject);
    }
    basic::Ref<test::TracedComponent> form(const std::string& name, bool isOpen, bool isVisible) {
        host.folder.write(name + ".frm", "");
        const auto made = vbProject->add(name, path(name + ".frm"), vbide::vbext_ct_VBForm);
        made->designerOpen = isOpen;
        made->window = basic::make<test::TracedWindow>(trace);
        made->window->caption = name;
        made->window->visible = isVisible;
        return made;
    }
    basic::Ref<test::TracedProject> vbProject = traced();
};
} // namespace

TEST_F(SavedDesigners, AreClosedForTheSaveAndReopenedIfTheyWereVisible) {
    for (const auto& made :
         {form("frmShown", true, true), form("frmHidden", true, false), form("frmClosed", false, false)})
        made->dirty = true;
    std::filesystem::remove(path("Hello.vbp"));
    project->SaveFiles();
    EXPECT_EQ(trace.effects,
              (Texts{"frmShown closed", "frmShown saved " + path("frmShown.frm"), "frmShown dirty 0", "frmShown shown",
                     "frmHidden closed", "frmHidden saved " + path("frmHidden.frm"), "frmHidden dirty 0",
                     "frmClosed saved " + path("frmClosed.frm"), "frmClosed dirty 0"}));
}

TEST_F(SavedDesigners, AllAreClosedAndTheOpenOnesReopened) {
    form("frmShown", true, true);
    form("frmClosed", false, false);
    project->CloseOpenDesignerWins();
    project->ReopenDesignerWins();
    EXPECT_EQ(trace.effects, (Texts{"frmShown closed", "frmClosed closed", "frmShown shown"}));
}

TEST_F(SavedDesigners, OnlyThoseThatWereClosedLastAreReopened) {
    const auto first = form("frmFirst", true, true);
    project->CloseOpenDesignerWins();
    first->designerOpen = false;
    form("frmSecond", true, true);
    project->CloseOpenDesignerWins();
    trace.effects.clear();
    project->ReopenDesignerWins();
    EXPECT_EQ(trace.effects, (Texts{"frmSecond shown"}));
}

TEST_F(SaveFiles, DesignerWindowsCloseAndReopen) {
    component("frmMain")->DesignerWindow()->Visible(true);
    project->CloseOpenDesignerWins();
    EXPECT_FALSE(component("frmMain")->HasOpenDesigner());
    project->ReopenDesignerWins();
    EXPECT_TRUE(component("frmMain")->HasOpenDesigner());
    EXPECT_TRUE(reports().empty());
}
