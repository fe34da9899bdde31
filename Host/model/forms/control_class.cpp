#include "Host/model/forms/control_class.h"
#include "Basic/case_folding.h"
#include "Host/files/text_parts.h"
#include "Host/model/forms/control_class_table.h"

namespace host {
namespace {

/// A row is "Name kind fallback words", with "|" between the words.
ClassProperty propertyOfRow(std::string_view row) {
    ClassProperty property;
    property.name = takeField(row, ' ');
    property.kind = static_cast<PropertyKind>(takeField(row, ' ').front());
    property.fallback = takeField(row, ' ');
    while (!row.empty()) property.words.emplace_back(takeField(row, '|'));
    return property;
}

void addClassRows(ControlClass& target, std::string_view rows) {
    while (!rows.empty())
        if (const auto row = takeField(rows, '\n'); !row.empty()) target.properties.push_back(propertyOfRow(row));
}

} // namespace

std::vector<PropertyChoice> ClassProperty::choices() const {
    auto all = named;
    for (std::size_t i = 0; i < words.size(); ++i)
        if (!words[i].empty()) all.push_back({long(i), words[i]});
    return all;
}

const ClassProperty* ControlClass::find(std::string_view name) const {
    for (const auto& property : properties)
        if (basic::equalNoCase(property.name, name)) return &property;
    return nullptr;
}

std::string_view ControlClass::word(const ClassProperty& property, long value) {
    const auto index = static_cast<std::size_t>(value);
    return value >= 0 && index < property.words.size() ? std::string_view(property.words[index]) : std::string_view();
}

std::shared_ptr<const ControlClass> builtInClass(std::string_view className) {
    auto made = std::make_shared<ControlClass>();
    const auto* rows = &kOtherClassRows;
    for (const auto& entry : kClassRows)
        if (basic::equalNoCase(entry.className, className)) rows = &entry.rows;
    for (const auto part : *rows) addClassRows(*made, part);
    made->events = languageEvents(className);
    return made;
}

} // namespace host
