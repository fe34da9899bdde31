#include "Apps/workbench/bars_view.h"
#include "Apps/workbench/command_icons.h"
#include "Apps/workbench/pictures.h"
#include "Apps/workbench/text.h"
#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>
#include <algorithm>

namespace workbench {

namespace {

QString withoutMnemonic(QString caption) { return caption.remove('&').remove("..."); }

bool showsAnything(const host::Bar& bar) {
    return std::any_of(bar.list().begin(), bar.list().end(), [](const auto& control) { return control->Visible(); });
}

/// What the window has other than the model's: left alone where it is the same, for a menu may be open.
void setActions(QWidget& widget, const QList<QAction*>& wanted, const QList<bool>& groups) {
    QList<QAction*> there;
    QList<bool> therefore;
    bool begins = false;
    for (auto* action : widget.actions()) {
        if (!action->isSeparator()) {
            there << action;
            therefore << begins;
        }
        begins = action->isSeparator();
    }
    if (there == wanted && therefore == groups) return;
    for (auto* action : widget.actions()) {
        widget.removeAction(action);
        if (action->isSeparator()) action->deleteLater();
    }
    for (qsizetype i = 0; i < wanted.size(); ++i) {
        if (groups[i]) {
            auto* const line = new QAction(&widget);
            line->setSeparator(true);
            widget.addAction(line);
        }
        widget.addAction(wanted[i]);
    }
}

QIcon faceOf(const host::BarControl& control) {
    const auto face = pictureOf(control.face());
    return face.isNull() ? iconOf(control.Id()) : QIcon(face);
}

void showFace(QAction& action, const host::BarControl& control) {
    action.setIcon(faceOf(control));
    action.setIconVisibleInMenu(control.Style() != office::msoButtonCaption);
}

Qt::ToolBarArea areaOf(int position) {
    switch (position) {
    case office::msoBarLeft: return Qt::LeftToolBarArea;
    case office::msoBarRight: return Qt::RightToolBarArea;
    case office::msoBarBottom: return Qt::BottomToolBarArea;
    default: return Qt::TopToolBarArea;
    }
}

} // namespace

BarsView::BarsView(host::Bars& bars, QMainWindow& window, Run run)
    : bars_(bars), window_(window), run_(std::move(run)), changed_(bars.changed.connect([this] { redraw_.start(); })) {
    redraw_.setSingleShot(true);
    redraw_.setInterval(0); // a menu is built by hundreds of changes
    QObject::connect(&redraw_, &QTimer::timeout, [this] { draw(); });
    draw();
}

BarsView::~BarsView() = default;

void BarsView::draw() {
    redraw_.stop();
    for (auto& [control, drawn] : drawn_) drawn.current = false;
    const auto gone = std::exchange(toolBars_, {});
    for (const auto& bar : bars_.items()) {
        const auto own = basic::cast<host::Bar>(bar).shared();
        if (const auto known = gone.find(own.get()); known != gone.end()) toolBars_.insert(*known);
        drawBar(*own);
    }
    for (const auto& [bar, toolBar] : gone)
        if (!toolBars_.count(bar)) toolBar->deleteLater();
    dropGone();
}

void BarsView::drawBar(host::Bar& bar) {
    if (bars_.ActiveMenuBar() == basic::Ref<office::CommandBar>(bar.shared_from_this()))
        return fill(*window_.menuBar(), bar);
    auto& toolBar = toolBars_[&bar];
    if (!toolBar) {
        toolBar = new QToolBar(qt(bar.Name()));
        window_.addToolBar(areaOf(bar.Position()), toolBar);
        toolBar->setObjectName(qt(bar.Name()));
        toolBar->setIconSize({16, 16});
    }
    toolBar->setVisible(bar.Visible());
    toolBar->setEnabled(bar.Enabled());
    fill(*toolBar, bar);
}

void BarsView::fill(QWidget& widget, const host::Bar& bar) {
    QList<QAction*> actions;
    QList<bool> groups;
    for (const auto& control : bar.list()) {
        groups << (control->BeginGroup() && !actions.isEmpty());
        actions << actionOf(control);
    }
    setActions(widget, actions, groups);
}

QAction* BarsView::actionOf(const std::shared_ptr<host::BarControl>& control) {
    auto& drawn = drawn_[control];
    drawn.current = true;
    if (!drawn.button && !drawn.popup) make(drawn, control);
    auto* const action = drawn.popup ? drawn.popup->menuAction() : drawn.button.get();
    const auto caption = qt(control->Caption());
    action->setText(caption);
    action->setToolTip(control->ToolTipText().empty() ? withoutMnemonic(caption) : qt(control->ToolTipText()));
    if (drawn.button) showFace(*action, *control);
    action->setEnabled(control->Enabled());
    action->setVisible(control->Visible() && (!drawn.popup || showsAnything(*control->popup())));
    if (drawn.popup) fill(*drawn.popup, *control->popup());
    return action;
}

void BarsView::make(Drawn& drawn, const std::shared_ptr<host::BarControl>& control) {
    if (control->popup()) {
        drawn.popup = std::make_unique<QMenu>();
        drawn.popup->setToolTipsVisible(true);
        return;
    }
    makeButton(drawn, control);
}

void BarsView::makeButton(Drawn& drawn, const std::shared_ptr<host::BarControl>& control) {
    drawn.button = std::make_unique<QAction>();
    // a key that two of them had would work for neither
    const auto bar = control->Parent();
    const auto all = bars_.items();
    const bool isInToolbar = std::find(all.begin(), all.end(), bar) != all.end();
    if (!isInToolbar) drawn.button->setShortcut(shortcutOf(control->Id()));
    QObject::connect(drawn.button.get(), &QAction::triggered, [this, link = std::weak_ptr(control)] {
        if (const auto clicked = link.lock()) run_([&] { clicked->Execute(); });
    });
}

/// Later, for it may be a click on one of them that removed it.
void BarsView::dropGone() {
    for (auto at = drawn_.begin(); at != drawn_.end();) {
        if (at->second.current) {
            ++at;
            continue;
        }
        if (at->second.button) at->second.button.release()->deleteLater();
        if (at->second.popup) at->second.popup.release()->deleteLater();
        at = drawn_.erase(at);
    }
}

} // namespace workbench
