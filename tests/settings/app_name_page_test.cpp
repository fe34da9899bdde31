// The page of the application's name and icon.
#include "icon_bytes.h"
#include "settings_world.h"

using testing::IsEmpty;

namespace {

constexpr char kIconMissing[] = "box 48 Fernwick: ERROR - The icon specified was not found. Will use the default Icon.";
constexpr char kIconWarning[] =
    "box 48 Icon Warning: The icon file associated with this project could lock up a Pocket PC 2000 device.  The icon "
    "file must contain at least one icon with a color depth less than 24bpp to avoid this issue.";

/// An icon file with images of these numbers of bits per pixel.
std::string iconOf(const std::vector<int>& bits) {
    std::vector<test::IconEntry> images;
    for (const int bitCount : bits) images.push_back({16, 16, bitCount});
    return test::icon(images);
}

class AppNamePage : public testing::Test, protected test::SettingsWorld {
protected:
    void open(std::function<void()> act) { show("App Name/Icon", std::move(act)); }
    void leave() { dialog.treAvailableSettings.choose("My Devices"); }
    void comeBack() { dialog.treAvailableSettings.choose("App Name/Icon"); }
    void file(const std::string& path, const std::string& bytes) { files.files[path].bytes = bytes; }
    auto warnings() const { return std::count(trace.effects.begin(), trace.effects.end(), kIconWarning); }

    fernwick::AppNamePage& page = dialog.appName;
};

TEST_F(AppNamePage, ShowsUnderscoresAsSpacesIfTheBoxIsTicked) {
    project = SettingsWorld::open("My_Game_2", "Palm-1");
    open([&] {
        EXPECT_EQ(page.txtAppName.Text(), "My_Game_2");
        EXPECT_TRUE(page.txtAppName.Locked);
        page.chkSpacesInName.Value(1);
        EXPECT_EQ(page.txtAppName.Text(), "My Game 2");
        page.chkSpacesInName.Value(0);
        EXPECT_EQ(page.txtAppName.Text(), "My_Game_2");
        page.chkSpacesInName.Value(1);
        dialog.btnOK.press();
    });
    EXPECT_EQ(stored("SpacesInNameEnabled"), "True");
    EXPECT_EQ(project->name, "My_Game_2");
    open([&] {
        EXPECT_EQ(page.chkSpacesInName.Value(), 1);
        EXPECT_EQ(page.txtAppName.Text(), "My Game 2");
    });
}

TEST_F(AppNamePage, HasItsTexts) {
    EXPECT_EQ(page.lblAppName.Caption(), "You can change the default settings Fernwick uses to generate an application "
                                         "name and icon for your project.");
    EXPECT_EQ(page.chkSpacesInName.Caption(), "&Convert underscores in project name to spaces.");
    EXPECT_EQ(page.txtAppName.ToolTipText(), "To change this name, edit the Project Name property.");
    EXPECT_EQ(page.txtIconFilePath.ToolTipText(), "Use the Browse button to select the icon file for this project.");
    EXPECT_EQ(page.btnBrowseIcon.Caption(), "&Browse...");
    EXPECT_EQ(page.btnBrowseIcon.ToolTipText(), "Select the icon file for this project.");
    EXPECT_FALSE(page.fraHideIcon.Visible());
}

TEST_F(AppNamePage, ShowsTheDefaultIconAsNone) {
    open([&] { EXPECT_EQ(page.txtIconFilePath.Text(), ""); });
    store("IconFileName", "art/Game.ico");
    open([&] {
        EXPECT_EQ(page.txtIconFilePath.Text(), "/p/art/Game.ico");
        EXPECT_EQ(page.icoPreview.FileName(), "/p/art/Game.ico");
        page.txtIconFilePath.Text("Other.ico");
        EXPECT_EQ(page.icoPreview.FileName(), "/p/Other.ico");
        page.txtIconFilePath.Text("");
        EXPECT_EQ(page.icoPreview.FileName(), "");
    });
}

TEST_F(AppNamePage, BrowsesForAnIcon) {
    open([&] {
        user.chosen = "/icons/New.ico";
        page.btnBrowseIcon.press();
        EXPECT_EQ(user.opened.Filter, "Icon File (*.ico)|*.ico");
        EXPECT_EQ(user.opened.DefaultExt, "ico");
        EXPECT_EQ(user.opened.Flags, 6148);
        EXPECT_EQ(user.opened.FileName, "");
        EXPECT_EQ(page.txtIconFilePath.Text(), "/icons/New.ico");
        user.chosen = "";
        page.btnBrowseIcon.press();
        EXPECT_EQ(page.txtIconFilePath.Text(), "/icons/New.ico");
        dialog.btnOK.press();
    });
    EXPECT_EQ(stored("IconFileName"), "/icons/New.ico");
}

TEST_F(AppNamePage, StoresAnEmptyIconToo) {
    store("IconFileName", "Game.ico");
    open([&] {
        page.txtIconFilePath.Text("");
        dialog.btnOK.press();
    });
    EXPECT_EQ(stored("IconFileName"), "");
}

TEST_F(AppNamePage, AMissingIconIsClearedAtOnceAndDoesNotKeepTheUser) {
    store("IconFileName", "Gone.ico");
    open([&] {
        leave();
        EXPECT_TRUE(did(kIconMissing));
        EXPECT_EQ(page.txtIconFilePath.Text(), "");
        EXPECT_EQ(dialog.CurrentDialog, "My Devices");
        trace.effects.clear();
        comeBack();
        leave();
        EXPECT_THAT(trace.effects, IsEmpty());
    });
    EXPECT_EQ(stored("IconFileName"), "");
}

TEST_F(AppNamePage, WarnsOnceOfAnIconWithoutAShallowImage) {
    file("/p/Deep.ico", iconOf({24, 32}));
    file("/p/Other.ico", iconOf({32}));
    store("IconFileName", "Deep.ico");
    open([&] {
        leave();
        EXPECT_EQ(warnings(), 1);
        EXPECT_EQ(dialog.CurrentDialog, "My Devices");
        comeBack();
        page.txtIconFilePath.Text("Other.ico");
        leave();
        EXPECT_EQ(warnings(), 1);
    });
    EXPECT_EQ(stored("IconWarning"), "True");
}

TEST_F(AppNamePage, OneShallowImageIsEnough) {
    for (const auto& icon : {iconOf({32, 4}), iconOf({23}), std::string("BM a bitmap that is called an icon")}) {
        file("/p/Game.ico", icon);
        store("IconFileName", "Game.ico");
        open([&] { leave(); });
        EXPECT_EQ(warnings(), 0);
    }
    EXPECT_EQ(stored("IconWarning"), "(none)");
}

TEST_F(AppNamePage, WarnsOfAnIconWithoutImages) {
    file("/p/Game.ico", iconOf({}));
    store("IconFileName", "Game.ico");
    open([&] { leave(); });
    EXPECT_EQ(warnings(), 1);
}

} // namespace
