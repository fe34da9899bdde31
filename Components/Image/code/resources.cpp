#include "Components/Image/code/resources.h"
#include <algorithm>
#include <tuple>

namespace image {

namespace {

std::tuple<std::string_view, std::string_view> keyOf(const Resource& resource) {
    return {resource.type, resource.name};
}

} // namespace

bool isBefore(const Resource& a, const Resource& b) { return keyOf(a) < keyOf(b); }

bool areInOrder(const std::vector<Resource>& resources) {
    const auto wrong = std::adjacent_find(resources.begin(), resources.end(),
                                          [](const Resource& a, const Resource& b) { return !isBefore(a, b); });
    return wrong == resources.end();
}

const Resource* findResource(const std::vector<Resource>& resources, std::string_view type, std::string_view name) {
    const std::tuple wanted{type, name};
    const auto found = std::lower_bound(resources.begin(), resources.end(), wanted,
                                        [](const Resource& each, const auto& key) { return keyOf(each) < key; });
    return found != resources.end() && keyOf(*found) == wanted ? &*found : nullptr;
}

} // namespace image
