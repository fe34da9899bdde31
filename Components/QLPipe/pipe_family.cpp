#include "Components/QLPipe/pipe_family.h"
#include "Components/QLPipe/device_pipe.h"
#include "Components/QLPipe/family_validation.h"
#include "Components/QLPipe/linux_handheld/linux_handheld.h"
#include "Components/QLPipe/linux_handheld/linux_handheld_settings.h"
#include "Components/QLPipe/settings/family_tables.h"
#include "Components/QLPipe/settings/page_configuration.h"
#include "Components/QLPipe/virtual_device/virtual_device.h"

namespace qlpipe {
namespace {

basic::Ref<IQLPipeConfiguration> configurePalmOS(const PipeServices& services) {
    return basic::make<PageConfiguration>(services, "PalmOS", "PalmOSPage", kPalmOSSettings);
}

basic::Ref<IQLPipeConfiguration> configurePocketPC(const PipeServices& services) {
    return basic::make<PageConfiguration>(services, "PocketPC", "PocketPCPage", kPocketPCSettings);
}

constexpr PipeFamily kPipeFamilies[] = {
    {"PalmOS", "QLPipePalmOS", openVirtualDevice, kPalmOSSettings, configurePalmOS},
    {"PocketPC", "QLPipePocketPC", openVirtualDevice, kPocketPCSettings, configurePocketPC},
    {"LinuxHandheld", "QLPipeLinux", openLinuxHandheld, kLinuxHandheldSettings, configureLinuxHandheld},
};

} // namespace

std::span<const PipeFamily> pipeFamilies() { return kPipeFamilies; }

void registerPipes(const PipeServices& services,
                   const std::function<void(const std::string& progId, ObjectFactory make)>& add) {
    for (const auto& family : pipeFamilies()) {
        const std::string pipe = family.pipe;
        add(pipe + ".Validation",
            [&family, services] { return basic::make<FamilyValidation>(family, services.files, services.classes); });
        if (family.open) add(pipe + ".Pipe", [&family, services] { return basic::make<DevicePipe>(family, services); });
        add(pipe + ".Configuration", [&family, services] { return family.configure(services); });
    }
}

} // namespace qlpipe
