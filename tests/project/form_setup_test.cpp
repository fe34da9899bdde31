#include "project_world.h"
#include "recorded_properties.h"

using namespace fernwick;
using test::RecordedProperties;

namespace {
struct FormSetup : test::ProjectTest {
    /// Opens a project of one form, whose code window shows `code`.
    void openForm(const std::string& code = {}, const std::string& values = {}) {
        project = open(test::SampleProject{}.form("frmMain", code).handheld().sections(values));
        form = project->VBProject()->VBComponents()->Item("frmMain");
    }
    Variant get(const char* name) const { return form->Properties()->Item(name)->Value(); }
    double number(const char* name) const { return asDouble(get(name)); }
    Variant font(const char* member) const {
        return form->Properties()->Item("Font")->ObjectValue()->Item(member)->Value();
    }
    std::string code() const {
        const auto module = form->CodeModule();
        return module->CountOfLines() ? module->Lines(1, module->CountOfLines()) : "";
    }

    basic::Ref<clsQLProject> project;
    basic::Ref<vbide::VBComponent> form;
};

constexpr const char* kSized = "DefaultFormWidth=160\r\nDefaultFormHeight=240\r\n";
} // namespace

TEST_F(FormSetup, TakesSizeStyleAndPosition) {
    openForm({}, kSized);
    project->SetupDefaultForm(form);
    EXPECT_EQ(number("ScaleMode"), 3);
    EXPECT_EQ(number("ScaleWidth"), 160);
    EXPECT_EQ(number("ScaleHeight"), 240);
    EXPECT_EQ(number("BorderStyle"), 1);
    EXPECT_EQ(number("StartUpPosition"), 2);
    EXPECT_TRUE(asBoolean(get("ShowInTaskBar")));
    EXPECT_TRUE(reports().empty()) << reports().front();
    EXPECT_TRUE(project->ValidFormSize(form));
}

TEST_F(FormSetup, EachDirectionHasItsOwnTwipsAndARoundedFrame) {
    screen.x = 12;
    screen.y = 20;
    const auto vbProject = traced();
    project = wrap(vbProject);
    project->DefaultFormWidth(160);
    project->defaultFormHeight(240);
    const auto component = vbProject->add("frmMain", "", vbide::vbext_ct_VBForm);
    const auto properties = basic::make<RecordedProperties>();
    properties->values = {{"ScaleMode", std::int32_t{3}},
                          {"Width", 2490.5},
                          {"ScaleWidth", 2400.0},
                          {"Height", 2775.4},
                          {"ScaleHeight", 2400.0}};
    component->properties = properties;
    project->SetupDefaultForm(component);
    const std::vector<std::pair<std::string, double>> first{
        {"ScaleMode", 1}, {"Height", 240 * 20 + 375}, {"Width", 160 * 12 + 90}, {"ScaleMode", 3}};
    ASSERT_GE(properties->set.size(), first.size());
    for (std::size_t i = 0; i < first.size(); ++i) {
        EXPECT_EQ(properties->set[i].first, first[i].first);
        EXPECT_EQ(asDouble(properties->set[i].second), first[i].second) << first[i].first;
    }
}

TEST_F(FormSetup, AHeightOfMinusOneIsKept) {
    openForm({}, "DefaultFormWidth=160\r\nDefaultFormHeight=-1\r\n");
    project->SetupDefaultForm(form);
    EXPECT_EQ(number("ScaleHeight"), 2400 / 15); // the form's own
    EXPECT_EQ(number("ScaleWidth"), 160);
    EXPECT_EQ(number("BorderStyle"), 1);
    EXPECT_EQ(asText(font("Name")), "QLPalm");
}

TEST_F(FormSetup, AbsentSizesEmptyTheClientArea) {
    openForm();
    project->SetupDefaultForm(form);
    EXPECT_EQ(number("ScaleWidth"), 0);
    EXPECT_EQ(number("ScaleHeight"), 0);
}

TEST_F(FormSetup, AnInstalledFontIsTaken) {
    openForm({}, "DefaultFontName=Tahoma\r\nDefaultFontSize=9\r\nDefaultFontStyle=3\r\n");
    project->SetupDefaultForm(form);
    EXPECT_EQ(asText(font("Name")), "Tahoma");
    EXPECT_EQ(asDouble(font("Size")), 9);
    EXPECT_TRUE(asBoolean(font("Bold")) && asBoolean(font("Italic")));
    EXPECT_FALSE(asBoolean(font("Strikethrough")) || asBoolean(font("Underline")));
}

TEST_F(FormSetup, AnUnknownFontFallsBack) {
    openForm({}, "DefaultFontName=Nowhere\r\nDefaultFontSize=9\r\n");
    project->SetupDefaultForm(form);
    EXPECT_EQ(asText(font("Name")), "QLPalm");
    EXPECT_EQ(asDouble(font("Size")), 12);
    EXPECT_FALSE(asBoolean(font("Bold")) || asBoolean(font("Italic")));
}

TEST_F(FormSetup, AFontOfSizeZeroFallsBack) {
    openForm({}, "DefaultFontName=Tahoma\r\n");
    project->SetupDefaultForm(form);
    EXPECT_EQ(asText(font("Name")), "QLPalm");
    EXPECT_EQ(asDouble(font("Size")), 12);
}

TEST_F(FormSetup, AColourOfZeroKeepsTheFormsOwn) {
    openForm();
    const auto color = get("BackColor");
    project->SetupDefaultForm(form);
    EXPECT_EQ(get("BackColor"), color);
    project->DefaultFormColor(0xFFFFFF);
    project->SetupDefaultForm(form);
    EXPECT_EQ(number("BackColor"), 0xFFFFFF);
}

TEST_F(FormSetup, AnEmptyModuleGetsOptionExplicit) {
    openForm();
    project->SetupDefaultForm(form);
    EXPECT_EQ(code(), "Option Explicit");
}

TEST_F(FormSetup, AModuleWithAPartOfTheStatementGetsOptionExplicit) {
    openForm("Option\r\n");
    project->SetupDefaultForm(form);
    EXPECT_EQ(code(), "Option Explicit\r\nOption");
}

TEST_F(FormSetup, AModuleWithOtherCodeIsUnchanged) {
    openForm("option explicit\r\n");
    project->SetupDefaultForm(form);
    EXPECT_EQ(code(), "option explicit");
}

TEST_F(FormSetup, AFormOfAnotherSizeIsInvalidAndKeepsItsScale) {
    openForm({}, kSized);
    form->Properties()->Item("ScaleMode")->Value(std::int32_t{1});
    EXPECT_FALSE(project->ValidFormSize(form));
    EXPECT_EQ(number("ScaleMode"), 1);
    project->DefaultFormWidth(-1);
    project->defaultFormHeight(-1);
    EXPECT_TRUE(project->ValidFormSize(form));
}

TEST_F(FormSetup, FailuresAreReportedUnderTheProjectsName) {
    const auto vbProject = traced();
    const auto component = vbProject->add("modOne", "");
    wrap(vbProject)->SetupDefaultForm(component);
    EXPECT_EQ(reports().front(), "Hello clsDeviceConfig.SetupDefaultForm [438]");
}
