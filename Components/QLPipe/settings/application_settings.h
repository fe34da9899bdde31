#pragma once
// The settings that a project gives its application on the devices of a family.
#include "Components/QLPipe/settings/pipe_setting.h"
#include <array>
#include <cstdint>
#include <optional>

namespace qlpipe {

/// The settings as stored, "" if not set. A family has some of them.
struct ApplicationSettings {
    std::string Version;
    std::string CreatorID;
    /// KB.
    std::string MemoryLimit;
    std::string Orientation;
    std::string Arguments;
};

/// Reads the settings of a project. Does not raise errors.
[[nodiscard]] ApplicationSettings readApplicationSettings(const PipeSettings& settings,
                                                          const basic::Ref<vbide::VBProject>& project);

/// Returns the limit in bytes; nothing if it is not set or not a number.
[[nodiscard]] std::optional<std::int64_t> memoryLimitBytes(const std::string& text);

/// Returns why a text is not the creator ID of an application, or "".
[[nodiscard]] std::string creatorIdProblem(const std::string& value, const TargetLimits&);
[[nodiscard]] std::string versionProblem(const std::string& value, const TargetLimits&);
[[nodiscard]] std::string memoryLimitProblem(const std::string& value, const TargetLimits& limits);
[[nodiscard]] std::string orientationProblem(const std::string& value, const TargetLimits&);

inline constexpr std::array<const char*, 2> kOrientations{"Portrait", "Landscape"};

// Rows that several families have. Their names begin with the family's.
constexpr PipeSetting versionRow(const char* name) {
    return {name,
            "Version",
            "&Version:",
            "version that the device shows",
            "at most 31 characters",
            "the project's version",
            "it replaces the version in the manifest of the application",
            versionProblem,
            {},
            &ApplicationSettings::Version};
}
constexpr PipeSetting memoryLimitRow(const char* name) {
    return {name,
            "MemoryLimit",
            "&Memory limit (KB):",
            "memory that the application may use",
            "a whole number of KB, from 16 to the memory of the device",
            "the memory of the device",
            "the manifest passes it to the runtime, and larger files cause a warning",
            memoryLimitProblem,
            {},
            &ApplicationSettings::MemoryLimit};
}
constexpr PipeSetting orientationRow(const char* name) {
    return {name,
            "Orientation",
            "&Orientation:",
            "orientation of the screen while the application runs",
            "Portrait or Landscape",
            "as the device is held",
            "the manifest passes it to the runtime",
            orientationProblem,
            kOrientations,
            &ApplicationSettings::Orientation};
}

} // namespace qlpipe
