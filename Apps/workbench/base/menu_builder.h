#pragma once
// Adds commands to the host's menus.
#include "Host/model/bars/bars.h"
#include "Host/model/host.h"
#include <functional>
#include <memory>
#include <utility>

namespace workbench {

inline std::shared_ptr<host::BarControl> controlOf(host::Host& host, int id) {
    return basic::cast<host::BarControl>(host.CommandBars()->FindControl(id)).shared();
}

/// Adds commands to one popup.
class Menu {
public:
    explicit Menu(std::shared_ptr<host::Bar> bar) : bar_(std::move(bar)) {}

    Menu& add(int id, const char* caption, std::function<void()> action) {
        const auto control = bar_->add(office::msoControlButton, id);
        control->Caption(caption);
        control->BeginGroup(std::exchange(group_, false));
        control->action = std::move(action);
        return *this;
    }
    Menu& popup(int id, const char* caption) {
        const auto control = bar_->add(office::msoControlPopup, id);
        control->Caption(caption);
        control->BeginGroup(std::exchange(group_, false));
        return *this;
    }
    /// The next one begins a group.
    Menu& group() {
        group_ = true;
        return *this;
    }

private:
    std::shared_ptr<host::Bar> bar_;
    bool group_ = false;
};

/// A new menu of the menu bar, left of the one with the id `before`.
inline std::shared_ptr<host::BarControl> addTopMenu(host::Host& host, int id, const char* caption, int before) {
    const auto menuBar = basic::cast<host::Bar>(host.CommandBars()->ActiveMenuBar()).shared();
    const auto control = menuBar->add(office::msoControlPopup, id, controlOf(host, before)->Index());
    control->Caption(caption);
    return control;
}

inline Menu menuOf(host::Host& host, int id) { return Menu(controlOf(host, id)->popup()); }

} // namespace workbench
