#pragma once
// Names that the validator refuses.
#include <string>

namespace fernwick {

/// Returns whether a form or control must not have this name, regardless of case, because it is a word of the language.
bool IsReservedWord(const std::string& word);

} // namespace fernwick
