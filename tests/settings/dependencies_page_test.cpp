// The page of a project's dependencies.
#include "settings_world.h"

using testing::ElementsAre;

namespace {

constexpr char kStored[] = "Quinloft Project Dependencies";

class DependenciesPage : public testing::Test, protected test::SettingsWorld {
protected:
    DependenciesPage() {
        registry.set(fernwick::HKEY_LOCAL_MACHINE, "SOFTWARE\\Quinloft", "RootDir", "/q");
        file("/q/Fonts/Ari_08B.CMF", "font");
    }
    void open(std::function<void()> act) { show("Dependencies", std::move(act)); }
    void file(const std::string& path, const std::string& bytes = "x") { files.files[path].bytes = bytes; }
    void storeEntries(const std::vector<std::string>& entries) {
        project->properties[{kStored, "NumDependencies"}] = std::to_string(entries.size());
        for (std::size_t i = 0; i < entries.size(); ++i)
            project->properties[{kStored, "Dependencies" + std::to_string(i)}] = entries[i];
    }
    void add(const std::string& path) {
        user.chosen = path;
        page.btnAdd.press();
    }
    static std::vector<std::string> rows(const fernwick::ListView& shown) {
        std::vector<std::string> texts;
        for (const auto& item : shown.Items()) {
            texts.emplace_back();
            for (const auto& cell : item.Cells) texts.back() += cell + "|";
        }
        return texts;
    }
    std::vector<std::string> rows() const { return rows(list); }

    fernwick::DependenciesPage& page = dialog.dependencies;
    fernwick::ListView& list = page.tvwDependencies;
};

TEST_F(DependenciesPage, ListsTheUsersFiles) {
    file("/p/data.pdb", "12345");
    storeEntries({"data.pdb,PDB", "Ari_08B.CMF,CMF", "gone.txt,TXT", ","});
    open([&] {
        EXPECT_THAT(rows(), ElementsAre("data.pdb|5|PDB|", "Ari_08B.CMF|4|CMF|", "gone.txt|0|TXT|"));
        EXPECT_EQ(list.Items()[0].IconOf, "/p/data.pdb");
        EXPECT_EQ(list.Items()[1].IconOf, "/q/Fonts/Ari_08B.CMF");
        EXPECT_EQ(list.Items()[2].IconOf, "/p/gone.txt");
        ASSERT_EQ(list.Columns().size(), 3u);
        EXPECT_EQ(list.Columns()[0].Text, "Name");
        EXPECT_EQ(list.Columns()[1].Text, "Size");
        EXPECT_TRUE(list.Columns()[1].isSize);
        EXPECT_EQ(list.Columns()[2].Text, "Type");
    });
}

TEST_F(DependenciesPage, ListsWhatTheCompilerFound) {
    file("/p/Grid.qlb", "123");
    const auto stored = projects.GetQLProject(project);
    stored->WriteComponentDependencies({"{1-2}"});
    stored->WriteTavletFileDependencies({"Grid.qlb", "gone.qlb"});
    stored->WriteProjectFontDependencies({"Ari_08B.CMF"});
    open([&] {
        EXPECT_THAT(rows(page.lvwAutomaticDependencies),
                    ElementsAre("{1-2}||?\?\?|", "Grid.qlb|3|Yes|", "gone.qlb||No|", "Ari_08B.CMF|4|Yes|"));
        EXPECT_EQ(page.lvwAutomaticDependencies.Columns()[2].Text, "Found");
        EXPECT_EQ(page.lvwAutomaticDependencies.Items()[1].IconOf, "/p/Grid.qlb");
    });
}

TEST_F(DependenciesPage, HasItsTexts) {
    EXPECT_EQ(
        page.lblDependencies.Caption(),
        "Fernwick can automatically determine many of the dependencies your project requires. However, some files "
        "and resources that are referenced only in code may not be detected. You may choose to add or remove "
        "additional dependencies such as databases or elements changed at runtime.");
    EXPECT_EQ(page.lblAutomaticDependencies.Caption(),
              "The following is a list of file dependencies that Fernwick automatically detected  during your last "
              "compile operation. This list will be automatically updated the next time you compile this project.");
    EXPECT_EQ(page.btnAdd.Caption(), "&Add...");
    EXPECT_EQ(page.btnAdd.ToolTipText(), "Add new dependency files to the list.");
    EXPECT_EQ(page.btnDelete.Caption(), "&Remove");
    EXPECT_EQ(page.btnDelete.ToolTipText(), "Remove the selected dependencies from the list");
    EXPECT_EQ(page.btnScanforDependencies.Caption(), "&Scan for Dependencies");
}

TEST_F(DependenciesPage, AddedFilesAreStoredOnOKOnly) {
    file("/p/a.txt", "abc");
    open([&] {
        add("/p/a.txt");
        EXPECT_THAT(rows(), ElementsAre("a.txt|3|TXT|"));
        EXPECT_TRUE(page.DependenciesChanged);
    });
    EXPECT_EQ(stored("NumDependencies", kStored), "(none)");
    open([&] {
        EXPECT_FALSE(page.DependenciesChanged);
        EXPECT_EQ(page.Dependencies.Count(), 0);
        add("/p/a.txt");
        dialog.btnOK.press();
    });
    EXPECT_EQ(stored("Dependencies0", kStored), "a.txt,TXT");
}

TEST_F(DependenciesPage, AFileThatIsListedIsNotAddedAgain) {
    storeEntries({"a.txt,TXT"});
    file("/p/a.txt");
    file("/p/A.txt");
    open([&] {
        add("/p/a.txt");
        EXPECT_TRUE(did("box 48 Fernwick: a.txt already is in the dependency list."));
        EXPECT_FALSE(page.DependenciesChanged);
        add("/p/A.txt");
        EXPECT_THAT(rows(), ElementsAre("a.txt|1|TXT|", "A.txt|1|TXT|"));
    });
}

TEST_F(DependenciesPage, AnUnsavedProjectIsSavedFirst) {
    project->file = "";
    open([&] {
        page.btnAdd.press();
        EXPECT_TRUE(did("box 48 Fernwick: Before adding dependencies the project must be saved."));
        EXPECT_FALSE(did("open dialog"));
        list.FilesDropped.raise({"/p/a.txt"});
        EXPECT_EQ(page.Dependencies.Count(), 0);
    });
    EXPECT_EQ(std::count(barTrace.effects.begin(), barTrace.effects.end(), "Save: executed"), 2);
}

TEST_F(DependenciesPage, DroppedFilesGoTheWayOfAdd) {
    file("/p/a.txt");
    file("/other/b.txt");
    open([&] {
        user.answers = {fernwick::vbYes};
        list.FilesDropped.raise({"/p/a.txt", "/other/b.txt", "/p/gone.txt"});
        EXPECT_THAT(rows(), ElementsAre("a.txt|1|TXT|", "b.txt|1|TXT|"));
    });
    EXPECT_TRUE(files.FileExists("/p/b.txt"));
}

TEST_F(DependenciesPage, ADroppedFolderIsRefused) {
    file("/p/a.txt");
    file("/p/pictures/b.bmp");
    open([&] {
        list.FilesDropped.raise({"/p/pictures", "/p/a.txt"});
        EXPECT_TRUE(did("box 48 Fernwick: /p/pictures cannot be a dependency, since it is a folder. Add the files in "
                        "it instead."));
        EXPECT_THAT(rows(), ElementsAre("a.txt|1|TXT|"));
    });
}

TEST_F(DependenciesPage, ANameWithACommaIsRefused) {
    file("/p/a,b.txt");
    file("/other/c,d.txt");
    open([&] {
        add("/p/a,b.txt");
        EXPECT_TRUE(did("box 48 Fernwick: a,b.txt cannot be a dependency, since its name contains a comma. Rename the "
                        "file and add it again."));
        add("/other/c,d.txt");
        EXPECT_FALSE(files.FileExists("/p/c,d.txt"));
        EXPECT_EQ(page.Dependencies.Count(), 0);
    });
}

TEST_F(DependenciesPage, ACopyReplacesAnotherFileOnlyAfterYes) {
    file("/p/b.txt", "mine");
    file("/other/b.txt", "theirs");
    open([&] {
        user.answers = {fernwick::vbYes, fernwick::vbNo};
        add("/other/b.txt");
        EXPECT_TRUE(did("box 292 Fernwick: The project folder already contains another file of this name.\r\n\r\n"
                        "Replace /p/b.txt ?"));
        EXPECT_EQ(files.files["/p/b.txt"].bytes, "mine");
        EXPECT_TRUE(did("box 48 Fernwick: Error copying file!"));
        EXPECT_EQ(page.Dependencies.Count(), 0);
        user.answers = {fernwick::vbYes, fernwick::vbYes};
        add("/other/b.txt");
        EXPECT_EQ(files.files["/p/b.txt"].bytes, "theirs");
        EXPECT_EQ(page.Dependencies.Count(), 1);
        page.Dependencies.entries.clear();
        user.answers = {fernwick::vbYes};
        add("/other/b.txt"); // which is the same now
        EXPECT_EQ(page.Dependencies.Count(), 1);
    });
}

TEST_F(DependenciesPage, SelectedRowsAreRemovedByTheButtonOrTheKey) {
    storeEntries({"a.txt,TXT", "A.TXT,TXT", "b.txt,TXT", "c.txt,TXT"});
    open([&] {
        list.GotFocus.raise();
        page.btnDelete.press();
        EXPECT_FALSE(page.DependenciesChanged);
        list.Selected(1, true);
        list.Selected(2, true);
        page.btnDelete.press();
        EXPECT_THAT(rows(), ElementsAre("a.txt|0|TXT|", "c.txt|0|TXT|"));
        EXPECT_TRUE(page.DependenciesChanged);
        list.Selected(0, true);
        list.KeyUp.raise(13);
        EXPECT_EQ(list.Items().size(), 2u);
        list.KeyUp.raise(46);
        EXPECT_THAT(rows(), ElementsAre("c.txt|0|TXT|"));
    });
    EXPECT_EQ(stored("NumDependencies", kStored), "4");
}

TEST_F(DependenciesPage, RemoveFollowsTheFocusOfTheList) {
    open([&] {
        EXPECT_FALSE(page.btnDelete.Enabled());
        list.GotFocus.raise();
        EXPECT_TRUE(page.btnDelete.Enabled());
        list.LostFocus.raise("btnDelete");
        EXPECT_TRUE(page.btnDelete.Enabled());
        list.LostFocus.raise("btnAdd");
        EXPECT_FALSE(page.btnDelete.Enabled());
        list.ItemClick.raise(0);
        EXPECT_TRUE(page.btnDelete.Enabled());
    });
}

} // namespace
