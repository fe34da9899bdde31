#include "Apps/workbench/window/dock_menu.h"
#include "Apps/workbench/bars/command_icons.h"
#include "Apps/workbench/base/menu_builder.h"
#include "Apps/workbench/base/text.h"
#include "Apps/workbench/window/main_window.h"
#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QDockWidget>
#include <QPointer>
#include <algorithm>
#include <array>

namespace workbench {

namespace {

/// Docks whose command has a key or a mnemonic of its own, by their object names.
struct KnownDock {
    const char* name;
    const char* caption;
    int id;
};
constexpr std::array kKnownDocks{
    KnownDock{"explorerDock", "&Project Explorer", kExplorerId},
    KnownDock{"propertiesDock", "Properties &Window", kPropertiesId},
    KnownDock{"toolboxDock", "Toolbo&x", kToolboxId},
    KnownDock{"Fernwick Messages", "Fernwick &Messages", kMessagesId},
};

KnownDock commandOf(const QString& name) {
    for (const auto& known : kKnownDocks)
        if (name == known.name) return known;
    return {"", "", kDockId};
}

/// What of a dock takes the keys.
QWidget* keyTarget(QDockWidget& dock) {
    if (!dock.widget() || dock.widget()->focusPolicy() != Qt::NoFocus) return dock.widget();
    // its list rather than what filters it
    if (auto* list = dock.widget()->findChild<QAbstractItemView*>(); list && list->isVisibleTo(&dock)) return list;
    for (auto* inner : dock.widget()->findChildren<QWidget*>())
        if ((inner->focusPolicy() & Qt::TabFocus) != 0 && inner->isVisibleTo(&dock)) return inner;
    return dock.widget();
}

/// Where the user wants to go: there first, away only from there.
void goTo(QDockWidget& dock) {
    const auto* const focus = QApplication::focusWidget();
    if (!dock.isHidden() && focus && dock.isAncestorOf(focus)) return dock.hide();
    dock.show();
    dock.raise();
    if (auto* target = keyTarget(dock)) target->setFocus(Qt::ShortcutFocusReason);
}

void addSwitch(host::Bar& menu, QDockWidget& dock, bool isFirst) {
    const auto command = commandOf(dock.objectName());
    const auto control = menu.add(office::msoControlButton, command.id);
    control->Caption(*command.caption != '\0' ? command.caption : text(dock.windowTitle()));
    control->BeginGroup(isFirst);
    control->checked(!dock.isHidden());
    control->action = [link = QPointer(&dock)] {
        if (link) goTo(*link);
    };
    QObject::connect(dock.toggleViewAction(), &QAction::toggled, &dock, [link = std::weak_ptr(control)](bool shown) {
        if (const auto standing = link.lock()) standing->checked(shown);
    });
}

void fillToolBars(host::Bars& bars, host::Bar& popup) {
    for (const auto& old : std::vector(popup.list())) old->Delete();
    for (const auto& bar : bars.items()) {
        if (bar == bars.ActiveMenuBar()) continue;
        const auto control = popup.add(office::msoControlButton, kToolBarId);
        control->Caption(bar->Name());
        control->checked(bar->Visible());
        control->action = [bar] { bar->Visible(!bar->Visible()); };
    }
}

} // namespace

void addDockSwitches(host::Host& host, MainWindow& window) {
    const auto menu = controlOf(host, host::kViewMenuId)->popup();
    for (auto* dock : window.docks()) addSwitch(*menu, *dock, dock == window.docks().front());
    window.dockAdded = [menu](QDockWidget& dock) { addSwitch(*menu, dock, false); };
}

void addToolBarSwitches(host::Host& host) {
    menuOf(host, host::kViewMenuId).group().popup(kToolBarsMenuId, "&Toolbars");
    const auto control = controlOf(host, kToolBarsMenuId);
    const auto fill = [&bars = host.bars(), popup = std::weak_ptr(control->popup())] {
        if (const auto standing = popup.lock()) fillToolBars(bars, *standing);
    };
    control->beforeShow = fill;
    fill(); // a popup without anything is not shown
}

} // namespace workbench
