#pragma once

namespace host {

/// The ids of built-in controls that add-ins and front ends look up.
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
