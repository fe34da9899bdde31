#include "Add-in/core/connect/Modules.h"
#include "Apps/fernwick/devices/device_place.h"
#include "Apps/fernwick/devices/device_settings.h"
#include "Apps/fernwick/devices/my_devices.h"
#include "Apps/fernwick/options/exit_status.h"
#include "Apps/fernwick/options/refusal.h"
#include "Apps/fernwick/options/suggestions.h"
#include "Apps/fernwick/output/json_output.h"
#include "Apps/fernwick/run/interruption.h"
#include "Apps/fernwick/verbs/verbs.h"
#include "Basic/case_folding.h"
#include "Basic/printable.h"
#include <fmt/format.h>

namespace cli {

namespace {

struct MyDevices {
    MyDevices(const Options& options, Console& console)
        : user(console, options.answers, {}), machine(console, user), addIn(machine.platform()) {
        addIn.prefs.loadMyDevices();
        rows = deviceRows(machine, addIn.prefs.gMyDevices);
    }

    CommandLineUser user;
    Machine machine;
    fernwick::Modules addIn;
    std::vector<DeviceRow> rows;
};

std::vector<std::string> usableKeys(const std::vector<DeviceRow>& rows) {
    std::vector<std::string> keys;
    for (const auto& row : rows)
        if (row.isUsable) keys.push_back(row.key);
    return keys;
}

std::string notUsable(const std::string& key, const std::vector<std::string>& keys) {
    const auto near = didYouMean(key, keys);
    if (near.empty() && keys.empty()) return fmt::format("{} is not a usable device; none is installed", key);
    return fmt::format("{} is not a usable device{}", key,
                       near.empty() ? "; the usable devices are " + listedWords(keys, "and") : near);
}

const DeviceRow& knownDevice(const MyDevices& devices, const std::string& key) {
    const auto* row = deviceWithKey(devices.rows, key);
    if (!row || !row->isUsable) throw Refusal(kWrongUse, notUsable(key, usableKeys(devices.rows)));
    return *row;
}

// ---- list ----

void printRow(const DeviceRow& row, const DevicePlace& place, Console& console) {
    std::string where = !row.isUsable ? "not usable" : !place.problem.empty() ? "-" : place.location;
    if (!place.runtime.empty()) where += fmt::format("  (runtime {})", place.runtime);
    console.out(
        fmt::format("{} {:<20}  {:<18}  {}\n", row.isMine ? "*" : " ", row.key, row.name, basic::printable(where)));
    if (place.problem.empty()) return;
    const auto why = fmt::format("{}: {}", row.key, place.problem);
    return row.isMine ? console.note(why, Tone::Warning) : console.detail(why);
}

Json jsonOfSettings(const DeviceSettings& settings) {
    Json json = Json::object();
    for (const auto& [name, value] : settings)
        if (!value.empty()) json[name] = value;
    return json;
}

Json jsonOfDeviceRow(const DeviceRow& row, const DevicePlace& place, const DeviceSettings& settings) {
    const auto orNull = [](const std::string& text) { return text.empty() ? Json(nullptr) : Json(text); };
    return {{"key", row.key},
            {"name", orNull(row.name)},
            {"mine", row.isMine},
            {"usable", row.isUsable},
            {"location", orNull(place.location)},
            {"runtime", orNull(place.runtime)},
            {"freeBytes", place.freeBytes < 0 ? Json(nullptr) : Json(place.freeBytes)},
            {"problem", orNull(place.problem)},
            {"settings", jsonOfSettings(settings)}};
}

int listDevices(MyDevices& devices, const Options& options, Console& console) {
    auto json = jsonResult("devices");
    json["devices"] = Json::array();
    for (const auto& row : devices.rows) {
        checkInterrupt();
        const auto place = row.isUsable ? placeOfDevice(devices.machine, row.key, row.pipe) : DevicePlace{};
        if (options.format == Format::Json)
            json["devices"].push_back(
                jsonOfDeviceRow(row, place, readDeviceSettings(devices.machine.registry(), row.key)));
        else
            printRow(row, place, console);
    }
    if (options.format == Format::Json) console.out(dumpJson(json));
    if (devices.rows.empty())
        throw Refusal(kMachineTrouble, "no usable design target is installed; see fernwick doctor");
    return kGood;
}

// ---- add, remove ----

/// Checks the result, because the add-in does not report a store that cannot be written.
void saveDevices(MyDevices& devices, std::vector<std::string> keys) {
    auto& prefs = devices.addIn.prefs;
    prefs.gMyDevices = keys;
    (void)prefs.saveMyDevices();
    prefs.loadMyDevices();
    if (prefs.gMyDevices != keys) throw Refusal(kMachineTrouble, "My Devices could not be saved; see fernwick doctor");
}

void requireKeys(const Options& options) {
    if (options.operands.empty())
        throw Refusal(kWrongUse,
                      fmt::format("devices {} expects the keys of devices; see fernwick devices", options.action));
}

int addDevices(MyDevices& devices, const Options& options, Console&) {
    requireKeys(options);
    auto keys = devices.addIn.prefs.gMyDevices;
    for (const auto& operand : options.operands) {
        const auto& key = knownDevice(devices, operand).key;
        const auto isThere = [&](const std::string& one) { return basic::equalNoCase(one, key); };
        if (std::none_of(keys.begin(), keys.end(), isThere)) keys.push_back(key);
    }
    if (keys != devices.addIn.prefs.gMyDevices) saveDevices(devices, keys);
    return kGood;
}

int removeDevices(MyDevices& devices, const Options& options, Console&) {
    requireKeys(options);
    auto keys = devices.addIn.prefs.gMyDevices;
    for (const auto& operand : options.operands) {
        // an unusable device in the list can be removed
        if (!deviceWithKey(devices.rows, operand)) (void)knownDevice(devices, operand);
        std::erase_if(keys, [&](const std::string& one) { return basic::equalNoCase(one, operand); });
    }
    if (keys != devices.addIn.prefs.gMyDevices) saveDevices(devices, keys);
    return kGood;
}

// ---- set ----

int setDevice(MyDevices& devices, const Options& options, Console&) {
    if (options.operands.size() < 2) throw Refusal(kWrongUse, "devices set expects KEY NAME=VALUE...");
    const auto& row = knownDevice(devices, options.operands.front());
    changeDeviceSettings(devices.machine.registry(), row.key, row.pipe,
                         {options.operands.begin() + 1, options.operands.end()});
    return kGood;
}

struct DeviceAction {
    std::string_view name;
    int (*run)(MyDevices&, const Options&, Console&);
};

constexpr DeviceAction kDeviceActions[] = {
    {"list", listDevices}, {"add", addDevices}, {"remove", removeDevices}, {"set", setDevice}};

} // namespace

int runDevices(const Options& options, Console& console) {
    MyDevices devices{options, console};
    const auto* action = std::find_if(std::begin(kDeviceActions), std::end(kDeviceActions),
                                      [&](const DeviceAction& one) { return one.name == options.action; });
    return action == std::end(kDeviceActions) ? listDevices(devices, options, console)
                                              : action->run(devices, options, console);
}

} // namespace cli
