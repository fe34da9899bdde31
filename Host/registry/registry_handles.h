#pragma once
// The open keys of a registry store.
#include "Host/registry/reg_roots.h"
#include "Host/registry/registry_database.h"
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace host {

struct OpenRegKey {
    RegPlace place;
    std::uint32_t access = 0;
    /// What an enumeration returns: the state at its first index, until the next write of this process.
    std::optional<std::vector<std::string>> subkeys;
    std::optional<std::vector<NamedRegValue>> values;
};

/// Keys by handle. The root keys are always open.
class RegistryHandles {
public:
    RegistryHandles();

    static bool isRoot(std::uint32_t key);

    /// RegFailure InvalidHandle for a handle that is not open.
    OpenRegKey& at(std::uint32_t key);
    /// RegFailure AccessDenied as well if the key was opened without these rights.
    OpenRegKey& at(std::uint32_t key, std::uint32_t access);
    std::uint32_t add(RegPlace place, std::uint32_t access);
    /// Root keys stay open.
    void close(std::uint32_t key);
    void endEnumerations();

private:
    std::map<std::uint32_t, OpenRegKey> open_;
    std::uint32_t lastHandle_ = 0;
};

} // namespace host
