#include "Host/model/forms/described_classes.h"
#include "Basic/case_folding.h"
#include "Host/model/forms/property_text.h"
#include <algorithm>
#include <set>

namespace host {
namespace {

/// The kind that a control's property bag writes: colours and enumerations are written as plain numbers.
PropertyKind kindOfType(const std::string& type) {
    if (type == "Boolean") return PropertyKind::Boolean;
    if (type == "String") return PropertyKind::Text;
    if (type == "Single") return PropertyKind::Single;
    if (type == "Picture") return PropertyKind::Picture;
    if (type == "Date" || type == "Variant" || type == "Object") return PropertyKind::Unknown;
    return PropertyKind::Integer;
}

std::vector<PropertyChoice> valuesOfType(const TypeDescription& library, const std::string& type) {
    std::vector<PropertyChoice> choices;
    for (const auto& enumeration : library.enumerations)
        if (enumeration.name == type)
            for (const auto& value : enumeration.values) choices.push_back({value.value, value.name});
    return choices;
}

ClassProperty describedProperty(const TypeDescription& library, const TypeMember& member) {
    ClassProperty property;
    property.name = member.name;
    property.kind = kindOfType(member.type);
    property.named = valuesOfType(library, member.type);
    property.isColour = member.type == "OLE_COLOR";
    property.help = member.help;
    if (member.defaultValue != fernwick::Variant{})
        property.fallback = literalOfValue(property, member.defaultValue, {}).literal;
    return property;
}

ClassEvent describedEvent(const TypeMember& member) {
    ClassEvent event{member.name, ""};
    for (const auto& parameter : member.parameters)
        event.parameters += (event.parameters.empty() ? "" : ", ") + std::string(parameter.byRef ? "" : "ByVal ") +
                            parameter.name + " As " + parameter.type;
    return event;
}

/// The properties and events of a class that forms can contain. Index is a property of the form, not the control; -1 means none.
std::shared_ptr<const ControlClass> describedClass(const TypeDescription& library, const TypeClass& described) {
    auto made = std::make_shared<ControlClass>();
    made->width = described.width;
    made->height = described.height;
    made->properties.push_back({"Index", PropertyKind::Integer, "-1", {}});
    for (const auto& member : described.properties)
        if (member.design && !member.readOnly && member.parameters.empty())
            made->properties.push_back(describedProperty(library, member));
    for (const auto& member : described.events) made->events.push_back(describedEvent(member));
    std::sort(made->events.begin(), made->events.end(), [](const auto& a, const auto& b) { return a.name < b.name; });
    return made;
}

} // namespace

void DescribedClasses::add(const TypeDescription& library) {
    for (const auto& described : library.classes) {
        const Described entry{library.name + "Ctl." + described.name, describedClass(library, described)};
        classes_.emplace(basic::foldCase(entry.className), entry);
        classes_.emplace(basic::foldCase(described.progId), entry);
    }
}

std::shared_ptr<const ControlClass> DescribedClasses::find(const std::string& className) const {
    const auto found = classes_.find(basic::foldCase(className));
    return found == classes_.end() ? nullptr : found->second.properties;
}

std::string DescribedClasses::classOfProgId(const std::string& progId) const {
    const auto found = classes_.find(basic::foldCase(progId));
    return found == classes_.end() ? progId : found->second.className;
}

std::vector<std::string> DescribedClasses::classNames() const {
    std::set<std::string> names;
    for (const auto& [key, described] : classes_) names.insert(described.className);
    return {names.begin(), names.end()};
}

} // namespace host
