#include "Components/QLPipe/base/target_limits.h"
#include "Components/QLPipe/virtual_device/virtual_device.h"

namespace qlpipe {
namespace {

std::string devicesFolder(const PipeServices& services) {
    const auto& environment = services.environment;
    if (auto own = environment.GetEnvironmentVariable("FERNWICK_DEVICES"); !own.empty()) return own;
    auto data = environment.GetEnvironmentVariable("XDG_DATA_HOME");
    // Only an absolute path is valid.
    if (!data.starts_with('/')) data = services.files.HomeFolder() + "/.local/share";
    return data + "/fernwick/devices";
}

} // namespace

std::unique_ptr<DeviceStorage> openVirtualDevice(const PipeServices& services, const DeviceRequest& request) {
    const auto folder = devicesFolder(services) + "/" + request.device;
    const auto memory = limitsOf(services.classes, request.device).storageBytes;
    if (request.isReadOnly) return VirtualDevice::openToRead(folder, memory);
    return std::make_unique<VirtualDevice>(folder, memory);
}

} // namespace qlpipe
