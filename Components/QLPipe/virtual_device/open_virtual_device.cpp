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

std::unique_ptr<DeviceStorage> openVirtualDevice(const PipeServices& services, const std::string& deviceName,
                                                 const basic::Ref<vbide::VBProject>&) {
    return std::make_unique<VirtualDevice>(devicesFolder(services) + "/" + deviceName,
                                           limitsOf(services.classes, deviceName).storageBytes);
}

} // namespace qlpipe
