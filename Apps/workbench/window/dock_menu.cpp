#include "Apps/workbench/window/dock_menu.h"
#include "Apps/workbench/bars/bar_controls.h"
#include "Apps/workbench/base/text.h"
#include "Apps/workbench/window/commands.h"
#include <QAbstractItemView>
#include <QDockWidget>
#include <QPointer>

namespace workbench {

namespace {

/// The widget within a dock that gets the focus.
QWidget* focusTarget(QDockWidget& dock) {
    if (!dock.widget() || dock.widget()->focusPolicy() != Qt::NoFocus) return dock.widget();
    if (auto* const proxy = dock.widget()->focusProxy()) return proxy;
    // its list rather than the filter above it
    return dock.widget()->findChild<QAbstractItemView*>();
}

void showAndFocus(QDockWidget& dock) {
    dock.show();
    dock.raise();
    dock.activateWindow(); // a dock that floats is a window
    if (auto* target = focusTarget(dock)) target->setFocus(Qt::ShortcutFocusReason);
}

void addCommand(host::Host& host, QDockWidget& dock, bool isFirst) {
    const auto menu = controlOf(host, host::kViewMenuId)->popup();
    const auto command = dockCommandOf(dock.objectName());
    const auto control = menu->add(office::msoControlButton, command.id, controlOf(host, kToolBarsMenuId)->Index());
    control->Caption(command.text ? command.text : text(dock.windowTitle()));
    control->BeginGroup(isFirst);
    control->action = [link = QPointer(&dock)] {
        if (link) showAndFocus(*link);
    };
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

void addDockCommands(host::Host& host, Docks& docks) {
    for (auto* dock : docks.all()) addCommand(host, *dock, dock == docks.all().front());
    docks.added = [&host](QDockWidget& dock) { addCommand(host, dock, false); };
}

void addToolBarSwitches(host::Host& host) {
    const auto control = controlOf(host, kToolBarsMenuId);
    control->beforeShow = [&bars = host.bars(), popup = std::weak_ptr(control->popup())] {
        if (const auto present = popup.lock()) fillToolBars(bars, *present);
    };
    control->beforeShow(); // an empty menu would not be shown
}

} // namespace workbench
