#include "Components/Tamarik/natives/natives.h"
#include <algorithm>

namespace tamarik {

namespace {

bool takes(image::SlotType parameter, image::SlotType given) {
    if (parameter.id == kAnyId) given.id = kAnyId;
    return parameter == given;
}

} // namespace

std::vector<std::string> Natives::names() const {
    std::vector<std::string> names;
    for (const auto& [name, forms] : natives_) names.push_back(name);
    std::sort(names.begin(), names.end());
    return names;
}

std::span<const Native> Natives::find(std::string_view name) const {
    const auto found = natives_.find(name);
    return found == natives_.end() ? std::span<const Native>() : found->second;
}

const Native* Natives::find(std::string_view name, image::SlotType result,
                            std::span<const image::SlotType> parameters) const {
    const auto forms = find(name);
    const auto found = std::find_if(forms.begin(), forms.end(), [&](const Native& each) {
        return each.result == result && std::ranges::equal(each.parameters, parameters, takes);
    });
    return found == forms.end() ? nullptr : &*found;
}

} // namespace tamarik
