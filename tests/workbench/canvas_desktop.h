#pragma once
// A designer with a form of several controls.
#include "tests/workbench/designer_desktop.h"

namespace test {

class CanvasDesktop : public DesignerDesktop {
protected:
    /// A control of 80 by 40 pixels.
    static std::string box(const std::string& type, const std::string& name, int left, int top,
                           const std::string& more = {}) {
        return "   Begin VB." + type + " " + name +
               " \n      Height          =   600\n      Left            =   " + std::to_string(left) +
               "\n      Top             =   " + std::to_string(top) + "\n      Width           =   1200\n" + more +
               "   End\n";
    }
    static std::string boxes() {
        return box("CommandButton", "cmdA", 240, 240) + box("CommandButton", "cmdB", 1800, 240) +
               box("CommandButton", "cmdC", 240, 1200) +
               box("Frame", "fraD", 2400, 2400,
                   "      Begin VB.CommandButton cmdIn \n         Height          =   240\n         Left            =  "
                   " "
                   "60\n         Top             =   60\n         Width           =   240\n      End\n");
    }
    /// Three buttons, and a frame with a small button at its corner.
    void openBoxes(const std::string& first = {}) { openForm(first + boxes()); }

    std::vector<std::string> selection() {
        std::vector<std::string> names;
        for (const auto& one : view().selection())
            names.push_back(fernwick::asText(one->Properties()->Item("Name")->Value()));
        return names;
    }
    void clickWith(const std::string& name, Qt::KeyboardModifier modifier) {
        QTest::mouseClick(&canvas(), Qt::LeftButton, modifier, middleOf(name));
    }
    using DesignerDesktop::choose;
    /// Selects controls; the last one leads.
    void choose(const std::vector<std::string>& names) {
        view().select(nullptr);
        for (const auto& name : names) name == names.front() ? clickOn(name) : clickWith(name, Qt::ShiftModifier);
        ASSERT_EQ(selection(), names);
    }
    /// A command of the Format menu or one of its submenus.
    QAction* format(const QString& submenu, const QString& item) {
        settle(); // menus follow the selection when the loop turns
        const auto* within = menuItem("F&ormat", submenu);
        for (auto* action : within->menu()->actions())
            if (action->text() == item) return action;
        return nullptr;
    }
    QPointF gripOf(const std::string& name) { return pointOn(placeOf(name).bottomRight()); }
};

} // namespace test
