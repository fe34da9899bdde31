#include "Host/model/forms/resource_check.h"
#include "Basic/case_folding.h"
#include "Host/files/property_value.h"
#include <fmt/core.h>

namespace host {
namespace {

/// The problem with the record of a property, "" for none. Records with a layout specific to the control are only
/// checked for their position.
std::string recordWarning(const ResourceFile& file, const ClassProperty* property, std::string_view key,
                          const ResourceReference& reference) {
    const auto offset = reference.offset;
    if (reference.isString) return file.string(offset).warning;
    if (basic::equalNoCase(key, "List")) return file.list(offset).warning;
    if (basic::equalNoCase(key, "ItemData")) return file.itemData(offset).warning;
    if (property && property->kind == PropertyKind::LongText) return file.text(offset).warning;
    if (property && property->kind == PropertyKind::Picture) return file.picture(offset).warning;
    return offset < file.bytes().size() ? "" : fmt::format("There is no data at {:04X} of the resource file.", offset);
}

} // namespace

std::vector<FormProblem> checkResources(DesignerState& state) {
    std::vector<FormProblem> warnings;
    const auto see = [&](const FormBlock& owner, std::string_view key, std::string_view literal, std::size_t line) {
        const auto value = parsePropertyValue(literal);
        if (value.kind != PropertyValue::Kind::Resource) return;
        const auto file = state.hooks.resources ? state.hooks.resources(value.resource.file) : nullptr;
        const bool ofObject = owner.kind() == FormBlock::Kind::Object;
        const auto* property = ofObject ? state.classOf(owner).find(key) : nullptr;
        auto text = file ? recordWarning(*file, property, key, value.resource)
                         : fmt::format("The resource file \"{}\" is missing.", value.resource.file);
        if (!text.empty()) warnings.push_back({line, std::move(text)});
    };
    auto line = state.file->rootLine();
    state.root().eachPropertyWithin(see, line);
    return warnings;
}

} // namespace host
