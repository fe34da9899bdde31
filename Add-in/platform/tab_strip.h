#pragma once
#include "Add-in/platform/form.h"

namespace fernwick {

/// MSComctlLib.TabStrip, whose tabs count from 1. Selecting a tab raises Click, even from code.
class TabStrip : public Control {
public:
    template <class F>
    TabStrip(F* form, std::string name, void (F::*click)()) : Control(form, std::move(name)) {
        own_ = Click.connect([form, click] { (form->*click)(); });
    }
    /// The tabs or the selected one changed.
    Event<> changed;
    Event<> Click;

    void Add(std::string caption) {
        tabs_.push_back(std::move(caption));
        changed.raise();
    }
    void Clear() {
        tabs_.clear();
        selected_ = 0;
        changed.raise();
    }
    const std::vector<std::string>& Tabs() const { return tabs_; }
    /// 0 before the first selection.
    int SelectedItem() const { return selected_; }
    /// Error 35600 for a tab that does not exist.
    void SelectedItem(int index) {
        if (index < 1 || index > int(tabs_.size())) throw basic::RuntimeError(kIndexOutOfBounds);
        selected_ = index;
        changed.raise();
        Click.raise();
    }

private:
    static constexpr int kIndexOutOfBounds = 35600;
    std::vector<std::string> tabs_;
    int selected_ = 0;
    Subscription own_;
};

} // namespace fernwick
