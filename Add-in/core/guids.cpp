#include "Add-in/core/guids.h"
#include "Basic/runtime_error.h"

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

std::string CreateGUID(basic::GUID (*create)()) try {
    const auto text = basic::guidText(create());
    return text.substr(1, text.size() - 2);
} catch (const basic::RuntimeError&) { return "{Error}"; }

} // namespace fernwick
