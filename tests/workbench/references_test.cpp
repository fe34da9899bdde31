// The dialogs for the references and components of a project.
#include "Apps/workbench/references/libraries_dialog.h"
#include "Apps/workbench/references/library_rows.h"
#include "Host/model/host.h"
#include "tests/support/test_host.h"
#include "tests/workbench/keyboard_access.h"
#include "tests/workbench/open_desktop.h"
#include "tests/workbench/window_words.h"
#include <QLabel>
#include <QListWidget>
#include <QPushButton>

using testing::HasSubstr;
using testing::Not;
using workbench::LibrariesDialog;
using workbench::LibraryKind;

namespace {

constexpr auto kStdOle = "Reference=*\\G{00020430-0000-0000-C000-000000000046}#2.0#0#..\\stdole2.tlb#OLE Automation";
constexpr auto kGone = "Reference=*\\G{11111111-2222-3333-4444-55555555AAAA}#1.0#0#..\\gone.dll#Gone Library";
constexpr auto kTavlets = "Object={1198F6AB-5766-4D4A-A1AF-CD9A25D2D2B4}#1.0#0; Tavlets.dll";

class Libraries : public test::OpenDesktop {
protected:
    /// Opens the dialog, which `act` must close.
    void edit(const char* command, const std::function<void(LibrariesDialog&)>& act) {
        test::whenShown<LibrariesDialog>(act);
        menuItem("&Project", command)->trigger();
        settle();
    }
    static QListWidget& list(LibrariesDialog& dialog) { return *dialog.findChild<QListWidget*>("libraries"); }
    static QListWidgetItem& row(LibrariesDialog& dialog, const QString& text) {
        const auto found = list(dialog).findItems(text, Qt::MatchContains);
        return *found.value(0);
    }
    static QPushButton& button(LibrariesDialog& dialog, const char* name) {
        return *dialog.findChild<QPushButton*>(name);
    }
    std::string saved() {
        project()->SaveAs(project()->FileName());
        return folder.read("Hello.vbp");
    }
    void openWith(const std::vector<std::string>& lines) {
        test::SampleProject sample;
        for (const auto& line : lines) sample.member(line);
        open(sample.module("modA", "Dim x\r\n"));
    }
};

} // namespace

TEST_F(Libraries, AreListedAsTheProjectHasThemAndThenAsRegistered) {
    openWith({kStdOle, kGone});
    edit("Refere&nces...", [](LibrariesDialog& dialog) {
        EXPECT_EQ(list(dialog).item(0)->text(), "Visual Basic For Applications");
        EXPECT_FALSE(list(dialog).item(0)->flags().testFlag(Qt::ItemIsUserCheckable));
        EXPECT_EQ(list(dialog).item(3)->text(), "OLE Automation");
        EXPECT_EQ(list(dialog).item(4)->text(), "MISSING: Gone Library");
        EXPECT_EQ(list(dialog).item(4)->checkState(), Qt::Checked);
        EXPECT_EQ(row(dialog, "Fernwick Device Functions").checkState(), Qt::Unchecked);
        test::expectKeyboardAccess(dialog);
        dialog.reject();
    });
}

TEST_F(Libraries, OkChangesOnlyTheirLines) {
    openWith({kStdOle, kGone});
    const auto before = saved();
    edit("Refere&nces...", [](LibrariesDialog& dialog) {
        row(dialog, "Gone Library").setCheckState(Qt::Unchecked);
        row(dialog, "Fernwick Device Functions").setCheckState(Qt::Checked);
        dialog.accept();
    });
    auto after = saved();
    EXPECT_THAT(after, Not(HasSubstr("Gone")));
    const auto at = after.find("Reference=*\\G{CA647498");
    ASSERT_NE(at, std::string::npos);
    after.erase(at, after.find("\r\n", at) + 2 - at);
    const auto gone = std::string(kGone) + "\r\n";
    auto rest = before;
    EXPECT_EQ(after, rest.erase(rest.find(gone), gone.size()));
    edit("Refere&nces...", [](LibrariesDialog& dialog) { dialog.accept(); });
    EXPECT_FALSE(project()->IsDirty());
}

TEST_F(Libraries, PriorityIsTheOrderOfTheLines) {
    openWith({kStdOle, kGone});
    const auto before = saved();
    EXPECT_LT(before.find("OLE Automation"), before.find("Gone Library"));
    edit("Refere&nces...", [](LibrariesDialog& dialog) {
        list(dialog).setCurrentRow(3);
        EXPECT_FALSE(button(dialog, "up").isEnabled());
        button(dialog, "down").click();
        EXPECT_EQ(list(dialog).currentRow(), 4);
        EXPECT_FALSE(button(dialog, "down").isEnabled());
        dialog.accept();
    });
    const auto after = saved();
    EXPECT_LT(after.find("Gone Library"), after.find("OLE Automation"));
    EXPECT_EQ(after.size(), before.size());
    EXPECT_EQ(project()->References()->Item(4)->Description(), "Gone Library");
    project()->References()->Remove(project()->References()->Item(4));
    EXPECT_THAT(saved(), Not(HasSubstr("Gone")));
}

TEST_F(Libraries, ComponentsInUseStay) {
    open(test::SampleProject().member(kTavlets).member(
        "Form=frmA.frm", "frmA.frm",
        "VERSION 5.00\r\nObject = \"{1198F6AB-5766-4D4A-A1AF-CD9A25D2D2B4}#1.0#0\"; \"Tavlets.dll\"\r\n"
        "Begin VB.Form frmA \r\n   Caption         =   \"x\"\r\nEnd\r\nAttribute VB_Name = \"frmA\"\r\n"));
    edit("C&omponents...", [](LibrariesDialog& dialog) {
        auto& tavlets = row(dialog, "Tavlets");
        tavlets.setCheckState(Qt::Unchecked);
        EXPECT_EQ(tavlets.checkState(), Qt::Checked);
        EXPECT_EQ(dialog.findChild<QLabel*>("problem")->text(),
                  "\"frmA\" has controls of this library. Remove them first.");
        dialog.accept();
    });
    EXPECT_THAT(saved(), HasSubstr(kTavlets));
}

TEST_F(Libraries, ComponentsAreAddedAndRemoved) {
    openWith({});
    edit("C&omponents...", [](LibrariesDialog& dialog) {
        EXPECT_FALSE(button(dialog, "up").isVisible());
        row(dialog, "Fernwick Tavlets").setCheckState(Qt::Checked);
        dialog.accept();
    });
    EXPECT_THAT(saved(), HasSubstr("Object={1198F6AB-5766-4D4A-A1AF-CD9A25D2D2B4}#1.0#0; Tavlets.dll\r\n"));
    edit("C&omponents...", [](LibrariesDialog& dialog) {
        list(dialog).item(0)->setCheckState(Qt::Unchecked);
        dialog.accept();
    });
    EXPECT_THAT(saved(), Not(HasSubstr("Object=")));
}

TEST_F(Libraries, AFileIsReadWhenTheDialogIsConfirmed) {
    openWith({});
    test::SampleProject("Other").module("modO", "Dim x\r\n").writeTo(folder);
    const auto other = QString::fromStdString(folder / "Other.vbp");
    edit("Refere&nces...", [&](LibrariesDialog& dialog) {
        dialog.addFile(other);
        dialog.accept();
    });
    EXPECT_THAT(saved(), HasSubstr("Reference=*\\AOther.vbp\r\n"));
    answer([](QMessageBox& box) { box.accept(); });
    test::whenShown<LibrariesDialog>([&](LibrariesDialog& dialog) {
        dialog.addFile(QString::fromStdString(folder / "none.dll"));
        dialog.accept();
    });
    menuItem("&Project", "Refere&nces...")->trigger();
    settle(100);
    ASSERT_EQ(boxes.size(), 1u);
    EXPECT_THAT(boxes.front(), HasSubstr("none.dll"));
}

TEST(LibraryRows, ATickedLibraryIsAddedInItsNewestVersion) {
    test::TestHost machine;
    const std::string guid = "{22222222-3333-4444-5555-666666660000}";
    for (const char* version : {"0.1", "1.0", "1.1", "2.0"}) {
        const auto key = "TypeLib\\" + guid + "\\" + version;
        machine.registerText(key, "Versions");
        machine.registerText(key + "\\0\\win32", std::string("versions") + version + ".dll");
    }
    const auto project = machine.open(test::SampleProject().module("modA", "Dim x\r\n"));
    auto& own = *basic::cast<host::Project>(project);
    auto rows = workbench::libraryRows(own, LibraryKind::References);
    for (auto& row : rows)
        if (row.guid == guid) row.isTicked = true;
    workbench::applyRows(own, LibraryKind::References, rows);
    project->SaveAs(project->FileName());
    EXPECT_THAT(machine.folder.read("Hello.vbp"), HasSubstr("*\\G" + guid + "#2.0#0#"));
}

TEST_F(Libraries, HaveTheirWords) {
    openWith({kStdOle, kGone});
    edit("Refere&nces...", [](LibrariesDialog& dialog) {
        EXPECT_EQ(dialog.size(), QSize(520, 420).expandedTo(dialog.minimumSizeHint()));
        test::expectWords(dialog, "references", {{FERNWICK_SOURCE_DIR, "..."}});
        dialog.reject();
    });
    edit("C&omponents...", [](LibrariesDialog& dialog) {
        test::expectWords(dialog, "components_dialog", {{FERNWICK_SOURCE_DIR, "..."}});
        dialog.reject();
    });
}

/// Pictures for review.
TEST_F(Libraries, LookLikeTheirPictures) {
    openWith({kStdOle, kGone, kTavlets});
    for (const auto& [theme, name] :
         {std::pair(workbench::Theme::Light, "light"), std::pair(workbench::Theme::Dark, "dark")}) {
        window().setTheme(theme);
        for (const auto& [command, what] :
             {std::pair("Refere&nces...", "references"), std::pair("C&omponents...", "components")})
            edit(command, [what = QString(what), name = QString(name)](LibrariesDialog& dialog) {
                settle();
                EXPECT_TRUE(dialog.grab().save(QString(FERNWICK_BINARY_DIR "/%1-%2.png").arg(what, name)));
                dialog.reject();
            });
    }
}
