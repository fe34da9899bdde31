// Every word of the windows, and the names that screen readers use. After a change, run these tests with
// FERNWICK_APPROVE=1 and read the diff of words/.
#include "Apps/common/version.h"
#include "Apps/workbench/base/message_box.h"
#include "Apps/workbench/project/new_project.h"
#include "Apps/workbench/project/project_properties.h"
#include "Apps/workbench/unsaved/outside_box.h"
#include "Apps/workbench/unsaved/outside_changes.h"
#include "Apps/workbench/window/boxes.h"
#include "Apps/workbench/window/page_window.h"
#include "tests/workbench/options_world.h"
#include "tests/workbench/window_words.h"
#include <QMessageBox>
#include <QTabWidget>

using test::expectWords;

namespace {

struct Words : test::OptionsDesktop {
    /// Shows a box and compares it.
    static void expectBox(const std::string& name, const std::function<void()>& show,
                          const std::vector<std::pair<std::string, std::string>>& changing = {}) {
        test::whenShown<QMessageBox>([&](QMessageBox& box) {
            expectWords(box, name, changing);
            box.reject();
        });
        show();
    }
};

} // namespace

TEST_F(Words, OfTheMainWindow) {
    bench->open(test::SampleProject("Demo")
                    .module("modA", "Sub Main()\r\n    Beep\r\nEnd Sub\r\n")
                    .member("Form=frmMain.frm", "frmMain.frm", test::formText("frmMain"))
                    .writeTo(folder));
    settle();
    design("frmMain");
    code();
    expectWords(window(), "main_window", {{folder.path(), "..."}});
}

TEST_F(Words, OfTheOptions) {
    edit([](Dialog& dialog) {
        EXPECT_EQ(dialog.size(), QSize(620, 520).expandedTo(dialog.sizeHint()));
        expectWords(dialog, "options");
        test::click(dialog, "cancel");
    });
}

TEST_F(Words, OfTheColoursInTheDark) {
    window().setTheme(workbench::Theme::Dark);
    edit([](Dialog& dialog) {
        expectWords(dialog.colours(), "colours_in_the_dark");
        test::click(dialog, "cancel");
    });
}

TEST_F(Words, OfTheDialogForANewProject) {
    workbench::NewProjectDialog dialog({{"Standard EXE", ""}, {"Fernwick Project", "F.vbp"}, {"Other", "O.vbp"}},
                                       nullptr);
    EXPECT_EQ(dialog.size(), QSize(340, 240));
    expectWords(dialog, "new_project");
}

TEST_F(Words, OfTheProjectProperties) {
    openModule();
    expectWords(workbench::ProjectProperties(project(), nullptr), "project_properties");
}

TEST_F(Words, OfTheFindBar) {
    openModule();
    code();
    menuItem("&Edit", "&Find...")->trigger();
    expectWords(window().findBar(), "find");
    menuItem("&Edit", "R&eplace...")->trigger();
    expectWords(window().findBar(), "replace");
}

TEST_F(Words, OfTheNotice) {
    window().notice().showText("Something happened.", {{"&Act", [] {}}});
    expectWords(window().notice(), "notice");
}

TEST_F(Words, OfTheBoxes) {
    using namespace workbench;
    auto* const above = &window();
    expectBox("all_buttons", [&] {
        showBox(above, QMessageBox::Critical, "A text.",
                QMessageBox::Ok | QMessageBox::Cancel | QMessageBox::Yes | QMessageBox::No | QMessageBox::Save |
                    QMessageBox::Discard,
                QMessageBox::No);
    });
    expectBox("no_fernwick_project", [&] { showNoFernwickProject("Demo", above); });
    expectBox("not_connected", [&] { showNotConnected(above); });
    expectBox("opened_too_early", [&] { showOpenedTooEarly("Demo", above); });
    expectBox("about", [&] { showAbout(above); }, {{qVersion(), "..."}, {apps::kVersion, "..."}});
    expectBox("trust", [] { askToTrust("/folder", {"make all", "true"}); });
    expectBox("problems", [&] {
        showProblems({{"A.vbp", 0, "One"},
                      {"A.frm", 1, "Two"},
                      {"B.frm", 2, "Three"},
                      {"C.frm", 3, "Four"},
                      {"D.frm", 4, "Five"},
                      {"E.frm", 5, "Six"}},
                     above);
    });
    expectBox("no_program", [&] { showWithoutBrowser("/folder/a.pdf", above); });
}

TEST_F(Words, OfAPageWithoutABrowser) {
    for (const auto& [name, page] :
         {std::pair("page", "<title>A title</title>"), std::pair("page_without_title", "<p>x")}) {
        workbench::showWithoutBrowser(QString::fromStdString(folder.write("Help.html", page)), &window());
        const std::unique_ptr<QDialog> shown(window().findChild<QDialog*>("pageWindow"));
        ASSERT_TRUE(shown);
        EXPECT_EQ(shown->size(), QSize(720, 560));
        expectWords(*shown, name);
    }
}

TEST_F(Words, OfTheQuestionsAboutOutsideChanges) {
    openModule();
    const auto module = component("modA");
    std::vector<workbench::OutsideChange> changes{{project(), nullptr, "/folder/Demo.vbp", 1, false},
                                                  {project(), nullptr, "/folder/Demo.vbp", 1, true},
                                                  {project(), module, "/folder/modA.bas", 1, false},
                                                  {project(), module, "/folder/modA.bas", 1, true},
                                                  {project(), module, "/folder/modA.bas", {}, true}};
    const auto show = [&](const std::string& name) {
        test::whenShown([&](QDialog& box) {
            EXPECT_EQ(box.size(), QSize(520, 300));
            expectWords(box, name);
            box.reject();
        });
        EXPECT_TRUE(workbench::askWhatToReload(changes, &window()).empty());
    };
    show("changed_outside");
    changes.erase(changes.begin(), changes.end() - 1);
    show("removed_outside");
    expectBox("replace_changed", [] { EXPECT_FALSE(workbench::mayReplaceChanged("/folder/modA.bas")); });
}
