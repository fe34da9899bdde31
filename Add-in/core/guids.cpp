#include "Add-in/core/guids.h"
#include "Basic/guid.h"

namespace fernwick {

bool IsGuidText(const std::string& text, bool& hadBraces) {
    hadBraces = text.starts_with('{') && text.ends_with('}');
    return basic::parseGuid(text).has_value();
}

bool NormaliseGuidText(std::string& text) {
    bool hadBraces = false;
    if (!IsGuidText(text, hadBraces)) return false;
    if (!hadBraces) text = "{" + text + "}";
    return true;
}

} // namespace fernwick
