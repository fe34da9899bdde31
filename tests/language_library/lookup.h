#pragma once
// Finds groups and members of a library by name.
#include "Components/Language/library.h"
#include <algorithm>
#include <string_view>

namespace lookup {

inline const language::Group* group(const language::Library& library, std::string_view name) {
    const auto found =
        std::find_if(library.groups.begin(), library.groups.end(), [&](const auto& g) { return g.name == name; });
    return found == library.groups.end() ? nullptr : &*found;
}

inline const language::Member* member(const language::Group& group, std::string_view name) {
    const auto found =
        std::find_if(group.members.begin(), group.members.end(), [&](const auto& m) { return m.name == name; });
    return found == group.members.end() ? nullptr : &*found;
}

/// The first member of that name in any module or class.
inline const language::Member* anyMember(const language::Library& library, std::string_view name) {
    for (const auto& each : library.groups)
        if (const auto* found = member(each, name)) return found;
    return nullptr;
}

} // namespace lookup
