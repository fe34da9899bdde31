#include "Add-in/core/modQLInstallInfo.h"
#include "Basic/runtime_error.h"

namespace fernwick {

namespace {
constexpr const char* kProductKey = "Software\\Quinloft";
constexpr const char* kHostSetupKey = "Software\\Microsoft\\VisualStudio\\6.0\\Setup\\Microsoft Visual Basic";
} // namespace

std::string modQLInstallInfo::GetQuinloftRootDir() const {
    const RegistryKey key{registry_, registry_.OpenKey(HKEY_LOCAL_MACHINE, kProductKey, KEY_QUERY_VALUE)};
    if (!key) return {};
    const auto root = registry_.GetStringValue(key.handle(), "RootDir");
    return root.ok() && root.type == REG_SZ ? root.text : std::string{};
}

std::string modQLInstallInfo::GetVBProductDir() const {
    const RegistryKey key{registry_, registry_.OpenKey(HKEY_LOCAL_MACHINE, kHostSetupKey, KEY_QUERY_VALUE)};
    if (!key) return {};
    const auto folder = registry_.GetStringValue(key.handle(), "ProductDir");
    return folder.ok() ? folder.text : std::string{};
}

std::string modQLInstallInfo::GetQuinloftFontsDir() const { return installed("Fonts"); }

std::string modQLInstallInfo::GetQuinloftSamplesDir() const { return installed("VB Toolkit\\Samples"); }

std::string modQLInstallInfo::installed(const std::string& name) const {
    const auto root = GetQuinloftRootDir();
    return root.empty() ? std::string{} : files_.Canonical(files_.BuildPath(root, name));
}

std::string modQLInstallInfo::requireInstalled(const std::string& name) const {
    const auto path = installed(name);
    if (path.empty()) throw basic::RuntimeError(basic::kFileNotFound, "No installation was found for " + name);
    return path;
}

} // namespace fernwick
