#pragma once
#include "Add-in/platform/host_windows.h"
#include <functional>

namespace workbench {

class DesignerImage;

/// Raises its event once per turn of Qt's loop after the designer changed.
class DesignerHook final : public fernwick::MsgHook {
public:
    /// Returns the picture of a designer's surface, null for another window.
    using Find = std::function<DesignerImage*(fernwick::Hwnd surface)>;
    explicit DesignerHook(Find find) : find_(std::move(find)) {}

    void Install(fernwick::Hwnd hwnd) override;
    void Uninstall() override { watch_ = {}; }

private:
    Find find_;
    fernwick::Subscription watch_;
};

} // namespace workbench
