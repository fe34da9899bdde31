#include "Host/model/forms/form_properties.h"
#include "Basic/case_folding.h"
#include "Host/model/forms/form_geometry.h"
#include <cmath>

namespace host {
namespace {

constexpr const char* kStartUpPosition = "StartUpPosition";
constexpr std::int32_t kManual = 0;

} // namespace

vbide::Variant FormProperties::value(const std::string& name) const {
    if (!FormGeometry::owns(name)) return BlockProperties::value(name);
    const auto number = FormGeometry(*live()).value(name);
    return basic::equalNoCase(name, "ScaleMode") ? vbide::Variant(std::int32_t(number)) : vbide::Variant(number);
}

void FormProperties::value(const std::string& name, const vbide::Variant& value) {
    if (!FormGeometry::owns(name)) return BlockProperties::value(name, value);
    const auto state = live();
    FormGeometry geometry(*state);
    const auto before = geometry.value(name);
    const bool whole = basic::equalNoCase(name, "ScaleMode");
    geometry.value(name, whole ? fernwick::asLong(value) : fernwick::asDouble(value));
    const bool isPlace = basic::equalNoCase(name, "Left") || basic::equalNoCase(name, "Top");
    if (isPlace && geometry.value(name) != before) placeManually();
}

/// A form that is placed by its position no longer starts at a position of its own choice.
void FormProperties::placeManually() {
    if (!spelling(kStartUpPosition).empty()) BlockProperties::value(kStartUpPosition, kManual);
}

bool FormProperties::isShown(std::string_view key) const { return !FormGeometry::isClientLine(key); }

} // namespace host
