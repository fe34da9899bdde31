#include "Components/QLPipe/package/installer.h"
#include "Components/QLPipe/base/device_names.h"
#include "Components/QLPipe/base/pipe_messages.h"
#include "Components/QLPipe/base/pipe_texts.h"
#include "Components/QLPipe/base/sha256.h"

namespace qlpipe {
namespace {

const std::string kStaged = std::string{kStagingFolder} + "/bundle";
const std::string kStagedFonts = std::string{kStagingFolder} + "/fonts";

/// Fonts of an application are shared by all applications; other files belong to the application's folder.
bool isShared(const Bundle& bundle, const BundleFile& file) { return !bundle.isRuntime && file.kind == FileKind::Font; }

std::string stagedPlace(const Bundle& bundle, const BundleFile& file) {
    return isShared(bundle, file) ? kStagedFonts + "/" + std::string(file.title()) : kStaged + "/" + file.place;
}

/// Sends a file and returns its checksum. A reader whose file has a known checksum verifies it.
std::string sendFile(DeviceStorage& device, const BundleFile& file, const std::string& place, std::span<char> buffer,
                     Progress& progress) {
    progress.setStatus(fillIn(pipe_texts::kSending, {{"file", std::string(file.title())}}));
    device.makeFolder(folderOf(place));
    const auto reader = file.open();
    const auto writer = device.create(place);
    Sha256 checksum;
    while (const auto count = reader->read(buffer)) {
        const std::string_view chunk{buffer.data(), count};
        checksum.add(chunk);
        writer->write(chunk);
        progress.moved(std::int64_t(count));
    }
    writer->close();
    return checksum.hex();
}

void needRoom(DeviceStorage& device, const Bundle& bundle) {
    const auto needed = bundle.bytes() + manifestSize(bundle);
    const auto free = device.freeSpaceFor(placeOnDevice(bundle));
    if (free >= 0 && needed > free)
        throw transferError(
            kDeviceFull,
            {{"device", device.location()}, {"required", bytesInWords(needed)}, {"free", bytesInWords(free)}});
}

void stage(DeviceStorage& device, Bundle& bundle, Progress& progress) {
    std::vector<char> buffer(kChunkBytes);
    device.makeFolder(kStaged);
    for (auto& file : bundle.files) file.sha256 = sendFile(device, file, stagedPlace(bundle, file), buffer, progress);
    const auto manifest = device.create(kStaged + "/" + kManifestName);
    manifest->write(writeManifest(bundle));
    manifest->close();
}

/// Replaces the old files. Nothing is read from here on, so only the device can fail.
void putInPlace(DeviceStorage& device, const Bundle& bundle) {
    const auto place = placeOnDevice(bundle);
    for (const auto& file : bundle.files) {
        if (!isShared(bundle, file)) continue;
        device.makeFolder(kDeviceFontsFolder);
        device.replaceFile(stagedPlace(bundle, file), placeOnDevice(bundle, file));
    }
    if (const auto folder = folderOf(place); !folder.empty()) device.makeFolder(folder);
    device.replaceFolder(kStaged, place);
}

/// Best effort: the next transfer removes the rest.
void removeStaged(DeviceStorage& device) {
    try {
        device.remove(kStagingFolder);
    } catch (const TransferError&) {}
}

} // namespace

std::string placeOnDevice(const Bundle& bundle) {
    return bundle.isRuntime ? kRuntimeFolder : kApplicationsFolder + ("/" + bundle.project);
}

std::string placeOnDevice(const Bundle& bundle, const BundleFile& file) {
    if (isShared(bundle, file)) return kDeviceFontsFolder + ("/" + std::string(file.title()));
    return placeOnDevice(bundle) + "/" + file.place;
}

void install(DeviceStorage& device, Bundle bundle, Progress& progress) {
    needReadable(bundle);
    needRoom(device, bundle);
    device.remove(kStagingFolder);
    try {
        stage(device, bundle, progress);
        progress.setStatus(pipe_texts::kFinishing);
        putInPlace(device, bundle);
    } catch (...) {
        removeStaged(device);
        throw;
    }
    removeStaged(device);
}

std::vector<std::string> applicationsWithCreator(DeviceStorage& device, const std::string& creatorId) {
    std::vector<std::string> found;
    for (const auto& name : device.list(kApplicationsFolder)) {
        try {
            const auto manifest = device.read(kApplicationsFolder + ("/" + name) + "/" + kManifestName);
            if (readManifest(manifest).creatorId == creatorId) found.push_back(name);
        } catch (const TransferError&) {
        } catch (const ManifestProblem&) {}
    }
    return found;
}

bool hasRuntime(DeviceStorage& device) { return device.exists(kRuntimeFolder + ("/" + std::string{kManifestName})); }

} // namespace qlpipe
