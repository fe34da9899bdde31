#include "Components/QLPipe/package/listed_files.h"
#include "Components/QLPipe/base/device_names.h"
#include "Components/QLPipe/base/pipe_messages.h"

namespace qlpipe {
namespace {

/// Fonts are sent under their bare names. A font in a folder is an ordinary file of the application.
FileKind kindOfFile(const std::string& name) {
    const auto kind = kindOf(name);
    if (kind == "QLX") return FileKind::Image;
    return kind == "CMF" && isSafePart(name) ? FileKind::Font : FileKind::File;
}

ListedFile listFile(const std::string& path, const std::string& resource) {
    auto name = withSlashes(resource);
    if (!isSafeName(name)) throw transferError(kUnsafeName, {{"file", path}, {"name", resource}});
    const auto kind = kindOfFile(name);
    return {path, std::move(name), kind, sizeOfLocalFile(path)};
}

} // namespace

FileListing listFiles(const fernwick::FileSystemObject& files, const ProjectFiles& project) {
    FileListing listing;
    for (std::size_t i = 0; i < project.ProjectFileList.size(); ++i) {
        const auto& entry = project.ProjectFileList[i];
        // If the second list is shorter, the name is empty and therefore refused.
        const auto resource = i < project.ProjectResourceList.size() ? project.ProjectResourceList[i] : std::string();
        if (resource == kReferenceMarker) {
            listing.references.push_back(entry);
            continue;
        }
        try {
            listing.files.push_back(listFile(files.PlaceOnDisk(entry), resource));
        } catch (const TransferError& error) { listing.findings.push_back({true, error.number, error.text, entry}); }
    }
    return listing;
}

} // namespace qlpipe
