#include "Host/model/forms/control_edits.h"
#include "Host/model/forms/described_classes.h"
#include "Host/model/forms/form_places.h"
#include "Host/model/forms/property_source.h"
#include "tests/host/designer_support.h"
#include "tests/support/test_host.h"
#include <gmock/gmock.h>

using fernwick::Variant;

using testing::ElementsAre;

// The interfaces for front ends that draw forms and their properties.

namespace {

const std::string kDrawnForm = crLf(R"(VERSION 5.00
Begin VB.Form frmDrawn 
   BorderStyle     =   1  'Fixed Single
   ClientHeight    =   2400
   ClientLeft      =   45
   ClientTop       =   435
   ClientWidth     =   3600
   ScaleHeight     =   160
   ScaleMode       =   3  'Pixel
   ScaleWidth      =   240
   Begin VB.PictureBox picUser 
      Height          =   100
      Picture         =   "frmDrawn.frx":0000
      ScaleHeight     =   50
      ScaleMode       =   0  'User
      ScaleWidth      =   10
      Width           =   200
   End
   Begin VB.PictureBox picInches 
      ScaleMode       =   5  'Inch
   End
   Begin VB.Frame fraAll 
      Caption         =   "All"
   End
   Begin TavletsCtl.QLFrame tavAll 
   End
   Begin VB.ListBox lstNames 
      List            =   "frmDrawn.frx":0010
   End
   Begin VB.OptionButton optOne 
      Index           =   0
   End
   Begin VB.OptionButton optOne 
      Index           =   1
   End
   Begin VB.OptionButton optAlone 
   End
End
Attribute VB_Name = "frmDrawn"
)");

/// A picture of four bytes, and a list of two items.
const std::string kDrawnResources{"\x0c\0\0\0lt\0\0\x04\0\0\0BM12\x02\0\x03\0\x02\0Jo\x03\0Ann", 29};

host::DesignerHooks withResources() {
    host::DesignerHooks hooks;
    hooks.resources = [](const std::string& name) {
        return name == "frmDrawn.frx" ? std::make_shared<const host::ResourceFile>(kDrawnResources) : nullptr;
    };
    return hooks;
}

std::vector<std::string> wordsOf(const host::ClassProperty& property) {
    std::vector<std::string> words;
    for (const auto& choice : property.choices()) words.push_back(std::to_string(choice.value) + " " + choice.word);
    return words;
}

} // namespace

class FrontEndsView : public DesignerTest {
protected:
    FrontEndsView() { open(kDrawnForm, withResources()); }
    host::TwipsPerUnit unitsInside(const std::string& name) {
        return host::unitsIn(control(name), host::unitsOn(designer->Designer()));
    }
};

TEST_F(FrontEndsView, FormsHaveAClientAreaAndAFrame) {
    const auto extent = host::extentOf(designer->Designer());
    EXPECT_EQ(extent.width, 3600);
    EXPECT_EQ(extent.height, 2400);
    EXPECT_EQ(extent.left, 45);
    EXPECT_EQ(extent.top, 330);
    EXPECT_EQ(extent.right, 45);
    EXPECT_EQ(extent.bottom, 45);
}

TEST_F(FrontEndsView, ControlsArePlacedInTheUnitsOfTheirContainer) {
    EXPECT_EQ(host::unitsOn(designer->Designer()).x, 15);
    EXPECT_EQ(unitsInside("picUser").x, 300); // 200 pixels for 10 units
    EXPECT_EQ(unitsInside("picUser").y, 30);
    EXPECT_EQ(unitsInside("picInches").x, 1440);
    EXPECT_EQ(unitsInside("fraAll").x, 1);
    EXPECT_EQ(unitsInside("tavAll").x, 15);
}

TEST_F(FrontEndsView, EnumerationsHaveTheirWords) {
    EXPECT_THAT(wordsOf(host::detailsOf(of("picUser", "BorderStyle"))), ElementsAre("0 None", "1 Fixed Single"));
    EXPECT_TRUE(wordsOf(host::detailsOf(of("picUser", "Width"))).empty());
    EXPECT_TRUE(host::detailsOf(of("picUser", "BackColor")).showsColour());
    EXPECT_FALSE(host::detailsOf(of("picUser", "DrawWidth")).showsColour());
    EXPECT_EQ(host::detailsOf(of("picUser", "Font")).kind, host::PropertyKind::Font);
    EXPECT_EQ(host::detailsOf(of("picUser", "Name")).kind, host::PropertyKind::Text);
}

TEST_F(FrontEndsView, PicturesAndListsComeFromTheResourceFile) {
    EXPECT_EQ(host::imageOf(of("picUser", "Picture")), "BM12");
    EXPECT_EQ(host::imageOf(of("picInches", "Picture")), "");
    EXPECT_THAT(host::itemsOf(of("lstNames", "List")), ElementsAre("Jo", "Ann"));
    EXPECT_TRUE(host::itemsOf(of("picUser", "Picture")).empty()); // a picture is not a list
    EXPECT_EQ(host::imageOf(of("lstNames", "List")), "");
}

TEST_F(FrontEndsView, WithoutAResourceFileThereIsNeither) {
    open(kDrawnForm);
    EXPECT_EQ(host::imageOf(of("picUser", "Picture")), "");
    EXPECT_TRUE(host::itemsOf(of("lstNames", "List")).empty());
}

TEST_F(FrontEndsView, ATakenNameIsRefused) {
    const auto name = [&](const char* ofControl) { return of(ofControl, "Name"); };
    const auto refused = [&](const char* ofControl, const std::string& newName) {
        return basic::attempt([&] { name(ofControl)->Value(newName); }).Description;
    };
    EXPECT_EQ(refused("fraAll", "LSTNAMES"), "The name 'LSTNAMES' is already in use");
    EXPECT_EQ(refused("fraAll", "frmDrawn"), "The name 'frmDrawn' is already in use");
    EXPECT_EQ(refused("fraAll", "1st"), "'1st' is not a legal object name");
    EXPECT_EQ(refused("optAlone", "optOne"), "The name 'optOne' is already in use");
    EXPECT_EQ(basic::attempt([&] { designer->Properties()->Item("Name")->Value(std::string("fraAll")); }).Number, 380);
    EXPECT_EQ(difference(), "");
    EXPECT_EQ(refused("fraAll", "FRAALL"), "");
    EXPECT_EQ(difference(), "-    Begin VB.Frame fraAll \n+    Begin VB.Frame FRAALL \n");
}

TEST_F(FrontEndsView, AMemberJoinsAControlArrayWhereItsIndexIsFree) {
    of("optAlone", "Index")->Value(std::int32_t{2});
    of("optAlone", "Name")->Value(std::string("optOne"));
    EXPECT_EQ(difference(), "-    Begin VB.OptionButton optAlone \n+    Begin VB.OptionButton optOne \n"
                            "+       Index           =   2\n");
}

TEST(DescribedProperties, KnowTheirEnumerationsAndColours) {
    host::DescribedClasses described;
    described.add(host::readTypeDescription(FERNWICK_SOURCE_DIR "/installation/tavlets/Tavlets.toml"));
    const auto combo = described.find("TavletsCtl.QLComboBox");
    EXPECT_THAT(wordsOf(*combo->find("Style")), ElementsAre("0 qlDropDownCombo", "2 qlDropDownList"));
    EXPECT_TRUE(combo->find("BackColor")->showsColour());
    EXPECT_FALSE(combo->find("MaxLength")->showsColour());
    EXPECT_EQ(combo->find("Style")->kind, host::PropertyKind::Integer); // forms have no word after it
}

// ---- events of designers --------------------------------------------------------------------------------------------

namespace {

struct PaneLog {
    explicit PaneLog(host::Host& host) {
        const auto note = [this](const char* what) {
            return [this, what](const vbide::Ref<vbide::VBComponent>& component) {
                reported.push_back(what + (" " + component->Name()) + (component->HasOpenDesigner() ? " open" : ""));
            };
        };
        watches.push_back(host.panes.designerShown.connect(note("shown")));
        watches.push_back(host.panes.designerOpened.connect(note("changed")));
        watches.push_back(host.panes.designChanged.connect(note("edited")));
    }
    std::vector<std::string> reported;
    std::vector<fernwick::Subscription> watches;
};

} // namespace

TEST(DesignerPanes, ReportOpeningShowingAndClosing) {
    test::TestHost host;
    const auto form = host.open(test::SampleProject().form("frmA"))->VBComponents()->Item(1);
    PaneLog log(*host.ide);
    form->Activate();
    form->Activate();
    form->DesignerWindow()->Close();
    EXPECT_THAT(log.reported, ElementsAre("changed frmA open", "shown frmA open", "shown frmA open", "changed frmA"));
}

TEST(DesignerPanes, ReportAllEdits) {
    test::TestHost host;
    const auto form = host.open(test::SampleProject().form("frmA"))->VBComponents()->Item(1);
    PaneLog log(*host.ide);
    form->Properties()->Item("Caption")->Value(std::string("New"));
    form->Properties()->Item("Caption")->Value(std::string("New"));
    const auto added = form->Designer()->VBControls()->Add("VB.Label");
    form->Designer()->VBControls()->Remove(added);
    EXPECT_THAT(log.reported, ElementsAre("edited frmA", "edited frmA", "edited frmA"));
}

TEST(DesignerPanes, ADesignersWindowOutlivesItsForm) {
    test::TestHost host;
    const auto project = host.open(test::SampleProject().form("frmA"));
    const auto form = project->VBComponents()->Item(1);
    form->Activate();
    const auto window = form->DesignerWindow();
    PaneLog log(*host.ide);
    project->VBComponents()->Remove(form);
    window->Close();
    EXPECT_TRUE(log.reported.empty());
}

// ---- adding and removing controls------------------------------------------------------------------------------------

TEST_F(FrontEndsView, AControlIsAddedWithinAContainerInItsUnits) {
    const auto added = host::addControl(designer->Designer(), control("picUser"), "VB.TextBox");
    EXPECT_EQ(difference(), "+       Begin VB.TextBox Text1 \n+          Height          =   16.5\n"
                            "+          Left            =   0\n+          TabIndex        =   0\n"
                            "+          Top             =   0\n+          Width           =   4.05\n+       End\n");
    EXPECT_EQ(control("picUser")->ContainedVBControls().front(), added);
}

TEST_F(FrontEndsView, ARemovedControlIsRestoredInPlace) {
    const auto frame = control("fraAll");
    const auto first = host::removeControl(designer->Designer(), frame);
    const auto second = host::removeControl(designer->Designer(), control("picUser"));
    EXPECT_EQ(basic::attempt([&] { (void)frame->ClassName(); }).Number, 440);
    host::restoreControl(designer->Designer(), second);
    host::restoreControl(designer->Designer(), first);
    EXPECT_EQ(difference(), "");
    EXPECT_EQ(frame->ClassName(), "Frame"); // valid again
    EXPECT_EQ(basic::attempt([&] { host::removeControl(designer->Designer(), nullptr); }).Number, 5);
}

TEST_F(FrontEndsView, ARestoredControlIsNotReportedAsAdded) {
    int reported = 0;
    auto hooks = withResources();
    hooks.controlAdded = [&](const auto&) { ++reported; };
    open(kDrawnForm, hooks);
    host::restoreControl(designer->Designer(), host::removeControl(designer->Designer(), control("fraAll")));
    EXPECT_EQ(reported, 0);
}

TEST_F(FrontEndsView, NothingIsRestoredInARemovedContainer) {
    const auto inner = host::addControl(designer->Designer(), control("fraAll"), "VB.TextBox");
    const auto removed = host::removeControl(designer->Designer(), inner);
    host::removeControl(designer->Designer(), control("fraAll"));
    EXPECT_EQ(basic::attempt([&] { host::restoreControl(designer->Designer(), removed); }).Number, 440);
}

TEST(ObjectLines, AreAddedWithTheFirstControlOfTheirLibrary) {
    test::TestHost host;
    const auto project =
        host.open(test::SampleProject()
                      .member("Object={1198F6AB-5766-4D4A-A1AF-CD9A25D2D2B4}#1.0#0; ..\\lib\\Tavlets.dll")
                      .form("frmA"));
    const auto form = project->VBComponents()->Item("frmA");
    const auto before = test::formText("frmA");
    form->Designer()->VBControls()->Add("VB.Label");
    form->Designer()->VBControls()->Add("TavletsCtl.QLLabel");
    form->Designer()->VBControls()->Add("TavletsCtl.QLButton");
    form->Designer()->VBControls()->Add("Elsewhere.Gauge");
    form->SaveAs(form->FileNames(1));
    const auto text = host.folder.read("frmA.frm");
    EXPECT_EQ(text.substr(0, text.find("   ")),
              "VERSION 5.00\r\nObject = \"{1198F6AB-5766-4D4A-A1AF-CD9A25D2D2B4}#1.0#0\"; \"Tavlets.dll\"\r\n"
              "Begin VB.Form frmA \r\n");
}
