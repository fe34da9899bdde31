// The files sent to the device, their order and their names.
#include "deploy_world.h"

using fernwick::vbNo;
using fernwick::vbYes;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class PackageContents : public testing::Test, protected test::DeployWorld {
protected:
    using Names = std::vector<std::string>;
    PackageContents() { std::filesystem::remove(image); }
    void TearDown() override { EXPECT_THAT(errors.seen, IsEmpty()); }

    void addFiles(const Names& names) {
        for (const auto& name : names) folder.write("Foo/" + name, "x");
    }
    void storeTavletFiles(const Names& names) { store("NumTavletFileDependencies", "TavletFileDependency", names); }
    void storeFonts(const Names& names) { store("NumFontDependencies", "FontDependency", names); }
    void storeComponents(const Names& ids) { store("NumComponentDependencies", "ComponentDependency", ids); }
    /// Sends the image regardless of its age.
    void gather() {
        project->properties[{"Quinloft Global", "LastCompileVersion"}] = "older";
        prefs.SetQuinloftCompileWarning(true);
        user.whenShown["frmCompileWarning"] = [](fernwick::Form& form) { test::press(form, "btnNo"); };
        deploy();
        EXPECT_TRUE(isClean());
    }
    std::string question(const std::string& kind, const std::string& file) const {
        return "box 52 Fernwick: ERROR: Missing " + kind + " File, would you like to continue?\r\n" + path(file);
    }
    /// Answers to the question whether to edit the dependencies, then to those about missing files.
    void answer(std::initializer_list<int> answers) {
        user.answers = {vbNo};
        user.answers.insert(user.answers.end(), answers);
    }
    Names questions() const {
        auto all = boxes();
        std::erase_if(all, [](const std::string& box) { return box.find("ERROR: Missing") == std::string::npos; });
        return all;
    }
};

TEST_F(PackageContents, TheCompilersFilesOfTheProjectComeFirst) {
    addFiles({"foo.rsp", "Foo.0000.qlx", "FOO.0001.RPP", "Foo.qlx", "Foo2.0000.qlx", "sub/Foo.0002.rpp"});
    gather();
    EXPECT_THAT(family.resources, ElementsAre("Foo.0000.qlx", "FOO.0001.RPP", "foo.rsp"));
    EXPECT_THAT(family.files, ElementsAre(path("Foo.0000.qlx"), path("FOO.0001.RPP"), path("foo.rsp")));
}

TEST_F(PackageContents, ThenFollowTheUsersFilesControlsFontsAndComponents) {
    addFiles({"Foo.0000.qlx", "Data/cities.pdb", "tool.prc"});
    storeDependencies({"Data\\cities.pdb,PDB"});
    storeTavletFiles({"tool.prc"});
    storeFonts({"Ari_08B.CMF"});
    storeComponents({"{1}", "{2}"});
    gather();
    EXPECT_THAT(family.files, ElementsAre(path("Foo.0000.qlx"), path("Data/cities.pdb"), path("tool.prc"),
                                          folder / "install/Fonts/Ari_08B.CMF", "{1}", "{2}"));
    EXPECT_THAT(family.resources,
                ElementsAre("Foo.0000.qlx", "Data\\cities.pdb", "tool.prc", "Ari_08B.CMF", "REF", "REF"));
    EXPECT_THAT(boxes(), IsEmpty());
}

TEST_F(PackageContents, AFileInTwoListsIsListedOnceAtItsFirstPlace) {
    addFiles({"a.pdb", "b.pdb", "Foo.rsp"});
    storeDependencies({"b.pdb,PDB", "a.pdb,PDB", "Foo.rsp,RSP"});
    storeTavletFiles({"A.PDB", "b.pdb"});
    gather();
    EXPECT_THAT(family.resources, ElementsAre("Foo.rsp", "b.pdb", "a.pdb"));
}

TEST_F(PackageContents, AFontOfTheProjectIsSentUnderItsBareName) {
    addFiles({"Fonts/My_10R.cmf", "Oth_10R.CMF"});
    storeDependencies({"Fonts\\My_10R.cmf,CMF"});
    storeFonts({"Oth_10R.CMF"});
    gather();
    EXPECT_THAT(family.files, ElementsAre(path("Fonts/My_10R.cmf"), path("Oth_10R.CMF")));
    EXPECT_THAT(family.resources, ElementsAre("My_10R.cmf", "Oth_10R.CMF"));
}

TEST_F(PackageContents, AnInstalledFontTakesPrecedenceOverTheProjects) {
    addFiles({"Ari_08B.CMF"});
    storeDependencies({"Ari_08B.CMF,cmf"});
    gather();
    EXPECT_THAT(family.files, ElementsAre(folder / "install/Fonts/Ari_08B.CMF"));
}

TEST_F(PackageContents, OtherFilesAreNotSearchedInTheFontsFolder) {
    folder.write("install/Fonts/a.gdr", "");
    storeDependencies({"a.gdr,GDR"});
    answer({vbNo});
    gather();
    EXPECT_THAT(questions(), ElementsAre(question("Dependency", "a.gdr")));
}

TEST_F(PackageContents, WithoutAnInstallationTheProjectsFontsAreUsed) {
    registry.set(fernwick::HKEY_LOCAL_MACHINE, "Software\\Quinloft", "RootDir", "");
    addFiles({"Ari_08B.CMF"});
    storeFonts({"Ari_08B.CMF"});
    const auto before = std::filesystem::current_path();
    std::filesystem::current_path(folder / "install/Fonts"); // the current folder is irrelevant
    gather();
    std::filesystem::current_path(before);
    EXPECT_THAT(family.files, ElementsAre(path("Ari_08B.CMF")));
}

TEST_F(PackageContents, NamesMatchInAnyCase) {
    addFiles({"Data/Cities.pdb"});
    storeDependencies({"DATA\\CITIES.PDB,PDB"});
    gather();
    EXPECT_THAT(family.files, ElementsAre(path("Data/Cities.pdb")));
    EXPECT_THAT(family.resources, ElementsAre("Data\\Cities.pdb"));
}

TEST_F(PackageContents, MissingFilesAreSkippedWhenTheUserAgrees) {
    addFiles({"Foo.rsp"});
    storeDependencies({"a.pdb,PDB"});
    storeTavletFiles({"b.prc"});
    storeFonts({"c.CMF"});
    answer({vbYes, vbYes, vbYes});
    gather();
    EXPECT_THAT(questions(), ElementsAre(question("Dependency", "a.pdb"), question("Dependency", "b.prc"),
                                         question("Font", "c.CMF")));
    EXPECT_THAT(family.resources, ElementsAre("Foo.rsp"));
    EXPECT_EQ(sendToDevice.LastResult(), true);
}

TEST_F(PackageContents, TheFirstNoEndsTheQuestions) {
    const std::vector<Names> asked{
        {question("Dependency", "a.pdb")},
        {question("Dependency", "a.pdb"), question("Dependency", "b.prc")},
        {question("Dependency", "a.pdb"), question("Dependency", "b.prc"), question("Font", "c.CMF")}};
    storeDependencies({"a.pdb,PDB"});
    storeTavletFiles({"b.prc"});
    storeFonts({"c.CMF", "d.CMF"});
    for (std::size_t yes = 0; yes < asked.size(); ++yes) {
        user.answers.assign(yes, vbYes);
        user.answers.push_front(vbNo); // the dependencies are not edited
        user.answers.push_back(vbNo);
        gather();
        EXPECT_EQ(questions(), asked[yes]);
        EXPECT_TRUE(did("line: Missing executable files, please compile project."));
        EXPECT_EQ(sendToDevice.LastResult(), std::nullopt);
    }
}

TEST_F(PackageContents, ComponentsAloneAreAPackage) {
    storeComponents({"{1}"});
    gather();
    EXPECT_THAT(family.files, ElementsAre("{1}"));
    EXPECT_THAT(family.resources, ElementsAre("REF"));
}

TEST_F(PackageContents, AnEmptyPackageIsReportedAndSent) {
    gather();
    EXPECT_THAT(errors.seen, ElementsAre("frmSendToDevice.CreateResourceList [9]"));
    EXPECT_THAT(family.files, IsEmpty());
    EXPECT_TRUE(did("send Foo to Palm"));
    errors.seen.clear();
}

TEST_F(PackageContents, TheValidatorSeesTheSameLists) {
    addFiles({"Foo.0000.qlx"});
    storeComponents({"{1}"});
    family.validate = [&](qlpipe::IQLPipeEvents&) {
        EXPECT_THAT(family.files, ElementsAre(path("Foo.0000.qlx"), "{1}"));
        EXPECT_THAT(family.resources, ElementsAre("Foo.0000.qlx", "REF"));
        return false;
    };
    gather();
    EXPECT_TRUE(did("validate files of Foo"));
}

} // namespace
