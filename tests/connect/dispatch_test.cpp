// Handlers call dialogs, respect the user's choice, and report their failures.
#include "connect_world.h"
#include "whole_world.h"

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

constexpr char kQuestion[] = "box 68 No devices selected: To continue with this option, you must first select which "
                             "devices will be used. Continue and select devices?";

/// Handlers over dialogs that only record their calls.
class Dispatch : public testing::Test, protected test::ConnectWorld {
protected:
    Dispatch() { targets.known = {"Palm-1"}; }
    /// Clicks on the item of a sink.
    std::vector<std::string> click(fernwick::Command& sink) {
        const auto clicked = item("clicked");
        sink = vbe->Events()->CommandBarEvents(clicked);
        trace.effects.clear();
        bool handled = false, cancel = false;
        sink.source()->Click.raise(clicked, handled, cancel);
        EXPECT_FALSE(handled);
        EXPECT_FALSE(cancel);
        return trace.effects;
    }
};

TEST_F(Dispatch, TheSettingsChooseTheirPageThemselves) {
    ProjectsWorld::open("A", "Palm-1");
    EXPECT_THAT(click(connection->QuinloftSettingsHandler), ElementsAre("cursor 11", "settings INVALID DIALOG NAME"));
    EXPECT_THAT(click(connection->ToolQuinloftSettingsHandler),
                ElementsAre("cursor 11", "settings INVALID DIALOG NAME"));
}

TEST_F(Dispatch, WithoutDevicesTheSettingsOpenOnTheirPage) {
    ProjectsWorld::open("A", "Palm-1");
    for (auto* all :
         {&connection->DeployAllDevices, &connection->MakePackageAllDevices, &connection->InstallVMAllDevices}) {
        user.answers = {fernwick::vbYes, fernwick::vbNo};
        EXPECT_THAT(click(*all), ElementsAre(kQuestion, "cursor 11", "settings My Devices", kQuestion));
    }
}

TEST_F(Dispatch, ServesTheDevicesChosenInTheSettings) {
    ProjectsWorld::open("A", "Palm-1");
    user.answers = {fernwick::vbYes};
    noted.inSettings = [this] { prefs.gMyDevices = {"Palm-1", "Palm-1"}; };
    const auto effects = click(connection->InstallVMAllDevices);
    EXPECT_EQ(std::count(effects.begin(), effects.end(), kQuestion), 1);
    EXPECT_EQ(std::count(effects.begin(), effects.end(), "form frmSendRuntimeToDevice"), 2);
}

TEST_F(Dispatch, TheSettingsDoNotScanWhenTheyOpen) {
    ProjectsWorld::open("A", "Palm-1");
    for (auto* sink : {&connection->QuinloftSettingsHandler, &connection->DeployAllDevices}) {
        user.answers = {fernwick::vbYes, fernwick::vbNo};
        noted.scansInSettings = true;
        click(*sink);
        EXPECT_EQ(noted.settingsOf, vbe->active);
        EXPECT_FALSE(noted.scansInSettings);
    }
}

/// The first call of a handler to the host or to a feature fails.
TEST_F(Dispatch, CommandsReportUnderTheirOwnNames) {
    ProjectsWorld::open("A", "Palm-1");
    const std::vector<std::pair<fernwick::Command*, std::string>> commands{
        {&connection->CompileProjectHandler, "CompileProjectHandler"},
        {&connection->ToolCompileProjectHandler, "CompileProjectHandler"},
        {&connection->ToolDeployProjectHandler, "ToolDeployProjectHandler"},
        {&connection->CompileErrorWindowHandler, "CompileErrorWindowHandler"}};
    for (const auto& [sink, handler] : commands) {
        *sink = vbe->Events()->CommandBarEvents(item("clicked"));
        errors.seen.clear();
        trace.calls = 0;
        trace.failing = 1;
        bool handled = false, cancel = false;
        sink->source()->Click.raise(item("clicked"), handled, cancel);
        trace.failing = 0;
        ASSERT_FALSE(errors.seen.empty()) << handler;
        EXPECT_EQ(errors.seen.front(), "Connect." + handler + "_Click [50000]");
    }
}

TEST_F(Dispatch, ADeviceItemDoesNotCheckForAProject) {
    for (auto* sink : {&connection->DeployDevice[0], &connection->MakePackageDevice[0]}) {
        errors.seen.clear();
        click(*sink);
        ASSERT_FALSE(errors.seen.empty());
        EXPECT_EQ(errors.seen.front(), "modProjectHandler.GetQLProject [91]");
        EXPECT_THAT(errors.seen, testing::Contains("frmSendToDevice.SendProjectToDevice [91]")); // called all the same
    }
}

TEST_F(Dispatch, ShowsTheIntroduction) {
    EXPECT_THAT(click(connection->SampleIntroHandler), ElementsAre("form frmGettingStarted"));
}

class FailingDispatch : public testing::Test, protected test::WholeWorld {
protected:
    /// Returns the report of a click in which the call with this number fails.
    std::string reportOf(const Control& control, int failing) {
        trace.calls = 0;
        trace.failing = failing;
        const auto seen = click(control);
        trace.failing = 0;
        return seen.empty() ? "" : seen.back();
    }
    static std::string in(const std::string& location) { return "An Error Has Occurred in " + location + " ("; }
};

TEST_F(FailingDispatch, UtilitiesReportUnderTheirNamesExceptTheDatabaseViewer) {
    connect();
    shell.hasPrograms = false;
    const auto& all = items();
    const std::vector<std::pair<Control, std::string>> utilities{
        {all.gDatabaseConverterItem, "MenuDatabaseConverterHandler"},
        {all.gDatabaseViewerItem, "MenuDatabaseConverterHandler"},
        {all.gFontConverterItem, "MenuFontConverterHandler"},
        {all.gFontViewerItem, "MenuFontViewerHandler"},
        {all.gGraphicsConverterItem, "MenuGraphicsConverterHandler"},
        {all.gGraphicsViewerItem, "MenuGraphicsViewerHandler"},
        {all.gMovieConverterItem, "MenuMovieConverterHandler"},
        {all.gMovieViewerItem, "MenuMovieViewerHandler"},
        {all.gWeirgateItem, "MenuWeirgateHandler"},
        {all.gToolDatabaseConverter, "ToolDatabaseConverterHandler"},
        {all.gToolDatabaseViewer, "MenuDatabaseConverterHandler"},
        {all.gToolFontConverter, "ToolFontConverterHandler"},
        {all.gToolFontViewer, "ToolFontViewerHandler"},
        {all.gToolGraphicsConverter, "ToolGraphicsConverterHandler"},
        {all.gToolGraphicsViewer, "ToolGraphicsViewerHandler"},
        {all.gToolMovieConverter, "ToolMovieConverterHandler"},
        {all.gToolMovieViewer, "ToolMovieViewerHandler"},
        {all.gToolWGConfig, "ToolWGConfigHandler"}};
    constexpr int kBox = 3; // after the failed start and its report
    for (const auto& [control, handler] : utilities)
        EXPECT_THAT(reportOf(control, kBox), HasSubstr(in("Connect." + handler + "_Click"))) << handler;
}

TEST_F(FailingDispatch, ReportsWhatCannotBeOpened) {
    connect();
    host.folder.write("install/VB Toolkit/Samples/readme.txt", "");
    host.folder.write("install/VB Toolkit/doc/Quinloft_Users_Guide.chm", "");
    EXPECT_THAT(reportOf(items().gWebItem, 1), HasSubstr(in("Connect.AddinOnlineHelpHandler_Click")));
    EXPECT_THAT(reportOf(items().gSampleHelloItem, 1), HasSubstr(in("Connect.SampleHelloWorldHandler_Click")));
    EXPECT_THAT(reportOf(items().gSampleDirItem, 1), HasSubstr(in("Connect.SampleOpenSampleDirHandler_Click")));
    EXPECT_THAT(reportOf(items().gGuideItem, 1), HasSubstr(in("modHelpManagement.DisplayHelp")));
    EXPECT_THAT(reportOf(items().gAboutItem, 1), HasSubstr(in("Connect.AboutHandler_Click")));
    EXPECT_THAT(reportOf(items().gSampleIntroItem, 1), HasSubstr(in("Connect.SampleIntroHandler_Click")));
    user.whenShown["frmAbout"] = [](fernwick::Form& form) {
        dynamic_cast<fernwick::frmAbout&>(form).lblWebAddress.Click.raise();
    };
    EXPECT_THAT(reportOf(items().gAboutItem, 2), HasSubstr(in("frmAbout.lblWebAddress_Click")));
    EXPECT_THAT(host.failures, IsEmpty());
}

TEST_F(FailingDispatch, TheDownloadHasNoTrap) {
    connect();
    items().gDownloadItem->Enabled(true);
    user.answers = {fernwick::vbOK};
    reportOf(items().gDownloadItem, 2);
    ASSERT_EQ(host.failures.size(), 1U);
    EXPECT_EQ(host.failures[0].Number, test::kInjected);
}

} // namespace
