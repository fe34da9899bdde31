#pragma once
// A copy of a project's files in another folder.
#include "Add-in/platform/files.h"
#include "Add-in/platform/host_project.h"
#include <set>

namespace fernwick {

/// Creates a folder and every folder above it that is missing. Errors go to the caller.
void MakeDirectory(FileSystemObject& files, const std::string& path);

/// A file that a copy writes.
struct CopiedFile {
    std::string from, to;
    /// There is nothing to copy.
    bool isMissing = false;
    /// A file that exists would be replaced.
    bool replaces = false;
    /// Its place is not in the copy's folder or below it.
    bool isOutside = false;
};

/// Plans a copy when it is constructed, and carries it out step by step. Each file keeps its place relative to the
/// project file, where the copied project file finds it; components are put beside the project file, too. A file whose
/// place in the copy is the file itself is left alone. Copies can be written by their owner.
class ProjectCopy {
public:
    /// Errors go to the caller.
    ProjectCopy(FileSystemObject& files, const basic::Ref<vbide::VBProject>& project,
                const std::string& newProjectFile);

    /// All files but those whose place is the file itself, in the order in which they are written.
    std::vector<CopiedFile> files() const;
    /// Existing files that the copy would replace.
    std::vector<std::string> replacedFiles() const;
    /// Files that the copy would write outside of its folder.
    std::vector<std::string> filesOutside() const;

    // Each of these returns False if a file was not copied, and continues with the next file.
    bool copyComponents() const { return copyAll(components_); }
    bool copyProjectFile() const { return copyAll(projectFile_); }
    bool copyFileDependencies() const { return copyAll(dependencies_); }
    /// The icon and the resource file; a missing one is no failure.
    void copyIcons() const { (void)copyAll(icons_); }

private:
    struct Planned {
        std::string from, to;
    };
    using Plan = std::vector<Planned>;

    using Paths = std::vector<std::string>;

    void planRelative(Plan& to, const std::string& relative);
    void plan(Plan& to, const std::string& from, const std::string& place);
    Paths placesThat(bool CopiedFile::*fits) const;
    bool copyAll(const Plan& plan) const;
    bool copied(const Planned& copy) const;

    FileSystemObject& files_;
    std::string oldFolder_, newFolder_;
    Plan components_, projectFile_, dependencies_, icons_;
    std::set<std::string> taken_; ///< the places of all planned files
};

} // namespace fernwick
