// The properties window.
#include "tests/workbench/designer_desktop.h"
#include <QComboBox>
#include <QFontDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QScrollBar>
#include <algorithm>
#include <cstring>

using testing::ElementsAre;

namespace {

const std::string kInspected = R"(   BorderStyle     =   1  'Fixed Single
   Icon            =   "frmMain.frx":0000
   Begin VB.CommandButton cmdOK 
      Caption         =   "&OK"
      Height          =   375
      Left            =   120
      Top             =   120
      Width           =   1215
   End
   Begin VB.TextBox txtName 
      BackColor       =   &H00C0FFFF&
      Height          =   315
      Left            =   120
      Text            =   "Some text"
      Top             =   720
      Width           =   1215
   End
   Begin VB.OptionButton optSize 
      Height          =   315
      Index           =   3
      Left            =   120
      Top             =   1200
      Width           =   1215
   End
   Begin TavletsCtl.QLComboBox cboKind 
      Height          =   315
      Left            =   120
      Top             =   1680
      Width           =   1215
      _ExtentX        =   2143
   End
)";

} // namespace

class Properties : public test::DesignerDesktop {
protected:
    void select(const std::string& name) { view().select(name.empty() ? nullptr : control(name)); }
    /// Edits a value that is refused. Returns the text of the error box.
    std::string refusal(const QString& property, const QString& value) {
        return boxOf([&] { type(property, value); });
    }
    static std::string boxOf(const std::function<void()>& act) {
        std::string text;
        test::whenShown<QMessageBox>([&](QMessageBox& box) {
            text = box.text().toStdString();
            box.button(QMessageBox::Ok)->click();
        });
        act();
        QTest::qWait(50);
        return text;
    }
    void doubleClick(const QString& property) {
        auto& table = properties().table();
        table.scrollTo(valueCell(property));
        QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, table.visualRect(valueCell(property)).center());
        QTest::mouseDClick(table.viewport(), Qt::LeftButton, {}, table.visualRect(valueCell(property)).center());
        settle();
    }
    /// The list of a row's choices.
    QComboBox* listOf(const QString& property) {
        auto& table = properties().table();
        table.setCurrentIndex(valueCell(property));
        table.edit(valueCell(property));
        return table.viewport()->findChild<QComboBox*>();
    }
    static QStringList textsOf(const QComboBox& list) {
        QStringList texts;
        for (int i = 0; i < list.count(); ++i) texts << list.itemText(i);
        return texts;
    }
};

TEST_F(Properties, AreShownAsTheIdeShowsThem) {
    openForm(kInspected);
    EXPECT_EQ(properties().rows().index(0, 0).data(), "(Name)");
    EXPECT_EQ(shown("BorderStyle"), "1 - Fixed Single");
    EXPECT_EQ(shown("StartUpPosition"), "0 - Manual");
    EXPECT_EQ(shown("BackColor"), "&H8000000F&");
    EXPECT_FALSE(valueCell("BackColor").data(Qt::DecorationRole).isNull());
    EXPECT_EQ(shown("ControlBox"), "True");
    EXPECT_EQ(shown("Font"), "MS Sans Serif");
    EXPECT_EQ(shown("Icon"), "(None)"); // its file is missing
    EXPECT_EQ(shown("Width"), "6330");
    EXPECT_EQ(shown("ClientWidth"), "no such row");
    EXPECT_EQ(shown("ScaleMode"), "1 - Twip");
}

TEST_F(Properties, OfControlsShowEnumerationsAndHideInternals) {
    openForm(kInspected);
    select("cboKind");
    EXPECT_EQ(shown("Style"), "2 - qlDropDownList");
    EXPECT_EQ(shown("BackColor"), "&H00FFFFFF&");
    EXPECT_EQ(shown("FontName"), "QLPalm");
    EXPECT_EQ(shown("_ExtentX"), "no such row");
    EXPECT_EQ(shown("Index"), "");
    select("optSize");
    EXPECT_EQ(shown("Index"), "3");
}

TEST_F(Properties, AreListedAlphabetically) {
    openForm(kInspected);
    QStringList names;
    for (int row = 1; row < properties().rows().rowCount(); ++row)
        names << properties().rows().index(row, 0).data().toString();
    auto sorted = names;
    sorted.sort(Qt::CaseInsensitive);
    EXPECT_EQ(names, sorted);
    EXPECT_GT(names.size(), 30);
}

TEST_F(Properties, FollowTheSelectionAndChangeIt) {
    openForm(kInspected);
    EXPECT_EQ(textsOf(properties().objects()), (QStringList{"frmMain Form", "cmdOK CommandButton", "txtName TextBox",
                                                            "optSize(3) OptionButton", "cboKind QLComboBox"}));
    clickOn("txtName");
    EXPECT_EQ(properties().objects().currentText(), "txtName TextBox");
    properties().objects().setCurrentIndex(1);
    Q_EMIT properties().objects().activated(1);
    EXPECT_EQ(selected(), "cmdOK");
    EXPECT_EQ(shown("Caption"), "&OK");
}

TEST_F(Properties, KeepTheCurrentPropertyBetweenObjects) {
    openForm(kInspected);
    select("cmdOK");
    properties().table().setCurrentIndex(valueCell("Width"));
    select("txtName");
    EXPECT_EQ(properties().table().currentIndex(), valueCell("Width"));
}

// ---- editing --------------------------------------------------------------------------------------------------------

TEST_F(Properties, AnEditChangesOnlyItsLine) {
    openSample("TipCalculator");
    const auto before = folder.read("TipCalculator/frmTip.frm");
    design("frmTip");
    select("lblAmount");
    type("Caption", "Amount");
    EXPECT_EQ(difference(before, saved("frmTip")),
              "-      Caption         =   \"Bill\"\n+      Caption         =   \"Amount\"\n");
    type("Caption", "Bill");
    EXPECT_EQ(saved("frmTip"), before);
}

TEST_F(Properties, AnEditShowsOnTheFormAtOnce) {
    openForm(kInspected);
    select("txtName");
    type("Left", "600");
    EXPECT_EQ(placeOf("txtName").left(), 40);
    EXPECT_TRUE(component("frmMain")->IsDirty());
    EXPECT_EQ(selected(), "txtName");
}

TEST_F(Properties, AMoveOnTheFormShowsInItsRows) {
    openForm(kInspected);
    clickOn("cmdOK");
    key(Qt::Key_Down, Qt::ControlModifier);
    settle();
    EXPECT_EQ(shown("Top"), "240");
}

TEST_F(Properties, TheDefaultRemovesTheLine) {
    openForm(kInspected);
    select("cmdOK");
    type("ToolTipText", "Ends it");
    EXPECT_EQ(difference(original, saved("frmMain")), "+      ToolTipText     =   \"Ends it\"\n");
    type("ToolTipText", "");
    EXPECT_EQ(saved("frmMain"), original);
}

TEST_F(Properties, EnumerationsAreWrittenWithTheirName) {
    openForm(kInspected);
    auto* const list = listOf("BorderStyle");
    ASSERT_TRUE(list);
    EXPECT_EQ(textsOf(*list), (QStringList{"0 - None", "1 - Fixed Single", "2 - Sizable", "3 - Fixed Dialog",
                                           "4 - Fixed ToolWindow", "5 - Sizable ToolWindow"}));
    list->setCurrentIndex(3);
    Q_EMIT list->activated(3);
    settle();
    EXPECT_EQ(difference(original, saved("frmMain")),
              "-   BorderStyle     =   1  'Fixed Single\n+   BorderStyle     =   3  'Fixed Dialog\n");
}

TEST_F(Properties, ADoubleClickChoosesTheNextValue) {
    openForm(kInspected);
    select("cmdOK");
    doubleClick("Default");
    EXPECT_EQ(shown("Default"), "True");
    doubleClick("Default");
    EXPECT_EQ(shown("Default"), "False");
    doubleClick("DragMode");
    doubleClick("DragMode");
    EXPECT_EQ(shown("DragMode"), "0 - Manual");
    EXPECT_EQ(saved("frmMain"), original);
}

TEST_F(Properties, ColoursCanBeTyped) {
    openForm(kInspected);
    select("txtName");
    type("BackColor", "&h00ff00");
    EXPECT_EQ(difference(original, saved("frmMain")),
              "-      BackColor       =   &H00C0FFFF&\n+      BackColor       =   &H0000FF00&\n");
    EXPECT_EQ(view().picture().find(control("txtName"))->look.back, QColor(0, 255, 0));
}

TEST_F(Properties, EscapeKeepsTheValue) {
    openForm(kInspected);
    auto& table = properties().table();
    table.setCurrentIndex(valueCell("Caption"));
    table.edit(valueCell("Caption"));
    auto* const line = table.viewport()->findChild<QLineEdit*>();
    ASSERT_TRUE(line);
    QTest::keyClicks(line, "never");
    QTest::keyClick(line, Qt::Key_Escape);
    settle();
    EXPECT_EQ(shown("Caption"), "frmMain");
    EXPECT_FALSE(component("frmMain")->IsDirty());
}

TEST_F(Properties, PicturesCannotBeTyped) {
    openForm(kInspected);
    EXPECT_FALSE(valueCell("Icon").flags() & Qt::ItemIsEditable);
    EXPECT_TRUE(valueCell("Caption").flags() & Qt::ItemIsEditable);
}

TEST_F(Properties, AFontIsChosenInItsDialog) {
    openForm(kInspected);
    select("cmdOK");
    test::whenShown<QFontDialog>([](QFontDialog& dialog) {
        QFont font("DejaVu Serif");
        font.setPointSizeF(14);
        font.setBold(true);
        dialog.setCurrentFont(font);
        dialog.accept();
    });
    doubleClick("Font");
    EXPECT_EQ(shown("Font"), "DejaVu Serif");
    const auto look = view().picture().find(control("cmdOK"))->look;
    EXPECT_TRUE(look.font.bold());
    EXPECT_EQ(look.font.pixelSize(), 19);
    undo();
    settle();
    EXPECT_EQ(shown("Font"), "MS Sans Serif");
}

TEST_F(Properties, TheFontDialogBeginsWithTheFont) {
    struct Style {
        const char *name, *line;
        bool (QFont::*has)() const;
    };
    const std::vector<Style> styles{{"cmdBold", "Weight          =   700", &QFont::bold},
                                    {"cmdItalic", "Italic          =   -1  'True", &QFont::italic},
                                    {"cmdUnderline", "Underline       =   -1  'True", &QFont::underline},
                                    {"cmdStrike", "Strikethrough   =   -1  'True", &QFont::strikeOut}};
    std::string lines;
    for (const auto& style : styles)
        lines += std::string("   Begin VB.CommandButton ") + style.name +
                 " \n      BeginProperty Font \n         Name            =   \"DejaVu Sans\"\n"
                 "         Size            =   11.25\n         " +
                 style.line + "\n      EndProperty\n   End\n";
    openForm(lines);
    for (const auto& style : styles) {
        select(style.name);
        test::whenShown<QFontDialog>([&](QFontDialog& dialog) {
            const auto font = dialog.currentFont();
            EXPECT_NEAR(font.pointSizeF(), 11.25, 0.3);
            // the dialog begins with the first style of a family that has none called normal
            EXPECT_TRUE((font.*style.has)()) << style.name;
            for (const auto& other : styles)
                if (other.has != &QFont::italic) {
                    EXPECT_EQ((font.*other.has)(), &other == &style) << style.name << other.name;
                }
            dialog.reject();
        });
        doubleClick("Font");
        settle();
        EXPECT_FALSE(desk().stepToUndo());
    }
}

TEST_F(Properties, OfSeveralFontsOnlyWhatWasChangedIsWritten) {
    const auto font = [](const char* name, const char* size) {
        return std::string("      BeginProperty Font \n         Name            =   \"") + name +
               "\"\n         Size            =   " + size + "\n         Weight          =   400\n" +
               "      EndProperty\n";
    };
    openForm("   Begin VB.CommandButton cmdOne \n" + font("Courier New", "8.25") + "   End\n" +
             "   Begin VB.CommandButton cmdTwo \n" + font("No Such Font", "9.75") + "   End\n");
    view().select({control("cmdOne"), control("cmdTwo")});
    const auto choose = [this](const std::function<void(QFont&)>& change) {
        test::whenShown<QFontDialog>([&](QFontDialog& dialog) {
            auto chosen = dialog.currentFont();
            chosen.setStyleName({}); // which would win over bold
            change(chosen);
            dialog.setCurrentFont(chosen);
            dialog.accept();
        });
        doubleClick("Font");
        settle();
    };
    choose([](QFont&) {});
    EXPECT_FALSE(desk().stepToUndo());
    choose([](QFont& font) { font.setBold(true); });
    choose([](QFont& font) { font.setFamily("DejaVu Serif"); });
    auto expected = original;
    for (const auto& [before, after] : {std::pair("Courier New", "DejaVu Serif"),
                                        {"No Such Font", "DejaVu Serif"},
                                        {"   400", "   700"},
                                        {"   400", "   700"}})
        expected.replace(expected.find(before), std::strlen(before), after);
    EXPECT_EQ(saved("frmMain"), expected);
}

TEST_F(Properties, UndoingAPositionRestoresTheStartUpPosition) {
    openForm("   StartUpPosition =   2  'CenterScreen\n" + kInspected);
    const auto left = shown("Left");
    type("Left", "600");
    EXPECT_EQ(shown("StartUpPosition"), "0 - Manual");
    undo();
    settle();
    EXPECT_EQ(shown("Left"), left);
    EXPECT_EQ(shown("StartUpPosition"), "2 - CenterScreen");
}

TEST_F(Properties, OfAFormAreShownWithItsCodeToo) {
    openForm(kInspected);
    menuItem("&View", "&Code")->trigger();
    EXPECT_EQ(properties().objects().currentText(), "frmMain Form");
    Q_EMIT properties().objects().activated(2);
    EXPECT_EQ(shown("(Name)"), "txtName");
    type("Text", "Another");
    EXPECT_EQ(shown("Text"), "Another");
    EXPECT_EQ(properties().objects().currentText(), "txtName TextBox");
}

TEST_F(Properties, ShortcutsOfMenusAreChosenOrTyped) {
    openForm("   Begin VB.Menu mnuOne \n      Caption         =   \"One\"\n   End\n   Begin VB.Menu mnuTwo \n"
             "      Caption         =   \"Two\"\n      Shortcut        =   ^T\n   End\n");
    select("mnuTwo");
    EXPECT_EQ(shown("Shortcut"), "Ctrl+T");
    properties().rows().type(properties().rows().rowOf("Shortcut"), "{F5}");
    EXPECT_EQ(difference(original, saved("frmMain")),
              "-      Shortcut        =   ^T\n+      Shortcut        =   {F5}\n");
    auto* const list = listOf("Shortcut");
    ASSERT_TRUE(list);
    EXPECT_EQ(list->currentText(), "F5");
    list->setCurrentIndex(0);
    Q_EMIT list->activated(0);
    settle();
    EXPECT_EQ(shown("Shortcut"), "(None)");
    EXPECT_EQ(difference(original, saved("frmMain")), "-      Shortcut        =   ^T\n");
    const int row = properties().rows().rowOf("Shortcut");
    EXPECT_EQ(boxOf([&] { properties().rows().type(row, "F10"); }), "Invalid property value");
}

// ---- refusals -------------------------------------------------------------------------------------------------------

TEST_F(Properties, InvalidValuesAreRefused) {
    openForm(kInspected);
    select("cmdOK");
    EXPECT_EQ(refusal("Left", "here"), "Type mismatch");
    EXPECT_EQ(refusal("Width", "-5"), "Invalid property value");
    EXPECT_EQ(refusal("TabIndex", "99999999999"), "Overflow");
    EXPECT_EQ(refusal("BackColor", "&HZZ&"), "Invalid property value");
    EXPECT_EQ(shown("Left"), "120");
    EXPECT_EQ(shown("Width"), "1215");
    EXPECT_EQ(saved("frmMain"), original);
}

TEST_F(Properties, ATextThatTheFormsCodePageLacksIsRefused) {
    openForm(kInspected);
    select("cmdOK");
    const int row = properties().rows().rowOf("Caption");
    EXPECT_EQ(boxOf([&] { properties().rows().type(row, QString::fromUtf8("\xe6\x97\xa5")); }),
              "The text has a character that the code page of the project lacks.");
    EXPECT_EQ(shown("Caption"), "&OK");
}

TEST_F(Properties, NamesAreIdentifiersAndUnique) {
    openForm(kInspected);
    select("cmdOK");
    EXPECT_EQ(refusal("(Name)", "1st"), "'1st' is not a legal object name");
    EXPECT_EQ(refusal("(Name)", "TXTNAME"), "The name 'TXTNAME' is already in use");
    EXPECT_EQ(refusal("(Name)", "frmMain"), "The name 'frmMain' is already in use");
    EXPECT_EQ(saved("frmMain"), original);
    type("(Name)", "cmdFine");
    EXPECT_EQ(difference(original, saved("frmMain")),
              "-   Begin VB.CommandButton cmdOK \n+   Begin VB.CommandButton cmdFine \n");
    EXPECT_EQ(properties().objects().currentText(), "cmdFine CommandButton");
}

TEST_F(Properties, RenamingAFormChangesItsName) {
    openForm(kInspected);
    type("(Name)", "frmOther");
    EXPECT_EQ(component("frmOther")->Name(), "frmOther");
    EXPECT_EQ(window().code().tabText(0), "frmOther (Form) *");
    EXPECT_EQ(properties().objects().currentText(), "frmOther Form");
}

// ---- objects with only a name ---------------------------------------------------------------------------------------

TEST_F(Properties, ModulesClassesAndProjectsHaveOnlyAName) {
    openSample("AddressBook");
    component("clsPerson")->CodeModule()->CodePane()->Show();
    EXPECT_EQ(properties().rows().rowCount(), 1);
    EXPECT_EQ(properties().objects().currentText(), "clsPerson ClassModule");
    type("(Name)", "clsHuman");
    EXPECT_TRUE(component("clsHuman"));
    EXPECT_EQ(refusal("(Name)", "frmList"),
              "Name conflicts with existing module, project, or object library: 'frmList'");
    auto& tree = window().explorer();
    window().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
    tree.setFocus();
    tree.setCurrentItem(tree.topLevelItem(0));
    EXPECT_EQ(properties().objects().currentText(), "AddressBook Project");
    type("(Name)", "Addresses");
    EXPECT_EQ(bench->host().ActiveVBProject()->Name(), "Addresses");
}

TEST_F(Properties, AreEmptyWithoutAnOpenTab) {
    EXPECT_EQ(properties().rows().rowCount(), 0);
    EXPECT_EQ(properties().objects().count(), 0);
    ASSERT_TRUE(menuItem("&View", "Properties &Window"));
    EXPECT_EQ(menuItem("&View", "Properties &Window")->shortcut(), QKeySequence("F4"));
    window().propertiesDock().close();
    menuItem("&View", "Properties &Window")->trigger();
    EXPECT_TRUE(window().propertiesDock().isVisible());
}

TEST_F(Properties, ANarrowTableShowsNamesAndValues) {
    openForm(kInspected);
    select("cmdOK");
    auto& table = properties().table();
    for (const int width : {130, 600}) {
        window().resizeDocks({window().findChild<QDockWidget*>("propertiesDock")}, {width}, Qt::Horizontal);
        settle();
        EXPECT_EQ(table.horizontalScrollBar()->maximum(), 0) << table.width();
        EXPECT_GE(table.columnWidth(0), std::min(100, table.viewport()->width() / 2 - 1)) << table.width();
        EXPECT_GE(table.columnWidth(1), table.viewport()->width() / 2 - 1) << table.width();
    }
    window().resizeDocks({window().findChild<QDockWidget*>("propertiesDock")}, {130}, Qt::Horizontal);
    settle();
    EXPECT_LT(table.width(), 220);
}
