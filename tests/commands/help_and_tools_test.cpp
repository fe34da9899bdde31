// Help, the utilities' programs and the texts of the string table.
#include "Add-in/commands/command_texts.h"
#include "Add-in/commands/modHelpManagement.h"
#include "Add-in/commands/modViewConvertManagement.h"
#include "commands_world.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class HelpAndTools : public testing::Test, protected test::CommandsWorld {
protected:
    struct Shell : fernwick::Shell {
        std::vector<std::string> started;
        bool fails = false;
        void Start(const std::string& commandLine) override {
            if (fails) throw basic::RuntimeError(basic::kFileNotFound);
            started.push_back(commandLine);
        }
        void Open(const std::string&) override {}
    };
    void installAt(const std::string& root) {
        registry.set(fernwick::HKEY_LOCAL_MACHINE, "Software\\Quinloft", "RootDir", root);
    }
    Shell programs;
    fernwick::Platform platformWithPrograms{user,       loop,     registry, files, processes, classes,     environment,
                                            pasteboard, programs, screen,   clock, pictures,  platform.app};
    fernwick::modQLInstallInfo install{registry2, files};
    fernwick::modViewConvertManagement tools{programs, install, errors};
    fernwick::modHelpManagement help{platformWithPrograms, install, errors};
};

TEST_F(HelpAndTools, NumbersThatAreNoToolsStartNothing) {
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

TEST_F(HelpAndTools, TheConfigurationLiesInAFolderOfItsOwn) {
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

TEST_F(HelpAndTools, AViewerOfHelpThatIsMissingIsReported) {
    files.files["/install/VB Toolkit/doc/Quinloft_Users_Guide.chm"] = {};
    programs.fails = true;
    help.DisplayHelp(0);
    EXPECT_THAT(errors.seen, ElementsAre("modHelpManagement.DisplayHelp [53]"));
}

TEST(StringTable, KeepsWhatTheMenuDoesNotUse) {
    EXPECT_EQ(fernwick::LoadResString(fernwick::kPalmOSString), "&Palm OS");
    EXPECT_EQ(fernwick::LoadResString(fernwick::kPocketPCString), "P&ocketPC");
    EXPECT_EQ(fernwick::LoadResString(fernwick::kDeployToTargetString), "Deploy To Design &Target");
}

} // namespace
