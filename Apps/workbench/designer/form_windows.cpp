#include "Apps/workbench/designer/form_windows.h"
#include "Apps/workbench/base/text.h"
#include "Apps/workbench/designer/form_accessibility.h"
#include "Basic/runtime_error.h"

namespace workbench {

FormWindows::FormWindows(host::Host& host, CodeWindows& tabs, DesignHistory& history, Callbacks callbacks)
    : QObject(&tabs), host_(host), tabs_(tabs), history_(history), callbacks_(std::move(callbacks)) {
    exposeDesigners();
    refresh_.setSingleShot(true);
    refresh_.setInterval(0); // saving closes a designer and opens it again
    connect(&refresh_, &QTimer::timeout, this, [this] { refresh(); });
    connect(&tabs, &QTabWidget::tabCloseRequested, this, [this](int index) { closed(tabs_.widget(index)); });
    connect(&tabs, &QTabWidget::currentChanged, this, [this] {
        if (const auto* view = current()) activate(view->component());
    });
    watches_.push_back(host.panes.designerShown.connect([this](auto component) { show(component); }));
    watches_.push_back(host.panes.designerOpened.connect([this](auto component) {
        if (component->HasOpenDesigner()) open(component);
        refresh_.start();
    }));
    watches_.push_back(host.panes.designChanged.connect([this](auto component) {
        if (auto* view = viewOf(component)) view->reloadSoon();
        refresh_.start();
    }));
    // such as its device
    watches_.push_back(host.projectEdited.connect([this](const auto&) {
        for (auto* view : views()) view->updateDeviceScreen();
    }));
    const auto soon = [this](const auto&...) { refresh_.start(); };
    watches_.push_back(host.panes.codeChanged.connect(soon));
    watches_.push_back(host.Events()->VBProjectsEvents()->ItemRemoved.connect(soon));
    watches_.push_back(host.Events()->FileControlEvents(nullptr)->AfterWriteFile.connect(soon));
}

void FormWindows::open(const vbide::Ref<vbide::VBComponent>& component) {
    if (viewOf(component)) return;
    FormView* view = nullptr;
    const auto focused = [this, component] { activate(component); };
    // fails for a file without the description of a form
    const auto failed = basic::attempt([&] {
        view = new FormView(component, history_,
                            {callbacks_.run, callbacks_.selected, focused, callbacks_.tool, callbacks_.toolUsed,
                             callbacks_.placeChanged, callbacks_.formChanged, callbacks_.grid, callbacks_.menu});
    });
    if (failed.Number != 0) return component->DesignerWindow()->Close();
    opening_ = true; // as the user did not choose this form
    tabs_.addTab(view, qt(component->Name()));
    opening_ = false;
    refresh();
}

void FormWindows::activate(const vbide::Ref<vbide::VBComponent>& component) {
    if (!opening_ && host_.SelectedVBComponent() != component) callbacks_.run([&] { component->Activate(); });
}

void FormWindows::show(const vbide::Ref<vbide::VBComponent>& component) {
    auto* const view = viewOf(component);
    if (!view) return;
    tabs_.setCurrentWidget(view);
    view->setFocus();
}

std::vector<FormView*> FormWindows::views() const {
    std::vector<FormView*> all;
    for (int i = 0; i < tabs_.count(); ++i)
        if (auto* view = dynamic_cast<FormView*>(tabs_.widget(i))) all.push_back(view);
    return all;
}

FormView* FormWindows::viewOf(const vbide::Ref<vbide::VBComponent>& component) const {
    for (auto* view : views())
        if (view->component() == component) return view;
    return nullptr;
}

FormView* FormWindows::current() const { return dynamic_cast<FormView*>(tabs_.currentWidget()); }

/// Closes the designer with its tab, before Qt deletes the view without `closing`.
void FormWindows::closed(QWidget* tab) {
    auto* const view = dynamic_cast<FormView*>(tab);
    if (!view) return;
    (void)basic::attempt([&] { view->component()->DesignerWindow()->Close(); });
    refresh();
}

/// Handlers of the event may process further ones.
void FormWindows::close(QPointer<FormView> view) {
    closing.raise(*view);
    delete view;
}

void FormWindows::refresh() {
    const auto open = views();
    for (const QPointer<FormView>& view : std::vector<QPointer<FormView>>(open.begin(), open.end())) {
        if (!view) continue;
        bool isOpen = false;
        (void)basic::attempt([&] { // fails for a removed component
            const auto& component = view->component();
            isOpen = component->HasOpenDesigner();
            tabs_.setTabText(tabs_.indexOf(view),
                             QString("%1 (Form)%2").arg(qt(component->Name()), component->IsDirty() ? " *" : ""));
            tabs_.setTabToolTip(tabs_.indexOf(view), qt(component->FileNames(1)));
        });
        if (!isOpen) close(view);
    }
}

} // namespace workbench
