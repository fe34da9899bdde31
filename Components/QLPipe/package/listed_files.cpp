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
    const auto size = sizeOfLocalFile(path);
    return {path, std::move(name), kind, size, [path, size] { return std::make_unique<LocalFile>(path, size); }};
}

/// What is named like an image must be one, whatever the manifest says.
ListedFile listFile(const std::string& package, const BundleFile& file) {
    auto name = file.place.substr(file.place.find('/') + 1);
    const auto kind = kindOfFile(name) == FileKind::Image ? FileKind::Image : file.kind;
    return {package, std::move(name), kind, file.size, file.open};
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

FileListing listFiles(const Bundle& bundle, const std::string& package) {
    FileListing listing;
    listing.references = bundle.references;
    for (const auto& file : bundle.files)
        if (file.kind != FileKind::Icon) listing.files.push_back(listFile(package, file));
    return listing;
}

} // namespace qlpipe
