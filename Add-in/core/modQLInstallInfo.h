#pragma once
// Folders of the installation.
#include "Add-in/core/modRegistry2.h"
#include "Add-in/platform/files.h"

namespace fernwick {

class modQLInstallInfo {
public:
    modQLInstallInfo(modRegistry2& registry, const FileSystemObject& files) : registry_(registry), files_(files) {}

    /// Root directory of the installation; "" if unknown.
    std::string GetQuinloftRootDir() const;
    /// Below the root; "" without one.
    std::string GetQuinloftFontsDir() const;
    std::string GetQuinloftSamplesDir() const;
    /// Directory of the host IDE; "" if unknown.
    std::string GetVBProductDir() const;

    /// Returns the path of an installed file or folder, given its name relative to the root in any letter case. Without
    /// a root the path is empty, so that nothing is found in the current folder.
    std::string installed(const std::string& name) const;
    /// Does the same for a file that is needed: error 53 without a root.
    std::string requireInstalled(const std::string& name) const;

private:
    modRegistry2& registry_;
    const FileSystemObject& files_;
};

} // namespace fernwick
