#pragma once
// Names without regard to letter case: keys and sections of project files, names of components and files.
#include <string>
#include <string_view>

namespace host {

/// Equal up to the letter case of A to Z: for the format's own key words.
bool equalAsciiFolded(std::string_view a, std::string_view b) noexcept;

/// UTF-8 text with simple case folding, for use as a key. Bytes that are no UTF-8 stay distinct.
std::string foldCase(std::string_view text);

/// `text` without blanks and tabs at both ends.
std::string_view trimBlanks(std::string_view text) noexcept;

} // namespace host
