#pragma once
// Puts a bundle on a device, as a whole or not at all.
#include "Components/QLPipe/bundle.h"
#include "Components/QLPipe/device_storage.h"
#include "Components/QLPipe/progress.h"

namespace qlpipe {

// The device's own folder, which every storage has.
inline constexpr char kApplicationsFolder[] = "applications";
inline constexpr char kDeviceFontsFolder[] = "fonts";
inline constexpr char kRuntimeFolder[] = "runtime";
/// What is on its way. An interrupted transfer may leave something there, which the next one removes.
inline constexpr char kStagingFolder[] = ".incoming";

/// Where a bundle lies on a device, and where one of its files does.
std::string placeOnDevice(const Bundle& bundle);
std::string placeOnDevice(const Bundle& bundle, const BundleFile& file);

/// Sends the files, then puts the new folder in the old one's place; an application's fonts, which all applications share,
/// stand before. Whatever fails, the old application is whole. Throws TransferError and what the sink lets out.
void install(DeviceStorage& device, Bundle bundle, Progress& progress);

bool hasRuntime(DeviceStorage& device);

} // namespace qlpipe
