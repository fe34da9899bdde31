#pragma once
// Families of devices, and the classes that serve them.
#include "Add-in/platform/pipes.h"
#include "Components/QLPipe/device_storage.h"
#include "Components/QLPipe/pipe_services.h"
#include <functional>
#include <memory>
#include <span>
#include <string>

namespace qlpipe {

/// A family is one row here and a folder with the storage of its devices.
struct PipeFamily {
    /// What stands before the first "-" of its design targets' keys.
    const char* name;
    /// The ProgID that its design targets name.
    const char* pipe;
    /// Opens a device's storage, alone until it is closed; throws TransferError. `project` is Nothing for the runtime and
    /// for packages. Null for a family without devices to send to.
    std::unique_ptr<DeviceStorage> (*open)(const PipeServices& services, const std::string& deviceName,
                                           const basic::Ref<vbide::VBProject>& project);
    /// Its page of the settings dialog.
    basic::Ref<IQLPipeConfiguration> (*configure)(const PipeServices& services);
};

std::span<const PipeFamily> pipeFamilies();

/// Makes a new object of a class.
using ObjectFactory = std::function<basic::Ref<fernwick::Object>()>;

/// Names every class of the shipped pipes with its ProgID, for whoever makes objects by ProgID.
void registerPipes(const PipeServices& services,
                   const std::function<void(const std::string& progId, ObjectFactory make)>& add);

/// Installs what a package holds; "" stands for the design target that it was made for. Events and answer are those of
/// IQLPipe::SendProject.
bool installPackage(const PipeServices& services, const std::string& path, const std::string& deviceName,
                    IQLPipeEvents& sink);

} // namespace qlpipe
