#include "Apps/workbench/designer/design_desk.h"
#include "Apps/workbench/arrange/form_grips.h"
#include "Apps/workbench/designer/form_canvas.h"
#include "Apps/workbench/designer/offered_controls.h"
#include "Apps/workbench/menu_editor/menu_editor.h"
#include "Basic/runtime_error.h"
#include <QApplication>

namespace workbench {

DesignDesk::DesignDesk(host::Host& host, CodeWindows& tabs, ProjectExplorer& explorer, Run run)
    : QObject(&tabs),
      host_(host),
      tabs_(tabs),
      explorer_(explorer),
      run_(std::move(run)),
      properties_(new PropertiesWindow(history_, {run_,
                                                  [this](const auto& control) {
                                                      if (auto* view = forms_->current()) view->select(control);
                                                  }})),
      toolbox_(new Toolbox([this](const auto& progId) { addInMiddle(progId); })),
      forms_(new FormWindows(host, tabs, history_,
                             {run_, [this] { followTabs(); }, [this] { return toolbox_->tool(); },
                              [this] { toolbox_->putBack(); }, [this] { placeChanged.raise(); },
                              [this] { selectionChanged.raise(); }, [this] { return grid_; },
                              [this](const auto& at) { menuRequested(at); }})) {
    connect(&tabs, &QTabWidget::currentChanged, this, [this] { followTabs(); });
    connect(&explorer, &QTreeWidget::currentItemChanged, this, [this] { followExplorer(); });
    connect(&explorer, &QTreeWidget::itemClicked, this, [this] { followExplorer(); });
    watch();
}

void DesignDesk::watch() {
    // the explorer follows each component that is added, removed or renamed
    connect(&explorer_, &QTreeWidget::itemChanged, this, [this] { refreshSoon(); });
    connect(explorer_.model(), &QAbstractItemModel::modelReset, this, [this] { refreshSoon(); });
    watches_.push_back(host_.panes.designChanged.connect([this](const auto&) {
        properties_->refreshSoon();
        explorer_.refreshSoon();
        tabs_.refreshSoon();
    }));
}

void DesignDesk::refreshSoon() {
    forms_->refreshSoon();
    properties_->refreshSoon();
}

void DesignDesk::followTabs() {
    selectionChanged.raise();
    if (forms_->current()) listTools();
    if (auto* view = forms_->current()) return properties_->inspect(view->component(), view->selection());
    if (auto* editor = tabs_.current()) return properties_->inspect(editor->component());
    properties_->clear();
}

void DesignDesk::followExplorer() {
    if (!explorer_.hasFocus()) return;
    if (const auto project = explorer_.currentProject()) return properties_->inspect(project);
    if (const auto component = explorer_.currentComponent()) properties_->inspect(component);
}

/// Offers the language's own controls, those of the libraries that the project refers to and its user controls.
void DesignDesk::listTools() {
    OfferedControls offered;
    (void)basic::attempt([&] {
        if (const auto active = host_.ActiveVBProject())
            offered = offeredControls(host_.options(), *active, forms_->current()->component());
    });
    toolbox_->offer(offered);
}

/// Called for a double click in the toolbox.
void DesignDesk::addInMiddle(const std::string& progId) {
    auto* const view = forms_->current();
    if (!view) return;
    const auto inner = view->picture().inner;
    view->add(progId, {onGrid({inner.width() / 2, inner.height() / 2}, {{}, grid_.step()}), QSizeF()});
    view->setFocus();
}

void DesignDesk::updateGrid() {
    grid_ = storedGrid();
    for (auto* view : forms_->views()) view->canvas().redraw();
}

vbide::Ref<vbide::VBComponent> DesignDesk::inHand() const {
    if (explorer_.hasFocus() && explorer_.currentComponent()) return explorer_.currentComponent();
    if (auto* view = forms_->current()) return view->component();
    if (auto* editor = tabs_.current()) return editor->component();
    return explorer_.currentComponent();
}

void DesignDesk::open(const vbide::Ref<vbide::VBComponent>& component) {
    run_([&] {
        component->Activate();
        if (!forms_->viewOf(component)) component->CodeModule()->CodePane()->Show();
    });
}

void DesignDesk::showCode() {
    const auto component = inHand();
    if (component) run_([&] { component->CodeModule()->CodePane()->Show(); });
}

/// Whether the keys are with the properties or the toolbox, from where the command leads back to the form.
bool DesignDesk::isBesideForm(const QWidget* focus) const {
    return focus && (properties_->isAncestorOf(focus) || toolbox_ == focus);
}

void DesignDesk::showObject() {
    const auto component = inHand();
    if (!component) return;
    const auto* view = forms_->current();
    const bool inFront = view && view->component() == component && !isBesideForm(QApplication::focusWidget());
    return inFront ? showCode() : open(component);
}

void DesignDesk::editMenus() {
    auto* const view = forms_->current();
    if (view) run_([&] { workbench::editMenus(history_, view->component(), view); });
}

void DesignDesk::undo() {
    if (auto* const view = forms_->current()) view->undo();
}

void DesignDesk::redo() {
    if (auto* const view = forms_->current()) view->redo();
}

std::optional<std::string> DesignDesk::stepToUndo() const {
    const auto* view = forms_->current();
    return view ? history_.stepToUndo(view->component()) : std::nullopt;
}

std::optional<std::string> DesignDesk::stepToRedo() const {
    const auto* view = forms_->current();
    return view ? history_.stepToRedo(view->component()) : std::nullopt;
}

} // namespace workbench
