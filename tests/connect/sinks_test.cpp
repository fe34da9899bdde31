// The sinks of items.
#include "connect_world.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class Sinks : public testing::Test, protected test::ConnectWorld {
protected:
    void standMenu() {
        items.gSettingsItem = item("settings");
        items.gCompileItem = item("compile");
        items.gOpenProjectItem = item("open");
        items.gPackageAllItem = item("package all");
        items.gDeployAllItem = item("deploy all");
        items.gInstallAllItem = item("install all");
        items.gDownloadItem = item("download");
        items.gDatabaseConverterItem = item("database converter");
        items.gWeirgateItem = item("weirgate");
        items.gSampleIntroItem = item("intro");
        items.gSampleHelloItem = item("hello");
        items.gSampleDirItem = item("directory");
        items.gWebItem = item("web");
        items.gGuideItem = item("guide");
        items.gAboutItem = item("about");
        items.gZoomItem = item("zoom");
        items.gMessagesItem = item("messages");
    }
    fernwick::Array<fernwick::CommandItems::Item> devicesItems(const std::string& family, int count) {
        std::vector<fernwick::CommandItems::Item> all;
        for (int i = 0; i < count; ++i) all.push_back(item(family + std::to_string(i)));
        return {0, all};
    }
    /// Returns the effects of a click on a sample.
    std::vector<std::string> clicked(fernwick::clsSampleMenuItem& sample) {
        trace.effects.clear();
        bool handled = false, cancel = false;
        sample.myOfficeEvents.source()->Click.raise(sample.myOfficeCommandBar, handled, cancel);
        return trace.effects;
    }
    std::vector<std::string> wired() {
        trace.effects.clear();
        connection->SetupMenuHandlers(vbe);
        return itemSinks();
    }
};

TEST_F(Sinks, OfTheMenuAreAssignedInOrder) {
    standMenu();
    targets.known = {"Palm-1"};
    items.gPackageItems = devicesItems("package", 2);
    items.gDeployItems = devicesItems("deploy", 2);
    items.gInstallItems = devicesItems("install", 1);
    EXPECT_THAT(wired(),
                ElementsAre("settings", "compile", "open", "package all", "deploy all", "install all", "package0",
                            "package1", "deploy0", "deploy1", "download", "install0", "database converter", "weirgate",
                            "intro", "hello", "directory", "web", "guide", "about", "zoom", "messages"));
    EXPECT_TRUE(bool(connection->DeployDevice[1]));
    EXPECT_FALSE(bool(connection->DeployDevice[2]));
    EXPECT_FALSE(bool(connection->DeployPalmOSHandler));
}

TEST_F(Sinks, EachHasItsOwnItem) {
    targets.known = {"Palm-1", "Pocket-1"};
    connect();
    auto& c = *connection;
    items.gDownloadItem->Caption("download"); // to distinguish it from no item
    const std::vector<std::pair<fernwick::Command*, fernwick::CommandItems::Item>> pairs{
        {&c.QuinloftSettingsHandler, items.gSettingsItem},
        {&c.CompileProjectHandler, items.gCompileItem},
        {&c.ProjectManagerHandler, items.gOpenProjectItem},
        {&c.MakePackageAllDevices, items.gPackageAllItem},
        {&c.DeployAllDevices, items.gDeployAllItem},
        {&c.InstallVMAllDevices, items.gInstallAllItem},
        {&c.DownloadVMHandler, items.gDownloadItem},
        {&c.AddinOnlineHelpHandler, items.gWebItem},
        {&c.AddinUsersGuideHandler, items.gGuideItem},
        {&c.AboutHandler, items.gAboutItem},
        {&c.ZoomWindowHandler, items.gZoomItem},
        {&c.CompileErrorWindowHandler, items.gMessagesItem},
        {&c.MakePackageDevice[0], items.gPackageItems[0]},
        {&c.MakePackageDevice[1], items.gPackageItems[1]},
        {&c.DeployDevice[0], items.gDeployItems[0]},
        {&c.DeployDevice[1], items.gDeployItems[1]},
        {&c.InstallVMDevice[0], items.gInstallItems[0]},
        {&c.InstallVMDevice[1], items.gInstallItems[1]},
        {&c.MenuDatabaseConverterHandler, items.gDatabaseConverterItem},
        {&c.MenuDatabaseViewerHandler, items.gDatabaseViewerItem},
        {&c.MenuFontConverterHandler, items.gFontConverterItem},
        {&c.MenuFontViewerHandler, items.gFontViewerItem},
        {&c.MenuGraphicsConverterHandler, items.gGraphicsConverterItem},
        {&c.MenuGraphicsViewerHandler, items.gGraphicsViewerItem},
        {&c.MenuMovieConverterHandler, items.gMovieConverterItem},
        {&c.MenuMovieViewerHandler, items.gMovieViewerItem},
        {&c.MenuWeirgateHandler, items.gWeirgateItem},
        {&c.SampleIntroHandler, items.gSampleIntroItem},
        {&c.SampleHelloWorldHandler, items.gSampleHelloItem},
        {&c.SampleOpenSampleDirHandler, items.gSampleDirItem},
        {&c.ToolQuinloftSettingsHandler, items.gToolSettings},
        {&c.ToolCompileProjectHandler, items.gToolCompile},
        {&c.ToolDeployProjectHandler, items.gToolDeploy},
        {&c.ToolAddinUsersGuideHandler, items.gToolGuide},
        {&c.ToolZoomWindowHandler, items.gToolZoom},
        {&c.ToolProjectManagerHandler, items.gToolOpenProject},
        {&c.ToolDatabaseConverterHandler, items.gToolDatabaseConverter},
        {&c.ToolDatabaseViewerHandler, items.gToolDatabaseViewer},
        {&c.ToolFontConverterHandler, items.gToolFontConverter},
        {&c.ToolFontViewerHandler, items.gToolFontViewer},
        {&c.ToolGraphicsConverterHandler, items.gToolGraphicsConverter},
        {&c.ToolGraphicsViewerHandler, items.gToolGraphicsViewer},
        {&c.ToolMovieConverterHandler, items.gToolMovieConverter},
        {&c.ToolMovieViewerHandler, items.gToolMovieViewer},
        {&c.ToolWGConfigHandler, items.gToolWGConfig},
    };
    for (std::size_t i = 0; i < pairs.size(); ++i) {
        EXPECT_TRUE(pairs[i].second) << i;
        EXPECT_EQ(vbe->events->itemOf(pairs[i].first->source()), pairs[i].second) << i;
    }
}

TEST_F(Sinks, WithoutTargetsTheDeviceItemsHaveNone) {
    standMenu();
    items.gPackageItems = devicesItems("package", 2);
    items.gInstallItems = devicesItems("install", 2);
    EXPECT_THAT(wired(), ElementsAre("settings", "compile", "open", "package all", "deploy all", "install all",
                                     "database converter", "weirgate", "intro", "hello", "directory", "web", "guide",
                                     "about", "zoom", "messages"));
}

TEST_F(Sinks, AnEleventhDeviceHasNone) {
    targets.known = {"Palm-1"};
    items.gPackageItems = devicesItems("p", 12);
    items.gDeployItems = devicesItems("d", 12);
    items.gInstallItems = devicesItems("i", 12);
    EXPECT_EQ(wired().size(), 30U);
    EXPECT_TRUE(bool(connection->InstallVMDevice[9]));
    EXPECT_THAT(errors.seen, IsEmpty());
}

TEST_F(Sinks, ThePackageItemsDecideOnTheDeploySlots) {
    targets.known = {"Palm-1"};
    items.gPackageItems = devicesItems("p", 3);
    items.gPackageItems[1] = nullptr;
    items.gDeployItems = devicesItems("d", 2);
    EXPECT_THAT(wired(), ElementsAre("p0", "p2", "d0"));
    EXPECT_THAT(errors.seen, ElementsAre("Connect.SetupMenuHandlers [9]")); // there is no third deploy item
}

TEST_F(Sinks, AFailedAssignmentLeavesTheOthers) {
    standMenu();
    trace.calls = 0;
    trace.failing = 2;
    wired();
    trace.failing = 0;
    EXPECT_THAT(errors.seen, ElementsAre("Connect.SetupMenuHandlers [50000]"));
    EXPECT_FALSE(bool(connection->QuinloftSettingsHandler));
    EXPECT_TRUE(bool(connection->CompileProjectHandler));
}

TEST_F(Sinks, OfSamplesBelongToTheSamples) {
    const auto popup = basic::make<fernwick::clsSampleMenuItem>(), sample = basic::make<fernwick::clsSampleMenuItem>();
    popup->popupMenu = true;
    popup->myOfficeCommandBar = item("popup");
    sample->myOfficeCommandBar = item("address book");
    items.gSampleItems = {0, {popup, sample}};
    EXPECT_THAT(wired(), ElementsAre("address book"));
    EXPECT_FALSE(bool(popup->myOfficeEvents));
    sample->fullPath = "/s/Tip.vbp";
    EXPECT_THAT(clicked(*sample), ElementsAre("open /s/Tip.vbp alone"));
}

TEST_F(Sinks, AssignedTwiceHandleAClickOnce) {
    items.gSettingsItem = item("settings");
    const auto sample = basic::make<fernwick::clsSampleMenuItem>();
    sample->myOfficeCommandBar = item("address book");
    sample->fullPath = "/s/Tip.vbp";
    items.gSampleItems = {0, {sample}};
    wired();
    const auto replaced = connection->QuinloftSettingsHandler.source();
    EXPECT_THAT(wired(), ElementsAre("settings", "address book"));
    EXPECT_THAT(clicked(*sample), ElementsAre("open /s/Tip.vbp alone"));
    EXPECT_FALSE(replaced->Click.hasHandlers());
    EXPECT_TRUE(connection->QuinloftSettingsHandler.source()->Click.hasHandlers());
}

TEST_F(Sinks, OfTheMenuPrecedeThoseOfTheToolbars) {
    connect();
    EXPECT_THAT(itemSinks(),
                ElementsAre("Fernwick &Settings...", "Compile and &Validate", "&Open Fernwick Project...",
                            "&To My Devices", "&To My Devices", "&To My Devices", "&Database Converter",
                            "&PDB Database Viewer", "&Font Converter", "F&ont Viewer", "&Graphic Converter",
                            "G&raphic Viewer", "&Movie Converter", "Mo&vie Viewer", "&Weirgate Configuration",
                            "Introduction to Fernwick", "Hello World Tutorial", "Open samples directory",
                            "Quinloft on the &Web...", "Fernwick User's &Guide...", "&About Fernwick...",
                            "&Zoom Window", "Fernwick &Messages Window", // the toolbars follow
                            "Fernwick Settings", "Compile and Validate", "Deploy to Device", "Fernwick User's Guide",
                            "Zoom Level", "Open Fernwick Project", "&Database Converter", "&PDB Database Viewer",
                            "&Font Converter", "F&ont Viewer", "&Graphic Converter", "G&raphic Viewer",
                            "&Movie Converter", "Mo&vie Viewer", "&Weirgate Configuration"));
    EXPECT_THAT(sinks(), ElementsAre("build", "projects", "all files"));
}

} // namespace
