// The user's devices.
#include "Add-in/core/connect/Modules.h"
#include "Apps/fernwick/devices/device_place.h"
#include "Apps/fernwick/devices/my_devices.h"
#include "Apps/fernwick/doctor/findings.h"
#include "Apps/fernwick/output/catalogue.h"
#include "Apps/fernwick/run/interruption.h"
#include <fmt/format.h>

namespace cli {

namespace {

std::string placeWords(const DevicePlace& place) {
    auto words = place.location;
    if (const auto space = sizeWords(place.freeBytes); !space.empty()) words += fmt::format(", {} free", space);
    return words + (place.runtime.empty() ? ", no runtime" : ", runtime " + place.runtime);
}

std::string fixForAbsent(const DeviceRow& row, const DevicePlace& place) {
    const auto* message = messageNumbered(place.problemNumber);
    return message ? std::string(message->remedy) : fmt::format("fernwick devices remove {}", row.key);
}

/// Only devices in My Devices have to be available.
Finding::State stateOfAbsent(const DeviceRow& row) {
    return row.isMine ? Finding::State::Trouble : Finding::State::Warning;
}

Finding findingOfDevice(Machine& machine, const DeviceRow& row) {
    const auto subject = "device " + row.key;
    if (!row.isUsable)
        return troubleFinding(subject, "is in My Devices, but its design target is not usable",
                              fmt::format("fernwick devices remove {}", row.key));
    const auto place = placeOfDevice(machine, row.key, row.pipe);
    if (!place.problem.empty()) return {stateOfAbsent(row), subject, place.problem, fixForAbsent(row, place)};
    if (place.runtime.empty())
        return warningFinding(subject, placeWords(place), fmt::format("fernwick install-runtime --device {}", row.key));
    return goodFinding(subject, placeWords(place));
}

} // namespace

void examineDevices(Machine& machine, Findings& to) {
    fernwick::Modules addIn{machine.platform()};
    addIn.prefs.loadMyDevices();
    for (const auto& row : deviceRows(machine, addIn.prefs.gMyDevices)) {
        checkInterrupt();
        to.push_back(findingOfDevice(machine, row));
    }
}

} // namespace cli
