#pragma once
// Version and application data of a project: lines of its file that the host has no property for.
#include "Add-in/platform/files.h"
#include <cstdint>
#include <string>

namespace fernwick {

/// Numbers stay text.
struct AppInfo {
    std::string ProductName, Major, Minor, Revision, Title, Comments, CompanyName, ExeName, LegalCopyright,
        LegalTrademarks, FileDescription;
};

/// Reads the file on disk, not the project in the host. Errors go to the caller.
class ApplicationInfo {
public:
    ApplicationInfo(FileSystemObject& files, std::string path) : files_(files), path_(std::move(path)) {}

    /// "<major>.<minor>.<revision>", each 0 if the file lacks it.
    std::string version() const;
    AppInfo read() const;
    bool incrementsRevision() const;
    /// Adds 1 to the revision. Does nothing if the file or its copy cannot be opened.
    void incrementRevision() const;

private:
    FileSystemObject& files_;
    std::string path_;
};

} // namespace fernwick
