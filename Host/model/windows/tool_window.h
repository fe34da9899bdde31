#pragma once
// A window of the host as a model: its visibility and state. Front ends may draw it.
#include "Add-in/platform/host.h"
#include "Add-in/platform/windows/user_document.h"
#include <functional>
#include <string>

namespace host {

class ToolWindow final : public vbide::Window {
public:
    /// The position identifies the window of an add-in.
    explicit ToolWindow(std::string caption, basic::Ref<fernwick::Object> document = nullptr,
                        std::string guidPosition = {})
        : ToolWindow([caption = std::move(caption)] { return caption; }, std::move(document), std::move(guidPosition)) {
    }
    /// A window whose caption may change.
    explicit ToolWindow(std::function<std::string()> caption, basic::Ref<fernwick::Object> document = nullptr,
                        std::string guidPosition = {})
        : caption_(std::move(caption)), document_(std::move(document)), guidPosition_(std::move(guidPosition)) {}

    std::string Caption() const override { return caption_(); }
    bool Visible() const override { return visible_; }
    /// Does nothing for a removed window.
    void Visible(bool visible) override;
    vbide::vbext_WindowState WindowState() const override { return state_; }
    void WindowState(vbide::vbext_WindowState state) override;
    void SetFocus() override;
    void Close() override { Visible(false); }

    // ---- for the host ----
    const std::string& guidPosition() const { return guidPosition_; }
    /// Hides the window and ends its document, as the window is removed.
    void terminate();

    // ---- for front ends ----
    /// The document of an add-in; Nothing for the host's own windows.
    const basic::Ref<fernwick::Object>& document() const { return document_; }
    /// Sets the inner size, in twips.
    void resize(std::int32_t width, std::int32_t height);
    /// Raised after each change, before a document is notified.
    fernwick::Event<> changed;
    /// Raised to bring the window to the front.
    fernwick::Event<> focused;

private:
    basic::Ref<fernwick::UserDocument> userDocument() const { return basic::cast<fernwick::UserDocument>(document_); }
    void notifyDocument();

    std::function<std::string()> caption_;
    basic::Ref<fernwick::Object> document_;
    std::string guidPosition_;
    bool visible_ = false, isTerminated_ = false;
    /// The visibility and the size that the document knows.
    bool isDocumentShown_ = false;
    std::int32_t width_ = -1, height_ = -1;
    vbide::vbext_WindowState state_ = vbide::vbext_ws_Normal;
};

} // namespace host
