#pragma once
// A window of the host as a model: whether it shows and in which state. A front end may draw it.
#include "Add-in/platform/host.h"
#include <functional>
#include <string>

namespace host {

class ToolWindow final : public vbide::Window {
public:
    explicit ToolWindow(std::string caption, bool visible = false) : caption_(std::move(caption)), visible_(visible) {}

    std::string Caption() const override { return caption_; }
    bool Visible() const override { return visible_; }
    void Visible(bool visible) override;
    vbide::vbext_WindowState WindowState() const override { return state_; }
    void WindowState(vbide::vbext_WindowState state) override;
    void SetFocus() override;
    void Close() override { Visible(false); }

    /// Told after each change, for a front end.
    fernwick::Event<> changed;

private:
    std::string caption_;
    bool visible_;
    vbide::vbext_WindowState state_ = vbide::vbext_ws_Normal;
};

} // namespace host
