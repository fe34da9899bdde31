#pragma once
// The files that a project sends, and what a device would refuse of them.
#include "Add-in/platform/files.h"
#include "Add-in/platform/pipes.h"
#include "Components/QLPipe/bundle.h"
#include "Components/QLPipe/target_limits.h"
#include <string>
#include <vector>

namespace qlpipe {

/// One file as the project names it.
struct ListedFile {
    /// On the development machine, as it is on disk.
    std::string path;
    /// On the device, with "/" between the parts.
    std::string name;
    FileKind kind;
    std::int64_t size;
};

/// Something that a device would refuse, or that the user should know.
struct Finding {
    bool isError;
    /// A PipeError or a PipeWarning.
    std::int32_t number;
    std::string text;
    /// The file; "" for none.
    std::string source;
};

struct FileListing {
    std::vector<ListedFile> files;
    /// Components that the device must have already.
    std::vector<std::string> references;
    std::vector<Finding> findings;
};

/// The files of the two lists. What can't be sent at all is a finding and not among the files.
FileListing listFiles(const fernwick::FileSystemObject& files, const ProjectFiles& project);

/// Adds what devices with these limits would refuse, in the order of the files.
void checkFiles(const TargetLimits& limits, FileListing& listing);

} // namespace qlpipe
