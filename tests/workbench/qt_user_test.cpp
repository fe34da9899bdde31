#include "tests/workbench/desktop_user.h"
#include "tests/workbench/desktop_world.h"
#include <QClipboard>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>

using namespace fernwick;

namespace {

class DesktopUser : public test::DesktopWorld {
protected:
    static void expectBox(std::function<void(QMessageBox&)> act) { test::whenShown<QMessageBox>(std::move(act)); }
    static std::string defaultButton(QMessageBox& box) { return box.defaultButton()->text().remove('&').toStdString(); }
    /// Types a name into the next file dialog.
    static void chooseFile(const std::string& name) {
        test::whenShown<QFileDialog>([name](QFileDialog& dialog) {
            dialog.findChild<QLineEdit*>("fileNameEdit")->setText(QString::fromStdString(name));
            QMetaObject::invokeMethod(&dialog, "accept");
        });
    }
};

} // namespace

TEST_F(DesktopUser, ABoxHasItsTitleTextIconAndButtons) {
    expectBox([](QMessageBox& box) {
        EXPECT_EQ(box.windowTitle(), "Fernwick");
        EXPECT_EQ(box.text(), "ERROR!\n\n<b>Failing");
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        EXPECT_EQ(box.icon(), QMessageBox::Critical);
        EXPECT_EQ(box.buttons().size(), 1);
        box.button(QMessageBox::Ok)->click();
    });
    EXPECT_EQ(user.MsgBox("ERROR!\r\n\r\n<b>Failing", vbCritical, "Fernwick"), vbOK);
}

TEST_F(DesktopUser, TheDefaultButtonIsTheFirstUnlessSpecified) {
    expectBox([](QMessageBox& box) {
        EXPECT_EQ(defaultButton(box), "Yes");
        box.button(QMessageBox::No)->click();
    });
    EXPECT_EQ(user.MsgBox("?", vbYesNo + vbQuestion, ""), vbNo);
    expectBox([](QMessageBox& box) {
        EXPECT_EQ(defaultButton(box), "No");
        QTest::keyClick(&box, Qt::Key_Return);
    });
    EXPECT_EQ(user.MsgBox("?", vbYesNoCancel + vbDefaultButton2, ""), vbNo);
}

TEST_F(DesktopUser, EscapeCancels) {
    expectBox([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); });
    EXPECT_EQ(user.MsgBox("?", vbYesNoCancel, ""), vbCancel);
    expectBox([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); });
    EXPECT_EQ(user.MsgBox("?", vbOKCancel, ""), vbCancel);
}

TEST_F(DesktopUser, ASaveDialogGivesThePathWithItsExtension) {
    CommonDialog dialog;
    dialog.InitDir = folder.path();
    dialog.DefaultExt = "reg";
    dialog.Filter = "Settings (*.reg)|*.reg|All files|*";
    chooseFile("mine");
    user.ShowSave(dialog);
    EXPECT_EQ(dialog.FileName, folder / "mine.reg");
}

TEST_F(DesktopUser, AFileDialogHasItsTitleNameAndFilter) {
    CommonDialog dialog;
    dialog.DialogTitle = "Choose";
    dialog.InitDir = folder.path();
    dialog.FileName = "before.reg";
    dialog.Filter = "Settings (*.reg)|*.reg|Texts (*.txt)|*.txt|All files|*";
    const auto expectFilter = [&](int index, const char* filter) {
        dialog.FilterIndex = index;
        test::whenShown<QFileDialog>([&](QFileDialog& shown) {
            EXPECT_EQ(shown.windowTitle(), "Choose");
            EXPECT_EQ(shown.directory().path().toStdString(), folder.path());
            EXPECT_EQ(shown.selectedNameFilter(), filter) << index;
            EXPECT_EQ(shown.nameFilters().size(), 3);
            shown.reject();
        });
        user.ShowOpen(dialog);
    };
    expectFilter(0, "Settings (*.reg)");
    expectFilter(1, "Settings (*.reg)");
    expectFilter(2, "Texts (*.txt)");
    expectFilter(3, "All files (*)");
    expectFilter(4, "All files (*)");
}

TEST_F(DesktopUser, CancelIsAnErrorIfTheDialogWantsIt) {
    CommonDialog dialog;
    dialog.FileName = "before";
    test::whenShown<QFileDialog>([](QFileDialog& shown) { shown.reject(); });
    user.ShowOpen(dialog);
    EXPECT_EQ(dialog.FileName, "before");
    dialog.CancelError = true;
    test::whenShown<QFileDialog>([](QFileDialog& shown) { shown.reject(); });
    EXPECT_EQ(test::errorOf([&] { user.ShowOpen(dialog); }), kCancelWasSelected);
}

TEST_F(DesktopUser, SeveralFilesAreReturnedAsFolderAndNames) {
    folder.write("a.pdb", "");
    folder.write("b.pdb", "");
    CommonDialog dialog;
    dialog.InitDir = folder.path();
    dialog.Flags = cdlOFNAllowMultiselect;
    chooseFile("\"a.pdb\" \"b.pdb\"");
    user.ShowOpen(dialog);
    EXPECT_EQ(dialog.FileName, folder.path() + '\0' + "a.pdb" + '\0' + "b.pdb");
    dialog.MaxFileSize = 10;
    chooseFile("\"a.pdb\" \"b.pdb\"");
    EXPECT_EQ(test::errorOf([&] { user.ShowOpen(dialog); }), 20476);
}

TEST_F(DesktopUser, TheLoopDeliversWhileQtsLoopRuns) {
    std::string log;
    loop.Post([&] { log += "p"; });
    auto timer = loop.StartTimer(5, [&] { log += "t"; });
    EXPECT_TRUE(QTest::qWaitFor([&] { return log.size() >= 3; }));
    EXPECT_EQ(log.substr(0, 2), "pt");
    timer.reset();
}

TEST_F(DesktopUser, ATickThatShowsABoxLetsOtherTimersTick) {
    int others = 0;
    bool back = false;
    fernwick::Subscription asks, other = loop.StartTimer(5, [&] { ++others; });
    asks = loop.StartTimer(5, [&] {
        asks.reset();
        test::whenShown<QMessageBox>([&](QMessageBox& box) {
            const auto before = others;
            EXPECT_TRUE(QTest::qWaitFor([&] { return others > before + 1; }));
            box.button(QMessageBox::Ok)->click();
        });
        user.MsgBox("wait", vbOKOnly, "");
        back = true;
    });
    EXPECT_TRUE(QTest::qWaitFor([&] { return back; }));
}

TEST_F(DesktopUser, AnErrorOfADeliveryIsReportedAndDoesNotReachQtsLoop) {
    loop.Post([] { throw basic::RuntimeError(5, "x"); });
    EXPECT_TRUE(QTest::qWaitFor([&] { return failures == 1; }));
}

TEST_F(DesktopUser, TheClipboardKeepsAllFormats) {
    clipboard.SetData("text/plain", "a");
    clipboard.SetData("application/x-faces", std::string("\0b", 2));
    EXPECT_EQ(clipboard.Formats(), (std::vector<std::string>{"text/plain", "application/x-faces"}));
    EXPECT_EQ(clipboard.GetData("application/x-faces"), std::string("\0b", 2));
    EXPECT_EQ(clipboard.GetData("none"), "");
    clipboard.Clear();
    EXPECT_TRUE(clipboard.Formats().empty());
}

TEST_F(DesktopUser, TheDesktopsClipboardChangesWhenTheLoopTurns) {
    QGuiApplication::clipboard()->setText("copied elsewhere");
    clipboard.Clear();
    clipboard.SetData("text/plain", "a");
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "copied elsewhere");
    QCoreApplication::processEvents();
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "a");
}

TEST_F(DesktopUser, TheDesktopsClipboardIsCleared) {
    QGuiApplication::clipboard()->setText("copied elsewhere");
    clipboard.Clear();
    QCoreApplication::processEvents();
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "");
}

TEST_F(DesktopUser, ARestoredClipboardIsNotTouched) {
    QGuiApplication::clipboard()->setText("copied elsewhere");
    int changes = 0;
    const auto watch = QObject::connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, [&] { ++changes; });
    const auto kept = clipboard.GetData("text/plain");
    clipboard.Clear();
    clipboard.SetData(kPictureFormat, "picture");
    clipboard.Clear();
    clipboard.SetData("text/plain", kept);
    QCoreApplication::processEvents();
    QObject::disconnect(watch);
    EXPECT_EQ(changes, 0);
}
