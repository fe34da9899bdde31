// References and renaming, with the keyboard alone.
#include "tests/support/sample_project.h"
#include "tests/workbench_x11/x_desktop.h"
#include <QDialog>
#include <QLabel>
#include <QTreeWidget>
#include <gtest/gtest.h>

using namespace test;

namespace {

const char* const kFeeCode = "Function Fee(Amount)\r\n    Fee = Amount * 2\r\nEnd Function\r\n\r\n"
                             "Sub Main()\r\n    x = Fee(1) ' Fee\r\nEnd Sub\r\n";

struct NamesRoad : XDesktop {
    NamesRoad() {
        begin([this] { bench->open(SampleProject().module("modFees", kFeeCode).writeTo(folder)); });
        connect();
        ask([this] { window().explorer().setFocus(); });
        press({"ctrl+r", "End", "F7"});
        eventually("the code", [this] { return code() && code()->hasFocus(); });
        press({"ctrl+Home", "ctrl+Right"});
    }
    QTreeWidget* results() { return window().results().findChild<QTreeWidget*>("searchResults"); }
    static QDialog* dialog() { return dynamic_cast<QDialog*>(QApplication::activeModalWidget()); }
};

} // namespace

TEST_F(NamesRoad, ReferencesAndRenamingByTheKeyboardAlone) {
    press({"shift+F12"});
    eventually("three lines in the list that has the focus",
               [this] { return results()->topLevelItemCount() == 3 && results()->hasFocus(); });
    press({"Down", "Down", "Return"});
    eventually("the last of them", [this] {
        int line = 0, column = 0;
        code()->getCursorPosition(&line, &column);
        return code()->hasFocus() && line == 5 && code()->selectedText() == "Fee";
    });
    press({"F2"});
    eventually("the dialog with three lines", [] {
        auto* const tree = dialog() ? dialog()->findChild<QTreeWidget*>("places") : nullptr;
        return tree && tree->topLevelItemCount() == 1 && tree->topLevelItem(0)->childCount() == 3;
    });
    type("Main");
    press({"Return"});
    eventually("a refusal", [] { return dialog() && dialog()->findChild<QLabel*>("problem")->isVisible(); });
    press({"ctrl+a"});
    type("Charge");
    press({"Return"});
    eventually("the new name", [this] { return !dialog() && code()->text(5).trimmed() == "x = Charge(1) ' Fee"; });
    press({"ctrl+z"});
    eventually("the old name", [this] { return code()->text(0).startsWith("Function Fee("); });
}
