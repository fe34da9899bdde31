#pragma once
// The file system of a run whose results do not go into the project's folder, or are not stored at all.
#include "Apps/fernwick/options/options.h"
#include "Host/system/file_system.h"

namespace cli {

class OutputFiles : public host::FileSystem {
public:
    /// From now on images and packages of `projectFolder` are in `output` instead, which may not exist yet.
    void redirect(const std::string& projectFolder, const std::string& output);
    /// Reports all files as writable, for a host that writes none of them.
    void storeNothing() { storesNothing_ = true; }

    int GetAttributes(const std::string& path) const override;
    std::string PlaceOnDisk(const std::string& path) const override;
    std::vector<std::string> Files(const std::string& folder) const override;

private:
    std::string projectFolder_, output_;
    bool storesNothing_ = false;
};

/// Whether the command writes images or packages, not only the project file.
bool makesImage(const Options& options);

/// Returns the name of the report that a run with --output writes for a project.
std::string reportNameOf(const std::string& project);

/// Creates the folder of --output. Refusal 3 if it cannot be created or written.
void createOutputFolder(const std::string& output);

/// Refusal 3 if files in this folder cannot be created or replaced.
void requireWritableFolder(const std::string& folder);

} // namespace cli
