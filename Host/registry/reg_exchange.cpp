#include "Host/registry/reg_exchange.h"
#include "Basic/runtime_error.h"
#include "Host/files/system_error.h"
#include "Host/registry/reg_status.h"
#include <algorithm>
#include <fmt/format.h>

namespace host {
namespace {

int errorOfStatus(RegStatus status) {
    switch (status) {
    case RegStatus::NotFound: return basic::kFileNotFound;
    case RegStatus::AccessDenied: return basic::kPermissionDenied;
    case RegStatus::InvalidParameter:
    case RegStatus::BadPathname: return basic::kInvalidProcedureCall;
    case RegStatus::DiskFull: return basic::kDiskFull;
    default: return basic::kDeviceIOError;
    }
}

template <class F>
auto withKeyNamed(const std::string& what, F&& action) {
    try {
        return action();
    } catch (const RegFailure& failure) {
        throw hostError(errorOfStatus(failure.status), fmt::format("{}: {}", what, describe(failure.status)));
    }
}

struct PlacedInstruction {
    const RegInstruction* instruction;
    RegPlace place;
    std::string where;
};

std::vector<PlacedInstruction> placeInstructions(const std::vector<RegInstruction>& instructions,
                                                 const std::string& fileName) {
    std::vector<PlacedInstruction> placed;
    for (const auto& one : instructions) {
        const auto where = fmt::format("{}:{}: {}", fileName, one.line, one.key);
        auto place = withKeyNamed(where, [&] { return placeOfRegKey(one.key); });
        if (!place) throw hostError(basic::kInvalidProcedureCall, where + ": there is no such root key");
        placed.push_back({&one, std::move(*place), where});
    }
    return placed;
}

void importInto(RegistryStore& store, RegHiveId id, const std::vector<PlacedInstruction>& placed) {
    const auto isOurs = [id](const PlacedInstruction& one) { return one.place.hive == id; };
    const auto first = std::find_if(placed.begin(), placed.end(), isOurs);
    if (first == placed.end()) return;
    auto& hive = store.hive(id);
    withKeyNamed(first->where, [&] {
        hive.atomically([&] {
            for (const auto& one : placed)
                if (isOurs(one))
                    withKeyNamed(one.where, [&] { applyRegInstruction(hive, one.place.key, *one.instruction); });
        });
    });
}

void exportTree(RegistryHive& hive, const KeyPath& key, const std::string& name, std::vector<RegInstruction>& into) {
    into.push_back({RegInstruction::Kind::MakeKey, name, {}, {}, 0});
    for (auto& one : hive.values(key))
        into.push_back({RegInstruction::Kind::SetValue, name, std::move(one.name), std::move(one.value), 0});
    for (const auto& subkey : hive.subkeys(key)) exportTree(hive, key / subkey, name + '\\' + subkey, into);
}

} // namespace

void importRegistry(RegistryStore& into, const std::vector<RegInstruction>& instructions, const std::string& fileName) {
    const auto placed = placeInstructions(instructions, fileName);
    importInto(into, RegHiveId::Machine, placed);
    importInto(into, RegHiveId::User, placed);
}

std::vector<RegInstruction> exportRegistry(RegistryStore& from, const std::string& wholePath) {
    return withKeyNamed(wholePath, [&] {
        const auto place = placeOfRegKey(wholePath);
        if (!place) throw hostError(basic::kInvalidProcedureCall, wholePath + ": there is no such root key");
        auto& hive = from.hive(place->hive);
        if (!hive.hasKey(place->key)) throw RegFailure{RegStatus::NotFound};
        std::vector<RegInstruction> instructions;
        exportTree(hive, place->key, withLongRootName(wholePath), instructions);
        return instructions;
    });
}

} // namespace host
