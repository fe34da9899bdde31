#include "Apps/fernwick/devices/device_settings.h"
#include "Apps/fernwick/options/exit_status.h"
#include "Apps/fernwick/options/refusal.h"
#include "Basic/case_folding.h"
#include "Components/QLPipe/base/device_storage.h"
#include <fmt/format.h>

namespace cli {

namespace {

using qlpipe::kConnectionRows;
using qlpipe::LinuxHandheldSettings;

/// Only Linux handhelds are reached over a network.
bool isReachedBySsh(const std::string& pipe) { return basic::equalNoCase(pipe, "QLPipeLinux"); }

std::string knownSettingNames() {
    std::string names;
    for (const auto& row : kConnectionRows) names += (names.empty() ? "" : ", ") + std::string(row.key);
    return names;
}

void assign(LinuxHandheldSettings& settings, const std::string& assignment) {
    const auto equals = assignment.find('=');
    if (equals == assignment.npos)
        throw Refusal(kWrongUse, fmt::format("devices set expects NAME=VALUE, not {}", assignment));
    const auto name = assignment.substr(0, equals), value = assignment.substr(equals + 1);
    if (std::any_of(value.begin(), value.end(), [](unsigned char c) { return c < ' '; }))
        throw Refusal(kWrongUse, fmt::format("{}: values must not contain control characters", name));
    for (const auto& row : kConnectionRows) {
        if (!basic::equalNoCase(row.key, name)) continue;
        settings.*row.connection = value;
        return;
    }
    throw Refusal(kWrongUse, fmt::format("unknown setting {}; the settings are {}", name, knownSettingNames()));
}

/// Refusal 2 for invalid settings, so that mistakes are reported when they are made, not by a transfer. The host may
/// still be missing.
void requireMeantSettings(LinuxHandheldSettings settings, const std::string& key) {
    if (settings.Host.empty()) settings.Host = "host";
    try {
        (void)qlpipe::sshTarget(settings, key);
    } catch (const qlpipe::TransferError& error) { throw Refusal(kWrongUse, error.text); }
}

} // namespace

DeviceSettings readDeviceSettings(fernwick::Registry& registry, const std::string& key) {
    DeviceSettings list;
    const auto settings = qlpipe::readUserSettings(registry, key);
    for (const auto& row : kConnectionRows) list.emplace_back(row.key, settings.*row.connection);
    return list;
}

void changeDeviceSettings(fernwick::Registry& registry, const std::string& key, const std::string& pipe,
                          const std::vector<std::string>& assignments) {
    if (!isReachedBySsh(pipe))
        throw Refusal(kWrongUse, fmt::format("{} has no settings: its devices are folders on this computer", key));
    auto settings = qlpipe::readUserSettings(registry, key);
    const auto before = settings;
    for (const auto& assignment : assignments) assign(settings, assignment);
    requireMeantSettings(settings, key);
    if (settings == before) return;
    const auto err = basic::attempt([&] { qlpipe::writeUserSettings(registry, key, settings); });
    if (err.Number != 0)
        throw Refusal(kMachineTrouble, fmt::format("the settings of {} could not be stored; see fernwick doctor", key));
}

} // namespace cli
