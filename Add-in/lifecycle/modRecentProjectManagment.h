#pragma once
// The projects that were closed last, newest first, in the user's registry.
#include "Add-in/core/modRegistry2.h"
#include "Add-in/core/procedure.h"
#include "Add-in/platform/files.h"
#include "Add-in/project/clsQLProject.h"
#include <cstdint>
#include <string>
#include <vector>

namespace fernwick {

struct RecentProject {
    std::string name, path;
};

class modRecentProjectManagment {
public:
    using RecentList = std::vector<RecentProject>;
    static constexpr std::int32_t kMostRecent = 20;

    modRecentProjectManagment(modRegistry2& registry, const FileSystemObject& files, ErrorReport& errors)
        : registry_(registry), files_(files), errors_(errors) {}

    /// Moves the project to the top; the oldest of a full list is dropped. A project that was never saved is not added.
    void AddProjectToRecentList(const basic::Ref<clsQLProject>& project);
    /// Returns kMostRecent records. Those after the last stored one are empty.
    RecentList GetRecentList();
    void SaveRecentList(const RecentList& list);
    /// Counts from 1. A value that is missing or not a text is "".
    RecentProject GetQuinloftRecentProject(std::int32_t n);
    void SetQuinloftRecentProject(const RecentProject& project, std::int32_t n);

private:
    modRegistry2& registry_;
    const FileSystemObject& files_;
    ErrorReport& errors_;
};

} // namespace fernwick
