#include "Add-in/lifecycle/project_copy.h"
#include "Add-in/core/modFileManagement.h"
#include "Add-in/lifecycle/project_files.h"
#include "Basic/runtime_error.h"

namespace fernwick {

void MakeDirectory(FileSystemObject& files, const std::string& path) {
    if (path.empty() || files.FolderExists(path)) return;
    MakeDirectory(files, files.GetParentFolderName(path));
    files.CreateFolder(path);
}

/// The places that the copied project file names are taken first, so that no file beside the project gets into their
/// way.
ProjectCopy::ProjectCopy(FileSystemObject& files, const basic::Ref<vbide::VBProject>& project,
                         const std::string& newProjectFile)
    : files_(files),
      oldFolder_(files.GetParentFolderName(project->FileName())),
      newFolder_(files.GetParentFolderName(newProjectFile)) {
    const auto found = filesOfProject(files, project);
    plan(projectFile_, project->FileName(), newProjectFile);
    for (const auto& component : found.components)
        if (!component.isAbsolute)
            planRelative(components_, GetRelativePath(files, files.WithSeparator(oldFolder_), component.path));
    for (const auto& path : found.dependencies) planRelative(dependencies_, path);
    for (const auto& path : found.icons) planRelative(icons_, path);
    for (const auto& component : found.components)
        plan(components_, component.path, files_.BuildPath(newFolder_, files_.GetFileName(component.path)));
}

void ProjectCopy::planRelative(Plan& to, const std::string& relative) {
    if (relative.empty() || files_.IsAbsolute(relative)) return;
    plan(to, files_.BuildPath(oldFolder_, relative), files_.BuildPath(newFolder_, relative));
}

/// A place that is taken already is left to its file.
void ProjectCopy::plan(Plan& to, const std::string& from, const std::string& place) {
    if (taken_.insert(files_.GetAbsolutePathName(place)).second) to.push_back({from, place});
}

std::vector<CopiedFile> ProjectCopy::files() const {
    std::vector<CopiedFile> all;
    for (const auto* part : {&components_, &projectFile_, &dependencies_, &icons_})
        for (const auto& copy : *part) {
            if (files_.SameFile(copy.from, copy.to)) continue;
            const auto to = files_.GetAbsolutePathName(copy.to);
            all.push_back({copy.from, to, !files_.FileExists(copy.from), files_.FileExists(to),
                           PathBelow(files_, newFolder_, to).empty()});
        }
    return all;
}

ProjectCopy::Paths ProjectCopy::placesThat(bool CopiedFile::*fits) const {
    Paths places;
    for (const auto& file : files())
        if (!file.isMissing && file.*fits) places.push_back(file.to);
    return places;
}

ProjectCopy::Paths ProjectCopy::replacedFiles() const { return placesThat(&CopiedFile::replaces); }

ProjectCopy::Paths ProjectCopy::filesOutside() const { return placesThat(&CopiedFile::isOutside); }

bool ProjectCopy::copyAll(const Plan& plan) const {
    bool all = true;
    for (const auto& copy : plan) all = copied(copy) && all;
    return all;
}

bool ProjectCopy::copied(const Planned& copy) const {
    return basic::attempt([&] {
               if (files_.SameFile(copy.from, copy.to)) return;
               MakeDirectory(files_, files_.GetAbsolutePathName(files_.GetParentFolderName(copy.to)));
               files_.CopyFile(copy.from, copy.to, true);
               files_.MakeWritable(copy.to);
           }).Number == 0;
}

} // namespace fernwick
