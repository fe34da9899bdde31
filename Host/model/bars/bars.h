#pragma once
// Menus and toolbars as a model; a front end may draw them.
#include "Add-in/platform/clipboard.h"
#include "Add-in/platform/command_bars.h"
#include "Add-in/platform/host_events.h"
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace host {

class Bar;
class BarItems;

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
    /// What the host itself does at a click, unless a handler cancels it.
    std::function<void()> action;
    /// A front end calls it before the popup comes up, so that it can be filled with what is there now.
    std::function<void()> beforeShow;
    /// Whether what the button stands for is on; nothing for a button that is no switch.
    std::optional<bool> checked() const { return checked_; }
    void checked(bool on);
    /// Told of what a handler of the click lets out.
    std::function<void(const basic::ErrObject&)> handlerFailed;
    /// The picture on a button as a BMP file's bytes; "" for none.
    const std::string& face() const { return face_; }
    const std::shared_ptr<Bar>& popup() const { return popup_; }
    const office::Ref<vbide::CommandBarEvents>& events() const { return events_; }
    void remove() { removed_ = true; }

private:
    void check() const;
    void tell() const;
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

class BarItems final : public office::CommandBarControls {
public:
    explicit BarItems(std::weak_ptr<Bar> bar) : bar_(std::move(bar)) {}

    int Count() const override;
    office::Ref<office::CommandBarControl> Item(int index) const override;
    office::Ref<office::CommandBarControl> Item(const std::string& caption) const override;
    std::vector<office::Ref<office::CommandBarControl>> items() const override;
    office::Ref<office::CommandBarControl> Add(office::MsoControlType type, int before) override;

private:
    std::shared_ptr<Bar> bar() const;

    std::weak_ptr<Bar> bar_;
};

class Bars;

class Bar final : public office::CommandBar, public std::enable_shared_from_this<Bar> {
public:
    Bar(std::weak_ptr<Bars> bars, std::string name, int position);

    std::string Name() const override;
    bool Enabled() const override { return enabled_; }
    void Enabled(bool enabled) override { set(enabled_, enabled); }
    bool Visible() const override { return visible_; }
    void Visible(bool visible) override { set(visible_, visible); }
    int Position() const override { return position_; }
    void Position(int position) override { set(position_, position); }
    int RowIndex() const override { return rowIndex_; }
    void RowIndex(int index) override { set(rowIndex_, index); }
    int Left() const override { return left_; }
    void Left(int left) override { set(left_, left); }
    int Top() const override { return top_; }
    void Top(int top) override { set(top_, top); }
    office::Ref<office::CommandBarControls> Controls() override;
    office::Ref<office::CommandBarControl> FindControl(int id) override;
    void Delete() override;

    // ---- for the host ----
    std::shared_ptr<BarControl> add(office::MsoControlType type, int id, int before = 0);
    void drop(const BarControl& control);
    const std::vector<std::shared_ptr<BarControl>>& list() const { return list_; }
    void name(std::string name) { name_ = std::move(name); }
    std::shared_ptr<Bars> bars() const { return bars_.lock(); }
    /// Something of this bar or of its controls is other than before.
    void tell() const;

private:
    template <class T>
    void set(T& member, T value) {
        if (std::exchange(member, value) != value) tell();
    }

    std::weak_ptr<Bars> bars_;
    std::string name_;
    int position_, rowIndex_ = 1, left_ = 0, top_ = 0;
    bool enabled_ = true, visible_ = true, removed_ = false;
    std::vector<std::shared_ptr<BarControl>> list_;
    std::shared_ptr<BarItems> items_;
};

class Bars final : public office::CommandBars, public std::enable_shared_from_this<Bars> {
public:
    office::Ref<office::CommandBar> Item(const std::string& name) const override;
    std::vector<office::Ref<office::CommandBar>> items() const override;
    office::Ref<office::CommandBar> ActiveMenuBar() const override;
    office::Ref<office::CommandBarControl> FindControl(int id) const override;
    office::Ref<office::CommandBar> Add(const std::string& name, int position, bool menuBar) override;

    // ---- for the host ----
    std::shared_ptr<Bar> addBar(const std::string& name, int position);
    void drop(const Bar& bar);
    /// Told of what a handler of a click lets out.
    std::function<void(const basic::ErrObject&)> handlerFailed;
    /// Told after each change of a bar or a control, for a front end that draws them.
    fernwick::Event<> changed;
    /// Where faces are pasted from; there may be none.
    const fernwick::Clipboard* clipboard = nullptr;

private:
    std::vector<std::shared_ptr<Bar>> list_;
    std::shared_ptr<Bar> menuBar_;
};

/// The host's own menus: File, Edit, View, Project, Add-Ins, Help.
struct HostCommands {
    std::function<void()> newProject, openProject, saveProject, removeProject;
};
void addHostMenus(Bars& bars, const HostCommands& commands);

/// Ids of the host's own controls that others look for.
enum HostControlId : int {
    kSaveProjectId = 3,
    kOpenProjectId = 23,
    kNewProjectId = 746,
    kRemoveProjectId = 2578,
    kFileMenuId = 30002,
    kEditMenuId = 30003,
    kViewMenuId = 30004,
    kProjectMenuId = 30005,
    kHelpMenuId = 30010,
    kAddInsMenuId = 30038,
};

} // namespace host
