#pragma once
// The registry functions over the stores of the user and the machine.
#include "Add-in/platform/registry.h"
#include "Host/registry/installed_values.h"
#include "Host/registry/reg_roots.h"
#include "Host/registry/registry_hive.h"
#include "Host/registry/registry_places.h"
#include <functional>
#include <map>
#include <optional>

namespace host {

/// Opens nothing before the first function is called, and makes no file before the first write. Statuses are those of
/// RegStatus. A key whose store may not be written opens for reading only.
class RegistryStore : public fernwick::Registry {
public:
    explicit RegistryStore(RegistryPlaces places);

    std::int32_t RegOpenKeyEx(std::uint32_t key, const std::string& subKey, std::uint32_t access,
                              std::uint32_t& result) override;
    std::int32_t RegCreateKeyEx(std::uint32_t key, const std::string& subKey, std::uint32_t access,
                                std::uint32_t& result, std::uint32_t& disposition) override;
    std::int32_t RegCloseKey(std::uint32_t key) override;
    std::int32_t RegQueryInfoKey(std::uint32_t key, fernwick::RegistryKeyInfo& info) override;
    std::int32_t RegEnumKeyEx(std::uint32_t key, std::uint32_t index, std::string& name) override;
    std::int32_t RegEnumValue(std::uint32_t key, std::uint32_t index, std::string& name, std::uint32_t& type,
                              std::string& data) override;
    std::int32_t RegQueryValueEx(std::uint32_t key, const std::string& name, std::uint32_t& type, std::string& data,
                                 std::uint32_t& length) override;
    std::int32_t RegSetValueEx(std::uint32_t key, const std::string& name, std::uint32_t type,
                               const std::string& data) override;
    std::int32_t RegDeleteValue(std::uint32_t key, const std::string& name) override;
    std::int32_t RegDeleteKey(std::uint32_t key, const std::string& subKey) override;

    /// The store behind a root, for import and export. Its failures are RegFailures.
    RegistryHive& hive(RegHiveId id) { return id == RegHiveId::User ? user_ : machine_; }
    /// What was wrong with the installation's .reg files, "file:line: reason". Reads them.
    std::vector<std::string> installationProblems();

private:
    struct OpenKey {
        RegPlace place;
        std::uint32_t access = 0;
        /// What an enumeration goes through: as it was at its first index, until we write.
        std::optional<std::vector<std::string>> subkeys;
        std::optional<std::vector<NamedRegValue>> values;
    };

    InstalledValues* installed();
    OpenKey& open(std::uint32_t key);
    OpenKey& openFor(std::uint32_t key, std::uint32_t access);
    RegistryHive& hiveOf(const OpenKey& key) { return hive(key.place.hive); }
    std::uint32_t addHandle(RegPlace place, std::uint32_t access);
    void write(RegistryHive& to, const std::function<void()>& writes);

    RegistryPlaces places_;
    std::optional<InstalledValues> installed_;
    RegistryHive user_, machine_;
    std::map<std::uint32_t, OpenKey> open_;
    std::uint32_t lastHandle_ = 0;
};

} // namespace host
