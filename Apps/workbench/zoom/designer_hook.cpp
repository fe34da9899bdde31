#include "Apps/workbench/zoom/designer_hook.h"
#include "Apps/workbench/zoom/designer_image.h"

namespace workbench {

void DesignerHook::Install(fernwick::Hwnd hwnd) {
    auto* const image = find_(hwnd);
    watch_ = image ? image->drawn.connect([this] { GotMessage.raise(); }) : fernwick::Subscription{};
}

} // namespace workbench
