#include "Add-in/project/stored/icon_setting.h"
#include "Add-in/core/modFileManagement.h"
#include "Basic/case_folding.h"
#include "Basic/text_search.h"

namespace fernwick {

namespace {
constexpr const char* kDefaultIcon = "\\VB TOOLKIT\\BIN\\QLDEFAULT.ico";
} // namespace

std::string IconSetting::defaultIcon() const {
    Procedure here{store().errors(), "clsQLProject.Get_DefaultIconFileName"};
    return here.value([&] { return store().services().install.installed(kDefaultIcon); });
}

ProjectSetting::Values IconSetting::values() const {
    const auto icon = get();
    return {icon == defaultIcon() ? std::string() : icon};
}

bool IconSetting::isRelative(const std::string& path) const {
    return !path.empty() && path.find(':') == std::string::npos && !files().IsAbsolute(path);
}

std::string IconSetting::get() const {
    std::string path;
    basic::Suppressed quietly;
    quietly([&] { path = Setting::get(); });
    if (isRelative(path))
        quietly([&] {
            const auto folder = files().GetParentFolderName(store().project->FileName());
            path = files().GetAbsolutePathName(files().BuildPath(folder, path));
        });
    return path.empty() ? defaultIcon() : path;
}

void IconSetting::let(const std::string& path) {
    Procedure here{store().errors(), "clsQLProject.Let_IconFileName"};
    auto stored = path;
    const auto folder = store().folder();
    here([&] {
        if (basic::equalNoCase(files().Canonical(path), defaultIcon()))
            stored.clear();
        else if (!folder.empty() && basic::InStr(files().Canonical(path), folder, basic::vbTextCompare) > 0)
            stored = GetRelativePath(files(), files().WithSeparator(folder), path);
    });
    Setting::let(stored);
}

std::string IconSetting::temporaryCopy() const {
    Procedure here{store().errors(), "clsQLProject.GetTempIcon"};
    const auto icon = get();
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
