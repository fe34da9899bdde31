#pragma once
// The settings of a device family, each declared once: its page, its pipe, the tips and `fernwick settings` read the rows.
#include "Add-in/platform/host_project.h"
#include "Components/QLPipe/base/target_limits.h"
#include <span>
#include <string>
#include <vector>

namespace qlpipe {

struct ApplicationSettings;
struct LinuxHandheldSettings;

/// One setting. Its value is a text, "" if it is not set.
struct PipeSetting {
    /// Unique among all settings: "HandheldFolder".
    const char* name;
    /// Its key in the section of the project file or in the user's store, and the end of its controls' names.
    const char* key;
    /// The label of its field.
    const char* caption;
    const char* meaning;
    const char* range;
    /// What an empty value means.
    const char* usual;
    /// What reads it.
    const char* use;
    /// Returns why a value other than "" cannot be used on devices with these limits, or "".
    std::string (*problem)(const std::string& value, const TargetLimits& limits) = nullptr;
    /// The only values, if there are any.
    std::span<const char* const> choices = {};
    /// Where the application's transfer reads it; null if it does not.
    std::string ApplicationSettings::*application = nullptr;
    /// Where a connection reads it; null if it does not.
    std::string LinuxHandheldSettings::*connection = nullptr;
    /// Whether it belongs to the user. Projects come from anywhere, so they must not choose which machine is reached,
    /// nor by whom or with which keys.
    bool isOfUser = false;
};

/// The settings of a family, in the order of its page.
struct PipeSettings {
    /// The name of the page.
    const char* page;
    /// The section of the project file.
    const char* section;
    std::span<const PipeSetting> rows;
};

/// One value for each row.
using SettingValues = std::vector<std::string>;

/// Returns the values of a project; "" for a missing value, for the user's settings and without a project.
[[nodiscard]] SettingValues readProjectValues(const PipeSettings& settings,
                                              const basic::Ref<vbide::VBProject>& project);

/// Stores the values that differ from `before`, except those of the user. After an error none is stored. Raises the
/// host's errors.
void writeProjectValues(const PipeSettings& settings, const basic::Ref<vbide::VBProject>& project,
                        const SettingValues& before, const SettingValues& values);

/// Returns the user's settings that the project file contains, which are ignored.
[[nodiscard]] std::vector<const PipeSetting*> ignoredInProject(const PipeSettings& settings,
                                                               const basic::Ref<vbide::VBProject>& project);

/// Returns why the value cannot be used, or "". Control characters and very long texts never can.
[[nodiscard]] std::string problemOf(const PipeSetting& setting, const std::string& value, const TargetLimits& limits);

/// Returns "Creator ID: it must have 4 characters." for each value that cannot be used, separated by line feeds.
[[nodiscard]] std::string problemsOf(const PipeSettings& settings, const SettingValues& values,
                                     const TargetLimits& limits);

/// Returns the caption without its marks: "Creator ID".
[[nodiscard]] std::string titleOf(const PipeSetting& setting);
/// Returns meaning, range, default and use, as sentences.
[[nodiscard]] std::string tipOf(const PipeSetting& setting);
/// Returns the same without the meaning.
[[nodiscard]] std::string detailsOf(const PipeSetting& setting);
/// Returns the beginning of a value that may be very long.
[[nodiscard]] std::string shortened(const std::string& value);

} // namespace qlpipe
