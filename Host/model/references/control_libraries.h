#pragma once
// The control libraries that came with Visual Basic. They are not registered here, so projects know only their GUIDs.
#include <string_view>
#include <vector>

namespace host {

struct ControlLibrary {
    std::string_view guid;
    std::string_view name; ///< the prefix of its classes in forms: "MSComctlLib"
    std::vector<std::string_view> classes;
};

/// Returns null for any other library. `guid` is in upper case and braces.
const ControlLibrary* controlLibraryOf(std::string_view guid);

} // namespace host
