// The sibling add-in that brings projects of the old format over, beside the add-in in a real host.
#include "Add-in/lifecycle/project_importer.h"
#include "whole_world.h"

using fernwick::vbExclamation;
using fernwick::vbInformation;
using fernwick::vbNo;
using fernwick::vbQuestion;
using fernwick::vbYes;
using fernwick::vbYesNo;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

constexpr char kImporter[] = "QLProjectImport.Connect";

class Importer : public testing::Test, protected test::WholeWorld {
protected:
    Importer() {
        targets.known = {"Palm-1"};
        host.ide->listAddIn(kImporter, "Fernwick Project Converter", [this] {
            return basic::make<fernwick::ProjectImporter>(platform,
                                                          [this](const auto& path) { backups.push_back(path); });
        });
        connect();
    }
    void TearDown() override { EXPECT_TRUE(host.failures.empty()); }
    std::string old(const std::string& name = "Old") {
        test::SampleProject sample(name);
        sample.module("Module9").sections("\r\n[Quinloft Global]\r\nIsQuinloftProject=True\r\nTargetDevice=Palm-1\r\n");
        return sample.writeTo(host.folder);
    }
    std::vector<std::string> itemsOfUtilities() {
        std::vector<std::string> captions;
        for (const auto& item : items().gUtilitiesPopup->Controls()->items())
            if (item->Caption().find("Converter...") != std::string::npos) captions.push_back(item->Caption());
        return captions;
    }
    void clickItem() { addIn().menu.FindConverterMenuItem()->Execute(); }
    std::vector<std::string> boxes() {
        std::vector<std::string> shown;
        for (const auto& effect : std::exchange(trace.effects, {}))
            if (effect.starts_with("box ") || effect == "open dialog") shown.push_back(effect);
        return shown;
    }
    std::vector<std::string> open() {
        std::vector<std::string> names;
        for (const auto& project : host.ide->VBProjects()->items()) names.push_back(project->Name());
        return names;
    }
    void pull(bool connected, const char* progId) { host.ide->Addins()->Item(progId)->Connect(connected); }
    static std::string question(const std::string& path) {
        return box(vbYesNo + vbQuestion, path + " was created by an older version of Fernwick. Convert it to the "
                                                "format of Fernwick 3.5? The old file is kept as a backup beside it.");
    }

    std::vector<std::string> backups;
};

TEST_F(Importer, AnOldProjectIsConvertedAndOpenedBesideTheOthers) {
    host.open(hello());
    const auto path = old();
    const auto before = host.folder.read("Old.vbp");
    user.answers = {vbYes};
    host.openFile(path);
    loop.turn();
    EXPECT_THAT(open(), ElementsAre("Hello", "Old"));
    EXPECT_THAT(boxes(), ElementsAre(HasSubstr("Warning: Pre Quinloft Fernwick 3.5 Project"), question(path)));
    EXPECT_THAT(host.folder.read("Old.vbp"), HasSubstr("TargetDevice=Palm-1\r\nProjectVersion=3.5\r\n"));
    EXPECT_EQ(host.folder.read("Old.vbp.bak"), before);
    EXPECT_THAT(backups, ElementsAre(path + ".bak"));
    const auto project = addIn().projects.FindQLProject(host.ide->ActiveVBProject());
    ASSERT_TRUE(project);
    EXPECT_EQ(project->ProjectVersion(), "3.5");
}

TEST_F(Importer, AnOldProjectOfAGroupIsConvertedBesideTheOthersAndTheGroupStays) {
    old();
    hello().writeTo(host.folder);
    const std::string group = "VBGROUP 5.0\r\nStartupProject=Old.vbp\r\nProject=Hello.vbp\r\n";
    user.answers = {vbYes};
    host.openFile(host.folder.write("Both.vbg", group));
    loop.turn();
    EXPECT_THAT(open(), ElementsAre("Hello", "Old"));
    EXPECT_EQ(host.folder.read("Both.vbg"), group); // it names the converted file
}

TEST_F(Importer, NothingIsWrittenWithoutAYes) {
    const auto path = old();
    const auto before = host.folder.read("Old.vbp");
    user.answers = {vbNo};
    host.openFile(path);
    loop.turn();
    EXPECT_THAT(open(), IsEmpty());
    EXPECT_EQ(host.folder.read("Old.vbp"), before);
    EXPECT_TRUE(backups.empty());
    boxes();
    clickItem(); // the offer is made once
    EXPECT_THAT(boxes(), ElementsAre("open dialog"));
}

TEST_F(Importer, WithoutAClosedProjectAFileIsChosen) {
    user.chosen = old();
    clickItem();
    EXPECT_THAT(boxes(), ElementsAre("open dialog"));
    EXPECT_EQ(user.opened.Filter, "Visual Basic Project (*.vbp)|*.vbp");
    EXPECT_THAT(open(), ElementsAre("Old"));
}

TEST_F(Importer, AProjectThatIsGoneIsNotOffered) {
    const auto path = old();
    user.answers = {vbNo};
    host.openFile(path);
    loop.turn();
    host.openFile(path);
    host.ide->VBProjects()->Remove(host.ide->ActiveVBProject());
    std::filesystem::remove(path);
    boxes();
    clickItem();
    EXPECT_THAT(boxes(), ElementsAre("open dialog"));
}

TEST_F(Importer, CurrentAndForeignProjectsAreLeftAlone) {
    const auto current = hello().writeTo(host.folder);
    const auto foreign = test::SampleProject("Foreign").writeTo(host.folder);
    const auto before = host.folder.read("Hello.vbp");
    host.ide->VBProjects()->Remove(host.openFile(foreign)); // not remembered
    user.chosen = current;
    clickItem();
    user.chosen = foreign;
    clickItem();
    EXPECT_THAT(boxes(),
                ElementsAre("open dialog",
                            box(vbInformation, current + " has the present format already. Nothing was changed."),
                            "open dialog",
                            box(vbExclamation, foreign + " is not a Fernwick project. Nothing was changed.")));
    EXPECT_EQ(host.folder.read("Hello.vbp"), before);
    EXPECT_THAT(open(), IsEmpty());
}

TEST_F(Importer, AnOpenProjectIsNotRewrittenUnderTheHost) {
    pull(false, kProgId);
    const auto path = user.chosen = old();
    host.openFile(path);
    const auto before = host.folder.read("Old.vbp");
    pull(true, kProgId);
    boxes();
    clickItem();
    EXPECT_THAT(boxes(), ElementsAre("open dialog",
                                     box(vbExclamation, path + " is open. Close the project before you convert it.")));
    EXPECT_EQ(host.folder.read("Old.vbp"), before);
}

TEST_F(Importer, AFileThatCannotBeReplacedIsReported) {
    const auto path = user.chosen = old();
    const auto before = host.folder.read("Old.vbp");
    std::filesystem::create_directory(path + ".converting");
    clickItem();
    EXPECT_THAT(boxes(),
                ElementsAre("open dialog", HasSubstr("box 16 Fernwick: " + path + " could not be converted.")));
    EXPECT_EQ(host.folder.read("Old.vbp"), before);
    EXPECT_THAT(open(), IsEmpty());
}

TEST_F(Importer, ItsItemComesBackWithTheMenuAndGoesWithIt) {
    EXPECT_THAT(itemsOfUtilities(), ElementsAre("Fernwick Project Converter..."));
    pull(false, kProgId);
    EXPECT_TRUE(host.ide->Addins()->Item(kImporter)->Connect());
    pull(true, kProgId);
    EXPECT_THAT(itemsOfUtilities(), ElementsAre("Fernwick Project Converter..."));
    clickItem();
    EXPECT_THAT(boxes(), testing::Contains("open dialog"));
    pull(false, kImporter);
    EXPECT_THAT(itemsOfUtilities(), IsEmpty());
    pull(true, kImporter);
    EXPECT_THAT(itemsOfUtilities(), ElementsAre("Fernwick Project Converter..."));
}

TEST_F(Importer, WorksInEachOrderOfConnections) {
    pull(false, kProgId);
    pull(false, kImporter);
    pull(true, kImporter); // there is no menu yet
    pull(true, kProgId);
    EXPECT_THAT(itemsOfUtilities(), ElementsAre("Fernwick Project Converter..."));
    pull(false, kProgId);
    pull(false, kImporter);
}

TEST_F(Importer, DisconnectedItRemembersNothing) {
    pull(false, kImporter);
    pull(false, kProgId);
    const auto path = old();
    const auto project = host.openFile(path);
    host.ide->VBProjects()->Remove(project);
    pull(true, kProgId);
    boxes();
    clickItem();
    EXPECT_THAT(boxes(), ElementsAre("open dialog"));
}

} // namespace
