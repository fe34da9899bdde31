#include "project_world.h"
#include "tests/support/traced_host.h"

using namespace fernwick;

namespace {
struct ProjectList : test::ProjectTest {
    basic::Ref<vbide::VBProject> hello = host.open(test::SampleProject{}.module("modOne").form("frmMain"));
};
using Templates = ProjectList;
} // namespace

TEST_F(ProjectList, FindsTheWrapperByTheProjectsName) {
    const auto project = projects.AddToProjectsList(hello);
    EXPECT_EQ(project->VBProject(), hello);
    EXPECT_EQ(projects.GetQLProject(hello), project);
    EXPECT_FALSE(projects.AddToProjectsList(nullptr));
    EXPECT_TRUE(reports().empty());
}

TEST_F(ProjectList, ASecondProjectOfTheSameNameIsReported) {
    const auto first = projects.AddToProjectsList(hello);
    EXPECT_TRUE(projects.AddToProjectsList(hello));
    EXPECT_EQ(projects.GetQLProject(hello), first);
    EXPECT_EQ(reports(), Texts{"modProjectHandler.AddToProjectsList [457]"});
}

TEST_F(ProjectList, AnUnlistedProjectIsReported) {
    EXPECT_FALSE(projects.GetQLProject(hello));
    projects.RemoveFromProjectsList(hello);
    EXPECT_EQ(reports(), (Texts{"modProjectHandler.GetQLProject [5]", "modProjectHandler.RemoveFromProjectsList [5]"}));
}

TEST_F(ProjectList, ARenamedProjectIsFoundUnderItsNewName) {
    const auto project = projects.AddToProjectsList(hello);
    hello->Name("Goodbye");
    projects.RenameProjectInList(hello, "");
    EXPECT_FALSE(projects.GetQLProject(hello));
    projects.RenameProjectInList(hello, "Hello");
    EXPECT_EQ(projects.GetQLProject(hello), project);
    EXPECT_EQ(reports().size(), 1U);
}

TEST_F(ProjectList, ClearsAndRemoves) {
    projects.AddToProjectsList(hello);
    projects.RemoveFromProjectsList(hello);
    projects.AddToProjectsList(hello);
    projects.ClearProjectsList();
    projects.ClearProjectsList();
    EXPECT_TRUE(reports().empty());
    EXPECT_FALSE(projects.GetQLProject(hello));
}

TEST_F(ProjectList, RemovingComponentsLeavesTheirFilesAndNothingElse) {
    const auto project = projects.AddToProjectsList(hello);
    hello->VBComponents()->Item("modOne")->CodeModule()->InsertLines(1, "' changed");
    projects.RemoveProjectComponents(project);
    EXPECT_EQ(hello->VBComponents()->Count(), 0);
    EXPECT_THAT(host.folder.read("modOne.bas"), ::testing::Not(::testing::HasSubstr("' changed")));
    EXPECT_EQ(files.Files(files.GetSpecialFolder(TemporaryFolder)), Texts{});
    EXPECT_TRUE(reports().empty());
}

TEST_F(ProjectList, RemovingAFormOfATemplateLeavesNoCompanion) {
    host.folder.write("Template/Forms/Ours.frx", "picture");
    hello->VBComponents()->AddFile(host.folder.write("Template/Forms/Ours.frm", test::formText("frmOurs")));
    projects.RemoveProjectComponents(projects.AddToProjectsList(hello));
    EXPECT_EQ(files.Files(files.GetSpecialFolder(TemporaryFolder)), Texts{});
    EXPECT_TRUE(reports().empty());
}

TEST_F(ProjectList, EachFailingCallOfARemovalIsReportedOnce) {
    int calls = 1;
    for (int failing = 1; failing <= calls; ++failing) {
        errors.seen.clear();
        const auto vbProject = traced();
        vbProject->add("modOne", "");
        vbProject->add("modTwo", "");
        trace = {};
        trace.failing = failing;
        projects.RemoveProjectComponents(wrap(vbProject));
        calls = trace.calls;
        EXPECT_EQ(reports().size(), 1U) << failing;
    }
}

TEST_F(ProjectList, OpeningReplacesOpenProjectsAndClearsTheFlag) {
    test::SampleProject{"Other"}.writeTo(host.folder);
    projects.OpenQuinloftProjectFromPath(path("Other.vbp"));
    EXPECT_EQ(host.ide->VBProjects()->Count(), 1);
    EXPECT_EQ(host.ide->ActiveVBProject()->Name(), "Other");
    EXPECT_FALSE(projects.gOpeningProject);
    EXPECT_NE(test::errorOf([&] { projects.OpenQuinloftProjectFromPath(path("Missing.vbp")); }), 0);
    EXPECT_FALSE(projects.gOpeningProject);
}

TEST_F(ProjectList, TheFlagIsSetDuringEachOpening) {
    std::vector<bool> seen;
    const auto opening = host.ide->Events()->VBProjectsEvents()->ItemAdded.connect(
        [&](const auto&) { seen.push_back(projects.gOpeningProject); });
    test::SampleProject{"Fernwick Project"}.handheld().writeTo(host.folder, "Template/Projects");
    projects.OpenNewQuinloftProject();
    projects.OpenQuinloftProjectFromPath(test::SampleProject{"Other"}.writeTo(host.folder));
    EXPECT_EQ(seen, (std::vector<bool>{true, true}));
    EXPECT_FALSE(projects.gOpeningProject);
}

TEST_F(Templates, ANewProjectComesFromTheTemplate) {
    test::SampleProject{"Fernwick Project"}.handheld().writeTo(host.folder, "Template/Projects");
    projects.OpenNewQuinloftProject();
    EXPECT_EQ(host.ide->VBProjects()->Count(), 1);
    EXPECT_EQ(host.ide->ActiveVBProject()->FileName(), "");
    EXPECT_TRUE(reports().empty());
}

TEST_F(Templates, AMissingTemplateMeansACorruptInstallation) {
    user.expectBox("Your installation of Fernwick appears to be corrupt, the Fernwick template was not installed in "
                   "the template directory.",
                   vbOK, vbCritical);
    projects.OpenNewQuinloftProject();
    EXPECT_EQ(host.ide->ActiveVBProject(), hello);
}

TEST_F(Templates, AreTheProjectsInEitherFolder) {
    EXPECT_FALSE(projects.ProjectIsFromTemplate(hello));
    for (const char* folder : {"Template/Projects", "Installed/VB Toolkit/Template/Projects"}) {
        const auto file = test::SampleProject{"Base"}.writeTo(host.folder, folder);
        EXPECT_TRUE(projects.ProjectIsFromTemplate(basic::make<test::TracedProject>(trace, "Base", file)));
    }
    EXPECT_EQ(projects.GetTemplatePath(), path("Template/Projects"));
}

TEST_F(Templates, MissingFoldersAreReportedAndTheTestContinues) {
    installAt("/nowhere");
    const auto elsewhere = basic::make<test::TracedVbe>(trace);
    addIn.gVBInstance = elsewhere;
    user.expectBox("Cannot determine the location of the VB template directory. The path determined was invalid.");
    user.expectBox(
        "Cannot determine the location of the Fernwick template directory. The path determined was invalid.");
    EXPECT_FALSE(projects.ProjectIsFromTemplate(hello));
}

TEST_F(Templates, WithoutAnInstallationAnUnsavedProjectIsNotFromItsTemplates) {
    installAt("");
    user.expectBox(
        "Cannot determine the location of the Fernwick template directory. The path determined was invalid.");
    EXPECT_FALSE(projects.ProjectIsFromTemplate(basic::make<test::TracedProject>(trace, "New", "")));
}

TEST_F(Templates, AHostWithoutATemplatePathIsReported) {
    struct Bare : test::TracedVbe {
        using TracedVbe::TracedVbe;
        std::string TemplatePath() const override { return ""; }
    };
    const auto bare = basic::make<Bare>(trace);
    addIn.gVBInstance = bare;
    user.expectBox("The registry entry containing the path for visual basic was not found. "
                   "Cannot determine the location of the VB templates.");
    EXPECT_EQ(projects.GetTemplatePath(), "");
}
