#pragma once
// The settings of the families whose devices are simulated. Those of Linux handhelds are in linux_handheld.
#include "Components/QLPipe/settings/application_settings.h"

namespace qlpipe {

inline constexpr PipeSetting kPalmOSRows[] = {
    {"PalmOSCreatorID",
     "CreatorID",
     "&Creator ID:",
     "identifies the application among those of a device",
     "4 characters of ASCII, not only small letters",
     "none",
     "it is in the manifest; a transfer warns if another application of the device has the same one",
     creatorIdProblem,
     {},
     &ApplicationSettings::CreatorID},
    versionRow("PalmOSVersion"),
    memoryLimitRow("PalmOSMemoryLimit"),
};
inline constexpr PipeSettings kPalmOSSettings{"Palm OS Settings", "Quinloft Palm OS", kPalmOSRows};

inline constexpr PipeSetting kPocketPCRows[] = {
    versionRow("PocketPCVersion"),
    memoryLimitRow("PocketPCMemoryLimit"),
    orientationRow("PocketPCOrientation"),
};
inline constexpr PipeSettings kPocketPCSettings{"PocketPC Settings", "Quinloft PocketPC", kPocketPCRows};

} // namespace qlpipe
