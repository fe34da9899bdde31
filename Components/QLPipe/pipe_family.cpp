#include "Components/QLPipe/pipe_family.h"
#include "Components/QLPipe/base/no_page.h"
#include "Components/QLPipe/device_pipe.h"
#include "Components/QLPipe/family_validation.h"
#include "Components/QLPipe/linux_handheld/linux_handheld.h"
#include "Components/QLPipe/virtual_device/virtual_device.h"

namespace qlpipe {
namespace {

basic::Ref<IQLPipeConfiguration> noPage(const PipeServices&) { return basic::make<NoPage>(); }

constexpr PipeFamily kPipeFamilies[] = {
    {"PalmOS", "QLPipePalmOS", openVirtualDevice, noPage},
    {"PocketPC", "QLPipePocketPC", openVirtualDevice, noPage},
    {"LinuxHandheld", "QLPipeLinux", openLinuxHandheld, configureLinuxHandheld},
};

} // namespace

std::span<const PipeFamily> pipeFamilies() { return kPipeFamilies; }

void registerPipes(const PipeServices& services,
                   const std::function<void(const std::string& progId, ObjectFactory make)>& add) {
    for (const auto& family : pipeFamilies()) {
        const std::string pipe = family.pipe;
        add(pipe + ".Validation", [&family, services] {
            return basic::make<FamilyValidation>(family.name, services.files, services.classes);
        });
        if (family.open) add(pipe + ".Pipe", [&family, services] { return basic::make<DevicePipe>(family, services); });
        if (family.configure) add(pipe + ".Configuration", [&family, services] { return family.configure(services); });
    }
}

} // namespace qlpipe
