#include "Apps/workbench/bars/bars_view.h"
#include "Apps/workbench/bars/bar_face.h"
#include "Apps/workbench/base/text.h"
#include "Apps/workbench/base/theme.h"
#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>
#include <algorithm>

namespace workbench {

namespace {

QString tipOf(const host::BarControl& control) {
    const auto& own = control.ToolTipText();
    return qt(host::withoutMnemonic(own.empty() ? control.Caption() : own)).remove("...");
}

QString withKey(const QString& tip, const QKeySequence& key) {
    return key.isEmpty() ? tip : QString("%1 (%2)").arg(tip, key.toString(QKeySequence::NativeText));
}

bool showsAnything(const host::Bar& bar) {
    return std::any_of(bar.list().begin(), bar.list().end(), [](const auto& control) { return control->Visible(); });
}

/// Does nothing if the widget has these actions already, because a menu may be open.
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

} // namespace

BarsView::BarsView(host::Bars& bars, QMainWindow& window, Run run, LookOf lookOf)
    : bars_(bars),
      window_(window),
      run_(std::move(run)),
      lookOf_(std::move(lookOf)),
      docking_(window),
      letters_(*window.menuBar()),
      changed_(bars.changed.connect([this] { redraw_.start(); })) {
    constexpr int kFaceSize = 16;
    window.setIconSize({kFaceSize, kFaceSize});
    redraw_.setSingleShot(true);
    redraw_.setInterval(0); // building a menu causes hundreds of changes
    QObject::connect(&redraw_, &QTimer::timeout, [this] { draw(); });
    draw();
}

BarsView::~BarsView() = default;

void BarsView::draw() {
    redraw_.stop();
    for (auto& [control, drawn] : drawn_) drawn.current = false;
    std::vector<std::shared_ptr<host::Bar>> toolBars;
    for (const auto& bar : bars_.items()) {
        const auto own = basic::cast<host::Bar>(bar).shared();
        if (bar == bars_.ActiveMenuBar()) {
            fillMenuBar(*own);
            continue;
        }
        fill(docking_.toolBarOf(own), *own);
        toolBars.push_back(own);
    }
    docking_.keep(toolBars);
    docking_.place();
    dropGone();
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

void BarsView::fillMenuBar(const host::Bar& bar) {
    fill(*window_.menuBar(), bar);
    for (auto* action : window_.menuBar()->actions())
        if (action->menu()) letters_.follow(*action->menu());
}

QAction* BarsView::actionOf(const std::shared_ptr<host::BarControl>& control) {
    auto& drawn = drawn_[control];
    drawn.current = true;
    if (!drawn.button && !drawn.popup) make(drawn, control);
    auto* const action = drawn.popup ? drawn.popup->menuAction() : drawn.button.get();
    const auto caption = qt(control->Caption());
    action->setText(caption);
    action->setToolTip(withKey(tipOf(*control), drawn.key));
    if (drawn.button) showButton(drawn, *control);
    action->setEnabled(control->Enabled() && control->Parent()->Enabled());
    action->setVisible(control->Visible() && (!drawn.popup || showsAnything(*control->popup())));
    if (drawn.popup) fill(*drawn.popup, *control->popup());
    return action;
}

void BarsView::showButton(Drawn& drawn, const host::BarControl& control) {
    auto& action = *drawn.button;
    const auto looks = std::pair(control.face(), currentTheme());
    if (drawn.looks != looks) {
        drawn.looks = looks;
        const auto face = iconOfFace(control.face());
        action.setIcon(face.isNull() ? lookOf_(control.Id()).icon : face);
    }
    action.setIconVisibleInMenu(control.Style() != office::msoButtonCaption);
    action.setCheckable(control.checked().has_value());
    action.setChecked(control.checked().value_or(false));
}

void BarsView::make(Drawn& drawn, const std::shared_ptr<host::BarControl>& control) {
    if (control->popup())
        makePopup(drawn, control);
    else
        makeButton(drawn, control);
}

void BarsView::makePopup(Drawn& drawn, const std::shared_ptr<host::BarControl>& control) {
    drawn.popup = std::make_unique<QMenu>();
    drawn.popup->setToolTipsVisible(true);
    QObject::connect(drawn.popup.get(), &QMenu::aboutToShow, [this, link = std::weak_ptr(control)] {
        const auto popup = link.lock();
        if (!popup || !popup->beforeShow) return;
        run_(popup->beforeShow);
        draw();
    });
}

void BarsView::makeButton(Drawn& drawn, const std::shared_ptr<host::BarControl>& control) {
    drawn.button = std::make_unique<QAction>();
    setKeys(drawn, *control);
    QObject::connect(drawn.button.get(), &QAction::triggered, [this, link = std::weak_ptr(control)] {
        if (const auto clicked = link.lock()) run_([&] { clicked->Execute(); });
        redraw_.start(); // Qt has toggled a checkable action, even if the command failed
    });
}

/// A shortcut that two actions share works for neither, so only the menu's action has it.
void BarsView::setKeys(Drawn& drawn, const host::BarControl& control) {
    const auto look = lookOf_(control.Id());
    drawn.key = look.key;
    const auto bar = control.Parent();
    const auto all = bars_.items();
    const bool isInToolbar = std::find(all.begin(), all.end(), bar) != all.end();
    if (isInToolbar) return;
    QList keys{look.key, look.otherKey};
    keys.removeAll(QKeySequence());
    drawn.button->setShortcuts(keys);
}

void BarsView::showKeys() {
    for (auto& [link, drawn] : drawn_)
        if (const auto control = link.lock(); control && drawn.button) setKeys(drawn, *control);
    draw();
}

/// Deletes actions later, as a click on the action itself may have removed the control.
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
