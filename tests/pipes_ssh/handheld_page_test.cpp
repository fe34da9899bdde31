// The page of Linux handhelds, used like the dialog of settings does.
#include "Components/QLPipe/linux_handheld/linux_handheld_page.h"
#include "tests/pipes_ssh/handheld_page.h"

namespace {

using testing::HasSubstr;
using Settings = qlpipe::LinuxHandheldSettings;

constexpr char kSection[] = "Quinloft Linux Handheld", kArm[] = "LinuxHandheld-ARM";

class HandheldPage : public test::HandheldPageTest {
protected:
    std::string stored(const char* key) const {
        std::string value;
        (void)basic::attempt([&] { value = project->ReadProperty(kSection, key); });
        return value;
    }
    Settings own() { return qlpipe::readUserSettings(world.registry, kArm); }
};

TEST_F(HandheldPage, ShowsTheSettingsOfTheProjectAndOfTheUser) {
    qlpipe::writeUserSettings(world.registry, kArm, {"pda", "2222", "joe", "~/.ssh/pda", "/opt/apps", "/etc/known"});
    project->WriteProperty(kSection, "Folder", "games");
    project->WriteProperty(kSection, "Orientation", "landscape");
    open();
    EXPECT_EQ(text("Host"), "pda");
    EXPECT_EQ(text("Port"), "2222");
    EXPECT_EQ(text("User"), "joe");
    EXPECT_EQ(text("KeyFile"), "~/.ssh/pda");
    EXPECT_EQ(text("KnownHosts"), "/etc/known");
    EXPECT_EQ(text("Folder"), "games");
    EXPECT_EQ(list("Orientation").Text(), "Landscape");
    EXPECT_FALSE(page->Visible());
    EXPECT_FALSE(label("lblIgnored").Visible());
}

TEST_F(HandheldPage, StoresTheConnectionForTheUserAndNotInTheProject) {
    qlpipe::writeUserSettings(world.registry, kArm, {"", "", "", "", "/opt/apps", ""});
    open();
    type("Host", "pda");
    type("Folder", "games");
    EXPECT_TRUE(configuration->ValidatePage());
    EXPECT_EQ(own().Host, "");
    configuration->ApplyPage();
    EXPECT_EQ(own(), (Settings{"pda", "", "", "", "/opt/apps", ""}));
    EXPECT_EQ(stored("Host"), "");
    EXPECT_EQ(stored("Folder"), "games");
}

TEST_F(HandheldPage, StoresOnlyWhatChanged) {
    open();
    configuration->ApplyPage();
    EXPECT_FALSE(project->IsDirty());
    type("Host", "pda");
    configuration->ApplyPage();
    EXPECT_FALSE(project->IsDirty());
    qlpipe::writeUserSettings(world.registry, kArm, {"pda", "22", "", "", "", ""});
    type("User", "joe");
    configuration->ApplyPage();
    EXPECT_EQ(own(), (Settings{"pda", "22", "joe", "", "", ""}));
}

TEST_F(HandheldPage, ShowsWhatIsIgnoredInTheProject) {
    project->WriteProperty(kSection, "Host", "evil");
    project->WriteProperty(kSection, "KeyFile", "x");
    open();
    EXPECT_EQ(text("Host"), "");
    EXPECT_TRUE(label("lblIgnored").Visible());
    EXPECT_THAT(label("lblIgnored").Caption(), HasSubstr("ignored:\nHost, KeyFile"));
}

TEST_F(HandheldPage, UsesTheDeviceOfTheProject) {
    project->WriteProperty("Quinloft Global", "TargetDevice", "LinuxHandheld-MIPS");
    open();
    type("Host", "mips");
    configuration->ApplyPage();
    EXPECT_EQ(qlpipe::readUserSettings(world.registry, "LinuxHandheld-MIPS").Host, "mips");
    EXPECT_EQ(own().Host, "");
}

TEST_F(HandheldPage, RefusesWhatATransferWouldRefuseInOneBox) {
    open();
    type("Host", "a b");
    type("Port", "ssh");
    type("Folder", "/");
    type("KeyFile", "a\nb");
    world.user.expectBox("These settings cannot be used. Correct them, or clear them for their defaults.\n\n"
                         "Host: it contains a character that is not allowed in names.\n"
                         "Port: a port must be a number from 1 to 65535.\n"
                         "Key file: it must not contain control characters.\n"
                         "Folder: Fernwick needs a separate folder.");
    EXPECT_FALSE(configuration->ValidatePage());
}

TEST_F(HandheldPage, StoresNothingIfAnythingIsRefused) {
    open();
    type("Host", "pda");
    type("Version", "2.0");
    type("Port", "0");
    world.user.expectBox("The page Linux Handheld Settings was not stored. Correct it and apply it again.\n\n"
                         "Port: a port must be a number from 1 to 65535.");
    configuration->ApplyPage();
    EXPECT_EQ(own(), Settings{});
    EXPECT_EQ(stored("Version"), "");
    EXPECT_FALSE(project->IsDirty());
}

TEST_F(HandheldPage, StoresNothingIfTheUsersStoreFails) {
    world.folder.write("store/user", "");
    open();
    type("Host", "pda");
    type("Version", "2.0");
    world.user.expectBox("The page Linux Handheld Settings was not stored. Correct it and apply it again.\n\n"
                         "Your settings of the connection could not be stored.");
    configuration->ApplyPage();
    EXPECT_EQ(stored("Version"), "");
    EXPECT_FALSE(project->IsDirty());
}

TEST_F(HandheldPage, StoresNothingIfTheProjectFileCannotHoldAValue) {
    const std::string japanese = "\xE6\x97\xA5";
    const auto failed = basic::attempt([&] { project->WriteProperty(kSection, "Arguments", japanese); });
    const auto refusal =
        "The page Linux Handheld Settings was not stored. Correct it and apply it again.\n\n" + failed.Description;
    open();
    type("Host", "pda");
    type("Version", "2.0");
    type("Arguments", japanese);
    world.user.expectBox(refusal);
    configuration->ApplyPage();
    EXPECT_EQ(own(), Settings{});
    EXPECT_FALSE(project->IsDirty());

    type("Version", "\xC3\xA4"); // the file can hold it
    world.user.expectBox(refusal);
    configuration->ApplyPage();
    EXPECT_EQ(stored("Version"), "");
}

TEST_F(HandheldPage, DoesNothingAfterClosing) {
    open();
    type("Folder", "games");
    configuration->ClosePage();
    configuration->ApplyPage();
    configuration->ShowPage();
    press();
    EXPECT_FALSE(page->isLoaded());
    EXPECT_TRUE(configuration->ValidatePage());
    EXPECT_EQ(stored("Folder"), "");
    EXPECT_FALSE(configuration->CreatePage({}, 0, 0));
}

} // namespace
