#pragma once
// Registered type libraries.
#include "Add-in/platform/registry.h"
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace host {

struct TypeLibrary {
    std::string guid; ///< in braces, upper case
    std::uint32_t major = 0, minor = 0;
    std::string path;        ///< native; "" if none is registered
    std::string description; ///< "" if none is registered
};

class TypeLibraries {
public:
    /// Without a registry there are no libraries.
    explicit TypeLibraries(fernwick::Registry* registry) : registry_(registry) {}

    /// Returns the library with this GUID (upper case, in braces): this version, else the highest registered one.
    std::optional<TypeLibrary> find(const std::string& guid, std::uint32_t major, std::uint32_t minor) const;

    /// Returns the highest version of each registered library, by description.
    std::vector<TypeLibrary> all() const;
    /// Returns the libraries of registered classes, whose controls can be placed on forms.
    std::vector<TypeLibrary> ofControls() const;

    /// Returns the library of a control class; nothing if the class is not registered.
    std::optional<TypeLibrary> ofProgId(const std::string& progId) const;

private:
    std::optional<std::string> text(const std::string& key) const;
    std::optional<TypeLibrary> version(const std::string& guid, const std::string& name) const;

    fernwick::Registry* registry_;
};

} // namespace host
