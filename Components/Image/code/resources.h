#pragma once
// Texts and data that an application carries besides its code.
#include <string>
#include <string_view>
#include <vector>

namespace image {

/// Type and name are UTF-8 in capitals; a number is written as "#10".
struct Resource {
    std::string type, name;
    std::string data;
    friend bool operator==(const Resource&, const Resource&) = default;
};

/// The order of resources in an image: by type, then by name.
[[nodiscard]] bool isBefore(const Resource& a, const Resource& b);
/// Whether each resource is before the next one, so that no two have the same type and name.
[[nodiscard]] bool areInOrder(const std::vector<Resource>& resources);

/// Null if there is none.
[[nodiscard]] const Resource* findResource(const std::vector<Resource>& resources, std::string_view type,
                                           std::string_view name);

} // namespace image
