#pragma once
// The files that belong to a project, by their paths.
#include "Add-in/platform/files.h"
#include "Add-in/platform/host_project.h"

namespace fernwick {

/// Paths relative to the project file, and absolute ones. Each list is in the order in which the project names them.
struct ProjectFiles {
    struct Component {
        std::string path;
        /// Whether the project file names it by an absolute path.
        bool isAbsolute = false;
    };
    /// Components with their binary companions.
    std::vector<Component> components;
    /// Files that go to the device with the application, fonts excepted, as stored.
    std::vector<std::string> dependencies;
    /// The icon and the resource file, as stored.
    std::vector<std::string> icons;
};

/// Reads the open project and its file. Errors go to the caller.
ProjectFiles filesOfProject(FileSystemObject& files, const basic::Ref<vbide::VBProject>& project);

} // namespace fernwick
