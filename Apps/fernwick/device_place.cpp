#include "Apps/fernwick/device_place.h"
#include "Basic/case_folding.h"
#include "Components/QLPipe/bundle.h"
#include "Components/QLPipe/installer.h"
#include "Components/QLPipe/pipe_family.h"

namespace cli {

namespace {

using qlpipe::DeviceStorage;

const qlpipe::PipeFamily* familyOfPipe(const std::string& pipe) {
    for (const auto& family : qlpipe::pipeFamilies())
        if (basic::equalNoCase(family.pipe, pipe)) return &family;
    return nullptr;
}

/// "" for none; the next transfer puts a damaged one right.
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

DevicePlace placeOfDevice(Machine& machine, const std::string& key, const std::string& pipe) {
    const auto* family = familyOfPipe(pipe);
    DevicePlace place;
    if (!family || !family->open) {
        place.problem = "nothing can be sent to devices of " + pipe;
        return place;
    }
    auto& platform = machine.platform();
    const qlpipe::PipeServices services{platform.files, platform.classes, platform.registry, platform.environment,
                                        machine.installation()};
    try {
        return placeOf(*family->open(services, key, {}));
    } catch (const qlpipe::TransferError& error) {
        place.problem = error.text;
    } catch (const basic::RuntimeError& error) { place.problem = error.Description; }
    return place;
}

} // namespace cli
