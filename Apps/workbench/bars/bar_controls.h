#pragma once
// Access to the host's menus, for adding commands.
#include "Host/model/bars/bars.h"
#include "Host/model/host.h"
#include <memory>

namespace workbench {

/// Null if the host has no control with this id.
inline std::shared_ptr<host::BarControl> controlOf(host::Host& host, int id) {
    return basic::cast<host::BarControl>(host.CommandBars()->FindControl(id)).shared();
}

/// Adds a menu to the menu bar, to the left of the one with the id `before`.
inline std::shared_ptr<host::BarControl> addTopMenu(host::Host& host, int id, const char* caption, int before) {
    const auto menuBar = basic::cast<host::Bar>(host.CommandBars()->ActiveMenuBar()).shared();
    const auto control = menuBar->add(office::msoControlPopup, id, controlOf(host, before)->Index());
    control->Caption(caption);
    return control;
}

} // namespace workbench
