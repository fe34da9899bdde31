#include "Host/model/windows/tool_window.h"
#include <utility>

namespace host {

void ToolWindow::Visible(bool visible) {
    if (visible == visible_ || isTerminated_) return;
    visible_ = visible;
    changed.raise();
    notifyDocument();
}

/// A handler of `changed` may have changed the visibility back.
void ToolWindow::notifyDocument() {
    if (isDocumentShown_ == visible_) return;
    isDocumentShown_ = visible_;
    const auto document = userDocument();
    if (!document) return;
    if (visible_)
        document->UserDocument_Show();
    else
        document->UserDocument_Hide();
}

void ToolWindow::resize(std::int32_t width, std::int32_t height) {
    if ((width == width_ && height == height_) || isTerminated_) return;
    width_ = width;
    height_ = height;
    if (const auto document = userDocument()) document->UserDocument_Resize(width, height);
}

void ToolWindow::terminate() {
    Visible(false);
    if (std::exchange(isTerminated_, true)) return;
    if (const auto document = userDocument()) document->UserDocument_Terminate();
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
