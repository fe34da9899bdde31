#include "tests/host/designer_support.h"
#include <gmock/gmock.h>

using fernwick::Variant;
using testing::HasSubstr;

namespace {

Variant number(std::int32_t n) { return n; }
Variant real(double d) { return d; }
Variant text(const char* s) { return std::string(s); }

const std::string kNewForm = crLf(R"(VERSION 5.00
Begin VB.Form Form1 
   Caption         =   "Form1"
   ClientHeight    =   3195
   ClientLeft      =   60
   ClientTop       =   345
   ClientWidth     =   4680
   LinkTopic       =   "Form1"
   ScaleHeight     =   3195
   ScaleWidth      =   4680
   StartUpPosition =   3  'Windows Default
End
Attribute VB_Name = "Form1"
)");

const std::string kScreen = crLf(R"(VERSION 5.00
Begin VB.Form frmScreen 
   BorderStyle     =   1  'Fixed Single
   ClientHeight    =   2400
   ClientLeft      =   345
   ClientTop       =   630
   ClientWidth     =   2400
   BeginProperty Font 
      Name            =   "Tahoma"
      Size            =   8,25
      Charset         =   0
      Weight          =   700
      Underline       =   0   'False
      Italic          =   0   'Falsch
      Strikethrough   =   0   'False
   EndProperty
   ScaleHeight     =   2400
   ScaleWidth      =   2400
   Begin VB.Frame fraAll 
      Height          =   1125
      Left            =   125
      Top             =   300
      Width           =   2000
      Begin VB.TextBox txtInner 
         Height          =   300
         Left            =   125
      End
   End
End
Attribute VB_Name = "frmScreen"
)");

} // namespace

class FormProperties : public DesignerTest {};

TEST_F(FormProperties, AreFoundByNameIgnoringCase) {
    open(kNewForm);
    EXPECT_EQ(get("CAPTION"), text("Form1"));
    EXPECT_EQ(get("startupposition"), number(3));
    EXPECT_EQ(get("Name"), text("Form1"));
    EXPECT_EQ(designer->Properties()->Item("showintaskbar")->Name(), "ShowInTaskbar");
}

TEST_F(FormProperties, WithoutALineHaveTheirDefaults) {
    open(kNewForm);
    EXPECT_EQ(get("BorderStyle"), number(2));
    EXPECT_EQ(get("ScaleMode"), number(1));
    EXPECT_EQ(get("ShowInTaskBar"), Variant(true));
    EXPECT_EQ(get("KeyPreview"), Variant(false));
    EXPECT_EQ(get("BackColor"), number(-2147483633));
    EXPECT_EQ(get("Tag"), text(""));
}

TEST_F(FormProperties, AnUnknownNameIsError9) {
    open(kNewForm);
    for (const char* name : {"TabStop", "ClientWidth", ""})
        EXPECT_EQ(basic::attempt([&] { designer->Properties()->Item(name); }).Number, 9) << name;
}

TEST_F(FormProperties, AreListedOnceEach) {
    open(kNewForm);
    std::set<std::string> names;
    for (const auto& property : designer->Properties()->items()) EXPECT_TRUE(names.insert(property->Name()).second);
    EXPECT_EQ(names.size(), std::size_t(designer->Properties()->Count()));
    EXPECT_TRUE(names.count("Name") && names.count("Font") && names.count("LinkTopic") && !names.count("ClientLeft"));
}

TEST_F(FormProperties, SettingAnEqualValueChangesNothing) {
    open(kNewForm);
    set("Caption", text("Form1"));
    set("StartUpPosition", number(3));
    set("BorderStyle", number(2));
    set("ShowInTaskbar", Variant(true));
    set("Width", get("Width"));
    set("ScaleMode", number(1));
    EXPECT_EQ(changes, 0);
    EXPECT_EQ(file->text(), original);
}

TEST_F(FormProperties, SettingEditsTheLineAndReportsTheChange) {
    open(kNewForm);
    set("StartUpPosition", number(2));
    EXPECT_EQ(difference(),
              "- \x20  StartUpPosition =   3  'Windows Default\n+    StartUpPosition =   2  'CenterScreen\n");
    EXPECT_EQ(changes, 1);
    set("KeyPreview", number(1));
    EXPECT_THAT(file->text(), HasSubstr("\r\n   KeyPreview      =   -1  'True\r\n   LinkTopic "));
    set("BackColor", number(0xFF00));
    EXPECT_THAT(file->text(), HasSubstr("   BackColor       =   &H0000FF00&\r\n   Caption "));
}

TEST_F(FormProperties, SettingTheDefaultRemovesAnAddedLine) {
    open(kNewForm);
    set("KeyPreview", Variant(true));
    set("KeyPreview", Variant(false));
    EXPECT_EQ(file->text(), original);
    EXPECT_EQ(changes, 2);
}

TEST_F(FormProperties, SettingTheDefaultKeepsALineOfTheFile) {
    open(kNewForm);
    set("StartUpPosition", number(0));
    EXPECT_THAT(file->text(), HasSubstr("   StartUpPosition =   0  'Manual\r\n"));
}

TEST_F(FormProperties, ValuesAreConvertedAndCheckedAsTheLanguageDoes) {
    open(kNewForm);
    set("BorderStyle", text("1"));
    EXPECT_EQ(get("BorderStyle"), number(1));
    EXPECT_EQ(basic::attempt([&] { set("BorderStyle", text("x")); }).Number, 13);
    EXPECT_EQ(basic::attempt([&] { set("Caption", text("two\r\nlines")); }).Number, 380);
    EXPECT_EQ(basic::attempt([&] { set("ScaleMode", number(9)); }).Number, 380);
    EXPECT_EQ(basic::attempt([&] { set("Name", text("not a name")); }).Number, 380);
    EXPECT_EQ(basic::attempt([&] { set("Width", real(1e12)); }).Number, 380);
}

TEST_F(FormProperties, TextThatTheCodePageLacksIsRefused) {
    open(kNewForm);
    EXPECT_EQ(basic::attempt([&] { set("Caption", text("日本")); }).Number, 5);
    EXPECT_EQ(basic::attempt([&] { font()->Item("Name")->Value(text("日本")); }).Number, 5);
    EXPECT_EQ(file->text(), original);
    EXPECT_EQ(changes, 0);
    set("Caption", text("Größe \"é\""));
    EXPECT_THAT(file->text(), HasSubstr("\"Größe \"\"é\"\"\""));
}

TEST_F(FormProperties, OfARemovedFormRaiseErrors) {
    open(kNewForm);
    const auto properties = designer->Properties();
    const auto caption = properties->Item("Caption");
    const auto controls = designer->Designer()->VBControls();
    designer = nullptr;
    EXPECT_EQ(basic::attempt([&] { caption->Value(); }).Number, 440);
    EXPECT_EQ(basic::attempt([&] { properties->Count(); }).Number, 440);
    EXPECT_EQ(basic::attempt([&] { controls->Count(); }).Number, 440);
}

TEST_F(FormProperties, TheHostRenamesTheForm) {
    std::string renamed;
    host::DesignerHooks hooks;
    hooks.renameForm = [&](const std::string& name) { renamed = name; };
    open(kNewForm, hooks);
    set("Name", text("frmMain"));
    EXPECT_EQ(renamed, "frmMain");
    EXPECT_EQ(file->text(), original);
}

TEST(FormDesigner, AFileWithoutAFormIsRefused) {
    const auto file = std::make_shared<host::FormFile>(host::FormFile::parse("Dim x\r\n"));
    const auto error = basic::attempt([&] { host::FormDesigner(file, basic::CodePage::windows1252()); });
    EXPECT_EQ(error.Number, 380);
    EXPECT_EQ(error.Description, "The file has no description of a form.");
}

class FormGeometryTest : public DesignerTest {};

TEST_F(FormGeometryTest, OuterSizesAreTheClientLinesAndTheFrame) {
    open(kNewForm);
    EXPECT_EQ(get("Width"), real(4800));
    EXPECT_EQ(get("Height"), real(3600));
    EXPECT_EQ(get("Left"), real(0));
    EXPECT_EQ(get("Top"), real(0));
    EXPECT_EQ(get("ScaleWidth"), real(4680));
}

TEST_F(FormGeometryTest, AnotherPositionMakesTheStartUpPositionManual) {
    for (const auto* name : {"Left", "Top"}) {
        open(kNewForm);
        set(name, get(name));
        set("Width", real(3000));
        EXPECT_EQ(get("StartUpPosition"), number(3)) << name;
        set(name, real(600));
        EXPECT_EQ(get("StartUpPosition"), number(0)) << name;
        EXPECT_THAT(difference(), HasSubstr("+    StartUpPosition =   0  'Manual\n"));
    }
}

TEST_F(FormGeometryTest, AFormWithoutAStartUpPositionGetsNone) {
    open(kScreen);
    set("Left", real(600));
    EXPECT_EQ(difference(), "-    ClientLeft      =   345\n+    ClientLeft      =   645\n");
}

TEST_F(FormGeometryTest, FrameSizesFollowTheBorderStyle) {
    struct {
        int style, width, height;
    } const cases[] = {{0, 0, 0}, {1, 90, 375}, {2, 120, 405}, {3, 90, 375}, {4, 90, 330}, {5, 120, 360}};
    for (const auto& c : cases) {
        open(kNewForm);
        set("BorderStyle", number(c.style));
        EXPECT_EQ(get("Width"), real(4680 + c.width)) << c.style;
        EXPECT_EQ(get("Height"), real(3195 + c.height)) << c.style;
    }
}

TEST_F(FormGeometryTest, EachScaleModeHasItsUnits) {
    struct {
        int mode;
        const char *width, *height;
    } const cases[] = {{1, "4680", "3195"},    {2, "234", "159.75"},   {3, "312", "213"},    {4, "39", "13.312"},
                       {5, "3.25", "2.21875"}, {6, "82.55", "56.356"}, {7, "8.255", "5.636"}};
    for (const auto& [mode, width, height] : cases) {
        open(kNewForm);
        set("ScaleMode", number(mode == 1 ? 3 : 1));
        set("ScaleMode", number(mode));
        EXPECT_THAT(file->text(), HasSubstr(std::string("ScaleWidth      =   ") + width)) << mode;
        EXPECT_THAT(file->text(), HasSubstr(std::string("ScaleHeight     =   ") + height)) << mode;
    }
}

TEST_F(FormGeometryTest, OtherDesignersHaveNoFrame) {
    for (const auto& [type, frame] : {std::pair("VB.UserControl", 0), std::pair("VB.MDIForm", 120)}) {
        std::string text = kNewForm;
        text.replace(text.find("VB.Form"), 7, type);
        open(text);
        EXPECT_EQ(get("Width"), real(4680 + frame)) << type;
    }
}

TEST_F(FormGeometryTest, AWidthChangesTheClientAndScaleLines) {
    open(kNewForm);
    set("Width", real(2520));
    EXPECT_EQ(difference(), "-    ClientWidth     =   4680\n+    ClientWidth     =   2400\n"
                            "-    ScaleWidth      =   4680\n+    ScaleWidth      =   2400\n");
    set("Left", real(300));
    EXPECT_THAT(file->text(), HasSubstr("ClientLeft      =   360\r\n"));
    set("Width", real(10));
    EXPECT_EQ(get("Width"), real(120)) << "a form is never narrower than its frame";
}

TEST_F(FormGeometryTest, PixelsHaveFifteenTwips) {
    open(kNewForm);
    set("ScaleMode", number(3));
    EXPECT_EQ(get("ScaleWidth"), real(312));
    EXPECT_EQ(get("ScaleHeight"), real(213));
    EXPECT_EQ(difference(), "-    ScaleHeight     =   3195\n-    ScaleWidth      =   4680\n"
                            "+    ScaleHeight     =   213\n+    ScaleMode       =   3  'Pixel\n"
                            "+    ScaleWidth      =   312\n");
    set("Width", real(2520));
    EXPECT_THAT(file->text(), HasSubstr("ScaleWidth      =   160\r\n"));
}

TEST_F(FormGeometryTest, ChangingTheScaleConvertsTheControlsAndBackExactly) {
    open(kScreen);
    set("ScaleMode", number(3));
    EXPECT_EQ(of("fraAll", "Left")->Value(), real(8.333));
    EXPECT_EQ(of("fraAll", "Height")->Value(), real(75));
    EXPECT_EQ(of("txtInner", "Left")->Value(), real(125)) << "a frame's inside is always in twips";
    set("ScaleMode", number(1));
    EXPECT_EQ(file->text(), original);
}

TEST_F(FormGeometryTest, ReturningToTheScaleRestoresEveryLineAsItWas) {
    open(crLf(R"(VERSION 5.00
Begin VB.Form A 
   ClientHeight    =   2400
   ClientWidth     =   2400
   ScaleHeight     =   2401
   ScaleWidth      =   2399
   Begin VB.Label lblA 
      Height          =   300.0
      Left            =   450.0
      Top             =   600.0
      Width           =   750.0
   End
   Begin VB.Line linA 
      X1              =   150.0
      X2              =   165.0
      Y1              =   180.0
      Y2              =   195.0
   End
End
)"));
    set("ScaleMode", number(3));
    for (const auto* line :
         {"ScaleHeight     =   160", "ScaleWidth      =   160", "Height          =   20", "Left            =   30",
          "Top             =   40", "Width           =   50", "X1              =   10", "X2              =   11",
          "Y1              =   12", "Y2              =   13"})
        EXPECT_THAT(file->text(), HasSubstr(std::string(line) + "\r\n"));
    set("ScaleMode", number(1));
    EXPECT_EQ(difference(), "");
}

TEST_F(FormGeometryTest, LinesEditedInBetweenAreNotRestored) {
    open(kScreen);
    set("ScaleMode", number(3));
    of("fraAll", "Left")->Value(number(10));
    set("ScaleMode", number(1));
    EXPECT_EQ(difference(), "-       Left            =   125\n+       Left            =   150\n");
}

TEST_F(FormGeometryTest, AUserScaleIsKept) {
    open(kScreen);
    set("ScaleWidth", number(100));
    EXPECT_EQ(get("ScaleMode"), number(0));
    EXPECT_EQ(of("fraAll", "Left")->Value(), real(5.208));
    set("ScaleMode", number(1));
    EXPECT_EQ(get("ScaleWidth"), real(2400));
}

TEST_F(FormGeometryTest, AbsurdNumbersInTheFileAreHandled) {
    open(crLf("VERSION 5.00\nBegin VB.Form A \n   ClientWidth     =   1e308\n   ClientHeight    =   \"x\"\n"
              "   BorderStyle     =   77\n   ScaleMode       =   -3\n   ScaleWidth      =   0\n"
              "   Begin VB.Label L \n      Left            =   1e300\n   End\nEnd\n"));
    EXPECT_EQ(get("Width"), real(120));
    EXPECT_EQ(get("ScaleMode"), number(1));
    set("ScaleMode", number(3));
    EXPECT_EQ(get("ScaleWidth"), real(0));
    EXPECT_EQ(of("L", "Left")->Value(), real(1e300));
}

class FormFont : public DesignerTest {};

TEST_F(FormFont, MembersAreRead) {
    open(kScreen);
    EXPECT_EQ(font()->Item("name")->Value(), text("Tahoma"));
    EXPECT_EQ(font()->Item("Size")->Value(), real(8.25));
    EXPECT_EQ(font()->Item("Bold")->Value(), Variant(true));
    EXPECT_EQ(font()->Item("Italic")->Value(), Variant(false));
    EXPECT_EQ(get("Font"), text("Tahoma"));
}

TEST_F(FormFont, SettingEqualMembersKeepsTheLines) {
    open(kScreen);
    font()->Item("Size")->Value(real(8.25));
    font()->Item("Bold")->Value(Variant(true));
    font()->Item("Italic")->Value(Variant(false));
    EXPECT_EQ(file->text(), original);
    EXPECT_EQ(changes, 0);
}

TEST_F(FormFont, SettingAMemberEditsItsLine) {
    open(kScreen);
    font()->Item("Bold")->Value(Variant(false));
    font()->Item("Size")->Value(number(12));
    EXPECT_EQ(difference(), "-       Size            =   8,25\n+       Size            =   12\n"
                            "-       Weight          =   700\n+       Weight          =   400\n");
}

TEST_F(FormFont, AFormWithoutOneGetsAWholeBlock) {
    open(kNewForm);
    EXPECT_EQ(font()->Item("Name")->Value(), text("MS Sans Serif"));
    font()->Item("Underline")->Value(Variant(false));
    EXPECT_EQ(changes, 0);
    font()->Item("Italic")->Value(Variant(true));
    EXPECT_EQ(difference(), R"(+    BeginProperty Font 
+       Name            =   "MS Sans Serif"
+       Size            =   8.25
+       Charset         =   0
+       Weight          =   400
+       Underline       =   0   'False
+       Italic          =   -1  'True
+       Strikethrough   =   0   'False
+    EndProperty
)");
}

TEST_F(FormFont, AnotherPropertyIsNotAnObject) {
    open(kScreen);
    EXPECT_EQ(basic::attempt([&] { designer->Properties()->Item("Width")->ObjectValue(); }).Number, 424);
    EXPECT_EQ(basic::attempt([&] { font()->Item("Width"); }).Number, 9);
}

// Edits that the add-in makes to forms.

TEST_F(DesignerTest, ShapingANewFormForADeviceChangesOnlyTheseLines) {
    open(kNewForm);
    set("ScaleMode", number(1));
    const auto across =
        fernwick::asLong(real(fernwick::asDouble(get("Width")) - fernwick::asDouble(get("ScaleWidth"))));
    const auto down =
        fernwick::asLong(real(fernwick::asDouble(get("Height")) - fernwick::asDouble(get("ScaleHeight"))));
    set("Height", real(160 * 15 + down));
    set("Width", real(160 * 15 + across));
    set("ScaleMode", number(3));
    set("BorderStyle", number(1));
    set("StartUpPosition", number(2));
    font()->Item("Name")->Value(text("QLPalm"));
    font()->Item("Size")->Value(number(12));
    font()->Item("Bold")->Value(Variant(false));
    set("ShowInTaskBar", Variant(true));
    set("BackColor", number(0xFFFFFF));
    EXPECT_EQ(file->text(), crLf(R"(VERSION 5.00
Begin VB.Form Form1 
   BackColor       =   &H00FFFFFF&
   BorderStyle     =   1  'Fixed Single
   Caption         =   "Form1"
   ClientHeight    =   2400
   ClientLeft      =   60
   ClientTop       =   345
   ClientWidth     =   2400
   BeginProperty Font 
      Name            =   "QLPalm"
      Size            =   12
      Charset         =   0
      Weight          =   400
      Underline       =   0   'False
      Italic          =   0   'False
      Strikethrough   =   0   'False
   EndProperty
   LinkTopic       =   "Form1"
   ScaleHeight     =   160
   ScaleMode       =   3  'Pixel
   ScaleWidth      =   160
   StartUpPosition =   2  'CenterScreen
End
Attribute VB_Name = "Form1"
)"));
}

TEST_F(DesignerTest, ReadingTheSizeInPixelsLeavesNoTrace) {
    open(kScreen);
    const auto before = get("ScaleMode");
    set("ScaleMode", number(3));
    EXPECT_EQ(get("ScaleWidth"), real(160));
    EXPECT_EQ(get("ScaleHeight"), real(160));
    set("ScaleMode", before);
    EXPECT_EQ(file->text(), original);
}

TEST_F(DesignerTest, AWordInAnotherLanguageIsRestoredToo) {
    open(crLf("VERSION 5.00\nBegin VB.Form A \n   ClientWidth     =   300\n   ScaleMode       =   2  'Punkt\nEnd\n"));
    set("ScaleMode", number(3));
    set("ScaleMode", number(2));
    EXPECT_EQ(file->text(), original);
}

TEST_F(DesignerTest, AFormOf3600TwipsBecomes2880AtTheOtherResolution) {
    open(kScreen);
    set("Width", number(3600));
    set("Width", real(float(fernwick::asDouble(get("Width"))) * 12.0F / 15.0F));
    EXPECT_EQ(get("Width"), real(2880));
    const auto width = of("fraAll", "Width");
    width->Value(number(300));
    width->Value(real(float(fernwick::asDouble(width->Value())) * 12.0F / 15.0F));
    EXPECT_EQ(width->Value(), real(240));
    EXPECT_THAT(file->text(), HasSubstr("      Width           =   240\r\n"));
}
