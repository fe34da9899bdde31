// Values that are chosen in windows of their own, and those of several controls.
#include "Apps/workbench/properties/colour_popup.h"
#include "Apps/workbench/properties/lines_popup.h"
#include "Host/files/resource_file.h"
#include "tests/workbench/designer_desktop.h"
#include <QApplication>
#include <QComboBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabBar>
#include <QTableWidget>

namespace {

const std::string kIcon("\0\0\1\0icon", 8);
const std::string kIconRecord = host::pictureRecord(kIcon, false);

const std::string kValues = R"(   Icon            =   "frmMain.frx":0000
   Begin VB.TextBox txtLines 
      Height          =   315
      Left            =   120
      MultiLine       =   -1  'True
      Top             =   720
      Width           =   1215
   End
   Begin VB.TextBox txtName 
      BackColor       =   &H00C0FFFF&
      Height          =   315
      Left            =   240
      Text            =   "Some text"
      Top             =   1200
      Width           =   1215
   End
   Begin VB.ListBox lstNames 
      Height          =   315
      Left            =   120
      Top             =   1680
      Width           =   1215
   End
)";

} // namespace

class PropertyValues : public test::DesignerDesktop {
protected:
    void openValues() {
        folder.write("frmMain.frx", kIconRecord);
        openForm(kValues);
        window().activateWindow();
    }
    void select(const std::string& name) { view().select(name.empty() ? nullptr : control(name)); }
    void inspect(const std::vector<std::string>& names) {
        workbench::InspectedControls controls;
        for (const auto& name : names) controls.push_back(control(name));
        properties().inspect(view().component(), controls);
    }
    void goTo(const QString& property) {
        properties().table().setCurrentIndex(valueCell(property));
        properties().table().setFocus();
    }
    /// Opens the window of a value with the keyboard.
    template <class Popup>
    Popup* opened(const QString& property) {
        goTo(property);
        QTest::keyClick(&properties().table(), Qt::Key_Down, Qt::AltModifier);
        return dynamic_cast<Popup*>(QApplication::activePopupWidget());
    }
    /// Answers the file dialog. Returns the text of the preview.
    QString chooseFile(const QString& property, const std::string& path) {
        QString preview;
        test::whenShown<QFileDialog>([&](QFileDialog& dialog) {
            dialog.findChild<QLineEdit*>("fileNameEdit")->setText(QString::fromStdString(path));
            Q_EMIT dialog.currentChanged(QString::fromStdString(path));
            const auto* label = dialog.findChild<QLabel*>("preview");
            preview = label->pixmap().isNull() ? label->text() : "a picture";
            static_cast<QDialog&>(dialog).accept();
        });
        goTo(property);
        QTest::keyClick(&properties().table(), Qt::Key_Down, Qt::AltModifier);
        settle();
        return preview;
    }
    void undo() {
        menuItem("&Edit", "&Undo")->trigger();
        settle();
    }
    void redo() {
        desk().redo();
        settle();
    }
    std::string changes() { return difference(original, saved("frmMain")); }
};

// ---- colours --------------------------------------------------------------------------------------------------------

TEST_F(PropertyValues, AColourIsChosenFromThePaletteByKeys) {
    openValues();
    select("txtName");
    auto* const popup = opened<workbench::ColourPopup>("BackColor");
    ASSERT_TRUE(popup);
    EXPECT_EQ(popup->palette().currentColumn(), 3); // &H00C0FFFF& is in the palette
    EXPECT_EQ(popup->palette().rowCount() * popup->palette().columnCount(), 48);
    QTest::keyClick(&popup->palette(), Qt::Key_Down);
    QTest::keyClick(&popup->palette(), Qt::Key_Return);
    settle();
    EXPECT_EQ(shown("BackColor"), "&H0080FFFF&");
    EXPECT_FALSE(QApplication::activePopupWidget());
    EXPECT_EQ(changes(), "-      BackColor       =   &H00C0FFFF&\n+      BackColor       =   &H0080FFFF&\n");
}

TEST_F(PropertyValues, ASystemColourIsChosenByName) {
    openValues();
    auto* const popup = opened<workbench::ColourPopup>("BackColor");
    ASSERT_TRUE(popup);
    EXPECT_EQ(popup->systemColours().currentItem()->text(), "Button Face");
    auto* const wanted = popup->systemColours().findItems("ToolTip", Qt::MatchExactly).front();
    popup->systemColours().setCurrentItem(wanted);
    QTest::keyClick(&popup->systemColours(), Qt::Key_Return);
    settle();
    EXPECT_EQ(changes(), "+   BackColor       =   &H80000018&\n");
}

TEST_F(PropertyValues, EscapeClosesTheColours) {
    openValues();
    auto* const popup = opened<workbench::ColourPopup>("BackColor");
    ASSERT_TRUE(popup);
    QTest::keyClick(popup, Qt::Key_Escape);
    settle();
    EXPECT_FALSE(QApplication::activePopupWidget());
    EXPECT_EQ(saved("frmMain"), original);
}

TEST_F(PropertyValues, TheButtonOfTheCurrentRowOpensItsWindow) {
    openValues();
    goTo("BackColor");
    auto& table = properties().table();
    table.scrollTo(valueCell("BackColor"));
    const auto cell = table.visualRect(valueCell("BackColor"));
    QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, {cell.right() - 4, cell.center().y()});
    EXPECT_TRUE(dynamic_cast<workbench::ColourPopup*>(QApplication::activePopupWidget()));
}

// ---- lists and texts ------------------------------------------------------------------------------------------------

TEST_F(PropertyValues, AListIsEditedInLines) {
    openValues();
    select("lstNames");
    auto* const popup = opened<workbench::LinesPopup>("List");
    ASSERT_TRUE(popup);
    QTest::keyClicks(&popup->lines(), "Ann");
    QTest::keyClick(&popup->lines(), Qt::Key_Return, Qt::ControlModifier);
    QTest::keyClicks(&popup->lines(), "Jo");
    QTest::keyClick(&popup->lines(), Qt::Key_Return);
    settle();
    EXPECT_EQ(changes(), "-      Left            =   120\n"
                         "+      ItemData        =   \"frmMain.frx\":0014\n"
                         "+      Left            =   120\n"
                         "+      List            =   \"frmMain.frx\":001E\n");
    EXPECT_EQ(folder.read("frmMain.frx"),
              kIconRecord + host::itemDataRecord({"0", "0"}) + host::listRecord({"Ann", "Jo"}));
    EXPECT_EQ(view().picture().find(control("lstNames"))->look.items, (QStringList{"Ann", "Jo"}));
    undo();
    EXPECT_EQ(saved("frmMain"), original);
}

TEST_F(PropertyValues, ATextOfSeveralLinesIsEditedInLines) {
    openValues();
    select("txtLines");
    EXPECT_TRUE(valueCell("Text").flags() & Qt::ItemIsEditable);
    auto* const popup = opened<workbench::LinesPopup>("Text");
    ASSERT_TRUE(popup);
    QTest::keyClicks(&popup->lines(), "One");
    QTest::keyClick(&popup->lines(), Qt::Key_Return, Qt::ControlModifier);
    QTest::keyClicks(&popup->lines(), "Two");
    popup->close(); // as a click elsewhere does
    settle();
    EXPECT_EQ(shown("Text"), "One Two");
    EXPECT_FALSE(valueCell("Text").flags() & Qt::ItemIsEditable);
    EXPECT_EQ(changes(), "+      Text            =   \"frmMain.frx\":0014\n");
    EXPECT_EQ(folder.read("frmMain.frx"), kIconRecord + host::textRecord("One\r\nTwo"));
}

TEST_F(PropertyValues, EscapeRejectsLines) {
    openValues();
    select("txtLines");
    auto* const popup = opened<workbench::LinesPopup>("Text");
    ASSERT_TRUE(popup);
    QTest::keyClicks(&popup->lines(), "never");
    QTest::keyClick(&popup->lines(), Qt::Key_Escape);
    settle();
    EXPECT_EQ(saved("frmMain"), original);
}

TEST_F(PropertyValues, ATextOfOneLineHasNoWindow) {
    openValues();
    select("txtName");
    EXPECT_FALSE(opened<workbench::LinesPopup>("Text"));
}

TEST_F(PropertyValues, NumbersOfItemsAreChecked) {
    openValues();
    select("lstNames");
    auto* const popup = opened<workbench::LinesPopup>("ItemData");
    ASSERT_TRUE(popup);
    popup->lines().setPlainText("7");
    std::string text;
    test::whenShown<QMessageBox>([&](QMessageBox& box) {
        text = box.text().toStdString();
        box.button(QMessageBox::Ok)->click();
    });
    QTest::keyClick(&popup->lines(), Qt::Key_Return);
    QTest::qWait(50);
    EXPECT_EQ(text, "ItemData has one number for each item of List.");
    EXPECT_EQ(saved("frmMain"), original);
}

TEST_F(PropertyValues, CaptionsOfPagesAreEdited) {
    openForm("   Begin TabDlg.SSTab tabAll \n      Tab             =   1\n      TabCaption(0)   =   \"First\"\n"
             "      Tab(0).Control(0)=   \"txtName\"\n      TabCaption(1)   =   \"Second\"\n   End\n");
    select("tabAll");
    EXPECT_EQ(shown("Tab(0).Control(0)"), "no such row");
    type("TabCaption(1)", "Last");
    EXPECT_EQ(changes(), "-      TabCaption(1)   =   \"Second\"\n+      TabCaption(1)   =   \"Last\"\n");
}

// ---- pictures -------------------------------------------------------------------------------------------------------

TEST_F(PropertyValues, APictureIsChosenWithAPreview) {
    openValues();
    QPixmap red(20, 20);
    red.fill(Qt::red);
    ASSERT_TRUE(red.save(QString::fromStdString(folder / "red.bmp")));
    EXPECT_EQ(chooseFile("Picture", folder / "red.bmp"), "a picture");
    EXPECT_EQ(shown("Picture"), "(Bitmap)");
    EXPECT_FALSE(valueCell("Picture").data(Qt::DecorationRole).isNull());
    EXPECT_EQ(changes(), "+   Picture         =   \"frmMain.frx\":0014\n");
    EXPECT_EQ(folder.read("frmMain.frx"), kIconRecord + host::pictureRecord(folder.read("red.bmp"), false));
    const auto changed = saved("frmMain");
    undo();
    EXPECT_EQ(shown("Picture"), "(None)");
    EXPECT_EQ(saved("frmMain"), original);
    redo();
    EXPECT_EQ(shown("Picture"), "(Bitmap)");
    EXPECT_EQ(saved("frmMain"), changed);
}

TEST_F(PropertyValues, DeleteRemovesAPicture) {
    openValues();
    EXPECT_EQ(shown("Icon"), "(Icon)");
    goTo("Icon");
    QTest::keyClick(&properties().table(), Qt::Key_Delete);
    settle();
    EXPECT_EQ(shown("Icon"), "(None)");
    EXPECT_EQ(changes(), "-   Icon            =   \"frmMain.frx\":0000\n");
    undo();
    EXPECT_EQ(shown("Icon"), "(Icon)");
    EXPECT_EQ(saved("frmMain"), original);
    EXPECT_EQ(folder.read("frmMain.frx"), kIconRecord);
}

TEST_F(PropertyValues, AFileThatIsNoPictureIsRefused) {
    openValues();
    folder.write("photo.png", "\x89PNG\r\n");
    std::string text;
    test::whenShown<QMessageBox>([&](QMessageBox& box) {
        text = box.text().toStdString();
        box.button(QMessageBox::Ok)->click();
    });
    const std::string expected =
        "photo.png: a form cannot store a picture of this format. Choose a bitmap (.bmp, .dib), a GIF, a JPEG, a "
        "metafile (.wmf, .emf), an icon (.ico) or a cursor (.cur).";
    EXPECT_EQ(chooseFile("Picture", folder / "photo.png").toStdString(), expected);
    QTest::qWait(50);
    EXPECT_EQ(text, expected);
    EXPECT_EQ(saved("frmMain"), original);
}

TEST_F(PropertyValues, APictureAsLargeAsThePreviewIsShownWhole) {
    openValues();
    QPixmap red(500, 400);
    red.fill(Qt::red);
    ASSERT_TRUE(red.save(QString::fromStdString(folder / "red.bmp")));
    test::whenShown<QFileDialog>([&](QFileDialog& dialog) {
        Q_EMIT dialog.currentChanged(QString::fromStdString(folder / "red.bmp"));
        const auto* label = dialog.findChild<QLabel*>("preview");
        EXPECT_EQ(label->pixmap().size(), QSize(160, 128));
        EXPECT_GE(label->contentsRect().width(), 160);
        EXPECT_GE(label->contentsRect().height(), 128);
        dialog.reject();
    });
    goTo("Picture");
    QTest::keyClick(&properties().table(), Qt::Key_Down, Qt::AltModifier);
    settle();
    EXPECT_EQ(saved("frmMain"), original);
}

// ---- several controls -----------------------------------------------------------------------------------------------

TEST_F(PropertyValues, OfSeveralControlsAreThoseThatAllHave) {
    openValues();
    inspect({"txtLines", "txtName", "lstNames"});
    EXPECT_EQ(shown("(Name)"), "no such row");
    EXPECT_EQ(shown("Index"), "no such row");
    EXPECT_EQ(shown("Text"), "no such row");
    EXPECT_EQ(shown("Width"), "1215");
    EXPECT_EQ(shown("Top"), "");
    EXPECT_EQ(shown("BackColor"), "");
    EXPECT_EQ(properties().objects().currentText(), "");
}

TEST_F(PropertyValues, AnEditChangesAllControlsAsOneStep) {
    openValues();
    inspect({"txtLines", "txtName"});
    type("Left", "360");
    EXPECT_EQ(valueOf("txtLines", "Left"), "360");
    EXPECT_EQ(valueOf("txtName", "Left"), "360");
    EXPECT_EQ(shown("Left"), "360");
    undo();
    EXPECT_EQ(valueOf("txtLines", "Left"), "120");
    EXPECT_EQ(valueOf("txtName", "Left"), "240");
    EXPECT_EQ(shown("Left"), "");
    EXPECT_EQ(saved("frmMain"), original);
    redo();
    EXPECT_EQ(shown("Left"), "360");
}

TEST_F(PropertyValues, ARefusedEditChangesNoControl) {
    openValues();
    inspect({"txtLines", "txtName"});
    test::whenShown<QMessageBox>([&](QMessageBox& box) { box.button(QMessageBox::Ok)->click(); });
    type("Width", "-5");
    QTest::qWait(50);
    EXPECT_EQ(saved("frmMain"), original);
}

// ---- categories and descriptions ------------------------------------------------------------------------------------

TEST_F(PropertyValues, AreGroupedByCategory) {
    openValues();
    select("lstNames");
    goTo("Width");
    auto& order = *properties().findChild<QTabBar*>("propertyOrder");
    order.setCurrentIndex(1);
    QStringList headings;
    for (int row = 0; row < properties().rows().rowCount(); ++row)
        if (properties().rows().isHeading(row)) headings << properties().rows().name(row);
    EXPECT_EQ(headings, (QStringList{"Appearance", "Behavior", "Font", "List", "Misc", "Position"}));
    EXPECT_EQ(properties().table().currentIndex(), valueCell("Width"));
    EXPECT_LT(valueCell("MouseIcon").row(), valueCell("Height").row());
    goTo("Appearance");
    QTest::keyClick(&properties().table(), Qt::Key_Up); // a heading cannot be current
    EXPECT_FALSE(properties().rows().isHeading(properties().table().currentIndex().row()));
    order.setCurrentIndex(0);
    EXPECT_EQ(properties().rows().rowOf("(Name)"), 0);
}

TEST_F(PropertyValues, AreDescribed) {
    openValues();
    auto& pane = *properties().findChild<QWidget*>("propertyDescription");
    goTo("StartUpPosition");
    EXPECT_EQ(pane.findChild<QLabel*>("describedProperty")->text(), "StartUpPosition");
    EXPECT_EQ(pane.findChild<QLabel*>("description")->text(), "Where the form is when it is first shown.");
    auto* const shownAction = properties().table().actions().front();
    shownAction->trigger();
    EXPECT_FALSE(pane.isVisible());
    shownAction->trigger();
    EXPECT_TRUE(pane.isVisible());
}
