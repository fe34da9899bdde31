#include "Apps/workbench/zoom/designer_procedure.h"
#include "Apps/workbench/designer/form_canvas.h"
#include "Apps/workbench/zoom/message_words.h"
#include "Apps/workbench/zoom/virtual_keys.h"

namespace workbench {

using namespace fernwick; // the names of messages

namespace {

constexpr std::intptr_t kDone = 1, kActivated = 1;

QPointF placeIn(const WindowMessage& message) {
    return {double(LoWord(message.lParam)), double(HiWord(message.lParam))};
}

} // namespace

std::intptr_t DesignerProcedure::surface(const DesignerWindow& designer, const WindowMessage& message) {
    auto& canvas = *designer.canvas;
    const auto at = placeIn(message);
    switch (message.number) {
    case WM_MOUSEACTIVATE: callbacks_.activate(*designer.view); return kActivated;
    case WM_SETCURSOR: callbacks_.showCursor(canvas.surfaceCursor()); return kDone;
    case WM_SETFOCUS: return focus(designer);
    case WM_LBUTTONDOWN: return press(designer, message, at);
    case WM_MOUSEMOVE: canvas.moveTo(at); return 0;
    case WM_LBUTTONUP:
        mouse_.endCapture();
        canvas.release(at);
        return 0;
    case WM_KEYDOWN: return canvas.key(qtKeyOf(message.wParam), mouse_.keys()) ? kDone : 0;
    default: return 0;
    }
}

std::intptr_t DesignerProcedure::press(const DesignerWindow& designer, const WindowMessage& message,
                                       const QPointF& at) {
    mouse_.capture(message.hwnd);
    designer.canvas->press(at, modifiersOf(message.wParam));
    return 0;
}

std::intptr_t DesignerProcedure::focus(const DesignerWindow& designer) {
    designer.canvas->setFocus();
    return 0;
}

/// The place of the press is in the coordinates of the surface and those of the moves are not: the first move, which
/// follows each press at once, is where the drag begins.
std::intptr_t DesignerProcedure::grip(const DesignerWindow& designer, int grip, const WindowMessage& message) {
    auto& canvas = *designer.canvas;
    const bool isDragged = mouse_.captured() == message.hwnd;
    const auto at = placeIn(message);
    const auto now = [&] { return gripPressed_ + at - gripOrigin_.value_or(at); };
    switch (message.number) {
    case WM_SETCURSOR: callbacks_.showCursor(canvas.gripCursor(grip)); return kDone;
    case WM_LBUTTONDOWN:
        gripPressed_ = canvas.gripPlace(grip);
        gripOrigin_.reset();
        return press(designer, message, gripPressed_);
    case WM_MOUSEMOVE:
        if (!isDragged) return 0;
        if (!gripOrigin_) gripOrigin_ = at;
        canvas.moveTo(now());
        return 0;
    case WM_LBUTTONUP:
        if (!isDragged) return 0;
        mouse_.endCapture();
        canvas.release(now());
        return 0;
    default: return 0;
    }
}

} // namespace workbench
