#pragma once
// The question about files that another program changed.
#include "Add-in/platform/host_project.h"
#include <QWidget>
#include <optional>
#include <set>
#include <vector>

namespace workbench {

/// One file of an open project that is another one than the project was read from.
struct OutsideChange {
    vbide::Ref<vbide::VBProject> project;
    /// Nothing for the project's own file.
    vbide::Ref<vbide::VBComponent> component;
    std::string path;
    /// Of what stands there now; nothing when the file is gone.
    std::optional<std::uint64_t> digest;
    /// Reading it again would lose something that is not saved.
    bool changedHere = false;
};

/// Tells of them in one window. The numbers of those that the user wants to read again; those where nothing would be lost
/// are offered ticked.
std::set<std::size_t> askWhatToReload(const std::vector<OutsideChange>& changes, QWidget* parent);

} // namespace workbench
