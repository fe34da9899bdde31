#include "Apps/fernwick/devices/my_devices.h"
#include "Add-in/devices/modDeviceManagement.h"
#include "Add-in/platform/pipes.h"
#include "Basic/case_folding.h"
#include "Components/DesignTargetAccess/design_target_mgr.h"
#include <fmt/format.h>

namespace cli {

namespace {

/// The add-in's rule, but without an error report if the pipe cannot be created.
bool isUsable(Machine& machine, const designtargetaccess::IQLDesignTarget& target) {
    bool supported = false;
    (void)basic::attempt([&] {
        const auto object = machine.classes().CreateObject(target.RequiredPipeProgID() + ".Validation");
        supported = basic::cast<qlpipe::IQLPipeValidation>(object)->IsDeviceSupported(target.Key());
    });
    return supported && !target.PlatformName().empty() && !target.RequiredPipeProgID().empty();
}

} // namespace

std::vector<DeviceRow> deviceRows(Machine& machine, const std::vector<std::string>& mine) {
    const auto isMine = [&](const std::string& key) {
        return std::any_of(mine.begin(), mine.end(), [&](const auto& one) { return basic::equalNoCase(one, key); });
    };
    std::vector<DeviceRow> rows;
    designtargetaccess::DesignTargetMgr targets{machine.installation()};
    targets.Initialize();
    for (std::int16_t i = 0; i < targets.Count(); ++i) {
        const auto target = targets.GetDesignTargetByIndex(i).shared();
        if (!isUsable(machine, *target)) continue;
        rows.push_back({target->Key(), fernwick::modDeviceManagement::StripAcceleratorInfo(target->Name()),
                        target->RequiredPipeProgID(), isMine(target->Key()), true});
    }
    for (const auto& key : mine)
        if (!deviceWithKey(rows, key)) rows.push_back({key, {}, {}, true, false});
    return rows;
}

const DeviceRow* deviceWithKey(const std::vector<DeviceRow>& rows, const std::string& key) {
    const auto found =
        std::find_if(rows.begin(), rows.end(), [&](const auto& row) { return basic::equalNoCase(row.key, key); });
    return found == rows.end() ? nullptr : &*found;
}

std::string sizeWords(std::int64_t bytes) {
    if (bytes < 0) return {};
    constexpr const char* kUnits[] = {"bytes", "KB", "MB", "GB", "TB"};
    double size = double(bytes);
    std::size_t unit = 0;
    while (size >= 1024 && unit + 1 < std::size(kUnits)) size /= 1024, ++unit;
    return unit == 0 ? fmt::format("{} bytes", bytes) : fmt::format("{:.1f} {}", size, kUnits[unit]);
}

} // namespace cli
