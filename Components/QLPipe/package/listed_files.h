#pragma once
// The files of a project to be sent, and the problems that a device would have with them.
#include "Add-in/platform/files.h"
#include "Add-in/platform/pipes.h"
#include "Components/QLPipe/base/target_limits.h"
#include "Components/QLPipe/package/bundle.h"
#include <string>
#include <vector>

namespace qlpipe {

/// One file of the project or of a package.
struct ListedFile {
    /// Path on the development machine, of the package for a file inside it.
    std::string path;
    /// Name on the device, with "/" as separator.
    std::string name;
    FileKind kind;
    std::int64_t size;
    std::function<std::unique_ptr<ByteReader>()> open;
};

/// An error or a warning about a file.
struct Finding {
    bool isError;
    /// A PipeError or a PipeWarning.
    std::int32_t number;
    std::string text;
    /// Path of the file, or "".
    std::string source;
};

struct FileListing {
    std::vector<ListedFile> files;
    /// Components that must already be on the device.
    std::vector<std::string> references;
    std::vector<Finding> findings;
};

/// Returns the files of the two lists. A file that cannot be sent at all becomes a finding instead.
FileListing listFiles(const fernwick::FileSystemObject& files, const ProjectFiles& project);

/// Returns the files of a package, which are checked like those of a project.
FileListing listFiles(const Bundle& bundle, const std::string& package);

/// Adds the findings for devices with these limits, in the order of the files.
void checkFiles(const TargetLimits& limits, FileListing& listing);

} // namespace qlpipe
