// A project is converted to another device from the Project menu.
#include "Apps/workbench/bridge/form_window.h"
#include "tests/workbench/desktop.h"
#include <QCheckBox>
#include <QFileDialog>
#include <QListWidget>
#include <QStatusBar>
#include <gmock/gmock.h>

using testing::HasSubstr;

namespace {

class Converting : public test::Desktop {
protected:
    Converting() { openSample("HelloWorld"); }
    /// `act` is what the user does in the converter.
    void convert(const std::function<void(workbench::FormWindow&)>& act) {
        bool wasShown = false;
        test::whenShown<workbench::FormWindow>([&](workbench::FormWindow& shown) {
            wasShown = true;
            act(shown);
        });
        command()->trigger();
        EXPECT_TRUE(wasShown);
        settle();
    }
    QAction* command() { return menuItem("&Project", "Convert to Another &Device..."); }
    /// Presses OK for Pocket PC.
    static void choose(workbench::FormWindow& shown, bool inPlace) {
        shown.findChild<QListWidget*>("lstDesignTargets")->setCurrentRow(1);
        shown.findChild<QCheckBox*>("chkOverwrite")->setChecked(inPlace);
        test::click(shown, "btnOK");
    }
    std::string device() { return bench->addIn().projects.GetQLProject(project())->TargetDevice(); }
};

} // namespace

TEST_F(Converting, InPlaceNamesTheOldFileInTheStatusLine) {
    const auto path = project()->FileName();
    convert([](auto& shown) { choose(shown, true); });
    EXPECT_EQ(project()->FileName(), path);
    EXPECT_EQ(device(), "PocketPC-SH3");
    EXPECT_EQ(window().statusBar()->currentMessage().toStdString(), "The old project file is " + path + ".bak");
    EXPECT_TRUE(std::filesystem::exists(path + ".bak"));
    EXPECT_FALSE(bench->addIn().converter.isLoaded());
}

TEST_F(Converting, ACopyTakesThePlaceOfTheProject) {
    const auto original = folder.read("HelloWorld/HelloWorld.vbp");
    const auto copy = folder / "pocket/HelloWorld.vbp";
    std::filesystem::create_directory(folder / "pocket");
    convert([&](auto& shown) {
        test::whenShown<QFileDialog>([&](QFileDialog& dialog) {
            dialog.selectFile(QString::fromStdString(copy));
            static_cast<QDialog&>(dialog).accept();
        });
        choose(shown, false);
    });
    EXPECT_EQ(bench->host().VBProjects()->Count(), 1);
    EXPECT_EQ(project()->FileName(), copy);
    EXPECT_EQ(device(), "PocketPC-SH3");
    EXPECT_EQ(folder.read("HelloWorld/HelloWorld.vbp"), original);
}

TEST_F(Converting, UnsavedChangesAreSavedFirstOrNothingHappens) {
    component("frmHello")->CodeModule()->InsertLines(1, "' new");
    test::whenShown<QMessageBox>([](QMessageBox& box) {
        EXPECT_THAT(box.text().toStdString(), HasSubstr("The project has unsaved changes."));
        box.button(QMessageBox::Cancel)->click();
    });
    command()->trigger();
    EXPECT_EQ(device(), "PalmOS-DragonBall");
    EXPECT_TRUE(component("frmHello")->IsDirty());

    test::whenShown<QMessageBox>([&](QMessageBox& box) {
        test::whenShown<workbench::FormWindow>([](auto& shown) { choose(shown, true); });
        box.button(QMessageBox::Ok)->click();
    });
    command()->trigger();
    settle();
    EXPECT_EQ(device(), "PocketPC-SH3");
    EXPECT_THAT(folder.read("HelloWorld/frmHello.frm"), HasSubstr("' new"));
    EXPECT_EQ(project()->VBComponents()->Count(), 1);
}
