// The menu editor, used by keyboard.
#include "Apps/workbench/menu_editor/menu_editor.h"
#include "Host/model/host.h"
#include "tests/workbench/designer_desktop.h"
#include "tests/workbench/recorded_paint.h"
#include "tests/workbench/window_words.h"
#include <QAbstractItemDelegate>
#include <QLabel>
#include <QPainter>
#include <QStyleOption>

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QToolButton>

using testing::ElementsAre;

namespace {

const std::string kFile = R"(   Begin VB.TextBox txtName 
   End
   Begin VB.Menu mnuFile 
      Caption         =   "&File"
      Begin VB.Menu mnuOpen 
         Caption         =   "&Open"
         Shortcut        =   ^O
      End
   End
)";

using Editor = workbench::MenuEditor;

} // namespace

class MenuEditing : public test::DesignerDesktop {
protected:
    /// Opens the dialog with its key and acts in it.
    void edit(const std::function<void(Editor&)>& act) {
        test::whenShown<Editor>([&](Editor& dialog) {
            dialog.activateWindow();
            act(dialog);
        });
        EXPECT_TRUE(menuItem("&Tools", "&Menu Editor...")->isEnabled());
        menuItem("&Tools", "&Menu Editor...")->trigger();
        settle();
    }
    template <class Widget>
    static Widget& in(Editor& dialog, const char* name) {
        return *dialog.findChild<Widget*>(name);
    }
    static QLineEdit& field(Editor& dialog, const char* name) { return in<QLineEdit>(dialog, name); }
    static void type(Editor& dialog, const char* caption, const char* name) {
        field(dialog, "caption").selectAll();
        QTest::keyClicks(&field(dialog, "caption"), caption);
        field(dialog, "name").selectAll();
        QTest::keyClicks(&field(dialog, "name"), name);
    }
    static void press(Editor& dialog, const char* button) { in<QAbstractButton>(dialog, button).click(); }
    static void enter(Editor& dialog) { QTest::keyClick(&field(dialog, "name"), Qt::Key_Return); }
    static QStringList listed(Editor& dialog) {
        QStringList rows;
        const auto& list = in<QListWidget>(dialog, "menus");
        for (int row = 0; row < list.count(); ++row) rows << list.item(row)->text();
        return rows;
    }
    /// Accepts the dialog, which shows a problem.
    static std::string problemOf(Editor& dialog) {
        std::string text;
        test::whenShown<QMessageBox>([&](QMessageBox& box) {
            text = box.text().toStdString();
            box.button(QMessageBox::Ok)->click();
        });
        dialog.accept();
        EXPECT_TRUE(dialog.isVisible());
        return text;
    }
    std::string changes() { return difference(original, saved("frmMain")); }
    void undo() {
        menuItem("&Edit", "&Undo")->trigger();
        settle();
    }
};

TEST_F(MenuEditing, NewMenusAreTypedOneAfterAnother) {
    openForm("");
    edit([](Editor& dialog) {
        EXPECT_TRUE(field(dialog, "caption").hasFocus());
        type(dialog, "&Edit", "mnuEdit");
        enter(dialog);
        EXPECT_TRUE(field(dialog, "caption").hasFocus());
        type(dialog, "&Copy", "mnuCopy");
        press(dialog, "indent");
        in<QComboBox>(dialog, "shortcut").setCurrentText("Ctrl+C");
        enter(dialog);
        type(dialog, "-", "mnuBar");
        enter(dialog);
        type(dialog, "&Paste", "mnuPaste");
        in<QCheckBox>(dialog, "enabled").setChecked(false);
        enter(dialog);
        EXPECT_EQ(listed(dialog), (QStringList{"&Edit", "····&Copy\tCtrl+C", "····-", "····&Paste", "····"}));
        dialog.accept();
    });
    EXPECT_EQ(changes(), "+   Begin VB.Menu mnuEdit \n"
                         "+      Caption         =   \"&Edit\"\n"
                         "+      Begin VB.Menu mnuCopy \n"
                         "+         Caption         =   \"&Copy\"\n"
                         "+         Shortcut        =   ^C\n"
                         "+      End\n"
                         "+      Begin VB.Menu mnuBar \n"
                         "+         Caption         =   \"-\"\n"
                         "+      End\n"
                         "+      Begin VB.Menu mnuPaste \n"
                         "+         Caption         =   \"&Paste\"\n"
                         "+         Enabled         =   0   'False\n"
                         "+      End\n"
                         "+   End\n");
    EXPECT_EQ(view().picture().menus.size(), 1U);
    undo();
    EXPECT_EQ(saved("frmMain"), original);
    EXPECT_TRUE(view().picture().menus.empty());
    desk().redo();
    settle();
    EXPECT_EQ(view().picture().menus.size(), 1U);
}

TEST_F(MenuEditing, OnlyChangedLinesAreWritten) {
    openForm(kFile);
    edit([](Editor& dialog) {
        EXPECT_EQ(listed(dialog), (QStringList{"&File", "····&Open\tCtrl+O"}));
        in<QListWidget>(dialog, "menus").setCurrentRow(1);
        EXPECT_EQ(field(dialog, "name").text(), "mnuOpen");
        EXPECT_EQ(in<QComboBox>(dialog, "shortcut").currentText(), "Ctrl+O");
        field(dialog, "helpContextId").setText("12");
        field(dialog, "caption").setText("&Open...");
        EXPECT_EQ(listed(dialog), (QStringList{"&File", "····&Open...\tCtrl+O"}));
        dialog.accept();
    });
    EXPECT_EQ(changes(), "-         Caption         =   \"&Open\"\n"
                         "+         Caption         =   \"&Open...\"\n"
                         "+         HelpContextID   =   12\n");
    undo();
    EXPECT_EQ(saved("frmMain"), original);
}

TEST_F(MenuEditing, CancelAndNoChangeWriteNothing) {
    openForm(kFile);
    edit([](Editor& dialog) { dialog.accept(); });
    EXPECT_FALSE(component("frmMain")->IsDirty());
    edit([](Editor& dialog) {
        type(dialog, "Other", "mnuOther");
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    EXPECT_FALSE(component("frmMain")->IsDirty());
    EXPECT_EQ(saved("frmMain"), original);
}

TEST_F(MenuEditing, MenusAreMovedInsertedAndDeleted) {
    openForm(kFile);
    edit([](Editor& dialog) {
        press(dialog, "down");
        EXPECT_EQ(listed(dialog), (QStringList{"&Open\tCtrl+O", "&File"}));
        press(dialog, "indent");
        press(dialog, "indent"); // only one level below the row before
        EXPECT_EQ(listed(dialog), (QStringList{"&Open\tCtrl+O", "····&File"}));
        press(dialog, "up");
        EXPECT_EQ(listed(dialog), (QStringList{"&File", "&Open\tCtrl+O"}));
        press(dialog, "next");
        press(dialog, "insert");
        EXPECT_TRUE(field(dialog, "caption").hasFocus());
        EXPECT_EQ(listed(dialog), (QStringList{"&File", "", "&Open\tCtrl+O"}));
        press(dialog, "next");
        press(dialog, "delete");
        EXPECT_EQ(listed(dialog), (QStringList{"&File", ""}));
        EXPECT_EQ(field(dialog, "caption").text(), "");
        dialog.accept();
    });
    EXPECT_EQ(changes(), "-      Begin VB.Menu mnuOpen \n-         Caption         =   \"&Open\"\n"
                         "-         Shortcut        =   ^O\n-      End\n");
}

TEST_F(MenuEditing, TheKeysOfTheArrowsMove) {
    openForm(kFile);
    edit([](Editor& dialog) {
        ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
        // a key presses a button for a moment
        const auto shows = [&](const QStringList& rows) {
            return QTest::qWaitFor([&] { return listed(dialog) == rows; });
        };
        const auto isCurrent = [&](int row) {
            return QTest::qWaitFor([&] { return in<QListWidget>(dialog, "menus").currentRow() == row; });
        };
        QTest::keyClick(&dialog, Qt::Key_N, Qt::AltModifier);
        EXPECT_TRUE(isCurrent(1));
        QTest::keyClick(&dialog, Qt::Key_L, Qt::AltModifier);
        EXPECT_TRUE(shows({"&File", "&Open\tCtrl+O"}));
        QTest::keyClick(&dialog, Qt::Key_U, Qt::AltModifier);
        EXPECT_TRUE(shows({"&Open\tCtrl+O", "&File"}));
        QTest::keyClick(&dialog, Qt::Key_B, Qt::AltModifier);
        EXPECT_TRUE(shows({"&File", "&Open\tCtrl+O"}));
        QTest::keyClick(&dialog, Qt::Key_R, Qt::AltModifier);
        EXPECT_TRUE(shows({"&File", "····&Open\tCtrl+O"}));
        dialog.accept();
    });
    EXPECT_EQ(saved("frmMain"), original);
}

TEST_F(MenuEditing, AProblemIsShownWithItsMenu) {
    openForm(kFile);
    edit([](Editor& dialog) {
        in<QListWidget>(dialog, "menus").setCurrentRow(1);
        field(dialog, "name").setText("txtName");
        in<QListWidget>(dialog, "menus").setCurrentRow(0);
        EXPECT_EQ(problemOf(dialog), "The name 'txtName' is already in use.");
        EXPECT_EQ(in<QListWidget>(dialog, "menus").currentRow(), 1);
        EXPECT_EQ(dialog.focusWidget(), &field(dialog, "name"));
        field(dialog, "name").setText("mnuOpen");
        field(dialog, "caption").setText(QString::fromUtf8("\xe6\x97\xa5"));
        EXPECT_EQ(problemOf(dialog), "The text has a character that the code page of the project lacks.");
        dialog.reject();
    });
    EXPECT_EQ(saved("frmMain"), original);
}

TEST_F(MenuEditing, ARenamedMenuRaisesItemRenamed) {
    openForm(kFile);
    const auto form = component("frmMain");
    std::vector<std::string> renamed;
    const auto events = bench->host().Events()->VBControlsEvents(project(), form->Designer());
    const auto watch = events->ItemRenamed.connect([&](const auto& control, const std::string& oldName, int) {
        renamed.push_back(oldName + " " + fernwick::asText(control->Properties()->Item("Name")->Value()));
    });
    edit([](Editor& dialog) {
        field(dialog, "name").setText("mnuDatei");
        dialog.accept();
    });
    EXPECT_THAT(renamed, ElementsAre("mnuFile mnuDatei"));
    EXPECT_EQ(changes(), "-   Begin VB.Menu mnuFile \n+   Begin VB.Menu mnuDatei \n");
}

TEST_F(MenuEditing, IsForForms) {
    auto* const item = menuItem("&Tools", "&Menu Editor...");
    ASSERT_TRUE(item);
    EXPECT_EQ(item->shortcut(), QKeySequence("Ctrl+E"));
    EXPECT_FALSE(item->isEnabled());
    openForm(kFile);
    EXPECT_TRUE(item->isEnabled());
    menuItem("&View", "&Code")->trigger();
    settle();
    EXPECT_FALSE(item->isEnabled());
}

TEST_F(MenuEditing, HasItsWords) {
    openForm(kFile);
    edit([](Editor& dialog) {
        test::expectWords(dialog, "menu_editor");
        dialog.reject();
    });
}

TEST_F(MenuEditing, ARowHasItsCaptionOnceAndItsKey) {
    openForm(kFile);
    edit([](Editor& dialog) {
        const auto& list = in<QListWidget>(dialog, "menus");
        const auto textsOf = [&](int row) {
            test::RecordedPaint paint;
            QPainter painter(&paint);
            QStyleOptionViewItem option;
            option.widget = &list;
            option.rect = QRect(0, 0, 300, 20);
            list.itemDelegate()->paint(&painter, option, list.model()->index(row, 0));
            painter.end();
            QStringList texts;
            for (const auto& line : QString::fromStdString(paint.lines()).split('\n'))
                if (line.startsWith("text ")) texts << line.mid(5).section(',', 0, 0);
            return texts;
        };
        EXPECT_EQ(textsOf(0), QStringList{"&File"});
        EXPECT_EQ(textsOf(1), (QStringList{"····&Open", "Ctrl+O"}));
        dialog.reject();
    });
}

TEST_F(MenuEditing, FieldsAreBesideTheirLabels) {
    openForm(kFile);
    edit([](Editor& dialog) {
        std::vector<QRect> places;
        const auto add = [&](const QWidget& widget) {
            const QRect place(widget.mapTo(&dialog, QPoint()), widget.size());
            for (const auto& other : places) EXPECT_FALSE(place.intersects(other)) << widget.objectName().toStdString();
            places.push_back(place);
            return place;
        };
        for (const auto* label : dialog.findChildren<QLabel*>()) {
            if (!label->buddy()) continue;
            const auto text = add(*label), field = add(*label->buddy());
            EXPECT_GT(field.left(), text.right()) << label->text().toStdString();
            EXPECT_TRUE(field.top() < text.center().y() && text.center().y() < field.bottom());
        }
        EXPECT_EQ(places.size(), 12u);
        dialog.reject();
    });
}
