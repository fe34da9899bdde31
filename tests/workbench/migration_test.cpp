// The report about what hinders a project on a device.
#include "Apps/workbench/migration/migration_report.h"
#include "tests/workbench/keyboard_access.h"
#include "tests/workbench/open_desktop.h"
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>

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

TEST_F(MigrationDesktop, EnterGoesToTheLine) {
    openShop();
    auto& report = openReport();
    auto* const place = tree(report).topLevelItem(0)->child(0);
    tree(report).setCurrentItem(place);
    QTest::keyClick(&tree(report), Qt::Key_Return);
    settle();
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
    QTest::keyClick(report, Qt::Key_Escape);
    EXPECT_THAT(summary(*report), HasSubstr("Stopped"));
    settle();
    EXPECT_EQ(tree(*report).topLevelItemCount(), 0);
    EXPECT_TRUE(report->isVisible());
    report->close();
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
