#pragma once
// The marks of code by component, whether an editor shows it or not.
#include "Add-in/platform/host_project.h"
#include "Apps/workbench/marks/breakpoint_file.h"
#include <map>
#include <memory>
#include <set>

namespace workbench {

struct ComponentMarks {
    std::vector<PlacedMark> bookmarks, breakpoints;
};

/// Bookmarks last as long as the project is open. Breakpoints are stored in the user's state.
class ProjectMarks {
public:
    using Component = vbide::Ref<vbide::VBComponent>;

    const ComponentMarks& of(const Component& component);
    /// The present marks of a component.
    void keep(const Component& component, ComponentMarks marks);
    /// Stores the breakpoints of a project that has a file. Errors as atomicSave.
    void store(const vbide::Ref<vbide::VBProject>& project);

private:
    using Key = std::weak_ptr<vbide::VBComponent>;
    using ProjectKey = std::weak_ptr<vbide::VBProject>;
    void read(const vbide::Ref<vbide::VBProject>& project);

    std::map<Key, ComponentMarks, std::owner_less<>> marks_;
    std::set<ProjectKey, std::owner_less<>> read_; ///< projects whose file was read
};

} // namespace workbench
