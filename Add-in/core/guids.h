#pragma once
// GUID texts, which may lack braces.
#include "Basic/guid.h"
#include <string>

namespace fernwick {

/// Whether the text is a GUID with or without braces; `hadBraces` is set accordingly.
bool IsGuidText(const std::string& text, bool& hadBraces);
/// Adds missing braces to a GUID. Returns False and leaves the text unchanged if it is not a GUID.
bool NormaliseGuidText(std::string& text);

/// Returns a new GUID in upper case without braces; "{Error}" if the system cannot create one.
std::string CreateGUID(basic::GUID (*create)() = basic::newGuid);

} // namespace fernwick
