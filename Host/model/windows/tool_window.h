#pragma once
// A window of the host as a model: its visibility and state. Front ends may draw it.
#include "Add-in/platform/host.h"
#include <functional>
#include <string>

namespace host {

class ToolWindow final : public vbide::Window {
public:
    explicit ToolWindow(std::string caption, basic::Ref<fernwick::Object> document = nullptr)
        : caption_(std::move(caption)), document_(std::move(document)) {}

    std::string Caption() const override { return caption_; }
    bool Visible() const override { return visible_; }
    void Visible(bool visible) override;
    vbide::vbext_WindowState WindowState() const override { return state_; }
    void WindowState(vbide::vbext_WindowState state) override;
    void SetFocus() override;
    void Close() override { Visible(false); }

    // ---- for front ends ----
    /// The document of an add-in; Nothing for the host's own windows.
    const basic::Ref<fernwick::Object>& document() const { return document_; }
    /// Raised after each change.
    fernwick::Event<> changed;
    /// Raised to bring the window to the front.
    fernwick::Event<> focused;

private:
    std::string caption_;
    basic::Ref<fernwick::Object> document_;
    bool visible_ = false;
    vbide::vbext_WindowState state_ = vbide::vbext_ws_Normal;
};

} // namespace host
