#include "Host/model/forms/form_properties.h"
#include "Basic/case_folding.h"
#include "Host/model/forms/form_geometry.h"
#include <cmath>

namespace host {

vbide::Variant FormProperties::value(const std::string& name) const {
    if (!FormGeometry::owns(name)) return BlockProperties::value(name);
    const auto number = FormGeometry(*live()).value(name);
    return basic::equalNoCase(name, "ScaleMode") ? vbide::Variant(std::int32_t(number)) : vbide::Variant(number);
}

void FormProperties::value(const std::string& name, const vbide::Variant& value) {
    if (!FormGeometry::owns(name)) return BlockProperties::value(name, value);
    const auto state = live();
    const bool whole = basic::equalNoCase(name, "ScaleMode");
    FormGeometry(*state).value(name, whole ? fernwick::asLong(value) : fernwick::asDouble(value));
}

bool FormProperties::isShown(std::string_view key) const { return !FormGeometry::isClientLine(key); }

} // namespace host
