// The pages of families, used like the dialog of settings does.
#include "Add-in/platform/combo_box.h"
#include "Add-in/platform/text_box.h"
#include "tests/pipes/pipe_world.h"
#include "tests/support/test_host.h"
#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;

class SettingsPages : public testing::Test {
protected:
    void open(const std::string& pipe) {
        configuration = world.create<qlpipe::IQLPipeConfiguration>(pipe + ".Configuration");
        page = configuration->CreatePage(project, 1075, 3150);
    }
    fernwick::TextBox& box(const std::string& key) {
        return dynamic_cast<fernwick::TextBox&>(page->control("txt" + key));
    }
    fernwick::ComboBox& orientation() { return dynamic_cast<fernwick::ComboBox&>(page->control("cboOrientation")); }
    void set(const char* section, const char* key, const std::string& value) {
        project->WriteProperty(section, key, value);
    }
    std::string fileText() {
        project->SaveAs(project->FileName());
        return host.folder.read("Hello.vbp");
    }
    static std::vector<std::string> rows(const fernwick::ComboBox& list) {
        std::vector<std::string> texts;
        for (int i = 0; i < list.ListCount(); ++i) texts.push_back(list.List(i));
        return texts;
    }

    test::TestHost host;
    basic::Ref<vbide::VBProject> project = host.open(test::SampleProject{});
    test::PipeWorld world;
    basic::Ref<qlpipe::IQLPipeConfiguration> configuration;
    basic::Ref<fernwick::Form> page;
};

TEST_F(SettingsPages, HaveTheirNames) {
    for (const auto& [pipe, name] : {std::pair{"QLPipePalmOS", "Palm OS Settings"},
                                     {"QLPipePocketPC", "PocketPC Settings"},
                                     {"QLPipeLinux", "Linux Handheld Settings"}}) {
        open(pipe);
        EXPECT_TRUE(configuration->HasPage());
        EXPECT_EQ(configuration->PageName(), name);
        EXPECT_TRUE(page->isLoaded());
        EXPECT_FALSE(page->Visible());
        configuration->ShowPage();
        EXPECT_TRUE(page->Visible());
        configuration->HidePage();
        EXPECT_FALSE(page->Visible());
        configuration->ClosePage();
        EXPECT_FALSE(page->isLoaded());
    }
}

TEST_F(SettingsPages, DoNothingWithoutAPage) {
    const auto before = fileText();
    for (const auto* pipe : {"QLPipePalmOS", "QLPipePocketPC", "QLPipeLinux"}) {
        open(pipe);
        configuration->ClosePage();
        configuration->ShowPage();
        configuration->HidePage();
        EXPECT_TRUE(configuration->ValidatePage());
        configuration->ApplyPage();
        configuration->ClosePage();
    }
    EXPECT_EQ(fileText(), before);
}

TEST_F(SettingsPages, ShowStoredValuesAndTips) {
    set("Quinloft Palm OS", "CreatorID", "Abcd");
    open("QLPipePalmOS");
    EXPECT_EQ(box("CreatorID").Text(), "Abcd");
    EXPECT_EQ(box("MemoryLimit").Text(), "");
    for (const char* key : {"CreatorID", "Version", "MemoryLimit"})
        EXPECT_THAT(box(key).ToolTipText(), testing::HasSubstr("Default: ")) << key;
}

TEST_F(SettingsPages, OfferTheChoicesWithTheDefaultFirst) {
    open("QLPipePocketPC");
    EXPECT_THAT(rows(orientation()), ElementsAre("(as the device is held)", "Portrait", "Landscape"));
    EXPECT_EQ(orientation().ListIndex(), 0);
    orientation().ListIndex(2);
    configuration->ApplyPage();
    EXPECT_EQ(project->ReadProperty("Quinloft PocketPC", "Orientation"), "Landscape");
}

TEST_F(SettingsPages, KeepAValueThatIsNoChoiceUntilTheUserReplacesIt) {
    set("Quinloft PocketPC", "Orientation", "Side\tways");
    open("QLPipePocketPC");
    EXPECT_THAT(rows(orientation()),
                ElementsAre("(as the device is held)", "Portrait", "Landscape", "Side\\u0009ways"));
    EXPECT_EQ(orientation().ListIndex(), 3);
    world.user.expectBox("These settings cannot be used. Correct them, or clear them for their defaults.\n\n"
                         "Orientation: it must not contain control characters.");
    EXPECT_FALSE(configuration->ValidatePage());
    orientation().ListIndex(1);
    EXPECT_TRUE(configuration->ValidatePage());
}

TEST_F(SettingsPages, KeepTheBytesOfAProjectThatDidNotChange) {
    set("Quinloft PocketPC", "Orientation", "landscape");
    const auto before = fileText();
    open("QLPipePocketPC");
    EXPECT_TRUE(configuration->ValidatePage());
    configuration->ApplyPage();
    EXPECT_FALSE(project->IsDirty());
    EXPECT_EQ(fileText(), before);
}

TEST_F(SettingsPages, WriteOnlyTheSettingsThatChanged) {
    const auto before = fileText();
    open("QLPipePalmOS");
    box("CreatorID").Text("Abcd");
    configuration->ApplyPage();
    EXPECT_EQ(fileText(), before + "\r\n[Quinloft Palm OS]\r\nCreatorID=Abcd\r\n");
    set("Quinloft Palm OS", "CreatorID", "Efgh"); // by another window
    configuration->ApplyPage();
    EXPECT_EQ(project->ReadProperty("Quinloft Palm OS", "CreatorID"), "Efgh");
}

TEST_F(SettingsPages, SayInOneBoxWhatTheyRefuse) {
    open("QLPipePalmOS");
    box("CreatorID").Text("Abcde");
    box("MemoryLimit").Text("257");
    world.user.expectBox("These settings cannot be used. Correct them, or clear them for their defaults.\n\n"
                         "Creator ID: it must have exactly 4 characters.\n"
                         "Memory limit (KB): a program on Palm OS has at most 256 KB.");
    EXPECT_FALSE(configuration->ValidatePage());
    world.user.expectBox("The page Palm OS Settings was not stored. Correct it and apply it again.\n\n"
                         "Creator ID: it must have exactly 4 characters.\n"
                         "Memory limit (KB): a program on Palm OS has at most 256 KB.");
    configuration->ApplyPage();
    EXPECT_FALSE(project->IsDirty());
}

TEST_F(SettingsPages, StoreNothingIfTheProjectFileCannotHoldAValue) {
    set("Quinloft PocketPC", "MemoryLimit", "64");
    const auto before = fileText();
    open("QLPipePocketPC");
    box("Version").Text("\xE6\x97\xA5\xE6\x9C\xAC");
    orientation().ListIndex(1);
    world.user.expectBox(
        "The page PocketPC Settings was not stored. Correct it and apply it again.\n\n" +
        basic::attempt([&] { set("Quinloft PocketPC", "Version", "\xE6\x97\xA5\xE6\x9C\xAC"); }).Description);
    configuration->ApplyPage();
    EXPECT_EQ(fileText(), before);
}

TEST_F(SettingsPages, SurviveHugeAndStrangeValues) {
    for (const std::string& value :
         {std::string(1'000'000, 'x'), std::string("\xC3\xA4\xC3\xB6"), std::string("a\x01b")})
        for (const auto& [pipe, section] : {std::pair{"QLPipePalmOS", "Quinloft Palm OS"},
                                            {"QLPipePocketPC", "Quinloft PocketPC"},
                                            {"QLPipeLinux", "Quinloft Linux Handheld"}}) {
            for (const char* key :
                 {"Version", "MemoryLimit", "CreatorID", "Orientation", "Folder", "Arguments", "Host"})
                set(section, key, value);
            open(pipe);
            configuration->ClosePage();
        }
}

} // namespace
