#pragma once
// GUID texts that may lack their braces.
#include <string>

namespace fernwick {

/// Whether the text is a GUID, with or without braces; tells which.
bool IsGuidText(const std::string& text, bool& hadBraces);
/// Adds braces to a GUID that has none. False, and the text as it was, for what is no GUID.
bool NormaliseGuidText(std::string& text);

/// A new GUID in capital letters, without braces; "{Error}" where the system has none to give.
std::string CreateGUID();

} // namespace fernwick
