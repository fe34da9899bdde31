#include "Apps/fernwick/device_place.h"
#include "Basic/case_folding.h"
#include "Components/QLPipe/pipe_family.h"
#include <nlohmann/json.hpp>

namespace cli {

namespace {

using qlpipe::DeviceStorage;

/// Where the runtime lies on every device, and its manifest.
constexpr const char* kRuntimeFolder = "runtime";
constexpr const char* kRuntimeManifest = "runtime/manifest.json";

const qlpipe::PipeFamily* familyOfPipe(const std::string& pipe) {
    for (const auto& family : qlpipe::pipeFamilies())
        if (basic::equalNoCase(family.pipe, pipe)) return &family;
    return nullptr;
}

std::string versionInManifest(const std::string& manifest) {
    const auto json = nlohmann::json::parse(manifest, nullptr, false);
    return json.is_object() && json.contains("version") && json["version"].is_string() ? json["version"] : "unknown";
}

DevicePlace placeOf(DeviceStorage& storage) {
    DevicePlace place;
    place.location = storage.location();
    place.freeBytes = storage.freeSpaceFor(kRuntimeFolder);
    if (storage.exists(kRuntimeManifest)) place.runtime = versionInManifest(storage.read(kRuntimeManifest));
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
