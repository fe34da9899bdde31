// Help while typing, with the keyboard alone.
#include "tests/support/sample_project.h"
#include "tests/workbench_x11/x_desktop.h"
#include <QLabel>
#include <QListWidget>
#include <QStatusBar>
#include <gtest/gtest.h>

using namespace test;

namespace {

const char* const kCode = "Function Fee(Amount As Currency, Optional Rate As Double = 2.5) As Currency\r\n"
                          "    Fee = Amount * Rate\r\nEnd Function\r\n\r\nSub Main()\r\n\r\nEnd Sub\r\n";

struct AssistRoad : XDesktop {
    AssistRoad() {
        begin([this] { bench->open(SampleProject().module("modFees", kCode).writeTo(folder)); });
        connect();
        ask([this] { window().explorer().setFocus(); });
        press({"ctrl+r", "End", "F7"});
        eventually("the code", [this] { return code() && code()->hasFocus(); });
        press({"ctrl+End", "Up"});
    }
    static QListWidget* list() {
        for (auto* widget : QApplication::topLevelWidgets())
            if (auto* shown = qobject_cast<QListWidget*>(widget); shown && shown->isVisible()) return shown;
        return nullptr;
    }
    void waitForChosen(const QString& name) {
        eventually("the list with " + name.toStdString(), [&] {
            const auto* const shown = list();
            return shown && shown->currentItem() && shown->currentItem()->text() == name;
        });
    }
    QString tip() {
        auto* const label = code()->findChild<QLabel*>("codeTip");
        return label->isVisible() ? label->text() : QString();
    }
    void waitForTip(const QString& expected) {
        eventually("the tip " + expected.toStdString(), [&] { return tip() == expected; });
    }
    void waitForLine(int line, const QString& expected) {
        eventually("the line " + expected.toStdString(), [&] { return code()->text(line).trimmed() == expected; });
    }
};

} // namespace

TEST_F(AssistRoad, NamesParametersAndErrorsByTheKeyboardAlone) {
    type("Dim s As Str");
    waitForChosen("String");
    press({"Return"});
    waitForLine(5, "Dim s As String");
    type("s = Fee(");
    waitForTip("Fee(<b>Amount As Currency</b>, [Rate As Double = 2.5]) As Currency");
    type("1, ");
    waitForTip("Fee(Amount As Currency, <b>[Rate As Double = 2.5]</b>) As Currency");
    press({"Escape"});
    waitForTip({});
    press({"Up"});
    eventually("the error of the line",
               [this] { return window().statusBar()->currentMessage().contains("expected", Qt::CaseInsensitive); });
    press({"Down", "End"});
    type("2)");
    press({"Left", "Left", "Left", "Left", "Left", "Left"});
    press({"ctrl+i"});
    waitForTip("Function Fee(Amount As Currency, [Rate As Double = 2.5]) As Currency");
}
