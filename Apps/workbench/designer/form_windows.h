#pragma once
// The open form views, which are tabs beside the code windows.
#include "Apps/workbench/code/code_windows.h"
#include "Apps/workbench/designer/form_view.h"
#include <QPointer>

namespace workbench {

/// Follows the host: opens, shows and closes a tab when the host does so with the designer. A form is read when its tab
/// opens.
class FormWindows final : public QObject {
public:
    struct Callbacks {
        std::function<void(const std::function<void()>&)> run;
        /// The selected form or control changed.
        std::function<void()> selected;
        /// See FormView::Callbacks.
        std::function<std::string()> tool;
        std::function<void()> toolUsed;
        std::function<void()> placeChanged;
        std::function<void()> formChanged;
        std::function<DesignGrid()> grid;
        std::function<void(const QPoint&)> menu;
    };

    /// Host, tabs and history outlive this.
    FormWindows(host::Host& host, CodeWindows& tabs, DesignHistory& history, Callbacks callbacks);

    /// Raised before a view is deleted.
    fernwick::Event<FormView&> closing;

    std::vector<FormView*> views() const;
    /// Null for a component without a form view.
    FormView* viewOf(const vbide::Ref<vbide::VBComponent>& component) const;
    /// Null if no form view is in front.
    FormView* current() const;
    /// Updates the titles and closes the views of removed components when Qt's loop turns.
    void refreshSoon() { refresh_.start(); }

private:
    void open(const vbide::Ref<vbide::VBComponent>& component);
    void show(const vbide::Ref<vbide::VBComponent>& component);
    void closed(QWidget* tab);
    void close(QPointer<FormView> view);
    /// Makes the host raise its event, once, for the form that the user works on.
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
