#pragma once
// Installs a bundle on a device atomically.
#include "Components/QLPipe/base/device_storage.h"
#include "Components/QLPipe/base/progress.h"
#include "Components/QLPipe/package/bundle.h"

namespace qlpipe {

// Folders of a device.
inline constexpr char kApplicationsFolder[] = "applications";
inline constexpr char kDeviceFontsFolder[] = "fonts";
inline constexpr char kRuntimeFolder[] = "runtime";
/// Files being transferred. The next transfer removes what an interrupted one left there.
inline constexpr char kStagingFolder[] = ".incoming";

/// Return the place of a bundle on a device, and of one of its files.
std::string placeOnDevice(const Bundle& bundle);
std::string placeOnDevice(const Bundle& bundle, const BundleFile& file);

/// Sends the files, then replaces the old folder with the new one. An application's fonts, which all applications
/// share, are replaced first. If anything fails, the old application is unchanged. Throws TransferError and exceptions
/// of the sink.
void install(DeviceStorage& device, Bundle bundle, Progress& progress);

bool hasRuntime(DeviceStorage& device);

/// Returns the names of the applications with this creator ID. Applications that cannot be read are left out.
std::vector<std::string> applicationsWithCreator(DeviceStorage& device, const std::string& creatorId);

} // namespace qlpipe
