#pragma once
// A control of a menu or toolbar: a button or a popup.
#include "Add-in/platform/clipboard.h"
#include "Add-in/platform/command_bars.h"
#include "Add-in/platform/host_events.h"
#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace host {

class Bar;

/// The id of a control made by an add-in.
inline constexpr int kAddInControlId = 1;

class BarControl final : public office::CommandBarControl, public std::enable_shared_from_this<BarControl> {
public:
    BarControl(office::MsoControlType type, int id, std::weak_ptr<Bar> parent);

    int Id() const override;
    int Index() const override;
    office::MsoControlType Type() const override;
    std::string Caption() const override;
    void Caption(const std::string& caption) override;
    std::string Tag() const override;
    void Tag(const std::string& tag) override;
    std::string ToolTipText() const override;
    void ToolTipText(const std::string& text) override;
    bool BeginGroup() const override;
    void BeginGroup(bool begin) override;
    bool Enabled() const override;
    void Enabled(bool enabled) override;
    bool Visible() const override;
    void Visible(bool visible) override;
    office::MsoButtonStyle Style() const override;
    void Style(office::MsoButtonStyle style) override;
    void PasteFace() override;
    office::Ref<office::CommandBar> Parent() const override;
    office::Ref<office::CommandBarControls> Controls() override;
    void Delete() override;
    void Execute() override;

    // ---- for the host ----
    /// The host's own action for a click, unless a handler cancels it.
    std::function<void()> action;
    /// Called by front ends before the popup opens, so that it can be filled.
    std::function<void()> beforeShow;
    /// The state of a toggle button; nothing for other buttons.
    std::optional<bool> checked() const { return checked_; }
    void checked(bool on);
    /// Receives errors thrown by handlers of the click.
    std::function<void(const basic::ErrObject&)> handlerFailed;
    /// The picture on a button as a BMP file; "" for none.
    const std::string& face() const { return face_; }
    const std::shared_ptr<Bar>& popup() const { return popup_; }
    const office::Ref<vbide::CommandBarEvents>& events() const { return events_; }
    void remove() { removed_ = true; }

private:
    void check() const;
    void notifyChanged() const;
    void checkButton() const;

    office::MsoControlType type_;
    int id_;
    std::weak_ptr<Bar> parent_;
    std::shared_ptr<Bar> popup_;
    std::string caption_, tag_, toolTip_, face_;
    office::MsoButtonStyle style_ = office::msoButtonAutomatic;
    bool beginGroup_ = false, enabled_ = true, visible_ = true, removed_ = false;
    std::optional<bool> checked_;
    office::Ref<vbide::CommandBarEvents> events_ = basic::make<vbide::CommandBarEvents>();
};

/// The caption without "&".
std::string withoutMnemonic(const std::string& caption);

} // namespace host
