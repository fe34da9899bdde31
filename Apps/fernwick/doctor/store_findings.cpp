// The registry stores of the user and of the machine.
#include "Apps/fernwick/doctor/findings.h"
#include "Host/registry/reg_status.h"
#include <fmt/format.h>

namespace cli {

namespace {

struct Store {
    const char* subject;
    host::RegHiveId id;
    std::string file;
};

/// Returns why the store cannot be read; "" if it can.
std::string unreadable(host::RegistryHive& hive) {
    try {
        (void)hive.subkeys(host::KeyPath{});
        return {};
    } catch (const host::RegFailure& failure) { return host::describe(failure.status); }
}

bool canBeWritten(host::RegistryHive& hive) {
    try {
        return hive.isWritable();
    } catch (const host::RegFailure&) { return false; }
}

/// Only a warning for the machine's store: many users have no write access and need none.
Finding readOnlyStore(const Store& store) {
    if (store.id == host::RegHiveId::Machine)
        return warningFinding(store.subject, fmt::format("{} is read-only", store.file),
                              "Give your group write access to it and its folder, or set FERNWICK_MACHINE_STORE.");
    return troubleFinding(store.subject, fmt::format("{} is read-only", store.file),
                          "Give yourself write access to it and its folder, or set XDG_CONFIG_HOME.");
}

Finding examineStore(const Store& store, host::RegistryHive& hive) {
    if (const auto reason = unreadable(hive); !reason.empty())
        return troubleFinding(store.subject, fmt::format("{} cannot be read: {}", store.file, reason),
                              "Restore a copy of the file, or move it away: a new one is created when needed.");
    return canBeWritten(hive) ? goodFinding(store.subject, store.file) : readOnlyStore(store);
}

} // namespace

void examineStores(Machine& machine, Findings& to) {
    const auto places = host::usualRegistryPlaces(machine.platform().environment, machine.installation());
    for (const auto& store : {Store{"user's store", host::RegHiveId::User, places.user / "user.sqlite"},
                              Store{"machine's store", host::RegHiveId::Machine, places.machine / "machine.sqlite"}})
        to.push_back(examineStore(store, machine.registry().hive(store.id)));
}

} // namespace cli
