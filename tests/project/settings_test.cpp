#include "project_world.h"

using namespace fernwick;

namespace {
struct StoredSettings : test::ProjectTest {
    auto openWith(const std::string& values) {
        return open(test::SampleProject{"A_B"}.sections("\r\n[Quinloft Global]\r\n" + values));
    }
};
} // namespace

TEST_F(StoredSettings, DefaultsWithoutAnyKey) {
    const auto project = open(test::SampleProject{"A_B"});
    EXPECT_FALSE(project->IsQuinloftProject());
    EXPECT_EQ(project->TargetDevice(), "");
    EXPECT_EQ(project->TavletStyleID(), 0);
    EXPECT_EQ(project->DefaultFontName(), "");
    EXPECT_EQ(project->DefaultFontSize(), 0);
    EXPECT_EQ(project->DefaultFontStyle(), 0);
    EXPECT_EQ(project->DefaultFormColor(), 0);
    EXPECT_EQ(project->DefaultFormWidth(), 0);
    EXPECT_EQ(project->defaultFormHeight(), 0);
    EXPECT_EQ(project->ProjectVersion(), "1.0");
    EXPECT_FALSE(project->SpacesInNameEnabled());
    EXPECT_FALSE(project->IconWarning());
    EXPECT_EQ(project->IconFileName(), path("Installed/VB Toolkit/Bin/qldefault.ico"));
    EXPECT_FALSE(project->Autosave());
    EXPECT_EQ(project->GetLastSettingsDialog(), "");
    EXPECT_EQ(project->TwipsPerPixelX(), 0);
    EXPECT_EQ(project->TwipsPerPixelY(), 0);
    EXPECT_EQ(project->LastCompileVersion(), "");
    EXPECT_TRUE(project->ScanReferences());
    EXPECT_FALSE(project->OpenedFromQLTemplate());
    EXPECT_FALSE(project->IsStartUpProject());
    EXPECT_TRUE(reports().empty());
}

TEST_F(StoredSettings, WrittenValuesAreStoredAsTextAndReadBack) {
    const auto project = open(test::SampleProject{});
    project->TavletStyleID(3);
    project->DefaultFontName("Tahoma");
    project->DefaultFormColor(-2147483643);
    project->defaultFormHeight(-1);
    project->SpacesInNameEnabled(true);
    project->Autosave(true);
    project->IconWarning(true);
    project->SetLastSettingsDialog("My Devices");
    project->TwipsPerPixelX(12.5F);
    project->ScanReferences(true);
    project->OpenedFromQLTemplate(true);
    project->LastCompileVersion("3.5.0 (0624)");
    EXPECT_EQ(stored(project, "TavletStyleID"), "3");
    EXPECT_EQ(stored(project, "DefaultFontName"), "Tahoma");
    EXPECT_EQ(stored(project, "DefaultFormColor"), "-2147483643");
    EXPECT_EQ(stored(project, "DefaultFormHeight"), "-1");
    EXPECT_EQ(stored(project, "SpacesInNameEnabled"), "True");
    EXPECT_EQ(stored(project, "AutoSaveProject"), "True");
    EXPECT_EQ(stored(project, "IconWarning"), "True");
    EXPECT_EQ(stored(project, "LastSettingsDialog"), "My Devices");
    EXPECT_EQ(stored(project, "TwipsPerPixelX"), "12.5");
    EXPECT_EQ(stored(project, "ScanReferences"), "-1");
    EXPECT_EQ(stored(project, "OpenedFromQLTemplate"), "True");
    EXPECT_EQ(project->DefaultFormColor(), -2147483643);
    EXPECT_EQ(project->TwipsPerPixelX(), 12.5F);
    EXPECT_TRUE(project->Autosave() && project->ScanReferences() && project->OpenedFromQLTemplate());
    EXPECT_EQ(project->LastCompileVersion(), "3.5.0 (0624)");
}

TEST_F(StoredSettings, UnconvertibleTextsReadAsZero) {
    const auto project = openWith("DefaultFontSize=big\r\nAutoSaveProject=maybe\r\nTwipsPerPixelX=wide\r\n");
    EXPECT_EQ(project->DefaultFontSize(), 0);
    EXPECT_FALSE(project->Autosave());
    EXPECT_EQ(project->TwipsPerPixelX(), 0);
    EXPECT_TRUE(reports().empty());
}

TEST_F(StoredSettings, ScanReferencesReadsNumbers) { EXPECT_FALSE(openWith("ScanReferences=0\r\n")->ScanReferences()); }
TEST_F(StoredSettings, ScanReferencesReadsWords) {
    EXPECT_FALSE(openWith("ScanReferences=False\r\n")->ScanReferences());
}
TEST_F(StoredSettings, ScanReferencesOfOtherWordsIsTrueAndReported) {
    EXPECT_TRUE(openWith("ScanReferences=perhaps\r\n")->ScanReferences());
    EXPECT_EQ(reports(), Texts{"clsQLProject.Get_ScanReferences [13]"});
}

TEST_F(StoredSettings, AnEmptyVersionIsTheOldFormat) {
    EXPECT_EQ(openWith("ProjectVersion=\r\n")->ProjectVersion(), "1.0");
}

TEST_F(StoredSettings, PathsOfEarlierVersionsReadAsKeys) {
    const auto project = openWith("TargetDevice=SOFTWARE\\Quinloft\\DesignTargets\\PocketPC\r\n");
    EXPECT_EQ(project->TargetDevice(), "PocketPC-SH3");
    EXPECT_EQ(stored(project, "TargetDevice"), "SOFTWARE\\Quinloft\\DesignTargets\\PocketPC");
}
TEST_F(StoredSettings, ThePalmPathOfEarlierVersionsReadsAsAKey) {
    EXPECT_EQ(openWith("TargetDevice=SOFTWARE\\Quinloft\\DesignTargets\\PalmOS\r\n")->TargetDevice(),
              "PalmOS-DragonBall");
}
TEST_F(StoredSettings, OldPathsAreCaseSensitive) {
    EXPECT_EQ(openWith("TargetDevice=Software\\Quinloft\\DesignTargets\\PocketPC\r\n")->TargetDevice(),
              "Software\\Quinloft\\DesignTargets\\PocketPC");
}

TEST_F(StoredSettings, TheStartUpMarkerMatchesExactly) {
    EXPECT_TRUE(openWith("StartUpProject={8A515BDE-2BCC-4ed4-8F0A-99E4522CC1BB}\r\n")->IsStartUpProject());
}
TEST_F(StoredSettings, ALowerCaseStartUpMarkerDoesNotMatch) {
    EXPECT_FALSE(openWith("StartUpProject={8a515bde-2bcc-4ed4-8f0a-99e4522cc1bb}\r\n")->IsStartUpProject());
}

TEST_F(StoredSettings, TheLastSettingsPageCantBeCleared) {
    const auto project = openWith("");
    project->SetLastSettingsDialog("Compiler Settings");
    project->SetLastSettingsDialog("");
    EXPECT_EQ(project->GetLastSettingsDialog(), "Compiler Settings");
}

TEST_F(StoredSettings, NamesShowBlanksOnlyWhereEnabled) {
    const auto project = openWith("");
    EXPECT_EQ(project->ProjectName(), "A_B");
    EXPECT_EQ(project->DisplayName(), "A_B");
    project->SpacesInNameEnabled(true);
    EXPECT_EQ(project->DisplayName(), "A B");
    EXPECT_EQ(project->ProjectPath(), host.folder.path());
}

TEST_F(StoredSettings, CountsForms) {
    EXPECT_EQ(open(test::SampleProject{}.form("frmOne").module("modTwo").form("frmThree"))->NumForms(), 2);
}

TEST_F(StoredSettings, ANewIdentityIsAGuidWithoutBraces) {
    const auto project = openWith("");
    project->CreateNewModId();
    const auto first = stored(project, "MODID");
    EXPECT_THAT(first, ::testing::MatchesRegex("[0-9A-F]{8}(-[0-9A-F]{4}){3}-[0-9A-F]{12}"));
    project->CreateNewModId();
    EXPECT_NE(stored(project, "MODID"), first);
}

TEST_F(StoredSettings, AFailedWriteIsReportedUnderItsProperty) {
    const auto vbProject = traced();
    vbProject->readOnly = true;
    const auto project = wrap(vbProject);
    project->DefaultFontSize(9);
    project->Autosave(true);
    EXPECT_EQ(reports(), (Texts{"clsQLProject.Let_DefaultFontSize [75]", "clsQLProject.Let_Autosave [75]"}));
}

TEST_F(StoredSettings, ThreeSettingsReportFailedReads) {
    const auto vbProject = traced();
    const auto project = wrap(vbProject);
    vbProject->removed = true;
    EXPECT_EQ(project->DefaultFontSize(), 0);
    EXPECT_EQ(project->LastCompileVersion(), "");
    EXPECT_TRUE(project->ScanReferences());
    EXPECT_FALSE(project->OpenedFromQLTemplate());
    EXPECT_EQ(project->ProjectName(), "");
    EXPECT_EQ(reports(),
              (Texts{"clsQLProject.Get_LastCompileVersion [40198]", "clsQLProject.Get_ScanReferences [40198]",
                     "clsQLProject.Get_OpenedFromQLTemplate [40198]", "clsQLProject.Get_ProjectName [40198]"}));
}

TEST_F(StoredSettings, EverySettingOfTheListReadsAsItsDefaultAtFirst) {
    const auto project = open(test::SampleProject{});
    EXPECT_GT(project->settings().size(), 20U);
    for (const auto* setting : project->settings())
        EXPECT_EQ(setting->values(), setting->defaults()) << setting->name();
    EXPECT_TRUE(reports().empty());
}

TEST_F(StoredSettings, EveryWritableSettingOfTheListReadsAsAssigned) {
    const std::map<SettingKind, Texts> samples{{SettingKind::Text, {"/text"}},
                                               {SettingKind::Number, {"-7"}},
                                               {SettingKind::Decimal, {"12.5"}},
                                               {SettingKind::Boolean, {"True"}},
                                               {SettingKind::List, {"one", "two"}}};
    const auto project = open(test::SampleProject{});
    for (auto* setting : project->settings()) {
        if (!setting->isWritable()) continue;
        setting->assign(samples.at(setting->kind()));
        EXPECT_EQ(setting->values(), samples.at(setting->kind())) << setting->name();
    }
    EXPECT_TRUE(reports().empty());
}

TEST_F(StoredSettings, DescribesItselfWithoutAProject) {
    const fernwick::ProjectSettings described{nullptr};
    const auto& first = *described.settings().front();
    EXPECT_EQ(first.name(), "IsQuinloftProject");
    EXPECT_EQ(first.meaning(), "the project is a Fernwick project");
    EXPECT_FALSE(first.isWritable());
    EXPECT_EQ(described.settings()[1]->defaults(), Texts{"1.0"});
}
