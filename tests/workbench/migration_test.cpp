// The report about what hinders a project on a device.
#include "Apps/workbench/migration/migration_report.h"
#include "Host/model/projects.h"
#include "tests/workbench/keyboard_access.h"
#include "tests/workbench/open_desktop.h"
#include "tests/workbench/window_words.h"
#include <QClipboard>
#include <QComboBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QThread>
#include <QTreeWidget>

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using workbench::MigrationReport;

namespace {

class MigrationDesktop : public test::OpenDesktop {
protected:
    MigrationReport& openReport() {
        menuItem("&Project", "Mi&gration Report...")->trigger();
        auto* const report = window().findChild<MigrationReport*>();
        finish(*report);
        return *report;
    }
    static void finish(MigrationReport& report) {
        auto* const stop = report.findChild<QPushButton*>("stopMigration");
        EXPECT_TRUE(QTest::qWaitFor([&] { return stop->isHidden(); }));
    }
    static QTreeWidget& tree(MigrationReport& report) { return *report.findChild<QTreeWidget*>("migrationPlaces"); }
    static std::string summary(MigrationReport& report) {
        return report.findChild<QLabel*>("migrationSummary")->text().toStdString();
    }
    /// The rows of a group with their columns, after its heading.
    static std::vector<std::string> rows(const QTreeWidgetItem& group) {
        std::vector<std::string> texts{group.text(0).toStdString()};
        for (int i = 0; i < group.childCount(); ++i) {
            const auto* const row = group.child(i);
            texts.push_back((row->text(0) + " | " + row->text(1) + " | " + row->text(2)).toStdString());
        }
        return texts;
    }
    /// Presses Enter on the first place of the first group.
    void goToFirst(MigrationReport& report) {
        tree(report).setCurrentItem(tree(report).topLevelItem(0)->child(0));
        QTest::keyClick(&tree(report), Qt::Key_Return);
        settle();
    }
    void saveAs(MigrationReport& report, const std::string& path) {
        answer([](QMessageBox& box) { box.accept(); },
               [path](QDialog& dialog) {
                   dialog.findChild<QLineEdit*>("fileNameEdit")->setText(QString::fromStdString(path));
                   QMetaObject::invokeMethod(&dialog, "accept");
               });
        report.findChild<QPushButton*>("saveMigration")->click();
    }
    void openShop() {
        open(test::SampleProject().module("modShop", "Sub Main()\r\n  Shell \"notepad.exe\"\r\nEnd Sub\r\n"));
    }
};

} // namespace

TEST_F(MigrationDesktop, ListsPlacesInGroupsWithWhatToUseInstead) {
    openShop();
    auto& report = openReport();
    EXPECT_THAT(summary(report), HasSubstr("1 place to change"));
    ASSERT_EQ(tree(report).topLevelItemCount(), 1);
    EXPECT_THAT(rows(*tree(report).topLevelItem(0)),
                ElementsAre("Functions and statements: 1",
                            "Shell | modShop.bas:3 | Devices start no other programs; call a procedure of the project "
                            "instead"));
    test::expectKeyboardAccess(report);
    report.close();
}

TEST_F(MigrationDesktop, HasItsWords) {
    openShop();
    auto& report = openReport();
    EXPECT_EQ(report.size(), QSize(940, 520).expandedTo(report.minimumSizeHint()));
    test::expectWords(report, "migration_report");
    report.close();
}

TEST_F(MigrationDesktop, EnterGoesToTheLine) {
    openShop();
    auto& report = openReport();
    QGuiApplication::clipboard()->setText("before");
    goToFirst(report);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "before"); // no button was pressed
    auto* const editor = window().code().current();
    ASSERT_TRUE(editor);
    int line = -1, column = -1;
    editor->scintilla().getCursorPosition(&line, &column);
    EXPECT_EQ(line, 1);
    EXPECT_EQ(column, 2);
    report.close();
}

TEST_F(MigrationDesktop, AnotherDeviceIsReportedAtOnceAndTheTextIsCopied) {
    openShop();
    auto& report = openReport();
    auto& devices = *report.findChild<QComboBox*>("migrationDevice");
    devices.setCurrentIndex(devices.count() - 1);
    finish(report);
    report.findChild<QPushButton*>("copyMigration")->click();
    const auto text = QGuiApplication::clipboard()->text().toStdString();
    EXPECT_THAT(text, HasSubstr(" on " + devices.currentData().toString().toStdString() + ": 1 place to change"));
    report.close();
}

TEST_F(MigrationDesktop, EscapeStopsTheSearch) {
    openShop();
    menuItem("&Project", "Mi&gration Report...")->trigger();
    auto* const report = window().findChild<MigrationReport*>();
    QThread::msleep(500); // a result that is ready by now must not be shown either
    QTest::keyClick(report, Qt::Key_Escape);
    EXPECT_THAT(summary(*report), HasSubstr("Stopped"));
    settle();
    EXPECT_EQ(tree(*report).topLevelItemCount(), 0);
    EXPECT_TRUE(report->isVisible());
    report->close();
}

TEST_F(MigrationDesktop, AnotherDeviceReplacesTheSearchForTheFirst) {
    openShop();
    menuItem("&Project", "Mi&gration Report...")->trigger();
    auto* const report = window().findChild<MigrationReport*>();
    QThread::msleep(500); // a result that is ready by now must not be shown
    auto& devices = *report->findChild<QComboBox*>("migrationDevice");
    devices.setCurrentIndex(devices.count() - 1);
    finish(*report);
    settle(500);
    EXPECT_EQ(tree(*report).topLevelItemCount(), 1);
    report->close();
}

TEST_F(MigrationDesktop, EnterOpensTheFormOfAControl) {
    auto form = test::formText("frmShop");
    form.insert(form.find("End\r\n"), "   Begin Gauge.Needle Needle1 \r\n   End\r\n");
    open(test::SampleProject().member("Form=frmShop.frm", "frmShop.frm", form));
    auto& report = openReport();
    EXPECT_THAT(rows(*tree(report).topLevelItem(0)), Contains(HasSubstr("Needle1 (Gauge.Needle) | frmShop.frm:10")));
    goToFirst(report);
    ASSERT_TRUE(window().design().forms().current());
    report.close();
}

TEST_F(MigrationDesktop, TheLineOfThePlaceLeavesOutHiddenAttributes) {
    open(test::SampleProject().classModule("clsShop", "Property Get Item()\r\nAttribute Item.VB_UserMemId = 0\r\n"
                                                      "End Property\r\nSub Run()\r\n  Shell \"a\"\r\nEnd Sub\r\n"));
    auto& report = openReport();
    goToFirst(report);
    ASSERT_TRUE(window().code().current());
    int line = -1, column = -1;
    window().code().current()->scintilla().getCursorPosition(&line, &column);
    EXPECT_EQ(line, 3);
    report.close();
}

TEST_F(MigrationDesktop, SaveAsWritesTheText) {
    openShop();
    auto& report = openReport();
    saveAs(report, folder / "report.txt");
    report.findChild<QPushButton*>("copyMigration")->click();
    EXPECT_EQ(folder.read("report.txt"), QGuiApplication::clipboard()->text().toStdString());
    EXPECT_THAT(folder.read("report.txt"), HasSubstr("modShop.bas:3: Shell"));
    EXPECT_TRUE(boxes.empty());
    report.close();
}

TEST_F(MigrationDesktop, AFileThatCannotBeWrittenIsNamed) {
    openShop();
    auto& report = openReport();
    saveAs(report, "/proc/report.txt");
    EXPECT_THAT(boxes, ElementsAre(testing::StartsWith("/proc/report.txt: ")));
    report.close();
}

TEST_F(MigrationDesktop, AProjectWithoutAFileMustBeSavedFirst) {
    bench->host().projects().addNew();
    settle();
    answer([](QMessageBox& box) { box.accept(); });
    menuItem("&Project", "Mi&gration Report...")->trigger();
    EXPECT_THAT(boxes, ElementsAre(HasSubstr("Save the project first.")));
    EXPECT_FALSE(window().findChild<MigrationReport*>());
}

TEST_F(MigrationDesktop, AProjectMayBeRemovedDuringTheSearchAndAfterIt) {
    openShop();
    menuItem("&Project", "Mi&gration Report...")->trigger();
    auto& report = *window().findChild<MigrationReport*>();
    clean(project());
    bench->host().VBProjects()->Remove(project());
    finish(report);
    EXPECT_THAT(summary(report), HasSubstr("1 place to change"));
    goToFirst(report);
    EXPECT_FALSE(window().code().current());
    report.close();
}

TEST_F(MigrationDesktop, TheProgramEndsDuringTheSearch) {
    openShop();
    menuItem("&Project", "Mi&gration Report...")->trigger();
    end();
}

TEST_F(MigrationDesktop, IsDrawnInBothThemes) {
    open(test::SampleProject()
             .member("Reference=*\\G{00000205-0000-0010-8000-00AA006D2EA4}#2.5#0#..\\msado25.tlb#ActiveX Data Objects")
             .form("frmShop", "Private Sub Form_Load()\r\n  MousePointer = 11\r\n  PrintForm\r\nEnd Sub\r\n")
             .module("modShop", "Sub Main()\r\n  Shell \"notepad.exe\"\r\n  SendKeys \"a\"\r\nEnd Sub\r\n"));
    for (const auto theme : {workbench::Theme::Light, workbench::Theme::Dark}) {
        window().setTheme(theme);
        auto& report = openReport();
        const auto* const name = theme == workbench::Theme::Light ? "light" : "dark";
        EXPECT_TRUE(report.grab().save(QString(FERNWICK_BINARY_DIR "/migration-%1.png").arg(name)));
        report.close();
        QCoreApplication::sendPostedEvents(&report, QEvent::DeferredDelete);
    }
}
