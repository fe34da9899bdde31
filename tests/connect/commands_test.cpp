// The commands of the menu and the toolbars.
#include "whole_world.h"

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr char kNoDevices[] = "box 68 No devices selected: To continue with this option, you must first select which "
                              "devices will be used. Continue and select devices?";
constexpr char kSettings[] = "form frmQuinloftSettings";

class Commands : public testing::Test, protected test::WholeWorld {
protected:
    void TearDown() override { EXPECT_TRUE(host.failures.empty()); }
    /// What the devices received in a run.
    static std::vector<std::string> deliveries(const std::vector<std::string>& seen) {
        std::vector<std::string> some;
        for (const auto& one : seen)
            if (one.starts_with("send ") || one.starts_with("package ") || one.starts_with("runtime "))
                some.push_back(one);
        return some;
    }
};

TEST_F(Commands, CompileFromMenuAndToolbar) {
    connected();
    EXPECT_THAT(click(items().gCompileItem), ElementsAre("form frmCompile"));
    EXPECT_THAT(click(items().gToolCompile), ElementsAre("form frmCompile"));
    EXPECT_EQ(host.folder.read("Hello.0000.qlx"), "image");
}

TEST_F(Commands, ADeviceItemSendsToItsOwnDevice) {
    connected();
    EXPECT_THAT(deliveries(click(items().gDeployItems[1])), ElementsAre("send Hello to Pocket-1"));
    EXPECT_THAT(deliveries(click(items().gDeployItems[0])), ElementsAre("send Hello to Palm-1"));
}

TEST_F(Commands, APackageItemPackages) {
    connected();
    EXPECT_THAT(deliveries(click(items().gPackageItems[1])), ElementsAre("package Hello for Pocket-1"));
}

TEST_F(Commands, InstallsTheRuntimeWithoutAProject) {
    connect();
    EXPECT_TRUE(items().gInstallItems[1]->Enabled());
    EXPECT_THAT(deliveries(click(items().gInstallItems[1])), ElementsAre("runtime to Pocket-1"));
}

TEST_F(Commands, TheToolbarSendsToTheProjectsOwnTarget) {
    const auto project = connected();
    addIn().menu.SetupDefaultTargetName("Pocket-1"); // the menu's state does not matter
    EXPECT_THAT(deliveries(click(items().gToolDeploy)), ElementsAre("send Hello to Palm-1"));
    project->WriteProperty("Quinloft Global", "TargetDevice", "Pocket-1");
    EXPECT_THAT(deliveries(click(items().gToolDeploy)), ElementsAre("send Hello to Pocket-1"));
}

TEST_F(Commands, ServesMyDevicesInOrder) {
    connected();
    chooseDevices({"Pocket-1", "Palm-1", "Pocket-1"});
    EXPECT_THAT(deliveries(click(items().gDeployAllItem)),
                ElementsAre("send Hello to Pocket-1", "send Hello to Palm-1", "send Hello to Pocket-1"));
    EXPECT_THAT(deliveries(click(items().gPackageAllItem)),
                ElementsAre("package Hello for Pocket-1", "package Hello for Palm-1", "package Hello for Pocket-1"));
    EXPECT_THAT(deliveries(click(items().gInstallAllItem)),
                ElementsAre("runtime to Pocket-1", "runtime to Palm-1", "runtime to Pocket-1"));
}

TEST_F(Commands, AFailingDeviceDoesNotStopTheList) {
    connected();
    chooseDevices({"Palm-1", "Pocket-1"});
    family.work = [](qlpipe::IQLPipeEvents& sink) { return sink.SendError(20001, "gone"), false; };
    EXPECT_EQ(deliveries(click(items().gDeployAllItem)).size(), 2U);
    EXPECT_EQ(deliveries(click(items().gInstallAllItem)).size(), 2U);
}

TEST_F(Commands, AShorterListOfMyDevicesEndsTheRun) {
    connected();
    chooseDevices({"Palm-1", "Pocket-1"});
    family.work = [&](qlpipe::IQLPipeEvents&) { return chooseDevices({"Palm-1"}), true; };
    EXPECT_THAT(deliveries(click(items().gInstallAllItem)), ElementsAre("runtime to Palm-1"));
    ASSERT_EQ(host.failures.size(), 1U);
    EXPECT_EQ(host.failures[0].Number, 9);
    host.failures.clear();
}

TEST_F(Commands, DevicesAddedDuringARunWaitForTheNextOne) {
    connected();
    chooseDevices({"Palm-1"});
    family.work = [&](qlpipe::IQLPipeEvents&) { return chooseDevices({"Palm-1", "Pocket-1"}), true; };
    EXPECT_THAT(deliveries(click(items().gInstallAllItem)), ElementsAre("runtime to Palm-1"));
    EXPECT_EQ(deliveries(click(items().gInstallAllItem)).size(), 2U);
}

TEST_F(Commands, WithoutDevicesAnsweringNoChangesNothing) {
    connected();
    for (const auto& item : {items().gDeployAllItem, items().gPackageAllItem, items().gInstallAllItem}) {
        user.answers = {fernwick::vbNo};
        EXPECT_THAT(click(item), ElementsAre(kNoDevices));
    }
}

TEST_F(Commands, WithoutDevicesAsksAgainUntilNo) {
    connected();
    user.answers = {fernwick::vbYes, fernwick::vbYes, fernwick::vbNo};
    EXPECT_THAT(click(items().gDeployAllItem),
                ElementsAre(kNoDevices, "cursor 11", kSettings, kNoDevices, "cursor 11", kSettings, kNoDevices));
}

TEST_F(Commands, DevicesAreChosenWithoutAProject) {
    connect();
    user.answers = {fernwick::vbYes, fernwick::vbYes, fernwick::vbNo};
    EXPECT_THAT(click(items().gInstallAllItem),
                ElementsAre(kNoDevices, "cursor 11", kSettings, kNoDevices, "cursor 11", kSettings, kNoDevices));
}

TEST_F(Commands, NoAvailableDevicesDoesNothing) {
    targets.known.clear();
    connect();
    for (const auto* family : {&items().gDeployItems, &items().gPackageItems, &items().gInstallItems}) {
        EXPECT_EQ((*family)[0]->Caption(), "No Available Devices");
        EXPECT_THAT(click((*family)[0]), IsEmpty());
    }
}

TEST_F(Commands, DevicesBeyondTheTenthDoNothing) {
    for (int i = 10; i < 20; ++i) targets.known.push_back("A" + std::to_string(i) + "-1");
    connected();
    chooseDevices({});
    EXPECT_THAT(deliveries(click(items().gInstallItems[9])), ElementsAre("runtime to A19-1"));
    EXPECT_THAT(click(items().gInstallItems[10]), IsEmpty());
    EXPECT_THAT(click(items().gDeployItems[11]), IsEmpty());
    EXPECT_THAT(click(items().gPackageItems[10]), IsEmpty());
}

TEST_F(Commands, ShowsTheMessagesWindow) {
    connected();
    EXPECT_FALSE(addIn().messages.isToolWindowShowing());
    click(items().gMessagesItem);
    EXPECT_TRUE(addIn().messages.isToolWindowShowing());
}

TEST_F(Commands, ShowsTheZoomWindow) {
    connected();
    for (const auto& item : {items().gZoomItem, items().gToolZoom}) {
        addIn().zoom.ZoomToolWindow->Visible(false);
        click(item);
        ASSERT_TRUE(addIn().zoom.ZoomToolWindow);
        EXPECT_TRUE(addIn().zoom.ZoomToolWindow->Visible());
    }
}

TEST_F(Commands, OpensTheProjectManagerOnceTheProjectHasClosed) {
    connect();
    for (const auto item : {&fernwick::CommandItems::gOpenProjectItem, &fernwick::CommandItems::gToolOpenProject}) {
        host.open(hello());
        user.answers = {fernwick::vbYes};
        click(items().*item);
        EXPECT_EQ(host.ide->VBProjects()->Count(), 0);
        trace.effects.clear();
        loop.turn();
        EXPECT_THAT(trace.effects, Contains("form frmProjectManager"));
    }
}

TEST_F(Commands, OpensTheSettings) {
    connected();
    for (const auto& item : {items().gSettingsItem, items().gToolSettings}) {
        trace.effects.clear();
        click(item);
        EXPECT_THAT(trace.effects, ElementsAre("cursor 11", "cursor 1", kSettings));
    }
}

TEST_F(Commands, AtTheCommandLineNothingWaits) {
    host.open(hello());
    connect(vbide::vbext_cm_CommandLine);
    EXPECT_THAT(click(items().gZoomItem), IsEmpty());
    addIn().projectManager.ShowOnDelay();
    EXPECT_FALSE(loop.hasTimers());
}

TEST_F(Commands, WithoutAProjectTheSettingsAreReported) {
    connect();
    items().gSettingsItem->Enabled(true);
    EXPECT_THAT(click(items().gSettingsItem),
                ElementsAre("cursor 11", testing::HasSubstr("An Error Has Occurred in modProjectHandler.GetQLProject"),
                            testing::HasSubstr("An Error Has Occurred in Connect.ProjectPropertiesHandler_Click")));
}

TEST_F(Commands, TheWebItemOpensTheSupportPages) {
    connect();
    EXPECT_THAT(click(items().gWebItem), ElementsAre("open https://support.example"));
}

TEST_F(Commands, TheDownloadAsksFirst) {
    connect();
    items().gDownloadItem->Enabled(true); // the command still works
    const auto question =
        box(1,
            "Quinloft Tamarik\u2122 is required to run deployed applications. Click \"OK\" to download "
            "the latest version of Tamarik from the Quinloft website. (Requires Internet connection.)",
            "Connect to Quinloft Web Site");
    user.answers = {fernwick::vbCancel};
    EXPECT_THAT(click(items().gDownloadItem), ElementsAre(question));
    user.answers = {fernwick::vbOK};
    EXPECT_THAT(click(items().gDownloadItem), ElementsAre(question, "open https://runtime.example"));
}

TEST_F(Commands, OpensTheGuideOrShowsItsPath) {
    connect();
    const auto path = host.folder / "install/VB Toolkit/doc/Quinloft_Users_Guide.chm";
    const auto missing = box(48, "Specified Help File Not Found;\r\nHelp file is missing or not in default "
                                 "location:\r\n" +
                                     path);
    EXPECT_THAT(click(items().gGuideItem), ElementsAre(missing));
    host.folder.write("install/VB Toolkit/doc/Quinloft_Users_Guide.chm", "");
    EXPECT_THAT(click(items().gGuideItem), ElementsAre("start Hh.exe " + path));
    EXPECT_THAT(click(items().gToolGuide), ElementsAre("start Hh.exe " + path));
}

TEST_F(Commands, AboutShowsTheVersionAndALink) {
    connect();
    user.whenShown["frmAbout"] = [&](fernwick::Form& form) {
        auto& about = dynamic_cast<fernwick::frmAbout&>(form);
        EXPECT_EQ(about.lblVersion.Caption(), "Version 3.5.0 (0624)");
        EXPECT_EQ(about.lblWebAddress.Caption(), "Visit https://web.example for more information.");
        about.lblWebAddress.Click.raise();
        test::press(form, "btnOK");
        EXPECT_FALSE(form.isLoaded());
    };
    EXPECT_THAT(click(items().gAboutItem), ElementsAre("form frmAbout", "open https://web.example"));
}

TEST_F(Commands, EachUtilityStartsItsProgram) {
    connect();
    const auto& all = items();
    const std::vector<std::pair<std::vector<Control>, std::string>> utilities{
        {{all.gDatabaseConverterItem, all.gToolDatabaseConverter}, "VB Toolkit/Bin/QLPDBC.exe"},
        {{all.gDatabaseViewerItem, all.gToolDatabaseViewer}, "VB Toolkit/Bin/QLPDBV.exe"},
        {{all.gFontConverterItem, all.gToolFontConverter}, "VB Toolkit/Bin/QLFonC.exe"},
        {{all.gFontViewerItem, all.gToolFontViewer}, "VB Toolkit/Bin/QLFonV.exe"},
        {{all.gGraphicsConverterItem, all.gToolGraphicsConverter}, "VB Toolkit/Bin/QLGraC.exe"},
        {{all.gGraphicsViewerItem, all.gToolGraphicsViewer}, "VB Toolkit/Bin/QLGraV.exe"},
        {{all.gMovieConverterItem, all.gToolMovieConverter}, "VB Toolkit/Bin/QLMovC.exe"},
        {{all.gMovieViewerItem, all.gToolMovieViewer}, "VB Toolkit/Bin/QLMovV.exe"},
        {{all.gWeirgateItem, all.gToolWGConfig}, "Weirgate/WGConfig.exe"}};
    for (const auto& [controls, program] : utilities)
        for (const auto& control : controls)
            EXPECT_THAT(click(control), ElementsAre("start " + (host.folder / ("install/" + program))));
}

TEST_F(Commands, AMissingUtilityShowsABox) {
    connect();
    shell.hasPrograms = false;
    const auto report = testing::HasSubstr("An Error Has Occurred in modViewConvertManagement.OpenViewerConverter");
    EXPECT_THAT(click(items().gToolFontViewer),
                ElementsAre(testing::StartsWith("start "), report,
                            box(48, "Could Not Launch Converter/Viewer;\r\nApplication is missing or not in default "
                                    "location.\r\n\r\nThe Viewers and Converters can be found on the Quinloft "
                                    "website.")));
    EXPECT_EQ(click(items().gWeirgateItem).back(),
              box(48, "Could Launch Weirgate Configuration;\r\nApplication is missing or not in default location."));
}

TEST_F(Commands, TheTutorialNeedsAnInstallation) {
    connect();
    EXPECT_THAT(click(items().gSampleHelloItem),
                ElementsAre("open " + (host.folder / "install/VB Toolkit/doc/Hello World Tutorial/hw_write.html")));
    store(fernwick::HKEY_LOCAL_MACHINE, "Software\\Quinloft", "RootDir", "");
    EXPECT_THAT(click(items().gSampleHelloItem), ElementsAre(box(16, "Error finding Fernwick Hello World Tutorial.")));
}

TEST_F(Commands, TheIntroductionCanBeShownAtAnyTime) {
    connect();
    EXPECT_FALSE(addIn().prefs.GetStartTutorial());
    user.whenShown["frmGettingStarted"] = [](fernwick::Form& form) {
        EXPECT_EQ(dynamic_cast<fernwick::frmGettingStarted&>(form).chkDontShow.Value(), 1);
        test::press(form, "cmdDone");
    };
    EXPECT_THAT(click(items().gSampleIntroItem), ElementsAre("form frmGettingStarted"));
}

TEST_F(Commands, ShowsTheIntroductionLastInEachMode) {
    addIn().prefs.SetStartTutorial(true);
    for (const auto mode : {vbide::vbext_cm_AfterStartup, vbide::vbext_cm_Startup, vbide::vbext_cm_External,
                            vbide::vbext_cm_CommandLine}) {
        host.ide->connectAddIn(kProgId, mode);
        EXPECT_EQ(trace.effects.back(), "form frmGettingStarted");
        host.ide->Addins()->Item(kProgId)->Connect(false);
    }
}

TEST_F(Commands, OpensTheSamplesFolder) {
    connect();
    EXPECT_THAT(click(items().gSampleDirItem),
                ElementsAre(box(48, "Could get open the samples directory;\r\nQuinloft Samples are located on the "
                                    "Quinloft website..")));
    host.folder.write("install/VB Toolkit/Samples/readme.txt", "");
    EXPECT_THAT(click(items().gSampleDirItem), ElementsAre("open " + (host.folder / "install/VB Toolkit/Samples")));
    store(fernwick::HKEY_LOCAL_MACHINE, "Software\\Quinloft", "RootDir", "");
    EXPECT_THAT(click(items().gSampleDirItem), ElementsAre(box(16, "Error getting Fernwick samples directory.")));
}

TEST_F(Commands, TheInterfaceFollowsTheProject) {
    const auto foreign = host.open(test::SampleProject("Foreign"));
    connect();
    EXPECT_FALSE(items().gCompileItem->Enabled());
    EXPECT_FALSE(items().gMainToolbar->Enabled());
    host.open(hello());
    addIn().setup.SetupProject(addIn().projects.AddToProjectsList(host.ide->ActiveVBProject()));
    EXPECT_TRUE(items().gCompileItem->Enabled());
    EXPECT_TRUE(items().gSupportToolbar->Enabled());
    EXPECT_EQ(items().gToolDeploy->ToolTipText(), "Deploy to &Palm-1");
}

TEST_F(Commands, TheStartPreservesTheClipboard) {
    clipboard.SetData("text/plain", "mine");
    connect();
    EXPECT_THAT(clipboard.Formats(), ElementsAre("text/plain"));
    EXPECT_EQ(clipboard.GetData("text/plain"), "mine");
}

TEST_F(Commands, TheEndRemovesEverything) {
    connected();
    host.ide->Addins()->Item(kProgId)->Connect(false);
    EXPECT_EQ(host.ide->CommandBars()->ActiveMenuBar()->Controls()->Count(), 6);
    EXPECT_EQ(host.ide->CommandBars()->items().size(), 1U);
    host.ide->Addins()->Item(kProgId)->Connect(true);
    EXPECT_THAT(click(items().gCompileItem), ElementsAre("form frmCompile"));
}

TEST_F(Commands, WithoutAMenuReportsItsFailureAndBuildsTheToolbars) {
    host.ide->CommandBars()->ActiveMenuBar()->Delete();
    host.ide->connectAddIn(kProgId, vbide::vbext_cm_Startup);
    EXPECT_THAT(trace.effects, Contains(box(16, "ERROR!\r\n\r\nCould not add Fernwick Tools menu;\r\n"
                                                "Failing to install Fernwick Add-In")));
    EXPECT_FALSE(host.ide->Addins()->Item(kProgId)->Connect());
}

class Samples : public Commands {
protected:
    Samples() {
        const std::string key = "SOFTWARE\\Quinloft\\VB Toolkit\\Samples\\Applications";
        store(fernwick::HKEY_LOCAL_MACHINE, key, "", "Applications");
        store(fernwick::HKEY_LOCAL_MACHINE, key, "Tip", tip);
    }
    Control tipItem() {
        for (const auto& sample : items().gSampleItems)
            if (sample->Name == "Tip") return sample->myOfficeCommandBar;
        return nullptr;
    }
    std::string activeFile() { return host.ide->ActiveVBProject()->FileName(); }
    void change() { host.ide->ActiveVBProject()->WriteProperty("Quinloft Global", "ScanReferences", "False"); }
    std::string tip = test::SampleProject("Tip").handheld("Palm-1").writeTo(host.folder, "tip");
    std::string question = "box 35 ";
};

TEST_F(Samples, OpenWhereNothingIsOpen) {
    connect();
    EXPECT_THAT(click(tipItem()), IsEmpty());
    EXPECT_EQ(activeFile(), tip);
}

TEST_F(Samples, AnOpenSampleStaysOpen) {
    host.openFile(tip);
    connect();
    change();
    EXPECT_THAT(click(tipItem()), IsEmpty());
    EXPECT_EQ(host.ide->VBProjects()->Count(), 1);
}

TEST_F(Samples, ReplaceASavedProject) {
    connected();
    host.ide->saveProject(host.ide->ActiveVBProject());
    EXPECT_THAT(click(tipItem()), IsEmpty());
    EXPECT_EQ(activeFile(), tip);
    EXPECT_EQ(host.ide->VBProjects()->Count(), 1);
}

TEST_F(Samples, AskForChangesAndCancelKeepsTheProject) {
    connected();
    change();
    user.answers = {fernwick::vbCancel};
    EXPECT_THAT(click(tipItem()),
                ElementsAre(testing::HasSubstr("Save the current project before opening another project?")));
    EXPECT_EQ(activeFile(), host.folder / "Hello.vbp");
}

TEST_F(Samples, DiscardChangesWhenTheUserDeclines) {
    connected();
    const auto before = host.folder.read("Hello.vbp");
    change();
    user.answers = {fernwick::vbNo};
    click(tipItem());
    EXPECT_EQ(activeFile(), tip);
    EXPECT_EQ(host.folder.read("Hello.vbp"), before);
}

TEST_F(Samples, SaveChangesFirst) {
    connected();
    change();
    user.answers = {fernwick::vbYes};
    click(tipItem());
    EXPECT_EQ(activeFile(), tip);
    EXPECT_THAT(host.folder.read("Hello.vbp"), testing::HasSubstr("ScanReferences=False"));
}

TEST_F(Samples, ASampleWithoutAProjectNamesTheSupport) {
    connect();
    addIn().samples.open({});
    EXPECT_THAT(trace.effects, Contains(box(16, "There was an error in the samples menu, please contact support at "
                                                "https://support.example")));
}

} // namespace
