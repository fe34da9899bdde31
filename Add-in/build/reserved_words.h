#pragma once
#include <string>

namespace fernwick {

/// Whether forms and controls may not have this name, letter case aside: a word of the language, and each single word
/// of those that are two.
bool IsReservedWord(const std::string& word);

} // namespace fernwick
