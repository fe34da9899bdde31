#pragma once
// A menu or toolbar with its controls.
#include "Add-in/platform/command_bars.h"
#include "Host/model/bars/bar_control.h"
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace host {

class Bars;

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
    /// The control with this id on the bar or its popups, or null.
    std::shared_ptr<BarControl> find(int id) const;
    /// Reports a change of this bar or its controls to front ends.
    void notifyChanged() const;

private:
    template <class T>
    void set(T& member, T value) {
        if (std::exchange(member, value) != value) notifyChanged();
    }

    std::weak_ptr<Bars> bars_;
    std::string name_;
    int position_, rowIndex_ = 1, left_ = 0, top_ = 0;
    bool enabled_ = true, visible_ = true, removed_ = false;
    std::vector<std::shared_ptr<BarControl>> list_;
    std::shared_ptr<BarItems> items_;
};

} // namespace host
