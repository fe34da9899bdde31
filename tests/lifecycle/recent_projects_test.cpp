// The list of recent projects.
#include "lifecycle_world.h"

using testing::Each;
using testing::ElementsAre;
using testing::Eq;
using testing::IsEmpty;

namespace {

class RecentProjects : public testing::Test, protected test::LifecycleWorld {
protected:
    ~RecentProjects() override { EXPECT_EQ(registry.openKeys(), 0U) << "a registry key stayed open"; }
    void close(const std::string& name, const std::string& folder = "/p/") {
        const auto project = open(name);
        project->file = folder.empty() ? "" : folder + name + ".vbp";
        recent.AddProjectToRecentList(projects.FindQLProject(project));
        projects.RemoveFromProjectsList(project);
    }
    std::vector<std::string> listed() {
        std::vector<std::string> all;
        for (const auto& [name, path] : recent.GetRecentList())
            if (!name.empty()) all.push_back(name + " " + path);
        return all;
    }
    void store(const std::string& name, const std::string& text, std::uint32_t type = fernwick::REG_SZ) {
        registry.set(fernwick::HKEY_CURRENT_USER, "SOFTWARE\\Quinloft\\Recent Projects", name, text, type);
    }
};

TEST_F(RecentProjects, AreEmptyAtFirst) {
    EXPECT_THAT(listed(), IsEmpty());
    EXPECT_EQ(recent.GetRecentList().size(), 20u);
}

TEST_F(RecentProjects, TheNewestComesFirst) {
    close("A");
    close("B");
    EXPECT_THAT(listed(), ElementsAre("B /p/B.vbp", "A /p/A.vbp"));
}

TEST_F(RecentProjects, AProjectMovesToTheTop) {
    for (const auto* name : {"A", "B", "C", "A"}) close(name);
    EXPECT_THAT(listed(), ElementsAre("A /p/A.vbp", "C /p/C.vbp", "B /p/B.vbp"));
}

TEST_F(RecentProjects, PathsAreComparedExactly) {
    close("A", "/p/");
    close("A", "/P/");
    close("A", "\\p\\");
    EXPECT_THAT(listed(), ElementsAre("A \\p\\A.vbp", "A /P/A.vbp"));
}

TEST_F(RecentProjects, TheTwentyFirstDropsTheOldest) {
    for (int i = 1; i <= 21; ++i) close("P" + std::to_string(i));
    EXPECT_EQ(listed().size(), 20u);
    EXPECT_EQ(listed().front(), "P21 /p/P21.vbp");
    EXPECT_EQ(listed().back(), "P2 /p/P2.vbp");
    EXPECT_EQ(recent.GetQuinloftRecentProject(21).name, "");
}

TEST_F(RecentProjects, AnUnsavedProjectIsNotAdded) {
    close("A");
    close("B", "");
    EXPECT_THAT(listed(), ElementsAre("A /p/A.vbp"));
}

TEST_F(RecentProjects, HaveTheirDisplayName) {
    const auto project = open("My_App");
    set(project, "SpacesInNameEnabled", "True");
    recent.AddProjectToRecentList(projects.FindQLProject(project));
    EXPECT_THAT(listed(), ElementsAre("My App /p/My_App.vbp"));
}

TEST_F(RecentProjects, AnEmptyNameEndsTheList) {
    store("ProjectName1", "A");
    store("ProjectPath1", "/a.vbp");
    store("ProjectName3", "C");
    EXPECT_THAT(listed(), ElementsAre("A /a.vbp"));
    EXPECT_EQ(recent.GetQuinloftRecentProject(3).name, "C");
}

TEST_F(RecentProjects, OtherTypesAreEmpty) {
    store("ProjectName1", std::string("\1\0\0\0", 4), fernwick::REG_DWORD);
    EXPECT_THAT(listed(), IsEmpty());
    store("ProjectName1", "A");
    store("ProjectPath1", std::string("\1\0\0\0", 4), fernwick::REG_DWORD);
    EXPECT_THAT(listed(), ElementsAre("A "));
}

TEST_F(RecentProjects, AShorterListReplacesALongerOne) {
    for (const auto* name : {"A", "B", "C"}) close(name);
    fernwick::modRecentProjectManagment::RecentList list(20);
    list[0] = {"D", "/d.vbp"};
    recent.SaveRecentList(list);
    EXPECT_THAT(listed(), ElementsAre("D /d.vbp"));
    EXPECT_EQ(recent.GetQuinloftRecentProject(3).path, "");
}

TEST_F(RecentProjects, AProjectWithoutAReadableNameLeavesTheListAsItWas) {
    close("A");
    const auto project = open("B");
    const auto known = projects.FindQLProject(project);
    project->name.clear();
    recent.AddProjectToRecentList(known);
    EXPECT_THAT(listed(), ElementsAre("A /p/A.vbp"));
}

} // namespace
