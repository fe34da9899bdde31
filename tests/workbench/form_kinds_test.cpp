// Forms with controls of the libraries that came with the language, and with user controls.
#include "Apps/workbench/designer/new_control.h"
#include "Apps/workbench/properties/form_fonts.h"
#include "tests/workbench/designer_desktop.h"
#include <QFontMetricsF>

using testing::Contains;
using testing::Not;
using workbench::ControlKind;

namespace {

constexpr auto kControlTabs = R"(   Begin TabDlg.SSTab tabAll 
      Height          =   2415
      Left            =   120
      Top             =   120
      Width           =   4815
      _ExtentX        =   8493
      Tab             =   1
      TabHeight       =   520
      TabCaption(0)   =   "First"
      Tab(0).Control(0)=   "txtFar"
      Tab(0).Control(1)=   "txtNear"
      Tab(0).ControlCount=   2
      TabCaption(1)   =   "Second"
      Tab(1).Control(0)=   "txtShown"
      Tab(1).ControlCount=   1
      TabCaption(2)   =   "Third"
      Begin VB.TextBox txtFar 
         Height          =   285
         Left            =   -74880
         Top             =   600
         Width           =   1215
      End
      Begin VB.TextBox txtNear 
         Height          =   285
         Left            =   120
         Top             =   600
         Width           =   1215
      End
      Begin VB.TextBox txtShown 
         Height          =   285
         Left            =   120
         Top             =   600
         Width           =   1215
      End
   End
)";

std::string blockOf(const std::string& type, const std::string& name, const std::string& lines = {}) {
    return "   Begin " + type + " " + name + " \n      Height          =   975\n      Left            =   120\n" +
           "      Top             =   120\n      Width           =   1935\n" + lines + "   End\n";
}

} // namespace

class FormKinds : public test::DesignerDesktop {
protected:
    ControlKind kindOf(const std::string& name) { return view().picture().find(control(name))->look.kind; }
    workbench::ControlLook lookOf(const std::string& name) { return view().picture().find(control(name))->look; }
    /// The colours that a control is drawn with.
    std::set<QRgb> coloursOf(const std::string& name) {
        const auto image = canvas().grab(canvas().onCanvas(placeOf(name)).toRect()).toImage();
        std::set<QRgb> colours;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x) colours.insert(image.pixel(x, y));
        return colours;
    }
    std::vector<std::string> drawn() {
        std::vector<std::string> names;
        for (const auto& one : view().picture().controls) names.push_back(one.name.toStdString());
        return names;
    }
    bool offers(const char* name) { return !desk().toolbox().findItems(name, Qt::MatchExactly).isEmpty(); }
    void openProject(test::SampleProject project) {
        bench->open(project.writeTo(folder));
        bench->connect();
        settle();
    }
};

TEST_F(FormKinds, MissingFontsHaveTheWidthOfTheirLetters) {
    const QString letters("abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ");
    for (const auto& [family, width] :
         {std::pair("MS Sans Serif", 0.583), std::pair("MS Shell Dlg", 0.583), std::pair("Tahoma", 0.549)})
        for (const double points : {8.25, 9.75, 13.5}) {
            const auto font = workbench::formFont(family, points);
            const double wanted = width * font.pixelSize() * double(letters.size());
            EXPECT_NEAR(QFontMetricsF(font).horizontalAdvance(letters), wanted, wanted * 0.04) << family << points;
        }
}

TEST_F(FormKinds, OnlyTheCurrentTabsControlsAreShown) {
    openForm(kControlTabs);
    EXPECT_EQ(kindOf("tabAll"), ControlKind::TabbedBox);
    EXPECT_EQ(lookOf("tabAll").items, QStringList({"First", "Second", "Third"}));
    EXPECT_EQ(lookOf("tabAll").current, 1);
    EXPECT_THAT(drawn(), testing::ElementsAre("tabAll", "txtShown"));
    EXPECT_EQ(view().picture().at(placeOf("txtShown").center())->name, "txtShown");
}

TEST_F(FormKinds, AControlOfAHiddenTabIsSelectedWithoutAPlace) {
    openForm(kControlTabs);
    view().select(control("txtNear"));
    key(Qt::Key_Right, Qt::ControlModifier);
    key(Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(saved("frmMain"), original);
    EXPECT_EQ(shown("(Name)"), "txtNear");
}

TEST_F(FormKinds, PartsAreReadFromTheirGroups) {
    openForm(blockOf("MSComctlLib.ListView", "lvwAll",
                     "      View            =   3\n"
                     "      BeginProperty ColumnHeaders {BDD1F052-858B-11D1-B16A-00C0F0283628} \n"
                     "         NumItems        =   2\n"
                     "         BeginProperty ColumnHeader(1) {BDD1F053-858B-11D1-B16A-00C0F0283628} \n"
                     "            Text            =   \"Name\"\n            Object.Width           =   1270\n"
                     "         EndProperty\n"
                     "         BeginProperty ColumnHeader(2) {BDD1F053-858B-11D1-B16A-00C0F0283628} \n"
                     "            Text            =   \"Price\"\n         EndProperty\n      EndProperty\n") +
             blockOf("MSComctlLib.StatusBar", "staAll",
                     "      BeginProperty Panels {8E3867A5-8586-11D1-B16A-00C0F0283628} \n"
                     "         NumPanels       =   1\n"
                     "         BeginProperty Panel1 {8E3867AB-8586-11D1-B16A-00C0F0283628} \n"
                     "            Text            =   \"Ready\"\n         EndProperty\n      EndProperty\n"));
    EXPECT_EQ(lookOf("lvwAll").items, QStringList({"Name", "Price"}));
    EXPECT_THAT(lookOf("lvwAll").widths, testing::ElementsAre(48, 96));
    EXPECT_EQ(lookOf("staAll").items, QStringList("Ready"));
}

TEST_F(FormKinds, LibraryControlsAreDrawnByTheirKind) {
    const std::vector<std::string> classes{"MSComctlLib.ListView",    "MSComctlLib.TreeView", "MSComctlLib.Toolbar",
                                           "MSComctlLib.StatusBar",   "MSMask.MaskEdBox",     "MSComCtl2.DTPicker",
                                           "MSComctlLib.ProgressBar", "MSComctlLib.Slider",   "TabDlg.SSTab",
                                           "MSFlexGridLib.MSFlexGrid"};
    std::string lines;
    for (std::size_t i = 0; i < classes.size(); ++i) lines += blockOf(classes[i], "one" + std::to_string(i));
    openForm(lines + "   Begin MSComctlLib.ImageList imlAll \n      Left            =   120\n"
                     "      Top             =   3600\n   End\n");
    for (std::size_t i = 0; i < classes.size(); ++i)
        EXPECT_NE(kindOf("one" + std::to_string(i)), ControlKind::Other) << classes[i];
    EXPECT_EQ(kindOf("imlAll"), ControlKind::Hidden);
    EXPECT_EQ(kindOf("one4"), ControlKind::TextBox);
}

TEST_F(FormKinds, AProgressBarIsFilledToItsValue) {
    openForm(blockOf("MSComctlLib.ProgressBar", "prgAll", "      Value           =   50\n"));
    EXPECT_THAT(coloursOf("prgAll"), Contains(QColor("#0a246a").rgb()));
    control("prgAll")->Properties()->Item("Value")->Value(std::int32_t{0});
    settle();
    EXPECT_THAT(coloursOf("prgAll"), Not(Contains(QColor("#0a246a").rgb())));
}

TEST_F(FormKinds, AnUnknownControlHasATip) {
    openForm(blockOf("Elsewhere.Gauge", "gauAll"));
    EXPECT_EQ(canvas().tipAt(middleOf("gauAll")), "gauAll (Elsewhere.Gauge)");
    EXPECT_EQ(canvas().tipAt(pointOn({400, 400})), "");
}

TEST_F(FormKinds, UserControlsOfTheProjectShowTheirPicture) {
    const std::string user =
        "VERSION 5.00\r\nBegin VB.UserControl ctlLamp \r\n   BackColor       =   &H000000FF&\r\n"
        "   ClientHeight    =   600\r\n   ClientLeft      =   0\r\n   ClientTop       =   0\r\n"
        "   ClientWidth     =   900\r\n   ScaleHeight     =   600\r\n   ScaleWidth      =   900\r\n"
        "End\r\nAttribute VB_Name = \"ctlLamp\"\r\n";
    auto form = test::formText("frmMain");
    form.insert(form.find("End\r\nAttribute"), crLfOf(blockOf("Lamps.ctlLamp", "lamOne")));
    openProject(test::SampleProject("Lamps")
                    .member("Form=frmMain.frm", "frmMain.frm", form)
                    .member("UserControl=ctlLamp.ctl", "ctlLamp.ctl", user));
    design("frmMain");
    EXPECT_EQ(kindOf("lamOne"), ControlKind::UserControl);
    EXPECT_THAT(coloursOf("lamOne"), Contains(QColor(Qt::red).rgb()));
    EXPECT_TRUE(offers("ctlLamp"));
    pick("ctlLamp");
    QTest::mouseClick(&canvas(), Qt::LeftButton, {}, pointOn({40, 80}));
    EXPECT_EQ(placeOf("ctlLamp1").size(), QSizeF(60, 40));
    design("ctlLamp");
    EXPECT_FALSE(offers("ctlLamp"));
}

TEST_F(FormKinds, TheToolboxOffersTheProjectsLibraries) {
    openProject(test::SampleProject("Forms")
                    .member("Object={831FDD16-0C5C-11D2-A9FC-0000F8754DA1}#2.0#0; MSCOMCTL.OCX")
                    .form("frmMain"));
    design("frmMain");
    EXPECT_TRUE(offers("ListView"));
    EXPECT_FALSE(offers("SSTab"));
    pick("ListView");
    drag(pointOn({16, 16}), {96, 64});
    EXPECT_EQ(selected(), "ListView1");
    EXPECT_THAT(saved("frmMain"),
                testing::HasSubstr("Object = \"{831FDD16-0C5C-11D2-A9FC-0000F8754DA1}#2.0#0\"; \"MSCOMCTL.OCX\""));
}

// ---- new controls ---------------------------------------------------------------------------------------------------

TEST_F(FormKinds, NewControlsHaveASizeForTheirKindAndDevice) {
    openSample("AddressBook");
    design("frmPerson");
    const auto add = [&](const QString& tool) {
        pick(tool);
        QTest::mouseClick(&canvas(), Qt::LeftButton, {}, pointOn({8, 120}));
        return placeOf(selected()).size();
    };
    EXPECT_EQ(add("QLButton"), QSizeF(56, 18));
    EXPECT_EQ(add("QLVScrollBar"), QSizeF(12, 40)); // down to the end of the form
    EXPECT_EQ(add("QLCheckBox"), QSizeF(80, 16));
    EXPECT_EQ(add("ListBox"), QSizeF(97, 40));
}

TEST_F(FormKinds, NewControlsHaveTheFontOfTheirForm) {
    openForm("   BeginProperty Font \n      Name            =   \"Tahoma\"\n      Size            =   9.75\n"
             "      Charset         =   0\n      Weight          =   700\n      Underline       =   0   'False\n"
             "      Italic          =   0   'False\n      Strikethrough   =   0   'False\n   EndProperty\n");
    pick("Label");
    drag(pointOn({16, 16}), {96, 24});
    const auto font = control("Label1")->Properties()->Item("Font")->ObjectValue();
    EXPECT_EQ(fernwick::asText(font->Item("Name")->Value()), "Tahoma");
    EXPECT_EQ(fernwick::asDouble(font->Item("Size")->Value()), 9.75);
    EXPECT_TRUE(fernwick::asBoolean(font->Item("Bold")->Value()));
    undo();
    EXPECT_EQ(saved("frmMain"), original);
}
