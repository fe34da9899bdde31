#pragma once
// Device families and the classes that serve them.
#include "Add-in/platform/pipes.h"
#include "Components/QLPipe/base/device_request.h"
#include "Components/QLPipe/base/device_storage.h"
#include "Components/QLPipe/settings/pipe_setting.h"
#include <functional>
#include <memory>
#include <span>
#include <string>

namespace qlpipe {

/// A family is a row in kPipeFamilies and a folder with the storage of its devices.
struct PipeFamily {
    /// The part before the first "-" in the keys of its design targets.
    const char* name;
    /// The ProgID in its design targets.
    const char* pipe;
    /// Opens a device's storage, for exclusive use unless it is only read; throws TransferError. Null for a family without
    /// devices.
    std::unique_ptr<DeviceStorage> (*open)(const PipeServices& services, const DeviceRequest& request);
    /// What its projects can set.
    const PipeSettings& settings;
    /// Creates the object with its page of the settings dialog.
    basic::Ref<IQLPipeConfiguration> (*configure)(const PipeServices& services);
};

std::span<const PipeFamily> pipeFamilies();

/// Creates an object of a class.
using ObjectFactory = std::function<basic::Ref<fernwick::Object>()>;

/// Registers every class of the pipes under its ProgID.
void registerPipes(const PipeServices& services,
                   const std::function<void(const std::string& progId, ObjectFactory make)>& add);

/// Installs a package. An empty device means the design target for which the package was made. Raises the events of
/// IQLPipe::SendProject and returns its result.
bool installPackage(const PipeServices& services, const std::string& path, const std::string& deviceName,
                    IQLPipeEvents& sink);

} // namespace qlpipe
