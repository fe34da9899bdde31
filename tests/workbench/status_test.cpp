// The status bar shows where the user is.
#include "Apps/workbench/editing/scintilla.h"
#include "tests/workbench/designer_desktop.h"
#include <QLabel>

namespace {

struct Status : test::DesignerDesktop {
    QString place() { return window().findChild<QLabel*>("statusPlace")->text(); }
    QString size() { return window().findChild<QLabel*>("statusSize")->text(); }
    void openButton() {
        openForm("   Begin VB.CommandButton btnOK\n      Height = 375\n      Left = 120\n      Top = 240\n"
                 "      Width = 1215\n   End\n   Begin VB.Timer tmrTick\n      Left = 480\n      Top = 960\n   End\n");
    }
};

} // namespace

TEST_F(Status, HasLineAndColumnOfTheCode) {
    EXPECT_EQ(place(), "");
    bench->open(test::SampleProject("Demo").module("modA", "Sub Main()\r\nEnd Sub\r\n").writeTo(folder));
    component("modA")->CodeModule()->CodePane()->Show();
    EXPECT_EQ(place(), "Ln 1, Col 1");
    window().code().current()->scintilla().setCursorPosition(1, 3);
    settle(); // the editing component reports it when it draws
    EXPECT_EQ(place(), "Ln 2, Col 4");
    EXPECT_EQ(size(), "");
    window().code().closeAll();
    settle();
    EXPECT_EQ(place(), "");
}

TEST_F(Status, HasPositionAndSizeOfTheSelectedControl) {
    openButton();
    const auto valueOfForm = [this](const char* name) {
        return workbench::qt(fernwick::asText(component("frmMain")->Properties()->Item(name)->Value()));
    };
    EXPECT_EQ(place(), valueOfForm("Left") + ", " + valueOfForm("Top"));
    EXPECT_EQ(size(), valueOfForm("Width") + " x " + valueOfForm("Height"));
    clickOn("btnOK");
    EXPECT_EQ(place(), "120, 240");
    EXPECT_EQ(size(), "1215 x 375");
    key(Qt::Key_Right, Qt::ControlModifier);
    EXPECT_EQ(place(), "240, 240");
    type("Width", "1500");
    EXPECT_EQ(size(), "1500 x 375");
    desk().undo();
    settle();
    EXPECT_EQ(size(), "1215 x 375");
    clickOn("tmrTick");
    EXPECT_EQ(place(), "480, 960");
    EXPECT_EQ(size(), "");
}

TEST_F(Status, FollowsTheMouse) {
    openButton();
    const auto from = middleOf("btnOK");
    QTest::mousePress(&canvas(), Qt::LeftButton, {}, from);
    QTest::mouseMove(&canvas(), from + QPoint(8, 16));
    EXPECT_EQ(place(), "240, 480");
    QTest::mouseRelease(&canvas(), Qt::LeftButton, {}, from + QPoint(8, 16));
    settle();
    EXPECT_EQ(place(), "240, 480");
}

TEST_F(Status, UsesTheUnitsOfTheForm) {
    openForm("   ScaleMode = 3\n   Begin VB.CommandButton btnOK\n      Height = 25\n      Left = 8\n      Top = 16\n"
             "      Width = 81\n   End\n");
    clickOn("btnOK");
    EXPECT_EQ(place(), "8, 16");
    EXPECT_EQ(size(), "81 x 25");
}

TEST_F(Status, ShowsTheViewInFrontOnly) {
    openButton();
    clickOn("btnOK");
    component("frmMain")->CodeModule()->CodePane()->Show();
    EXPECT_EQ(place(), "Ln 1, Col 1");
    EXPECT_EQ(size(), "");
    design("frmMain");
    EXPECT_EQ(place(), "120, 240");
    window().code().closeAll();
    settle();
    EXPECT_EQ(place(), "");
    EXPECT_EQ(size(), "");
}
