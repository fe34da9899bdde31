// Files that the user adds to a project's dependencies.
#include "Add-in/build/dependencies/modDependencyManagement.h"
#include "Add-in/build/messages/build_texts.h"
#include "Add-in/core/modFileManagement.h"
#include "Basic/text.h"
#include "Basic/text_search.h"
#include <fmt/format.h>

namespace fernwick {

namespace {

/// Space for many names: the dialog fails if they do not fit.
constexpr int kMostFileNameBytes = 32767;
constexpr int kDependencyDialogFlags =
    cdlOFNExplorer | cdlOFNAllowMultiselect | cdlOFNPathMustExist | cdlOFNFileMustExist | cdlOFNHideReadOnly;

/// Several chosen names are returned as their folder, followed by the names in it.
std::vector<std::string> chosenPaths(const FileSystemObject& files, const std::string& fileName) {
    auto names = basic::Split(fileName, std::string(1, '\0'));
    if (names.size() < 2) return names;
    std::vector<std::string> paths;
    for (auto name = names.begin() + 1; name != names.end(); ++name)
        paths.push_back(files.BuildPath(names.front(), *name));
    return paths;
}

} // namespace

tResourceList modDependencyManagement::GetNewDependency(const Project& project) {
    Procedure here{services_.errors, "modDependencyManagement.GetNewDependency"};
    const auto& files = services_.platform.files;
    CommonDialog dialog;
    here([&] { dialog.InitDir = projectFolder(project); });
    dialog.DialogTitle = build_texts::kSelectDependency;
    dialog.Flags = kDependencyDialogFlags;
    dialog.Filter = build_texts::kDependencyKinds;
    dialog.FilterIndex = 1;
    dialog.MaxFileSize = kMostFileNameBytes;
    if (!here([&] { services_.platform.interaction.ShowOpen(dialog); })) return {};
    return newDependencies(project, chosenPaths(files, dialog.FileName));
}

tResourceList modDependencyManagement::newDependencies(const Project& project, const std::vector<std::string>& paths) {
    Procedure here{services_.errors, "modDependencyManagement.GetNewDependency"};
    const auto folder = here.value([&] { return projectFolder(project); });
    tResourceList created;
    for (const auto& path : paths) {
        if (!isFile(here, path) || !canBeListed(here, folder, path)) continue;
        const auto entry = CreateNewDependency(project, path, true);
        if (!ResourceinDependencyList(entry.FileName, created)) AddDependency(entry, created);
    }
    return created;
}

/// Folders can be dropped onto a list of files.
bool modDependencyManagement::isFile(Procedure& here, const std::string& path) {
    using namespace fmt::literals;
    const auto& files = services_.platform.files;
    if (here.test([&] { return files.FileExists(path); })) return true;
    if (here.value([&] { return files.FolderExists(path); }))
        box(here, fmt::format(build_texts::kFolderAsDependency, "folder"_a = path), vbExclamation);
    return false;
}

/// A stored entry ends at its first comma.
bool modDependencyManagement::canBeListed(Procedure& here, const std::string& folder, const std::string& path) {
    using namespace fmt::literals;
    const auto& files = services_.platform.files;
    auto name = CreateRelativePath(folder, here.value([&] { return files.GetAbsolutePathName(path); }));
    if (name.empty()) name = files.GetFileName(path);
    if (name.find(',') == std::string::npos) return true;
    box(here, fmt::format(build_texts::kCommaInDependency, "file"_a = name), vbExclamation);
    return false;
}

tResource modDependencyManagement::CreateNewDependency(const Project& project, const std::string& path,
                                                       bool allowCopy) {
    Procedure here{services_.errors, "modDependencyManagement.CreateNewDependency"};
    const auto& files = services_.platform.files;
    const auto folder = here.value([&] { return projectFolder(project); });
    const auto absolute = here.value([&] { return files.GetAbsolutePathName(path); });
    tResource entry;
    entry.FileName = CreateRelativePath(folder, absolute);
    if (entry.FileName.empty()) {
        if (!copyToProject(here, absolute, folder, allowCopy)) return {};
        entry.FileName = files.GetFileName(absolute);
    }
    here([&] { entry.FileSize = fileSize(absolute); });
    entry.FileType = basic::UCase(files.GetExtensionName(absolute));
    return entry;
}

/// Returns false if the user declines. A failed copy is reported and still returns true.
bool modDependencyManagement::copyToProject(Procedure& here, const std::string& path, const std::string& folder,
                                            bool allowCopy) {
    using namespace fmt::literals;
    auto& files = services_.platform.files;
    const auto question = fmt::format(build_texts::kCopyDependency, "file"_a = path, "folder"_a = folder);
    const auto answer = [&] {
        return services_.platform.interaction.ask(Question::CopyFile, question, vbQuestion + vbYesNo,
                                                  build_texts::kTitle);
    };
    if (allowCopy && here.value(answer) != vbYes) {
        box(here, build_texts::kNotCopied, vbExclamation);
        return false;
    }
    const auto copy = here.value([&] { return files.BuildPath(folder, files.GetFileName(path)); });
    if (allowCopy && !mayReplace(here, copy, path)) {
        box(here, build_texts::kNotCopied, vbExclamation);
        return false;
    }
    here([&] { files.CopyFile(path, copy, true); });
    return true;
}

/// A file with the same content is not lost.
bool modDependencyManagement::mayReplace(Procedure& here, const std::string& path, const std::string& replacement) {
    using namespace fmt::literals;
    const auto& files = services_.platform.files;
    const auto isFree = [&] {
        return !files.FileExists(path) || files.ReadBytes(path) == files.ReadBytes(replacement);
    };
    if (here.value(isFree)) return true;
    const auto question = fmt::format(build_texts::kReplaceDependency, "file"_a = path);
    return here.value([&] {
        return services_.platform.interaction.ask(Question::ReplaceFile, question,
                                                  vbQuestion + vbYesNo + vbDefaultButton2, build_texts::kTitle);
    }) == vbYes;
}

std::string modDependencyManagement::CreateRelativePath(const std::string& baseFolder, const std::string& path) {
    Procedure here{services_.errors, "modDependencyManagement.CreateRelativePath"};
    return here.value([&] { return PathBelow(services_.platform.files, baseFolder, path); });
}

int modDependencyManagement::box(Procedure& here, const std::string& text, int buttons) {
    return here.value([&] { return services_.platform.interaction.MsgBox(text, buttons, build_texts::kTitle); });
}

} // namespace fernwick
