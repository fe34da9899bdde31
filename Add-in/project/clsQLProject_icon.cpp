// The application icon.
#include "Add-in/core/modFileManagement.h"
#include "Add-in/project/clsQLProject.h"
#include "Basic/case_folding.h"
#include "Basic/text_search.h"

namespace fernwick {

namespace {
constexpr const char* kDefaultIcon = "\\VB TOOLKIT\\BIN\\QLDEFAULT.ico";

bool isRelativeIconPath(const FileSystemObject& files, const std::string& path) {
    return !path.empty() && path.find(':') == std::string::npos && !files.IsAbsolute(path);
}
} // namespace

std::string clsQLProject::DefaultIconFileName() const {
    Procedure here{services_.errors, "clsQLProject.Get_DefaultIconFileName"};
    return here.value([&] { return services_.install.installed(kDefaultIcon); });
}

std::string clsQLProject::IconFileName() const {
    std::string path;
    basic::Suppressed quietly;
    quietly([&] { path = readText("IconFileName"); });
    if (isRelativeIconPath(files(), path))
        quietly([&] {
            const auto folder = files().GetParentFolderName(project_->FileName());
            path = files().GetAbsolutePathName(files().BuildPath(folder, path));
        });
    return path.empty() ? DefaultIconFileName() : path;
}

void clsQLProject::IconFileName(const std::string& path) {
    Procedure here{services_.errors, "clsQLProject.Let_IconFileName"};
    auto stored = path;
    const auto folder = ProjectPath();
    here([&] {
        if (basic::equalNoCase(files().Canonical(path), DefaultIconFileName()))
            stored.clear();
        else if (!folder.empty() && basic::InStr(files().Canonical(path), folder, basic::vbTextCompare) > 0)
            stored = GetRelativePath(files(), files().WithSeparator(folder), path);
    });
    write("Let_IconFileName", "IconFileName", stored);
}

std::string clsQLProject::GetTempIcon() const {
    Procedure here{services_.errors, "clsQLProject.GetTempIcon"};
    const auto icon = IconFileName();
    if (!here.value([&] { return files().FileExists(icon); })) return {};
    std::string copy;
    if (!here([&] { copy = files().BuildPath(files().GetSpecialFolder(TemporaryFolder), files().GetFileName(icon)); }))
        return {};
    // Forced, since a copy of a read-only icon is read-only.
    if (here.test([&] { return files().FileExists(copy); })) here([&] { files().DeleteFile(copy, true); });
    here([&] { files().CopyFile(icon, copy, true); });
    return copy;
}

} // namespace fernwick
