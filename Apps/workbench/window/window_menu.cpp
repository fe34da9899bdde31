#include "Apps/workbench/window/window_menu.h"
#include "Apps/workbench/bars/bar_controls.h"
#include "Apps/workbench/base/text.h"
#include "Apps/workbench/window/commands.h"
#include <QPointer>

namespace workbench {

namespace {

constexpr int kMostNumbered = 9;

std::string captionOf(const CodeWindows& windows, int index) {
    auto name = windows.tabText(index).replace("&", "&&");
    return text(index < kMostNumbered ? QString("&%1 %2").arg(index + 1).arg(name) : name);
}

void fillWindows(host::Bar& menu, CodeWindows& windows) {
    for (const auto& old : std::vector(menu.list()))
        if (old->Id() == kWindowId) old->Delete();
    for (int index = 0; index < windows.count(); ++index) {
        const auto control = menu.add(office::msoControlButton, kWindowId);
        control->Caption(captionOf(windows, index));
        control->BeginGroup(index == 0);
        control->checked(index == windows.currentIndex());
        control->action = [&windows, window = QPointer(windows.widget(index))] {
            if (!window) return;
            windows.setCurrentWidget(window);
            window->setFocus();
        };
    }
}

} // namespace

void listWindows(host::Host& host, CodeWindows& windows) {
    const auto control = controlOf(host, kWindowMenuId);
    control->beforeShow = [&windows, link = std::weak_ptr(control->popup())] {
        if (const auto menu = link.lock()) fillWindows(*menu, windows);
    };
}

} // namespace workbench
