#include "Apps/fernwick/devices/device_place.h"
#include "Basic/case_folding.h"
#include "Components/QLPipe/package/bundle.h"
#include "Components/QLPipe/package/installer.h"

namespace cli {

namespace {

using qlpipe::DeviceStorage;

/// "" for none. A damaged runtime is replaced by the next transfer.
std::string runtimeVersion(DeviceStorage& storage) {
    if (!qlpipe::hasRuntime(storage)) return {};
    try {
        const auto manifest = storage.read(std::string(qlpipe::kRuntimeFolder) + "/" + qlpipe::kManifestName);
        return qlpipe::readManifest(manifest).version;
    } catch (const qlpipe::ManifestProblem& problem) { return "damaged: " + problem.what; }
}

DevicePlace placeOf(DeviceStorage& storage) {
    DevicePlace place;
    place.location = storage.location();
    place.freeBytes = storage.freeSpaceFor(qlpipe::kStagingFolder);
    place.runtime = runtimeVersion(storage);
    return place;
}

} // namespace

const qlpipe::PipeFamily* pipeFamilyOf(const std::string& pipe) {
    for (const auto& family : qlpipe::pipeFamilies())
        if (basic::equalNoCase(family.pipe, pipe)) return &family;
    return nullptr;
}

DevicePlace placeOfDevice(Machine& machine, const std::string& key, const std::string& pipe) {
    const auto* family = pipeFamilyOf(pipe);
    DevicePlace place;
    if (!family || !family->open) {
        place.problem = "the pipe " + pipe + " cannot send anything";
        return place;
    }
    try {
        return placeOf(
            *family->open(machine.pipeServices(), {.device = key, .project = {}, .warn = {}, .isReadOnly = true}));
    } catch (const qlpipe::TransferError& error) {
        place.problem = error.text;
        place.problemNumber = error.number;
    } catch (const basic::RuntimeError& error) { place.problem = error.Description; }
    return place;
}

} // namespace cli
