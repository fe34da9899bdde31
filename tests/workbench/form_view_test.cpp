// Form designers: drawing, and editing by mouse and keyboard.
#include "Host/model/component.h"
#include "tests/workbench/designer_desktop.h"
#include <QBuffer>
#include <QDockWidget>
#include <QElapsedTimer>

using testing::ElementsAre;
using testing::HasSubstr;

namespace {

/// One of each of the language's own controls.
const std::string kShowcase = R"(   BorderStyle     =   1  'Fixed Single
   Begin VB.Menu mnuFile 
      Caption         =   "&File"
      Begin VB.Menu mnuOpen 
         Caption         =   "&Open"
         Shortcut        =   ^O
      End
      Begin VB.Menu mnuLine 
         Caption         =   "-"
      End
      Begin VB.Menu mnuExit 
         Caption         =   "E&xit"
      End
   End
   Begin VB.Menu mnuHelp 
      Caption         =   "&Help"
      Enabled         =   0   'False
   End
   Begin VB.Frame fraChoice 
      Caption         =   "&Choice"
      Height          =   1575
      Left            =   120
      Top             =   120
      Width           =   2175
      Begin VB.OptionButton optSize 
         Caption         =   "&Small"
         Height          =   255
         Index           =   0
         Left            =   120
         TabIndex        =   1
         Top             =   360
         Value           =   -1  'True
         Width           =   1455
      End
      Begin VB.OptionButton optSize 
         Caption         =   "&Large"
         Height          =   255
         Index           =   1
         Left            =   120
         TabIndex        =   2
         Top             =   720
         Width           =   1455
      End
      Begin VB.CheckBox chkBold 
         Alignment       =   1  'Right Justify
         Caption         =   "&Bold"
         Height          =   255
         Left            =   120
         Top             =   1080
         Value           =   1  'Checked
         Width           =   1455
      End
   End
   Begin VB.TextBox txtName 
      Height          =   315
      Left            =   2520
      Text            =   "Some text"
      Top             =   240
      Width           =   1815
   End
   Begin VB.TextBox txtNotes 
      Height          =   855
      Left            =   2520
      MultiLine       =   -1  'True
      ScrollBars      =   2  'Vertical
      Text            =   "Notes that are so long that they need several lines"
      Top             =   720
      Width           =   1815
   End
   Begin VB.ListBox lstItems 
      Height          =   840
      Left            =   4560
      Top             =   240
      Width           =   1455
   End
   Begin VB.ComboBox cboKind 
      Height          =   315
      Left            =   4560
      Text            =   "Kind"
      Top             =   1200
      Width           =   1455
   End
   Begin VB.PictureBox picBox 
      BackColor       =   &H00C0E0FF&
      Height          =   975
      Left            =   120
      ScaleHeight     =   915
      ScaleWidth      =   1395
      Top             =   1920
      Width           =   1455
      Begin VB.Label lblInside 
         BackStyle       =   0  'Transparent
         Caption         =   "Inside, and cut off where the box ends"
         Height          =   1255
         Left            =   120
         Top             =   120
         Width           =   2200
      End
   End
   Begin VB.Image imgFrame 
      BorderStyle     =   1  'Fixed Single
      Height          =   735
      Left            =   1800
      Top             =   1920
      Width           =   735
   End
   Begin VB.Shape shpRound 
      BackColor       =   &H0000FFFF&
      BackStyle       =   1  'Opaque
      BorderWidth     =   2
      Height          =   735
      Left            =   2760
      Shape           =   4  'Rounded Rectangle
      Top             =   1920
      Width           =   1095
   End
   Begin VB.Shape shpOval 
      FillColor       =   &H00FF0000&
      FillStyle       =   5  'Downward Diagonal
      Height          =   735
      Left            =   4080
      Shape           =   2  'Oval
      Top             =   1920
      Width           =   1095
   End
   Begin VB.Line linUnder 
      BorderColor     =   &H000000FF&
      X1              =   120
      X2              =   6000
      Y1              =   3120
      Y2              =   3000
   End
   Begin VB.HScrollBar scrAcross 
      Height          =   255
      Left            =   120
      Max             =   100
      Top             =   3240
      Value           =   50
      Width           =   2175
   End
   Begin VB.VScrollBar scrDown 
      Height          =   1335
      Left            =   5760
      Top             =   1680
      Width           =   255
   End
   Begin VB.Timer tmrClock 
      Left            =   2520
      Top             =   3240
   End
   Begin VB.Label lblTitle 
      Alignment       =   2  'Center
      BorderStyle     =   1  'Fixed Single
      Caption         =   "A && &B"
      BeginProperty Font 
         Name            =   "Arial"
         Size            =   12
         Charset         =   0
         Weight          =   700
         Underline       =   0   'False
         Italic          =   -1  'True
         Strikethrough   =   0   'False
      EndProperty
      ForeColor       =   &H00FF0000&
      Height          =   375
      Left            =   3120
      Top             =   3240
      Width           =   1455
   End
   Begin VB.Label lblHidden 
      Caption         =   "Invisible"
      Height          =   255
      Left            =   4680
      Top             =   3240
      Visible         =   0   'False
      Width           =   975
   End
   Begin VB.FileListBox filFiles 
      Height          =   675
      Left            =   120
      Top             =   3720
      Width           =   1455
   End
   Begin VB.DriveListBox drvDrive 
      Height          =   315
      Left            =   1680
      Top             =   3840
      Width           =   1455
   End
   Begin Their.Gauge gauOther 
      Height          =   675
      Left            =   3240
      Top             =   3720
      Width           =   1335
   End
   Begin VB.CommandButton cmdOK 
      Caption         =   "&OK"
      Default         =   -1  'True
      Height          =   375
      Left            =   4800
      TabIndex        =   0
      Top             =   3720
      Width           =   1215
   End
   Begin VB.CommandButton cmdOff 
      Caption         =   "&Disabled"
      Enabled         =   0   'False
      Height          =   375
      Left            =   4800
      Top             =   4200
      Width           =   1215
   End
)";

} // namespace

using FormDesigners = test::DesignerDesktop;

TEST_F(FormDesigners, LookLikeTheirPictures) {
    openForm(kShowcase);
    clickOn("cmdOK");
    properties().table().edit(valueCell("BackColor"));
    for (const auto& [theme, name] :
         {std::pair(workbench::Theme::Light, "light"), std::pair(workbench::Theme::Dark, "dark")}) {
        window().setTheme(theme);
        settle();
        EXPECT_TRUE(window().grab().save(QString(FERNWICK_BINARY_DIR "/designer-%1.png").arg(name)));
    }
}

TEST_F(FormDesigners, OfTheSamplesLookLikeTheirPictures) {
    for (const auto& [project, form] : {std::pair("TipCalculator", "frmTip"), std::pair("AddressBook", "frmPerson"),
                                        std::pair("AddressBook", "frmList"), std::pair("HelloWorld", "frmHello")}) {
        if (!std::filesystem::exists(folder / project)) openSample(project);
        design(form);
        EXPECT_TRUE(canvas().grab().save(QString(FERNWICK_BINARY_DIR "/designer-%1.png").arg(form)));
    }
}

TEST_F(FormDesigners, OfDeviceControlsLookLikeTheirPicture) {
    openForm("");
    int number = 0;
    for (const auto& name : bench->host().options().controlClassNames()) {
        const auto added = component("frmMain")->Designer()->VBControls()->Add(name);
        added->Properties()->Item("Left")->Value(std::int32_t{120 + number % 4 * 1500});
        added->Properties()->Item("Top")->Value(std::int32_t{120 + number / 4 * 840});
        ++number;
    }
    control("QLTabStrip1")->Properties()->Item("Tabs")->Value(std::string("One|Two"));
    control("QLLine1")->Properties()->Item("X1")->Value(std::int32_t{3120});
    control("QLLine1")->Properties()->Item("X2")->Value(std::int32_t{4200});
    control("QLLine1")->Properties()->Item("Y1")->Value(std::int32_t{2500});
    control("QLLine1")->Properties()->Item("Y2")->Value(std::int32_t{2580});
    settle();
    for (const auto& drawn : view().picture().controls) EXPECT_NE(drawn.look.kind, workbench::ControlKind::Other);
    EXPECT_TRUE(canvas().grab().save(FERNWICK_BINARY_DIR "/designer-devices.png"));
}

// ---- opening and closing --------------------------------------------------------------------------------------------

TEST_F(FormDesigners, OpenByADoubleClickInTheExplorer) {
    openSample("AddressBook");
    EXPECT_TRUE(desk().forms().views().empty());
    EXPECT_FALSE(component("frmPerson")->HasOpenDesigner());
    auto& tree = window().explorer();
    const auto entry = tree.findItems("frmPerson", Qt::MatchStartsWith | Qt::MatchRecursive).front();
    QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, tree.visualItemRect(entry).center());
    QTest::mouseDClick(tree.viewport(), Qt::LeftButton, {}, tree.visualItemRect(entry).center());
    EXPECT_EQ(window().code().tabText(0), "frmPerson (Form)");
    EXPECT_TRUE(component("frmPerson")->HasOpenDesigner());
    EXPECT_FALSE(component("frmPerson")->IsDirty());
    EXPECT_FALSE(component("frmList")->HasOpenDesigner());
}

TEST_F(FormDesigners, NotifyAddInsOnceWhenActivated) {
    openSample("AddressBook");
    std::vector<std::string> notified;
    const auto project = bench->host().ActiveVBProject();
    const auto events = bench->host().Events()->VBComponentsEvents(project);
    const auto selected =
        events->ItemSelected.connect([&](auto one) { notified.push_back("selected " + one->Name()); });
    const auto activated =
        events->ItemActivated.connect([&](auto one) { notified.push_back("activated " + one->Name()); });
    design("frmPerson");
    EXPECT_THAT(notified, ElementsAre("selected frmPerson", "activated frmPerson"));
    design("frmList");
    notified.clear();
    window().code().setCurrentIndex(0);
    EXPECT_THAT(notified, ElementsAre("selected frmPerson", "activated frmPerson"));
    clickOn("btnOK");
    EXPECT_EQ(notified.size(), 2u);
}

TEST_F(FormDesigners, CloseWithTheirTab) {
    openForm(kShowcase);
    Q_EMIT window().code().tabCloseRequested(0);
    settle();
    EXPECT_EQ(window().code().count(), 0);
    EXPECT_FALSE(component("frmMain")->HasOpenDesigner());
    design("frmMain");
    EXPECT_EQ(window().code().count(), 1);
}

TEST_F(FormDesigners, CloseWithTheirProject) {
    openForm(kShowcase);
    clickOn("cmdOK");
    bench->host().VBProjects()->Remove(bench->host().ActiveVBProject());
    settle();
    EXPECT_EQ(window().code().count(), 0);
    EXPECT_EQ(properties().rows().rowCount(), 0);
}

TEST_F(FormDesigners, SurviveASaveThatClosesTheDesigner) {
    openForm(kShowcase);
    clickOn("cmdOK");
    const auto* const before = &view();
    component("frmMain")->DesignerWindow()->Close();
    component("frmMain")->DesignerWindow()->Visible(true);
    settle();
    EXPECT_EQ(&view(), before);
    EXPECT_EQ(selected(), "cmdOK");
}

TEST_F(FormDesigners, SwitchToTheirCodeAndBackByKeys) {
    openForm(kShowcase);
    ASSERT_EQ(menuItem("&View", "&Code")->shortcut(), QKeySequence("F7"));
    ASSERT_EQ(menuItem("&View", "O&bject")->shortcut(), QKeySequence("Shift+F7"));
    menuItem("&View", "O&bject")->trigger();
    EXPECT_TRUE(window().code().current());
    menuItem("&View", "O&bject")->trigger();
    EXPECT_TRUE(desk().forms().current());
    menuItem("&View", "&Code")->trigger();
    menuItem("&View", "&Code")->trigger();
    EXPECT_TRUE(window().code().current());
    EXPECT_EQ(window().code().count(), 2);
}

TEST_F(FormDesigners, AFormWithoutADescriptionOpensItsCode) {
    bench->open(
        test::SampleProject("Bare")
            .member("Form=frmBare.frm", "frmBare.frm", "VERSION 5.00\r\nAttribute VB_Name = \"frmBare\"\r\n' code\r\n")
            .writeTo(folder));
    desk().open(component("frmBare"));
    EXPECT_TRUE(desk().forms().views().empty());
    ASSERT_TRUE(window().code().current());
    EXPECT_EQ(window().code().current()->component(), component("frmBare"));
}

TEST_F(FormDesigners, ANewFormOpensItsDesigner) {
    openForm(kShowcase);
    menuItem("&Project", "Add &Form")->trigger();
    settle();
    ASSERT_TRUE(desk().forms().current());
    EXPECT_EQ(view().component()->Name(), "Form1");
    EXPECT_EQ(shown("Caption"), "Form1");
}

// ---- selecting ------------------------------------------------------------------------------------------------------

TEST_F(FormDesigners, SelectTheClickedControlAndShowItsProperties) {
    openForm(kShowcase);
    EXPECT_EQ(selected(), "");
    EXPECT_EQ(shown("(Name)"), "frmMain");
    for (const std::string name : {"cmdOK", "chkBold", "lblInside", "tmrClock", "linUnder", "gauOther"}) {
        clickOn(name);
        EXPECT_EQ(selected(), name);
        EXPECT_EQ(shown("(Name)").toStdString(), name);
    }
    QTest::mouseClick(&canvas(), Qt::LeftButton, {}, pointOn({415, 415}));
    EXPECT_EQ(selected(), "");
    EXPECT_EQ(shown("(Name)"), "frmMain");
}

TEST_F(FormDesigners, SelectControlsByKeys) {
    openForm(R"(   Begin VB.TextBox txtB 
      Height          =   300
      Left            =   1500
      TabIndex        =   1
      Top             =   120
      Width           =   900
   End
   Begin VB.TextBox txtA 
      Height          =   300
      Left            =   120
      TabIndex        =   0
      Top             =   120
      Width           =   900
   End
   Begin VB.TextBox txtC 
      Height          =   300
      Left            =   120
      TabIndex        =   2
      Top             =   900
      Width           =   900
   End
)");
    std::vector<std::string> visited;
    for (int i = 0; i < 4; ++i) {
        key(Qt::Key_Tab);
        visited.push_back(selected());
    }
    EXPECT_THAT(visited, ElementsAre("txtA", "txtB", "txtC", "txtA"));
    key(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(selected(), "txtC");
    key(Qt::Key_Up);
    EXPECT_EQ(selected(), "txtA");
    key(Qt::Key_Right);
    EXPECT_EQ(selected(), "txtB");
    key(Qt::Key_Escape);
    EXPECT_EQ(selected(), "");
}

TEST_F(FormDesigners, SelectTheTopmostControl) {
    openForm(R"(   Begin VB.CommandButton cmdFront 
      Height          =   600
      Left            =   120
      Top             =   120
      Width           =   1200
   End
   Begin VB.CommandButton cmdBack 
      Height          =   600
      Left            =   120
      Top             =   120
      Width           =   1200
   End
   Begin VB.Label lblDrawn 
      Height          =   600
      Left            =   120
      Top             =   120
      Width           =   1200
   End
)");
    clickOn("cmdBack");
    EXPECT_EQ(selected(), "cmdFront");
    EXPECT_EQ(view().picture().controls.front().name, "lblDrawn"); // below controls that are windows
}

// ---- editing --------------------------------------------------------------------------------------------------------

TEST_F(FormDesigners, MoveByTheGridWithControlAndArrows) {
    openForm(kShowcase);
    clickOn("cmdOK");
    key(Qt::Key_Right, Qt::ControlModifier);
    key(Qt::Key_Right, Qt::ControlModifier);
    EXPECT_EQ(difference(original, saved("frmMain")),
              "-      Left            =   4800\n+      Left            =   5040\n");
}

TEST_F(FormDesigners, SizeByTheGridWithShiftAndArrows) {
    openForm(kShowcase);
    clickOn("cmdOff");
    key(Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_TRUE(component("frmMain")->IsDirty());
    EXPECT_EQ(difference(original, saved("frmMain")),
              "-      Height          =   375\n+      Height          =   495\n");
    clickOn("tmrClock");
    const auto before = saved("frmMain");
    key(Qt::Key_Down, Qt::ShiftModifier); // has no size
    EXPECT_EQ(saved("frmMain"), before);
}

TEST_F(FormDesigners, MoveByTheMouseOntoTheGrid) {
    openForm(kShowcase);
    drag(middleOf("imgFrame"), {13, 3}); // from 120, 128
    EXPECT_EQ(valueOf("imgFrame", "Left"), "2040");
    EXPECT_EQ(valueOf("imgFrame", "Top"), "1920");
    EXPECT_EQ(selected(), "imgFrame");
}

TEST_F(FormDesigners, SmallMouseMovesMoveNothing) {
    openForm(kShowcase);
    drag(middleOf("txtName"), {1, 1});
    EXPECT_FALSE(component("frmMain")->IsDirty());
}

TEST_F(FormDesigners, ControlsInAContainerSnapToItsGridInItsUnits) {
    openForm(R"(   Begin VB.PictureBox picBox 
      Height          =   1500
      Left            =   125
      ScaleMode       =   3  'Pixel
      Top             =   125
      Width           =   1500
      Begin VB.CommandButton cmdIn 
         Height          =   20
         Left            =   3
         Top             =   3
         Width           =   40
      End
   End
)");
    drag(middleOf("cmdIn"), {14, 0});
    EXPECT_EQ(difference(original, saved("frmMain")),
              "-         Left            =   3\n-         Top             =   3\n"
              "+         Left            =   16\n+         Top             =   0\n");
}

TEST_F(FormDesigners, AreSizedByTheirGrips) {
    openForm(kShowcase);
    clickOn("txtName");
    const auto corner = pointOn(placeOf("txtName").bottomRight());
    drag(corner, {-16, 22});
    EXPECT_EQ(valueOf("txtName", "Width"), "1560"); // its right edge on the grid: 4080
    EXPECT_EQ(valueOf("txtName", "Height"), "600");
    EXPECT_EQ(valueOf("txtName", "Left"), "2520");
    const auto left = pointOn({placeOf("txtName").left(), placeOf("txtName").center().y()});
    drag(left, {500, 0}); // beyond its other edge
    EXPECT_EQ(valueOf("txtName", "Width"), "0");
}

TEST_F(FormDesigners, ALineIsDraggedByItsEnds) {
    openForm(kShowcase);
    clickOn("linUnder");
    drag(pointOn(placeOf("linUnder").topLeft()), {16, -24});
    EXPECT_EQ(valueOf("linUnder", "X1"), "360");
    EXPECT_EQ(valueOf("linUnder", "Y1"), "2760");
    EXPECT_EQ(valueOf("linUnder", "X2"), "6000");
}

TEST_F(FormDesigners, TheFormIsSizedByItsGrips) {
    openForm("");
    EXPECT_EQ(view().picture().inner, QSizeF(416, 416));
    drag(pointOn({416 + 6, 416 + 6}), {80, 40});
    EXPECT_EQ(difference(original, saved("frmMain")),
              "-   ClientHeight    =   6240\n-   ClientLeft      =   60\n-   ClientTop       =   345\n"
              "-   ClientWidth     =   6240\n-   ScaleHeight     =   6240\n-   ScaleWidth      =   6240\n"
              "+   ClientHeight    =   6840\n+   ClientLeft      =   60\n+   ClientTop       =   345\n"
              "+   ClientWidth     =   7440\n+   ScaleHeight     =   6840\n+   ScaleWidth      =   7440\n");
}

TEST_F(FormDesigners, RemoveWithTheDeleteKeyAndNotifyAddIns) {
    openForm(kShowcase);
    int removed = 0;
    const auto form = component("frmMain");
    const auto events = bench->host().Events()->VBControlsEvents(bench->host().ActiveVBProject(), form->Designer());
    const auto sink = events->ItemRemoved.connect([&](auto) { ++removed; });
    clickOn("gauOther");
    key(Qt::Key_Delete);
    EXPECT_EQ(removed, 1);
    EXPECT_EQ(selected(), "");
    settle();
    EXPECT_EQ(difference(original, saved("frmMain")),
              "-   Begin Their.Gauge gauOther \n-      Height          =   675\n-      Left            =   3240\n"
              "-      Top             =   3720\n-      Width           =   1335\n-   End\n");
    key(Qt::Key_Delete); // the form itself stays
    EXPECT_TRUE(desk().forms().current());
}

TEST_F(FormDesigners, UndoChanges) {
    openForm(kShowcase);
    clickOn("cmdOK");
    key(Qt::Key_Right, Qt::ControlModifier);
    key(Qt::Key_Down, Qt::ShiftModifier);
    type("Caption", "Fine");
    type("Cancel", "True");
    for (int i = 0; i < 4; ++i) undo();
    EXPECT_EQ(saved("frmMain"), original);
    undo();
    EXPECT_EQ(saved("frmMain"), original);
}

TEST_F(FormDesigners, UndoRestoresAControlWithItsContents) {
    openForm(kShowcase);
    QTest::mouseClick(&canvas(), Qt::LeftButton, {}, pointOn(placeOf("fraChoice").topLeft() + QPointF(3, 3)));
    key(Qt::Key_Right, Qt::ControlModifier);
    key(Qt::Key_Delete);
    EXPECT_FALSE(view().picture().find(control("txtName")) == nullptr);
    EXPECT_EQ(view().picture().controls.size(), 24u - 4);
    undo();
    EXPECT_EQ(view().picture().controls.size(), 24u);
    undo();
    EXPECT_EQ(saved("frmMain"), original);
}

TEST_F(FormDesigners, UndoSkipsControlsThatAnAddInRemoved) {
    openForm(kShowcase);
    clickOn("cmdOff");
    key(Qt::Key_Right, Qt::ControlModifier);
    clickOn("cmdOK");
    key(Qt::Key_Right, Qt::ControlModifier);
    component("frmMain")->Designer()->VBControls()->Remove(control("cmdOK"));
    undo();
    EXPECT_EQ(valueOf("cmdOff", "Left"), "4800");
}

TEST_F(FormDesigners, ShowChangesByOthers) {
    openForm(kShowcase);
    control("cmdOK")->Properties()->Item("Left")->Value(std::int32_t{120});
    component("frmMain")->Properties()->Item("Caption")->Value(std::string("Elsewhere"));
    component("frmMain")->Designer()->VBControls()->Add("VB.Label");
    settle();
    EXPECT_EQ(placeOf("cmdOK").left(), 8);
    EXPECT_EQ(view().picture().caption, "Elsewhere");
    EXPECT_TRUE(view().picture().find(control("Label1")));
    EXPECT_EQ(window().code().tabText(0), "frmMain (Form) *");
}

TEST_F(FormDesigners, OfDevicesUseTheUnitsOfTheirForm) {
    openSample("AddressBook");
    const auto before = folder.read("AddressBook/frmPerson.frm");
    design("frmPerson");
    EXPECT_EQ(placeOf("btnOK"), QRectF(4, 136, 60, 18));
    clickOn("btnOK");
    key(Qt::Key_Right, Qt::ControlModifier);
    EXPECT_EQ(difference(before, saved("frmPerson")), "-      Left            =   4\n+      Left            =   12\n");
}

// ---- code -----------------------------------------------------------------------------------------------------------

TEST_F(FormDesigners, ADoubleClickAddsTheHandler) {
    openForm(kShowcase, "Option Explicit\r\n");
    doubleClickOn("cmdOK");
    design("frmMain");
    doubleClickOn("cmdOK"); // it is there now
    const auto module = component("frmMain")->CodeModule();
    EXPECT_EQ(module->Lines(1, module->CountOfLines()),
              "Option Explicit\r\n\r\nPrivate Sub cmdOK_Click()\r\n\r\nEnd Sub");
    int line = 0, column = 0, endLine = 0, endColumn = 0;
    module->CodePane()->GetSelection(line, column, endLine, endColumn);
    EXPECT_EQ(line, 4);
    EXPECT_TRUE(window().code().current());
}

TEST_F(FormDesigners, HandlersHaveTheParametersOfTheirEvents) {
    openForm(kShowcase);
    for (const auto* name : {"optSize", "fraChoice", "tmrClock", "txtName"}) {
        design("frmMain");
        QTest::mouseDClick(&canvas(), Qt::LeftButton, {}, pointOn(placeOf(name).topLeft() + QPointF(3, 3)));
    }
    design("frmMain");
    QTest::mouseDClick(&canvas(), Qt::LeftButton, {}, pointOn({415, 415}));
    const auto module = component("frmMain")->CodeModule();
    std::vector<std::string> subs;
    for (const auto& member : module->Members()) subs.push_back(module->Lines(member.CodeLocation, 1));
    EXPECT_THAT(subs, testing::UnorderedElementsAre(
                          "Private Sub optSize_Click(Index As Integer)",
                          "Private Sub fraChoice_DragDrop(Source As Control, X As Single, Y As Single)",
                          "Private Sub tmrClock_Timer()", "Private Sub txtName_Change()", "Private Sub Form_Load()"));
}

TEST_F(FormDesigners, AControlWithoutEventsOpensTheCode) {
    openForm(kShowcase, "' code\r\n");
    doubleClickOn("linUnder");
    ASSERT_TRUE(window().code().current());
    EXPECT_EQ(component("frmMain")->CodeModule()->CountOfLines(), 1);
}

TEST_F(FormDesigners, MenuItemsOpenTheirHandlers) {
    openForm(kShowcase);
    const auto bar = workbench::menuPlaces(view().picture());
    ASSERT_EQ(bar.size(), 2u);
    const auto corner = canvas().onCanvas(QRectF()).topLeft() -
                        QPointF(view().picture().border().left(), view().picture().border().top());
    QTest::mouseClick(&canvas(), Qt::LeftButton, {}, (corner + bar[0].second.center()).toPoint());
    EXPECT_EQ(selected(), "mnuFile");
    EXPECT_EQ(shown("Caption"), "&File");
    auto* const menu = canvas().findChild<QMenu*>();
    ASSERT_TRUE(menu);
    ASSERT_EQ(menu->actions().size(), 3);
    menu->actions().front()->trigger();
    menu->close();
    EXPECT_THAT(component("frmMain")->CodeModule()->Lines(1, 1), "Private Sub mnuOpen_Click()");
}

// ---- the toolbox ----------------------------------------------------------------------------------------------------

TEST_F(FormDesigners, TheToolboxOffersTheControlsOfTheProject) {
    openForm("");
    const auto offers = [&](const char* name) { return !desk().toolbox().findItems(name, Qt::MatchExactly).isEmpty(); };
    EXPECT_TRUE(offers("CommandButton"));
    EXPECT_FALSE(offers("QLButton"));
    openSample("AddressBook");
    design("frmPerson");
    EXPECT_TRUE(offers("CommandButton"));
    EXPECT_TRUE(offers("QLButton"));
    EXPECT_FALSE(offers("Menu"));
}

TEST_F(FormDesigners, TheToolboxHasTheControlsOfTheLanguageInItsOrder) {
    openForm("");
    auto& tools = desk().toolbox();
    QStringList all;
    for (int row = 0; row < tools.count(); ++row) all << tools.item(row)->text();
    EXPECT_EQ(all, (QStringList{"Pointer",       "Visual Basic controls",
                                "PictureBox",    "Label",
                                "TextBox",       "Frame",
                                "CommandButton", "CheckBox",
                                "OptionButton",  "ComboBox",
                                "ListBox",       "HScrollBar",
                                "VScrollBar",    "Timer",
                                "DriveListBox",  "DirListBox",
                                "FileListBox",   "Shape",
                                "Line",          "Image"}));
    for (int row = 2; row < tools.count(); ++row) {
        tools.setCurrentRow(row);
        EXPECT_EQ(tools.tool(), "VB." + all[row].toStdString());
    }
}

TEST_F(FormDesigners, TheToolboxSaysWhichControlsDoNotStay) {
    const auto titles = [this] {
        std::vector<std::string> all;
        for (int row = 1; row < desk().toolbox().count(); ++row)
            if (desk().toolbox().item(row)->flags() == Qt::NoItemFlags)
                all.push_back(desk().toolbox().item(row)->text().toStdString());
        return all;
    };
    openForm("");
    EXPECT_THAT(titles(), testing::ElementsAre("Visual Basic controls"));
    openSample("AddressBook");
    design("frmPerson");
    EXPECT_THAT(titles(), testing::ElementsAre("Device controls", "Visual Basic controls (removed by Fernwick)"));
    QTest::keyClick(&desk().toolbox(), Qt::Key_Down); // over the title
    EXPECT_EQ(desk().toolbox().tool(), "TavletsCtl.QLAlarm");
}

TEST_F(FormDesigners, AToolDrawsAControlWithTheMouse) {
    openForm("");
    pick("CommandButton");
    drag(pointOn({17, 18}), {100, 45});
    EXPECT_EQ(selected(), "Command1");
    EXPECT_EQ(placeOf("Command1"), QRectF(16, 16, 104, 48));
    EXPECT_EQ(valueOf("Command1", "Caption"), "Command1");
    EXPECT_EQ(desk().toolbox().tool(), "");
    EXPECT_EQ(shown("(Name)"), "Command1");
    undo();
    EXPECT_EQ(saved("frmMain"), original);
}

TEST_F(FormDesigners, AToolDrawsIntoTheTopmostContainer) {
    openForm(kShowcase);
    pick("TextBox");
    drag(pointOn(placeOf("picBox").topLeft() + QPointF(2 + 20, 2 + 20)), {48, 24});
    EXPECT_EQ(control("picBox")->ContainedVBControls().size(), 2u);
    EXPECT_TRUE(placeOf("picBox").contains(placeOf("Text1")));
}

TEST_F(FormDesigners, AClickWithAToolAddsTheUsualSize) {
    openForm("");
    pick("Timer");
    QTest::mouseClick(&canvas(), Qt::LeftButton, {}, pointOn({40, 40}));
    EXPECT_EQ(valueOf("Timer1", "Left"), "600");
    pick("Label");
    QTest::mouseClick(&canvas(), Qt::LeftButton, {}, pointOn({80, 160}));
    EXPECT_EQ(placeOf("Label1"), QRectF(80, 160, 81, 17));
}

TEST_F(FormDesigners, ADoubleClickInTheToolboxAddsAtOnce) {
    openSample("AddressBook");
    design("frmPerson");
    Q_EMIT desk().toolbox().itemActivated(desk().toolbox().findItems("QLCheckBox", Qt::MatchExactly).front());
    EXPECT_EQ(selected(), "QLCheckBox1");
    EXPECT_EQ(placeOf("QLCheckBox1").topLeft(), QPointF(80, 80));
    EXPECT_EQ(view().picture().find(control("QLCheckBox1"))->look.text, "CheckBox");
}

TEST_F(FormDesigners, EscapeCancelsTheTool) {
    openForm("");
    pick("Frame");
    key(Qt::Key_Escape);
    EXPECT_EQ(desk().toolbox().tool(), "");
    drag(pointOn({16, 16}), {100, 45});
    EXPECT_TRUE(view().picture().controls.empty());
}

TEST_F(FormDesigners, AddInsAreNotifiedOfNewControls) {
    openForm("");
    std::vector<std::string> added;
    const auto events =
        bench->host().Events()->VBControlsEvents(bench->host().ActiveVBProject(), component("frmMain")->Designer());
    const auto sink = events->ItemAdded.connect([&](auto one) { added.push_back(one->ProgId()); });
    pick("Shape");
    drag(pointOn({16, 16}), {100, 45});
    EXPECT_THAT(added, ElementsAre("VB.Shape"));
}

TEST_F(FormDesigners, AControlThatAnAddInRemovesAtOnceIsNotSelected) {
    openForm("");
    const auto controls = component("frmMain")->Designer()->VBControls();
    const auto events =
        bench->host().Events()->VBControlsEvents(bench->host().ActiveVBProject(), component("frmMain")->Designer());
    const auto sink = events->ItemAdded.connect([&](auto one) { controls->Remove(one); });
    pick("Shape");
    drag(pointOn({16, 16}), {100, 45});
    EXPECT_EQ(selected(), "");
    EXPECT_EQ(saved("frmMain"), original);
}

TEST_F(FormDesigners, OfFernwickProjectsRefuseControlsThatDevicesLack) {
    bench->connect();
    openSample("AddressBook");
    design("frmPerson");
    const auto before = view().picture().controls.size();
    test::whenShown([](QDialog& box) { box.accept(); });
    pick("CommandButton");
    drag(pointOn({16, 16}), {100, 45});
    EXPECT_EQ(view().picture().controls.size(), before);
    pick("QLButton");
    drag(pointOn({16, 16}), {100, 45});
    EXPECT_EQ(view().picture().controls.size(), before + 1);
}

/// An add-in may show a box during the edit, and the project may be closed meanwhile.
TEST_F(FormDesigners, AFormMayBeClosedWhileItIsEdited) {
    openForm(kShowcase);
    const auto form = component("frmMain");
    const auto events = bench->host().Events()->VBControlsEvents(bench->host().ActiveVBProject(), form->Designer());
    const auto sink = events->ItemRemoved.connect([&](auto) {
        form->Collection()->Remove(form);
        settle();
    });
    clickOn("cmdOK");
    key(Qt::Key_Delete);
    settle();
    EXPECT_EQ(window().code().count(), 0);
}

// ---- drawing --------------------------------------------------------------------------------------------------------

TEST_F(FormDesigners, DrawControlsInTheirColoursAndPlaces) {
    openForm(kShowcase);
    const auto image = canvas().grab().toImage();
    const auto at = [&](double x, double y) { return image.pixelColor(pointOn({x, y})); };
    EXPECT_EQ(at(90, 180), QColor("#ffe0c0"));    // the picture box
    EXPECT_EQ(at(220, 150), QColor(255, 255, 0)); // the round shape
    EXPECT_EQ(at(280, 25), QColor(Qt::white));    // a text box
    EXPECT_EQ(at(3, 3), QColor("#d4d0c8"));       // the form
    EXPECT_EQ(at(0, 0), QColor(Qt::black));       // a dot of its grid
    EXPECT_EQ(at(8, 0), QColor(Qt::black));
}

TEST_F(FormDesigners, FontsOfPalmsHaveTheirSize) {
    openSample("AddressBook");
    design("frmPerson");
    EXPECT_EQ(view().picture().find(control("btnOK"))->look.font.pixelSize(), 12); // 12 points, 72 an inch
    openSample("TipCalculator");
    design("frmTip");
    EXPECT_EQ(view().picture().find(control("lblAmount"))->look.font.pixelSize(), 11); // 8 points, 96 an inch
}

TEST_F(FormDesigners, DimInvisibleControls) {
    const auto form = [](const char* visible) {
        return std::string(
                   "   Begin VB.TextBox txtSeen \n      Height          =   900\n      Left            =   120\n"
                   "      Top             =   120\n      Visible         =   ") +
               visible + "\n      Width           =   900\n   End\n";
    };
    openForm(form("0   'False"));
    const auto shade = canvas().grab().toImage().pixelColor(pointOn({30, 30}));
    EXPECT_LT(shade.lightness(), 250);
    control("txtSeen")->Properties()->Item("Visible")->Value(true);
    settle();
    EXPECT_EQ(canvas().grab().toImage().pixelColor(pointOn({30, 30})), QColor(Qt::white));
}

TEST_F(FormDesigners, ClipControlsToTheirContainer) {
    openForm(kShowcase);
    const auto* box = view().picture().find(control("picBox"));
    const auto* inside = view().picture().find(control("lblInside"));
    EXPECT_EQ(inside->place.topLeft(), box->place.topLeft() + QPointF(10, 10)); // a border of 2 pixels
    EXPECT_TRUE(box->place.contains(inside->clip));
    EXPECT_EQ(view().picture().at(box->place.topRight() + QPointF(9, 20)), nullptr);
}

TEST_F(FormDesigners, DrawPicturesFromTheResourceFile) {
    QImage picture(8, 8, QImage::Format_RGB32);
    picture.fill(QColor(10, 200, 30));
    QByteArray bytes;
    QBuffer buffer(&bytes);
    picture.save(&buffer, "BMP");
    const auto number = [](std::size_t n) {
        return std::string{char(n & 0xff), char(n >> 8 & 0xff), char(n >> 16 & 0xff), char(n >> 24 & 0xff)};
    };
    const std::size_t size = std::size_t(bytes.size());
    folder.write("frmMain.frx", number(size + 8) + std::string("lt\0\0", 4) + number(size) + bytes.toStdString());
    openForm("   Begin VB.Image imgLogo \n      Height          =   600\n      Left            =   120\n      Picture  "
             "       "
             "=   \"frmMain.frx\":0000\n      Stretch         =   -1  'True\n      Top             =   120\n"
             "      Width           =   600\n   End\n");
    EXPECT_EQ(canvas().grab().toImage().pixelColor(pointOn({40, 40})), QColor(10, 200, 30));
    clickOn("imgLogo");
    EXPECT_EQ(shown("Picture"), "(Bitmap)");
}

TEST_F(FormDesigners, AreFastWithManyControls) {
    std::string lines;
    for (int i = 0; i < 500; ++i)
        lines += "   Begin VB.CommandButton cmd" + std::to_string(i) + " \n      Caption         =   \"" +
                 std::to_string(i) +
                 "\"\n      Height          =   255\n      Left            =   " + std::to_string(i % 20 * 300) +
                 "\n      Top             =   " + std::to_string(i / 20 * 255) +
                 "\n      Width           =   300\n   End\n";
    openForm(lines);
    QElapsedTimer time;
    time.start();
    view().select(control("cmd250"));
    for (int i = 0; i < 10; ++i) {
        key(Qt::Key_Right, Qt::ControlModifier);
        settle();
    }
    RecordProperty("millisecondsOfAMove", int(time.elapsed() / 10));
    EXPECT_LT(time.elapsed(), 30 * 1000); // with sanitizers on a busy machine; a second on a quiet one
    EXPECT_EQ(view().picture().controls.size(), 500u);
}

TEST_F(FormDesigners, AreDrawnAgainWhenTheirFileIsReloaded) {
    openForm(kShowcase);
    clickOn("cmdOK");
    auto text = original;
    const std::string name = "cmdOK";
    text.replace(text.find(name), name.size(), "cmdGo");
    folder.write("frmMain.frm", text);
    basic::cast<host::Component>(component("frmMain")).shared()->reread();
    settle();
    EXPECT_FALSE(view().selected());
    clickOn("cmdGo");
    EXPECT_EQ(selected(), "cmdGo");
    EXPECT_EQ(shown("Caption"), "&OK");
}
