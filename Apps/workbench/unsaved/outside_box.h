#pragma once
// The question about files that another program changed.
#include "Add-in/platform/host_project.h"
#include <QWidget>
#include <optional>
#include <set>
#include <vector>

namespace workbench {

/// A project file that changed on disk since it was read.
struct OutsideChange {
    vbide::Ref<vbide::VBProject> project;
    /// Null for the project's own file.
    vbide::Ref<vbide::VBComponent> component;
    std::string path;
    /// The digest of the present contents; empty if the file was removed.
    std::optional<std::uint64_t> digest;
    /// Reloading it would lose unsaved changes.
    bool changedHere = false;
};

/// Lists the changes in one dialog and returns the indexes of those that the user wants to reload. Those that lose
/// nothing are checked at first.
std::set<std::size_t> askWhatToReload(const std::vector<OutsideChange>& changes, QWidget* parent);

} // namespace workbench
