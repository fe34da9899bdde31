#include "Apps/workbench/window/window_menu.h"
#include "Apps/workbench/bars/command_icons.h"
#include "Apps/workbench/base/menu_builder.h"
#include "Apps/workbench/base/text.h"
#include <QPointer>

namespace workbench {

namespace {

constexpr int kMostNumbered = 9;

void step(CodeWindows& windows, int by) {
    const int count = windows.count();
    if (count > 0) windows.setCurrentIndex((windows.currentIndex() + by + count) % count);
    if (auto* shown = windows.currentWidget()) shown->setFocus();
}

void closeWindow(CodeWindows& windows, int index) {
    if (index >= 0) Q_EMIT windows.tabCloseRequested(index);
}

void closeAll(CodeWindows& windows) {
    for (int index = windows.count() - 1; index >= 0; --index) closeWindow(windows, index);
}

std::string captionOf(const CodeWindows& windows, int index) {
    auto name = windows.tabText(index).replace("&", "&&");
    return text(index < kMostNumbered ? QString("&%1 %2").arg(index + 1).arg(name) : name);
}

void listWindows(host::Bar& menu, CodeWindows& windows) {
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

void addWindowMenu(host::Host& host, CodeWindows& windows) {
    const auto control = addTopMenu(host, kWindowMenuId, "&Window", host::kHelpMenuId);
    Menu(control->popup())
        .add(kNextWindowId, "&Next Window", [&windows] { step(windows, 1); })
        .add(kPreviousWindowId, "&Previous Window", [&windows] { step(windows, -1); })
        .group()
        .add(kCloseWindowId, "&Close", [&windows] { closeWindow(windows, windows.currentIndex()); })
        .add(kCloseAllWindowsId, "Close &All", [&windows] { closeAll(windows); });
    control->beforeShow = [&windows, link = std::weak_ptr(control->popup())] {
        if (const auto menu = link.lock()) listWindows(*menu, windows);
    };
}

} // namespace workbench
