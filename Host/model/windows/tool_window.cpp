#include "Host/model/windows/tool_window.h"

namespace host {

void ToolWindow::Visible(bool visible) {
    if (visible == visible_) return;
    visible_ = visible;
    changed.raise();
}

void ToolWindow::WindowState(vbide::vbext_WindowState state) {
    if (state == state_) return;
    state_ = state;
    changed.raise();
}

void ToolWindow::SetFocus() {
    Visible(true);
    focused.raise();
}

} // namespace host
