#pragma once
// The registry functions, over the stores of the user and the machine.
#include "Add-in/platform/registry.h"
#include "Host/registry/installed_values.h"
#include "Host/registry/registry_handles.h"
#include "Host/registry/registry_hive.h"
#include "Host/registry/registry_places.h"
#include <functional>
#include <optional>

namespace host {

/// Opens the stores when first needed and creates their files at the first write. Returns the statuses of RegStatus. A
/// key of a store that is not writable can only be opened for reading.
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

    /// Returns a store for import and export. Its failures are RegFailures.
    RegistryHive& hive(RegHiveId id) { return id == RegHiveId::User ? user_ : machine_; }
    /// Reads the installation's .reg files and returns their problems, "file:line: reason".
    std::vector<std::string> installationProblems();

private:
    InstalledValues* installed();
    /// The open key. RegFailure KeyDeleted if it no longer exists.
    OpenRegKey& existing(std::uint32_t key, std::uint32_t access);
    RegistryHive& hiveOf(const OpenRegKey& key) { return hive(key.place.hive); }
    void write(RegistryHive& to, const std::function<void()>& writes);

    RegistryPlaces places_;
    std::optional<InstalledValues> installed_;
    RegistryHive user_, machine_;
    RegistryHandles open_;
};

} // namespace host
