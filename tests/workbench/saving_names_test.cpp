// Components and projects that are saved under names which the user chooses.
#include "Host/model/projects.h"
#include "tests/workbench/open_desktop.h"
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <filesystem>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class SavingNames : public test::OpenDesktop {
protected:
    SavingNames() { OpenDesktop::open(test::SampleProject("Demo").module("modA", "' a\r\n").form("frmA")); }
    /// Triggers a command and answers each file dialog with a name; "" cancels. Records the dialogs.
    void choose(const QString& menu, const QString& item, std::vector<std::string> names) {
        dialogs.clear();
        names_ = std::move(names);
        answer([](QMessageBox& box) { press(box, "Save"); },
               [this](QDialog& shown) {
                   auto* const dialog = qobject_cast<QFileDialog*>(&shown);
                   if (!dialog) return shown.reject();
                   const auto name = names_.empty() ? std::string() : names_.front();
                   if (!names_.empty()) names_.erase(names_.begin());
                   note(*dialog);
                   if (name.empty()) return shown.reject();
                   dialog->findChild<QLineEdit*>("fileNameEdit")->setText(QString::fromStdString(name));
                   QMetaObject::invokeMethod(dialog, "accept");
               });
        menuItem(menu, item)->trigger();
        settle();
    }
    void note(QFileDialog& dialog) {
        const auto offered = dialog.findChild<QLineEdit*>("fileNameEdit")->text();
        dialogs.push_back((dialog.windowTitle() + ": " + offered + " in " + dialog.directory().dirName() + " of " +
                           dialog.nameFilters().join(';'))
                              .toStdString());
    }
    std::string place() const { return std::filesystem::path(folder.path()).filename().string(); }

    /// "title: file in folder of filters"
    std::vector<std::string> dialogs;

private:
    std::vector<std::string> names_;
};

} // namespace

TEST_F(SavingNames, AComponentIsOfferedItsNameBesideItsFile) {
    code("modA");
    choose("&File", "Save File &As...", {folder / "modOther.bas"});
    EXPECT_THAT(dialogs, ElementsAre("Save modA: modA.bas in " + place() + " of *.bas"));
    EXPECT_EQ(component("modA")->FileNames(1), folder / "modOther.bas");
    EXPECT_EQ(folder.read("modOther.bas"), test::moduleText("modA", "' a\r\n"));
}

TEST_F(SavingNames, ACancelledDialogSavesNothing) {
    code("modA");
    choose("&File", "Save File &As...", {""});
    EXPECT_EQ(dialogs.size(), 1u);
    EXPECT_EQ(component("modA")->FileNames(1), folder / "modA.bas");
    choose("&File", "Save Pro&ject As...", {""});
    EXPECT_EQ(dialogs.size(), 1u);
    EXPECT_EQ(project()->FileName(), folder / "Demo.vbp");
}

TEST_F(SavingNames, AMissingExtensionIsAdded) {
    choose("&File", "Save Pro&ject As...", {folder / "Other"});
    EXPECT_THAT(dialogs, ElementsAre("Save Demo: Demo.vbp in " + place() + " of *.vbp"));
    EXPECT_EQ(project()->FileName(), folder / "Other.vbp");
}

TEST_F(SavingNames, EachTypeHasItsExtension) {
    using namespace vbide;
    std::filesystem::create_directory(folder / "new");
    std::vector<std::string> offered;
    for (const auto type : {vbext_ct_StdModule, vbext_ct_ClassModule, vbext_ct_VBForm, vbext_ct_VBMDIForm,
                            vbext_ct_UserControl, vbext_ct_PropPage, vbext_ct_DocObject}) {
        project()->VBComponents()->Add(type)->CodeModule()->CodePane()->Show();
        settle();
        choose("&File", "&Save File", {""});
        offered.push_back(dialogs.empty() ? "" : dialogs.front().substr(0, dialogs.front().find(" in ")));
    }
    EXPECT_THAT(offered, ElementsAre("Save Module1: Module1.bas", "Save Class1: Class1.cls", "Save Form1: Form1.frm",
                                     "Save MDIForm1: MDIForm1.frm", "Save UserControl1: UserControl1.ctl",
                                     "Save PropertyPage1: PropertyPage1.pag", "Save UserDocument1: UserDocument1.dob"));
}

TEST_F(SavingNames, NewComponentsAreNamedBeforeTheProjectIsSaved) {
    std::filesystem::create_directory(folder / "new");
    project()->VBComponents()->Add(vbide::vbext_ct_StdModule);
    project()->VBComponents()->Add(vbide::vbext_ct_ClassModule);
    choose("&File", "Sa&ve Project", {folder / "new/one.bas", ""});
    EXPECT_THAT(dialogs, ElementsAre("Save Module1: Module1.bas in " + place() + " of *.bas",
                                     "Save Class1: Class1.cls in new of *.cls")); // the folder that was chosen last
    EXPECT_THAT(folder.read("Demo.vbp"), testing::Not(testing::HasSubstr("one.bas")));
    choose("&File", "Sa&ve Project", {folder / "new/two.cls"});
    EXPECT_EQ(dialogs.size(), 1u);
    EXPECT_THAT(folder.read("Demo.vbp"), testing::AllOf(testing::HasSubstr("Module1; new\\one.bas"),
                                                        testing::HasSubstr("Class1; new\\two.cls")));
}

TEST_F(SavingNames, ANewProjectIsSavedAsAWhole) {
    bench->host().VBProjects()->Remove(project());
    bench->host().projects().addNew();
    settle();
    std::filesystem::create_directory(folder / "mine");
    choose("&File", "Sa&ve Project", {folder / "mine/f.frm", ""});
    EXPECT_EQ(dialogs.back(), "Save Project1: Project1.vbp in mine of *.vbp");
    EXPECT_TRUE(project()->FileName().empty());
    choose("&File", "Sa&ve Project", {folder / "mine/p"});
    EXPECT_EQ(project()->FileName(), folder / "mine/p.vbp");
}

TEST_F(SavingNames, RemovingAnUnsavedComponentOffersToSaveIt) {
    project()->VBComponents()->Add(vbide::vbext_ct_StdModule)->CodeModule()->CodePane()->Show();
    component("Module1")->CodeModule()->InsertLines(1, "' new");
    settle();
    choose("&Project", "&Remove File", {""});
    EXPECT_THAT(boxes, ElementsAre("Save the changes to Module1?"));
    EXPECT_EQ(project()->VBComponents()->Count(), 3); // cancelled
    choose("&Project", "&Remove File", {folder / "kept.bas"});
    EXPECT_EQ(project()->VBComponents()->Count(), 2);
    EXPECT_THAT(folder.read("kept.bas"), testing::HasSubstr("' new"));
}

TEST_F(SavingNames, AFileIsAddedFromTheProjectsFolder) {
    folder.write("modB.bas", test::moduleText("modB"));
    choose("&Project", "&Add File...", {""});
    EXPECT_THAT(dialogs, ElementsAre("Add File:  in " + place() +
                                     " of Source files (*.frm *.bas *.cls *.ctl *.pag *.dob *.dsr)"));
    EXPECT_EQ(project()->VBComponents()->Count(), 2);
    choose("&Project", "&Add File...", {folder / "modB.bas"});
    EXPECT_EQ(component("modB")->FileNames(1), folder / "modB.bas");
}

TEST_F(SavingNames, WithoutAProjectTheCommandsDoNothing) {
    bench->host().VBProjects()->Remove(project());
    settle();
    choose("&Project", "&Add File...", {folder / "modB.bas"});
    EXPECT_THAT(dialogs, IsEmpty());
}
