// Help, the utilities' programs and the texts of the string table.
#include "Add-in/commands/command_texts.h"
#include "Add-in/commands/frmAbout.h"
#include "Add-in/commands/frmGettingStarted.h"
#include "Add-in/commands/modHelpManagement.h"
#include "Add-in/commands/modViewConvertManagement.h"
#include "Host/system/file_system.h"
#include "Host/system/shell.h"
#include "commands_world.h"
#include "tests/support/temp_folder.h"
#include <chrono>
#include <cstdlib>
#include <thread>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class HelpAndTools : public testing::Test, protected test::CommandsWorld {
protected:
    struct Shell : fernwick::Shell {
        std::vector<std::string> started;
        bool fails = false, isInstalled = true;
        int Start(const std::string& commandLine) override {
            if (fails) throw basic::RuntimeError(basic::kFileNotFound);
            started.push_back(commandLine);
            return isInstalled ? 1 : 0;
        }
        void Open(const std::string&) override {}
    };
    void installAt(const std::string& root) {
        registry.set(fernwick::HKEY_LOCAL_MACHINE, "Software\\Quinloft", "RootDir", root);
    }
    Shell programs;
    fernwick::Platform platformWithPrograms{user,       loop,     registry, files,   processes, classes,  environment,
                                            pasteboard, programs, screen,   windows, clock,     pictures, platform.app};
    fernwick::modViewConvertManagement tools{programs, install, errors};
    fernwick::modHelpManagement help{platformWithPrograms, install, errors};
};

TEST_F(HelpAndTools, UnknownToolNumbersStartNothing) {
    EXPECT_FALSE(tools.OpenViewerConverter(9));
    EXPECT_FALSE(tools.OpenViewerConverter(-1));
    EXPECT_THAT(programs.started, IsEmpty());
    EXPECT_THAT(errors.seen, IsEmpty());
}

TEST_F(HelpAndTools, AToolThatCantBeStartedIsReported) {
    programs.fails = true;
    EXPECT_FALSE(tools.OpenViewerConverter(fernwick::kMovieViewer));
    EXPECT_THAT(errors.seen, ElementsAre("modViewConvertManagement.OpenViewerConverter [53]"));
}

TEST_F(HelpAndTools, TheConfigurationIsInItsOwnFolder) {
    EXPECT_TRUE(tools.OpenViewerConverter(fernwick::kWeirgateConfiguration));
    EXPECT_THAT(programs.started, ElementsAre("/install/Weirgate/WGConfig.exe"));
}

TEST_F(HelpAndTools, BothGuidesOpen) {
    files.files["/install/VB Toolkit/doc/Quinloft_Users_Guide.chm"] = {};
    files.files["/install/VB Toolkit/doc/Quinloft_Addin_Guide.chm"] = {};
    help.DisplayHelp(0);
    help.DisplayHelp(1);
    EXPECT_THAT(programs.started, ElementsAre("Hh.exe /install/VB Toolkit/doc/Quinloft_Users_Guide.chm",
                                              "Hh.exe /install/VB Toolkit/doc/Quinloft_Addin_Guide.chm"));
}

TEST_F(HelpAndTools, OtherTopicsHaveNoHelp) {
    const auto none = "box 48 Fernwick: No help is available on this topic";
    EXPECT_THAT(effectsOf([&] { help.DisplayHelp(2); }), ElementsAre(none));
    EXPECT_THAT(effectsOf([&] { help.DisplayHelp(-1); }), ElementsAre(none));
}

TEST_F(HelpAndTools, WithoutAnInstallationTheBoxShowsTheBareName) {
    installAt("");
    EXPECT_THAT(effectsOf([&] { help.DisplayHelp(0); }),
                ElementsAre("box 48 Fernwick: Specified Help File Not Found;\r\nHelp file is missing or not in default "
                            "location:\r\nQuinloft_Users_Guide.chm"));
}

TEST_F(HelpAndTools, WithoutAnInstallationNothingInTheCurrentFolderIsStarted) {
    installAt("");
    files.files["Quinloft_Users_Guide.chm"] = files.files["VB Toolkit/Bin/QLFonC.exe"] = {};
    help.DisplayHelp(0);
    EXPECT_FALSE(tools.OpenViewerConverter(fernwick::kFontConverter));
    EXPECT_THAT(programs.started, IsEmpty());
    EXPECT_THAT(errors.seen, ElementsAre("modViewConvertManagement.OpenViewerConverter [53]"));
}

TEST_F(HelpAndTools, ReportsAMissingHelpViewer) {
    files.files["/install/VB Toolkit/doc/Quinloft_Users_Guide.chm"] = {};
    programs.fails = true;
    help.DisplayHelp(0);
    EXPECT_THAT(errors.seen, ElementsAre("modHelpManagement.DisplayHelp [53]"));
}

/// The programs of an installation, as scripts that record that they ran.
class InstalledTools : public testing::Test, protected test::CommandsWorld {
protected:
    InstalledTools() { registry.set(fernwick::HKEY_LOCAL_MACHINE, "Software\\Quinloft", "RootDir", root.path()); }
    void install(const std::string& program) {
        std::filesystem::permissions(root.write(program, "#!/bin/sh\necho ran > '" + (root / program) + ".ran'\n"),
                                     std::filesystem::perms(0755));
    }
    bool ran(const std::string& program) {
        for (int i = 0; i < 500 && root.read(program + ".ran") != "ran\n"; ++i)
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        return root.read(program + ".ran") == "ran\n";
    }
    test::TempFolder root;
    host::FileSystem disk;
    host::Shell starter{disk, [](const std::string&) {}};
    fernwick::modQLInstallInfo install_{registry2, disk};
    fernwick::modViewConvertManagement tools{starter, install_, errors};
};

TEST_F(InstalledTools, StartUnderTheirNamesWithOrWithoutTheExtension) {
    const std::vector<std::string> programs{
        "VB Toolkit/Bin/QLPDBC",     "VB Toolkit/Bin/QLPDBV.exe", "VB Toolkit/Bin/QLFonC",
        "VB Toolkit/Bin/QLFonV.exe", "VB Toolkit/Bin/QLGraC",     "VB Toolkit/Bin/QLGraV.exe",
        "VB Toolkit/Bin/QLMovC",     "VB Toolkit/Bin/QLMovV.exe", "Weirgate/WGConfig"};
    for (int tool = 0; tool < int(programs.size()); ++tool) {
        const auto& program = programs[std::size_t(tool)];
        install(program);
        EXPECT_TRUE(tools.OpenViewerConverter(tool)) << program;
        EXPECT_TRUE(ran(program)) << program;
    }
    EXPECT_THAT(errors.seen, IsEmpty());
}

TEST_F(InstalledTools, ReportAFileThatIsNotAProgram) {
    root.write("VB Toolkit/Bin/QLFonC.exe", "not to be run");
    EXPECT_FALSE(tools.OpenViewerConverter(fernwick::kFontConverter));
    EXPECT_THAT(errors.seen, ElementsAre("modViewConvertManagement.OpenViewerConverter [53]"));
}

/// The help of this installation, without a desktop to show it.
class InstalledHelp : public testing::Test, protected test::CommandsWorld {
protected:
    InstalledHelp() {
        ::unsetenv("DISPLAY");
        ::unsetenv("WAYLAND_DISPLAY");
        registry.set(fernwick::HKEY_LOCAL_MACHINE, "Software\\Quinloft", "RootDir", root);
    }
    const std::string root = FERNWICK_SOURCE_DIR "/installation";
    std::vector<std::string> opened;
    host::FileSystem disk;
    host::Shell starter{disk, [this](const std::string& document) { opened.push_back(document); }};
    fernwick::Platform real{user,       loop,    registry, disk,    processes, classes,  environment,
                            pasteboard, starter, screen,   windows, clock,     pictures, platform.app};
    fernwick::modQLInstallInfo install{registry2, disk};
    fernwick::modHelpManagement help{real, install, errors};
};

TEST_F(InstalledHelp, HasAPageForEachGuide) {
    EXPECT_THAT(effectsOf([&] {
                    help.DisplayHelp(fernwick::kUsersGuideTopic);
                    help.DisplayHelp(fernwick::kAddInGuideTopic);
                }),
                IsEmpty());
    EXPECT_THAT(opened, ElementsAre(root + "/VB Toolkit/doc/Quinloft_Users_Guide.html",
                                    root + "/VB Toolkit/doc/Quinloft_AddIn_Guide.html"));
    EXPECT_THAT(errors.seen, IsEmpty());
}

TEST_F(InstalledHelp, IsLinkedFromTheIntroduction) {
    fernwick::modAddinPrefsManagement preferences{registry2, errors};
    fernwick::frmGettingStarted intro{real, install, preferences, errors};
    intro.Load();
    for (int page = 0; page < 8; ++page) intro.cmdNext.press();
    for (int link = 0; link < 3; ++link) {
        intro.lstLinks.ListIndex(link);
        intro.cmdOpenLink.press();
    }
    intro.Unload();
    EXPECT_THAT(opened, ElementsAre(root + "/VB Toolkit/doc/Hello World Tutorial/hw_write.html",
                                    root + "/VB Toolkit/Samples", root + "/VB Toolkit/doc/Quinloft_Users_Guide.html"));
}

TEST(StringTable, KeepsWhatTheMenuDoesNotUse) {
    EXPECT_STREQ(fernwick::command_texts::kPalmOSString.text, "&Palm OS");
    EXPECT_STREQ(fernwick::command_texts::kPocketPCString.text, "P&ocketPC");
    EXPECT_STREQ(fernwick::command_texts::kDeployToTargetString.text, "Deploy To Design &Target");
}

TEST(About, NamesTheProductItsVersionAndItsMaker) {
    test::TracedPlatform machine;
    machine.platform.app.WebAddress = "web.example";
    const fernwick::frmAbout about{machine.platform, machine.errors};
    EXPECT_EQ(about.Caption(), "About Fernwick");
    EXPECT_EQ(about.lblProduct.Caption(), "Quinloft Fernwick");
    EXPECT_EQ(about.lblVersion.Caption(), "Version 3.5.0 (0624)");
    EXPECT_EQ(about.lblMaker.Caption(), "Fernwick turns Visual Basic projects into applications for handheld devices.");
    EXPECT_EQ(about.lblWebAddress.Caption(), "Visit web.example for more information.");
    EXPECT_EQ(about.btnOK.Caption(), "OK");
}

} // namespace
