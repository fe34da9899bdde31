#pragma once
// Registered type libraries: what the registry tells of them.
#include "Add-in/platform/registry.h"
#include <cstdint>
#include <optional>
#include <string>

namespace host {

struct TypeLibrary {
    std::string guid; ///< in braces, upper case
    std::uint32_t major = 0, minor = 0;
    std::string path;        ///< native; "" where none is registered
    std::string description; ///< "" where none is registered
};

class TypeLibraries {
public:
    /// Without a registry nothing is registered.
    explicit TypeLibraries(fernwick::Registry* registry) : registry_(registry) {}

    /// The library of this GUID (upper case, in braces): this version, else the highest registered one.
    std::optional<TypeLibrary> find(const std::string& guid, std::uint32_t major, std::uint32_t minor) const;

    /// The library that a control's class belongs to; nothing for a class that is not registered.
    std::optional<TypeLibrary> ofProgId(const std::string& progId) const;

private:
    std::optional<std::string> text(const std::string& key) const;
    std::optional<TypeLibrary> version(const std::string& guid, const std::string& name) const;

    fernwick::Registry* registry_;
};

} // namespace host
