#pragma once
// The open form views, tabs beside those of code.
#include "Apps/workbench/code/code_windows.h"
#include "Apps/workbench/designer/form_view.h"

namespace workbench {

/// Follows the host: a designer that opens gets a tab, one that closes loses it, and one that comes to the front is shown.
/// A form is read when its tab opens.
class FormWindows final : public QObject {
public:
    struct Callbacks {
        std::function<void(const std::function<void()>&)> run;
        /// Another form or control is selected, or the one that is has changed.
        std::function<void()> selected;
        /// As those of FormView.
        std::function<std::string()> tool;
        std::function<void()> toolUsed;
    };

    /// Host, tabs and history outlive this.
    FormWindows(host::Host& host, CodeWindows& tabs, DesignHistory& history, Callbacks callbacks);

    std::vector<FormView*> views() const;
    /// Null for a component without a form view.
    FormView* viewOf(const vbide::Ref<vbide::VBComponent>& component) const;
    /// Null when no form view is in front.
    FormView* current() const;
    /// Titles may be others, and views of components that the host no longer has go, when Qt's loop turns.
    void refreshSoon() { refresh_.start(); }

private:
    void open(const vbide::Ref<vbide::VBComponent>& component);
    void show(const vbide::Ref<vbide::VBComponent>& component);
    void closed(QWidget* tab);
    /// The user works on this form now: the host tells so, once.
    void activate(const vbide::Ref<vbide::VBComponent>& component);
    void refresh();

    host::Host& host_;
    CodeWindows& tabs_;
    DesignHistory& history_;
    Callbacks callbacks_;
    QTimer refresh_;
    bool opening_ = false;
    std::vector<fernwick::Subscription> watches_;
};

} // namespace workbench
