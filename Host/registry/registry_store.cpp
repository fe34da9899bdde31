#include "Host/registry/registry_store.h"
#include "Host/registry/reg_status.h"
#include "Host/registry/utf16.h"
#include <algorithm>
#include <new>

namespace host {
namespace {

constexpr std::uint32_t kEnumerateSubKeys = 8;
/// Set value, create subkey, create link, delete, write DAC, write owner, generic write and generic all.
constexpr std::uint32_t kRightsToWrite = 2 | 4 | 0x20 | 0x10000 | 0x40000 | 0x80000 | 0x40000000 | 0x10000000;
constexpr std::uint32_t kCreatedNewKey = 1, kOpenedExistingKey = 2;

template <class F>
std::int32_t statusOf(F&& function) {
    try {
        function();
        return 0;
    } catch (const RegFailure& failure) {
        return static_cast<std::int32_t>(failure.status);
    } catch (const std::bad_alloc&) { return static_cast<std::int32_t>(RegStatus::OutOfMemory); }
}

template <class List, class Size>
std::uint32_t longestIn(const List& list, Size size) {
    std::size_t longest = 0;
    for (const auto& one : list) longest = std::max(longest, size(one));
    return static_cast<std::uint32_t>(longest);
}

} // namespace

RegistryStore::RegistryStore(RegistryPlaces places)
    : places_(std::move(places)),
      user_(places_.user / "user.sqlite", [] { return nullptr; }),
      machine_(places_.machine / "machine.sqlite", [this] {
          auto* values = installed();
          return values ? &values->machine : nullptr;
      }) {}

InstalledValues* RegistryStore::installed() {
    if (places_.installation.empty()) return nullptr;
    if (!installed_) installed_ = readInstalledValues(places_.installation);
    return &*installed_;
}

std::vector<std::string> RegistryStore::installationProblems() {
    const auto* values = installed();
    return values ? values->problems : std::vector<std::string>{};
}

OpenRegKey& RegistryStore::existing(std::uint32_t key, std::uint32_t access) {
    auto& found = open_.at(key, access);
    requireReg(RegistryHandles::isRoot(key) || hiveOf(found).hasKey(found.place.key), RegStatus::KeyDeleted);
    return found;
}

void RegistryStore::write(RegistryHive& to, const std::function<void()>& writes) {
    open_.endEnumerations();
    to.atomically(writes);
}

std::int32_t RegistryStore::RegOpenKeyEx(std::uint32_t key, const std::string& subKey, std::uint32_t access,
                                         std::uint32_t& result) {
    result = 0;
    return statusOf([&] {
        const auto& parent = open_.at(key);
        auto place = parent.place;
        place.key = place.key / subKey;
        const bool isRoot = RegistryHandles::isRoot(key) && subKey.empty();
        requireReg(isRoot || hiveOf(parent).hasKey(place.key), RegStatus::NotFound);
        requireReg(!(access & kRightsToWrite) || hiveOf(parent).isWritable(), RegStatus::AccessDenied);
        result = open_.add(std::move(place), access);
    });
}

std::int32_t RegistryStore::RegCreateKeyEx(std::uint32_t key, const std::string& subKey, std::uint32_t access,
                                           std::uint32_t& result, std::uint32_t& disposition) {
    result = disposition = 0;
    return statusOf([&] {
        const auto& parent = open_.at(key);
        auto place = parent.place;
        place.key = place.key / subKey;
        auto& store = hiveOf(parent);
        bool made = !store.hasKey(place.key);
        requireReg(!(made || access & kRightsToWrite) || store.isWritable(), RegStatus::AccessDenied);
        if (made) write(store, [&] { made = store.createKey(place.key); });
        disposition = made ? kCreatedNewKey : kOpenedExistingKey;
        result = open_.add(std::move(place), access);
    });
}

std::int32_t RegistryStore::RegCloseKey(std::uint32_t key) {
    return statusOf([&] { open_.close(key); });
}

std::int32_t RegistryStore::RegQueryInfoKey(std::uint32_t key, fernwick::RegistryKeyInfo& info) {
    return statusOf([&] {
        auto& of = existing(key, fernwick::KEY_QUERY_VALUE);
        of.subkeys = hiveOf(of).subkeys(of.place.key);
        of.values = hiveOf(of).values(of.place.key);
        info.subKeys = static_cast<std::uint32_t>(of.subkeys->size());
        info.longestSubKeyName = longestIn(*of.subkeys, [](const std::string& name) { return name.size(); });
        info.values = static_cast<std::uint32_t>(of.values->size());
        info.longestValueName = longestIn(*of.values, [](const NamedRegValue& v) { return v.name.size(); });
        info.longestValueData = longestIn(*of.values, [](const NamedRegValue& v) { return v.value.data.size(); });
    });
}

std::int32_t RegistryStore::RegEnumKeyEx(std::uint32_t key, std::uint32_t index, std::string& name) {
    return statusOf([&] {
        auto& of = existing(key, kEnumerateSubKeys);
        if (index == 0 || !of.subkeys) of.subkeys = hiveOf(of).subkeys(of.place.key);
        requireReg(index < of.subkeys->size(), RegStatus::NoMoreItems);
        name = (*of.subkeys)[index];
    });
}

std::int32_t RegistryStore::RegEnumValue(std::uint32_t key, std::uint32_t index, std::string& name, std::uint32_t& type,
                                         std::string& data) {
    return statusOf([&] {
        auto& of = existing(key, fernwick::KEY_QUERY_VALUE);
        if (index == 0 || !of.values) of.values = hiveOf(of).values(of.place.key);
        requireReg(index < of.values->size(), RegStatus::NoMoreItems);
        const auto& found = (*of.values)[index];
        name = found.name;
        type = found.value.type;
        data = found.value.data;
    });
}

std::int32_t RegistryStore::RegQueryValueEx(std::uint32_t key, const std::string& name, std::uint32_t& type,
                                            std::string& data, std::uint32_t& length) {
    return statusOf([&] {
        auto& of = existing(key, fernwick::KEY_QUERY_VALUE);
        const auto found = hiveOf(of).value(of.place.key, name);
        requireReg(found.has_value(), RegStatus::NotFound);
        type = found->type;
        length = static_cast<std::uint32_t>(found->data.size());
        requireReg(found->data.size() <= data.size(), RegStatus::MoreData);
        data.replace(0, found->data.size(), found->data);
    });
}

std::int32_t RegistryStore::RegSetValueEx(std::uint32_t key, const std::string& name, std::uint32_t type,
                                          const std::string& data) {
    return statusOf([&] {
        const auto& of = existing(key, fernwick::KEY_SET_VALUE);
        requireValueName(name);
        requireReg(!isRegText(type) || validUtf8Length(data) == data.size(), RegStatus::InvalidParameter);
        write(hiveOf(of), [&] { hiveOf(of).setValue(of.place.key, name, {type, data}); });
    });
}

std::int32_t RegistryStore::RegDeleteValue(std::uint32_t key, const std::string& name) {
    return statusOf([&] {
        const auto& of = existing(key, fernwick::KEY_SET_VALUE);
        auto& store = hiveOf(of);
        requireReg(store.value(of.place.key, name).has_value(), RegStatus::NotFound);
        write(store, [&] { store.deleteValue(of.place.key, name); });
    });
}

std::int32_t RegistryStore::RegDeleteKey(std::uint32_t key, const std::string& subKey) {
    return statusOf([&] {
        const auto& parent = open_.at(key);
        auto& store = hiveOf(parent);
        const auto path = parent.place.key / subKey;
        requireReg(store.hasKey(path), RegStatus::NotFound);
        requireReg(!RegistryHandles::isRoot(key) || !subKey.empty(), RegStatus::AccessDenied);
        write(store, [&] { deleteRegTree(store, path); });
    });
}

} // namespace host
