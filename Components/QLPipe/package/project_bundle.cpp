#include "Components/QLPipe/package/project_bundle.h"
#include "Basic/case_folding.h"
#include "Components/QLPipe/base/device_names.h"
#include "Components/QLPipe/base/pipe_messages.h"
#include <algorithm>

namespace qlpipe {
namespace {

void addIcon(Bundle& bundle, FileListing& listing, const std::string& path) {
    if (path.empty()) return;
    try {
        const auto size = sizeOfLocalFile(path);
        bundle.files.push_back(
            {FileKind::Icon, kIconPlace, size, {}, [path, size] { return std::make_unique<LocalFile>(path, size); }});
    } catch (const TransferError&) {
        // Applications also run without an icon.
        listing.findings.push_back(
            {false, kIconMissing, messageText(kIconMissing + kWarningOffset, {{"file", path}}), path});
    }
}

/// Letter case of a value does not matter in a project.
std::string orientationNamed(const std::string& value) {
    for (const auto* name : kOrientations)
        if (basic::equalNoCase(name, value)) return name;
    return {};
}

void applySettings(const ApplicationSettings& settings, Bundle& bundle) {
    if (!settings.Version.empty()) bundle.version = settings.Version;
    bundle.creatorId = settings.CreatorID;
    bundle.memoryLimit = memoryLimitBytes(settings.MemoryLimit);
    bundle.orientation = orientationNamed(settings.Orientation);
    bundle.arguments = settings.Arguments;
}

} // namespace

Bundle projectBundle(FileListing& listing, const ApplicationInfo& application, const std::string& device,
                     const ApplicationSettings& settings) {
    if (!isSafePart(application.ProjectName))
        throw transferError(kUnsafeName, {{"file", "The project"}, {"name", application.ProjectName}});
    Bundle bundle;
    bundle.project = application.ProjectName;
    bundle.displayName = application.DisplayName;
    bundle.version = application.Version;
    bundle.device = device;
    applySettings(settings, bundle);
    bundle.references = listing.references;
    std::sort(bundle.references.begin(), bundle.references.end());
    for (const auto& file : listing.files) {
        const auto folder = file.kind == FileKind::Font ? kFontsFolder : kFilesFolder;
        bundle.files.push_back({file.kind, folder + file.name, file.size, {}, file.open});
    }
    addIcon(bundle, listing, application.TempIconFile);
    std::sort(bundle.files.begin(), bundle.files.end(),
              [](const BundleFile& a, const BundleFile& b) { return a.place < b.place; });
    return bundle;
}

} // namespace qlpipe
