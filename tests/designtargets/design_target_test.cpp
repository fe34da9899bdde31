#include "tests/designtargets/target_folder.h"
#include <gtest/gtest.h>

namespace {

using designtargetaccess::DesignTarget;
using designtargetaccess::readTarget;

const std::string kDevice = "{11111111-2222-3333-4444-555555555555}";
const std::string kControls = "{AAAAAAAA-2222-3333-4444-555555555555}";

DesignTarget targetWith(const std::string& more) {
    return {readTarget(TargetFolder::target("Some-One", 1, more), "some.toml"), "/root"};
}

DesignTarget targetWithReferences() {
    return targetWith("[references]\nrequired = [ { name = \"Device\", guid = \"" + kDevice +
                      "\" } ]\naccepted = [ { name = \"ControlsCtl\", guid = \"" + kControls +
                      "\" } ]\nmodules = [ \"" + kControls + "\" ]\n");
}

TEST(DesignTarget, ReturnsNumbersAsText) {
    const auto target = targetWith("");
    EXPECT_EQ(target.DefaultFormWidth(), "100");
    EXPECT_EQ(target.DefaultFormHeight(), "-1");
    EXPECT_EQ(target.DefaultFormColor(), "12632256");
    EXPECT_EQ(target.DefaultFontName(), "Some");
    EXPECT_EQ(target.DefaultFontSize(), "9");
    EXPECT_EQ(target.TavletStyleID(), "4");
    EXPECT_EQ(target.RequiredPipeProgID(), "QLPipeSome");
    EXPECT_EQ(target.PlatformName(), "Some");
}

TEST(DesignTarget, MayHaveNeitherPlatformNorPipe) {
    const DesignTarget target{readTarget("order=1\nkey='K'\nname='N'\nstyle=0\n[form]\nwidth=1\nheight=1\ncolor=0\n"
                                         "[font]\nname='F'\nsize=1\n",
                                         "k.toml"),
                              "/root"};
    EXPECT_EQ(target.PlatformName(), "");
    EXPECT_EQ(target.RequiredPipeProgID(), "");
}

TEST(DesignTarget, ReturnsItsOptions) {
    const auto target = targetWith("[options]\nDefaultFontStyle = 3\nFileKinds = \"CMF TXT\"\n");
    std::string value = "untouched";
    EXPECT_FALSE(target.GetOption("Other", value));
    EXPECT_EQ(value, "untouched");
    EXPECT_TRUE(target.GetOption("DefaultFontStyle", value));
    EXPECT_EQ(value, "3");
    EXPECT_TRUE(target.GetOption("FileKinds", value));
    EXPECT_EQ(value, "CMF TXT");
}

TEST(DesignTarget, OptionsMayContainAnyText) {
    std::string value;
    EXPECT_TRUE(targetWith("[options]\nDefaultFontStyle = \"bold\"\n").GetOption("DefaultFontStyle", value));
    EXPECT_EQ(value, "bold");
}

TEST(DesignTarget, ReturnsTavletsAsParallelLists) {
    const auto target = targetWith("[tavlets]\nsupported = [ { clsid = \"" + kDevice +
                                   "\", progid = \"L.One\", category = \"Lists\" }, { clsid = \"" + kControls +
                                   "\", progid = \"L.Two\" } ]\n");
    std::vector<std::string> clsids{"old"}, progIds{"old"}, categories{"old"};
    target.GetSupportedTavlets(clsids, progIds, categories);
    EXPECT_EQ(target.NumSupportedTavlets(), 2);
    EXPECT_EQ(clsids, (std::vector<std::string>{kDevice, kControls}));
    EXPECT_EQ(progIds, (std::vector<std::string>{"L.One", "L.Two"}));
    EXPECT_EQ(categories, (std::vector<std::string>{"Lists", ""}));
}

TEST(DesignTarget, MayHaveReferencesWithoutTavlets) {
    const auto target = targetWithReferences();
    std::vector<std::string> guids;
    target.GetSupportedReferences(guids);
    EXPECT_EQ(target.NumSupportedTavlets(), 0);
    EXPECT_EQ(target.NumSupportedReferences(), 1);
    EXPECT_EQ(guids, std::vector<std::string>{kDevice});
}

TEST(DesignTarget, ValidatesAReferenceByItsLibrary) {
    const auto target = targetWithReferences();
    EXPECT_TRUE(target.ValidateReference(kDevice).required);
    EXPECT_TRUE(target.ValidateReference(kDevice).accepted);
    EXPECT_TRUE(target.ValidateReference(kControls).accepted);
    EXPECT_FALSE(target.ValidateReference(kControls).required);
    EXPECT_TRUE(target.ValidateReference("aaaaaaaa-2222-3333-4444-555555555555").known());
    EXPECT_FALSE(target.ValidateReference("{99999999-2222-3333-4444-555555555555}").known());
}

TEST(DesignTarget, ValidatesAReferenceByName) {
    const auto target = targetWithReferences();
    EXPECT_TRUE(target.ValidateReference("device").required);
    EXPECT_TRUE(target.ValidateReference("ControlsCtl").accepted);
    EXPECT_FALSE(target.ValidateReference("ControlsCtl").required);
    EXPECT_FALSE(target.ValidateReference("Other").known());
    EXPECT_FALSE(target.ValidateReference("").known());
}

TEST(DesignTarget, LooksUpModulesSeparatelyFromReferences) {
    const auto target = targetWithReferences();
    EXPECT_TRUE(target.FindModule(kControls));
    EXPECT_TRUE(target.FindModule("aaaaaaaa-2222-3333-4444-555555555555"));
    EXPECT_FALSE(target.FindModule(kDevice));
    EXPECT_FALSE(target.FindModule(""));
}

TEST(DesignTarget, ReturnsControlDefaultsWithAMarkBeforeNumbers) {
    const auto target = targetWith("[tavlets.defaults]\n\"QLButton.FontSize\" = 8\n\"QLLabel.Caption\" = \"#1 a\"\n");
    std::vector<std::string> names, values;
    target.GetPropertyDefaults(names, values);
    EXPECT_EQ(target.NumPropertyDefaults(), 2);
    EXPECT_EQ(names, (std::vector<std::string>{"QLButton.FontSize", "QLLabel.Caption"}));
    EXPECT_EQ(values, (std::vector<std::string>{"#8", "#1 a"}));
}

TEST(DesignTarget, HasNoControlDefaultsUnlessGiven) {
    const auto target = targetWith("");
    std::vector<std::string> names{"old"}, values{"old"};
    target.GetPropertyDefaults(names, values);
    EXPECT_EQ(target.NumPropertyDefaults(), 0);
    EXPECT_TRUE(names.empty());
    EXPECT_TRUE(values.empty());
    EXPECT_FALSE(target.IsTabStopOff("QLButton"));
}

TEST(DesignTarget, TurnsTabStopOffForItsClasses) {
    const auto target = targetWith("[tavlets]\ntab_stop_off = [\"QLButton\"]\n");
    EXPECT_TRUE(target.IsTabStopOff("QLButton"));
    EXPECT_TRUE(target.IsTabStopOff("qlbutton"));
    EXPECT_FALSE(target.IsTabStopOff("QLLabel"));
}

TEST(DesignTarget, HasTemplatesInsideTheRoot) {
    const auto target = targetWith("[templates]\nproject = \"T/P.vbp\"\nclass = \"T/C.cls\"\n");
    EXPECT_EQ(target.VBPTemplate(), "/root/T/P.vbp");
    EXPECT_EQ(target.FormTemplate(), "");
    EXPECT_EQ(target.ModuleTemplate(), "");
    EXPECT_EQ(target.ClassModuleTemplate(), "/root/T/C.cls");
}

} // namespace
