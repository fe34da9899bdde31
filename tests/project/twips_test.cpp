#include "Add-in/project/form_scaling.h"
#include "project_world.h"
#include "recorded_properties.h"

using namespace fernwick;

namespace {
struct Twips : test::ProjectTest {
    static constexpr const char* kQuestion =
        "This project was saved at a different DPI setting, would you like to convert it?";
    static constexpr int kAsks = vbYesNo | vbQuestion;

    void openForm(const std::string& values) {
        const std::string text =
            "VERSION 5.00\r\nBegin VB.Form frmMain \r\n   ClientHeight    =   2400\r\n   ClientWidth     =   2400\r\n"
            "   StartUpPosition =   2  'CenterScreen\r\n   Begin VB.Label lblOne \r\n      Height          =   150\r\n"
            "      Left            =   600\r\n      Top             =   75\r\n      Width           =   300\r\n   "
            "End\r\n"
            "   Begin VB.Timer tmrOne \r\n      Left            =   15\r\n      Top             =   15\r\n   End\r\n"
            "End\r\nAttribute VB_Name = \"frmMain\"\r\n";
        project =
            open(test::SampleProject{}.member("Form=frmMain.frm", "frmMain.frm", text).handheld().sections(values));
        form = project->VBProject()->VBComponents()->Item("frmMain");
    }
    double number(const char* name) const { return asDouble(form->Properties()->Item(name)->Value()); }
    double labelNumber(const char* name) const {
        return asDouble(form->Designer()->VBControls()->Item("lblOne")->Properties()->Item(name)->Value());
    }

    basic::Ref<clsQLProject> project;
    basic::Ref<vbide::VBComponent> form;
};
} // namespace

TEST_F(Twips, WithoutARecordTheScreensResolutionIsStored) {
    openForm("");
    screen.x = 12;
    project->CheckTwipsMatch();
    EXPECT_EQ(project->TwipsPerPixelX(), 12);
    EXPECT_EQ(project->TwipsPerPixelY(), 15);
    EXPECT_EQ(labelNumber("Width"), 300);
    EXPECT_TRUE(user.sawNothing());
}

TEST_F(Twips, TheSameResolutionAsksNothing) {
    openForm("TwipsPerPixelX=15\r\nTwipsPerPixelY=15\r\n");
    project->CheckTwipsMatch();
    EXPECT_TRUE(user.sawNothing());
}

TEST_F(Twips, YesScalesFormsAndControls) {
    openForm("TwipsPerPixelX=15\r\nTwipsPerPixelY=15\r\n");
    screen.x = screen.y = 12;
    form->Properties()->Item("Width")->Value(3600.0);
    ASSERT_EQ(number("Left"), -60);
    user.expectBox(kQuestion, vbYes, kAsks);
    project->CheckTwipsMatch();
    EXPECT_EQ(number("Width"), 2880);
    EXPECT_EQ(number("Left"), -48); // which by itself makes the position manual
    EXPECT_EQ(number("StartUpPosition"), 2);
    EXPECT_EQ(labelNumber("Width"), 240);
    EXPECT_EQ(labelNumber("Left"), 480);
    EXPECT_EQ(labelNumber("Top"), 60);
    EXPECT_EQ(labelNumber("Height"), 120);
    EXPECT_EQ(project->TwipsPerPixelX(), 12);
    EXPECT_TRUE(reports().empty());
}

TEST_F(Twips, MultipliesBeforeItDivides) {
    const auto vbProject = traced();
    const auto properties = basic::make<test::RecordedProperties>();
    for (const auto* name : {"Left", "Top", "Width", "Height"}) properties->values[name] = 3000.0;
    vbProject->add("frmMain", "", vbide::vbext_ct_VBForm)->properties = properties;
    ScaleForms(vbProject, {12, 20}, {15, 15});
    EXPECT_EQ(asDouble(properties->values["Left"]), 2400); // 12 / 15 is not a float
    EXPECT_EQ(asDouble(properties->values["Width"]), 2400);
    EXPECT_EQ(asDouble(properties->values["Top"]), 4000);
    EXPECT_EQ(asDouble(properties->values["Height"]), 4000);
}

TEST_F(Twips, NoAsksAgainAtTheNextOpening) {
    openForm("TwipsPerPixelX=15\r\nTwipsPerPixelY=15\r\n");
    screen.y = 12;
    user.expectBox(kQuestion, vbNo, kAsks);
    project->CheckTwipsMatch();
    EXPECT_EQ(labelNumber("Height"), 150);
    EXPECT_EQ(project->TwipsPerPixelY(), 15);
    user.expectBox(kQuestion, vbNo, kAsks);
    project->CheckTwipsMatch();
}

TEST_F(Twips, AnAbsentHeightFailsSilently) {
    openForm("TwipsPerPixelX=12\r\n");
    user.expectBox(kQuestion, vbYes, kAsks);
    project->CheckTwipsMatch();
    EXPECT_EQ(labelNumber("Width"), 375);
    EXPECT_EQ(labelNumber("Height"), 150);
    EXPECT_EQ(project->TwipsPerPixelY(), 15);
    EXPECT_TRUE(reports().empty());
}
