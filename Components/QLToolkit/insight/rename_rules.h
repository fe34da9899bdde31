#pragma once
// Which names can be renamed, and which names they can get.
#include "Components/QLToolkit/insight/references.h"

namespace qltoolkit {

/// Returns a text with its placeholders %1, %2 and so on replaced.
[[nodiscard]] std::string filled(std::string_view text, const std::vector<std::string>& parts);

/// Returns a name, and "Form1.frm" and "12", the line in the code window, for placeholders.
[[nodiscard]] std::vector<std::string> placeParts(const std::string& name, const ProgramInput& input,
                                                  const References& found, const NamePlace& place);

/// Returns why the name cannot be renamed whatever its new name is, as a sentence; "" if it can. The references know the
/// parts of the name.
[[nodiscard]] std::string refusalToRename(const ProgramInput& input, const References& found);

/// Returns why no name can be spelled like this, as a sentence; "" for a name.
[[nodiscard]] std::string refusalOfSpelling(std::string_view name);

/// Whether a project begins with a procedure of this name.
[[nodiscard]] bool mayBeStart(const NameMeaning& meaning, std::string_view name);

/// What precedes and follows each underscore of a name: the objects, interfaces, events and members that it may refer to.
[[nodiscard]] std::vector<std::string> partsOfName(std::string_view name);

} // namespace qltoolkit
