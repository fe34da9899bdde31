#pragma once
// The desktop with the options dialog.
#include "Apps/workbench/options/colours_page.h"
#include "Apps/workbench/options/options_dialog.h"
#include "tests/workbench/designer_desktop.h"
#include <QSettings>
#include <QTabWidget>

namespace test {

/// Begins and ends with the usual options.
class OptionsDesktop : public DesignerDesktop {
protected:
    using Dialog = workbench::OptionsDialog;

    ~OptionsDesktop() override {
        end();
        QSettings().clear();
        workbench::apply(workbench::Theme::Light);
    }

    /// Opens the dialog, which `act` must close.
    void edit(const std::function<void(Dialog&)>& act) {
        whenShown<Dialog>(act);
        menuItem("&Tools", "&Options...")->trigger();
        settle();
    }
    /// Opens the dialog, acts, and closes it with OK.
    void change(const std::function<void(Dialog&)>& act) {
        edit([&act](Dialog& dialog) {
            act(dialog);
            click(dialog, "ok");
        });
    }
    template <class Widget>
    static Widget& field(Dialog& dialog, const char* name) {
        return *dialog.findChild<Widget*>(name);
    }
    static void turnTo(Dialog& dialog, int page) { field<QTabWidget>(dialog, "pages").setCurrentIndex(page); }
    enum Page { kEditor, kColours, kDesigner, kKeys };

    void openModule() {
        bench->open(SampleProject("Demo").module("modA", "Sub Main()\r\nEnd Sub\r\n").writeTo(folder));
        settle();
    }
    QsciScintilla& code() {
        component("modA")->CodeModule()->CodePane()->Show();
        settle();
        return window().code().current()->scintilla();
    }
};

} // namespace test
