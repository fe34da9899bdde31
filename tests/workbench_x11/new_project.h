#pragma once
// A new project from the project manager, with the mouse or with the keyboard.
#include "tests/workbench_x11/x_desktop.h"
#include <QDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QThread>

namespace test {

class NewProject : public XDesktop {
protected:
    static QDialog* dialog() {
        auto* const window = dynamic_cast<QDialog*>(QApplication::activeModalWidget());
        return window && window->isVisible() && window->isActiveWindow() ? window : nullptr;
    }
    static void waitForDialog(const QString& name) {
        eventually("the dialog " + name.toStdString(), [&] { return dialog() && dialog()->objectName() == name; });
    }
    static void waitForNoDialog() {
        eventually("no dialog", [] { return !QApplication::activeModalWidget(); });
    }
    template <class W = QWidget>
    static W& widget(const char* name) {
        return *dialog()->findChild<W*>(name);
    }
    /// A row of a list.
    static QPoint rowOf(const char* list, int row, bool itsTick = false) {
        return ask([&] {
            auto& rows = widget<QListWidget>(list);
            auto place = rows.visualItemRect(rows.item(row));
            if (itsTick) place.setWidth(place.height());
            return middleOf(*rows.viewport(), place);
        });
    }

    /// Without a project; new files are saved in the test's folder.
    void startEmpty() {
        ask([this] {
            auto& registry = bench->addIn().registry;
            constexpr char kHost[] = "Software\\Microsoft\\VisualStudio\\6.0\\Setup\\Microsoft Visual Basic";
            const fernwick::RegistryKey key{
                registry, registry.OpenOrCreateKey(fernwick::HKEY_LOCAL_MACHINE, kHost, fernwick::KEY_ALL_ACCESS)};
            registry.SetValue(key.handle(), "ProductDir", folder.path(), fernwick::REG_SZ);
        });
        connect();
        QThread::sleep(1); // within the first second a new control asks for no save
    }
    void waitForNewForm() {
        eventually("a new project with a form", [this] {
            return !QApplication::activeModalWidget() &&
                   !window().explorer().findItems("Form1", Qt::MatchStartsWith | Qt::MatchRecursive).isEmpty();
        });
    }
    static void waitForField(const char* name, const char* text) {
        eventually(std::string("the field with ") + text, [&] {
            const auto* const field = dialog() ? dialog()->findChild<QLineEdit*>(name) : nullptr;
            return field && field->hasFocus() && field->text() == text;
        });
    }

    // ---- with the mouse ----
    static void clickOn(const char* name) {
        click(ask([&] { return middleOf(widget(name)); }));
    }
    /// For the device in this row of the list.
    void newProjectByMouse(int device) {
        choose("&Fernwick", "&Open Fernwick Project...");
        waitForDialog("frmProjectManager");
        clickOn("btnNewProject");
        waitForDialog("frmDesignTargetNormal");
        click(rowOf("lstQuickDesignTargets", device));
        clickOn("btnOK");
        waitForNewForm();
    }
    void openFormByMouse() {
        doubleClick(explorerEntry("Form1"));
        eventually("the designer of Form1",
                   [this] { return window().design().forms().current() && window().design().toolbox().isVisible(); });
    }

    // ---- with the keyboard ----
    void chooseByKeys(const QString& caption, const QString& letter) {
        press({"alt+f"});
        eventually("the first menu", [this] { return menu("&File")->isVisible(); });
        constexpr int kMost = 10;
        for (int i = 0; i < kMost && !ask([&] { return menu(caption)->isVisible(); }); ++i) press({"Right"});
        eventually("the menu " + caption.toStdString(), [&] { return menu(caption)->isVisible(); });
        press({letter});
    }
    static void tabTo(const QString& name) {
        constexpr int kMost = 40;
        for (int i = 0; i < kMost; ++i) {
            if (ask([&] { return QApplication::focusWidget() && QApplication::focusWidget()->objectName() == name; }))
                return;
            press({"Tab"});
        }
        ADD_FAILURE() << "Tab does not reach " << name.toStdString();
    }
    void newProjectByKeys(int device) {
        chooseByKeys("&Fernwick", "o");
        waitForDialog("frmProjectManager");
        tabTo("btnNewProject");
        press({"space"});
        waitForDialog("frmDesignTargetNormal");
        tabTo("lstQuickDesignTargets");
        press({"Home"});
        for (int row = 0; row < device; ++row) press({"Down"});
        press({"space", "Return"});
        waitForNewForm();
    }
    void openFormByKeys() {
        press({"ctrl+r"});
        eventually("the explorer has the keys", [this] { return window().explorer().hasFocus(); });
        press({"End"});
        eventually("Form1 is chosen", [this] { return window().explorer().currentComponent() == component("Form1"); });
        press({"Return"});
        eventually("the designer of Form1", [this] { return window().design().forms().current(); });
    }
    /// Accepts the proposed names of the files.
    void saveByKeys() {
        waitForDialog("frmSaveWarning");
        press({"Return"});
        for (const char* name : {"Form1.frm", "Project1.vbp"}) {
            waitForField("fileNameEdit", name);
            press({"Return"});
        }
        waitForSave();
    }
    void saveByMouse() {
        answerUntil("the project is saved", {With::Mouse, {"btnOK", "OK", "Save"}}, [this] { return isSaved(); });
    }
    bool isSaved() {
        return !QApplication::activeModalWidget() && !bench->host().ActiveVBProject()->FileName().empty();
    }
    void waitForSave() {
        eventually("the project is saved", [this] { return isSaved(); });
    }
};

} // namespace test
