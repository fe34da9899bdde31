#include "Host/model/forms/block_properties.h"
#include "Basic/case_folding.h"
#include "Host/files/form_line.h"
#include "Host/model/code/names.h"
#include "Host/model/errors/host_errors.h"
#include "Host/model/forms/block_objects.h"
#include "Host/model/forms/block_resources.h"
#include "Host/model/forms/form_controls.h"
#include "Host/model/forms/property_text.h"
#include <fmt/format.h>
#include <unordered_set>
#include <utility>

namespace host {
namespace {

constexpr std::string_view kNameProperty = "Name", kIndex = "Index";
constexpr std::int32_t kNoIndex = -1;

} // namespace

BlockProperties::BlockProperties(std::weak_ptr<DesignerState> state, std::shared_ptr<FormBlock> block)
    : state_(std::move(state)), block_(std::move(block)) {}

std::shared_ptr<DesignerState> BlockProperties::live() const { return liveDesigner(state_, *block_); }

bool BlockProperties::isShown(std::string_view) const { return true; }

std::vector<std::string> BlockProperties::names() const {
    const auto state = live();
    std::vector<std::string> out{std::string(kNameProperty)};
    std::unordered_set<std::string> seen{basic::foldCase(kNameProperty)};
    const auto add = [&](std::string_view name) {
        if (isShown(name) && seen.insert(basic::foldCase(name)).second) out.emplace_back(name);
    };
    for (const auto& property : state->classOf(*block_).properties) add(property.name);
    block_->eachProperty([&](std::string_view key, std::string_view) { add(key); });
    return out;
}

std::string BlockProperties::spelling(const std::string& name) const {
    const auto state = live();
    if (!isShown(name)) return {};
    if (basic::equalNoCase(name, kNameProperty)) return std::string(kNameProperty);
    if (const auto* property = state->classOf(*block_).find(name)) return property->name;
    return block_->literal(name) || block_->properties(name) ? name : "";
}

ClassProperty BlockProperties::describe(DesignerState& state, const std::string& name) const {
    const auto* known = state.classOf(*block_).find(name);
    ClassProperty property;
    property.name = name;
    if (known) property = *known;
    if (!known && block_->properties(name) && block_->properties(name)->literal("Weight"))
        property.kind = PropertyKind::Font;
    return property;
}

vbide::Variant BlockProperties::value(const std::string& name) const {
    const auto state = live();
    if (name == kNameProperty) return std::string(block_->name());
    const auto property = describe(*state, name);
    if (property.kind == PropertyKind::Font) return object(name)->Item("Name")->Value();
    if (property.kind == PropertyKind::Picture) return object(name)->Item("Handle")->Value();
    return plainValue(*state, property);
}

vbide::Variant BlockProperties::plainValue(DesignerState& state, const ClassProperty& property) const {
    const auto literal = parsePropertyValue(block_->literal(property.name).value_or(property.fallback));
    const bool isText = property.kind == PropertyKind::Text || property.kind == PropertyKind::LongText ||
                        (property.kind == PropertyKind::Unknown && literal.resource.isString);
    if (isText && literal.kind == PropertyValue::Kind::Resource) return resourceText(state, property, literal.resource);
    return valueOfLiteral(property, literal, block_->comment(property.name));
}

void BlockProperties::value(const std::string& name, const vbide::Variant& value) {
    const auto state = live();
    if (name == kNameProperty) return rename(*state, fernwick::asText(value));
    const auto property = describe(*state, name);
    if (property.kind == PropertyKind::Font) return object(name)->Item("Name")->Value(value);
    if (property.kind == PropertyKind::Picture) throw hostError(basic::kPropertyOrMethodNotSupported);
    plainValue(*state, property, value);
}

void BlockProperties::plainValue(DesignerState& state, const ClassProperty& property, const vbide::Variant& value) {
    const auto now = plainValue(state, property);
    if (value == now) return;
    const auto before = parsePropertyValue(block_->literal(property.name).value_or(property.fallback));
    const auto stored = textInResources(state, *block_, property, value);
    const auto written = stored ? *stored : literalOfValue(property, value, before);
    const auto wanted = parsePropertyValue(written.literal);
    if (valueOfLiteral(property, wanted, written.comment) == now) return;
    const bool isDefault = !property.fallback.empty() &&
                           valueOfLiteral(property, wanted, written.comment) ==
                               valueOfLiteral(property, parsePropertyValue(property.fallback), written.comment);
    const bool hasNoLine = written.literal.empty() || (property.name == kIndex && fernwick::asLong(value) == kNoIndex);
    if (hasNoLine || (isDefault && block_->wasAdded(property.name))) return state.remove(*block_, property.name);
    state.set(*block_, property.name, written.literal, written.comment);
}

basic::Ref<vbide::Properties> BlockProperties::object(const std::string& name) const {
    const auto state = live();
    const auto property = describe(*state, name);
    if (property.kind == PropertyKind::Font) return fontOf(state_, block_, name);
    if (property.kind == PropertyKind::Picture) return pictureOf(state_, block_, name);
    if (const auto group = block_->properties(name)) return groupOf(state_, block_, group);
    return nullptr;
}

ClassProperty BlockProperties::details(const std::string& name) const {
    auto property = describe(*live(), name);
    if (name == kNameProperty) property.kind = PropertyKind::Text;
    return property;
}

std::string BlockProperties::picture(const std::string& name) const {
    const auto state = live();
    const auto literal = parsePropertyValue(block_->literal(name).value_or(""));
    if (literal.kind != PropertyValue::Kind::Resource || !state->hooks.resources) return {};
    const auto file = state->hooks.resources(literal.resource.file);
    return file ? std::string(file->picture(literal.resource.offset).value) : std::string();
}

std::vector<std::string> BlockProperties::list(const std::string& name) const { return listOf(*live(), *block_, name); }

void BlockProperties::picture(const std::string& name, const std::string& image) {
    const auto state = live();
    if (describe(*state, name).kind != PropertyKind::Picture) throw hostError(basic::kPropertyOrMethodNotSupported);
    if (image.empty() || image != std::as_const(*this).picture(name)) setPicture(*state, *block_, name, image);
}

void BlockProperties::list(const std::string& name, const std::vector<std::string>& items) {
    const auto state = live();
    if (!isList(name) || !isBuiltInControl(*block_)) throw hostError(basic::kPropertyOrMethodNotSupported);
    if (items != std::as_const(*this).list(name)) setList(*state, *block_, name, items);
}

/// Members of a control array share their name and have different indexes.
void BlockProperties::checkNameIsFree(DesignerState& state, const std::string& newName) const {
    const auto indexOf = [](const FormBlock& block) { return block.literal("Index"); };
    bool taken = block_.get() != &state.root() && basic::equalNoCase(newName, state.root().name());
    for (const auto& control : state.controls()) {
        const auto& other = *static_cast<const ControlModel&>(*control).block();
        if (&other == block_.get() || !basic::equalNoCase(other.name(), newName)) continue;
        taken = taken || !indexOf(other) || !indexOf(*block_) || indexOf(other) == indexOf(*block_);
    }
    if (taken) throw hostError(basic::kInvalidPropertyValue, fmt::format("The name '{}' is already in use", newName));
}

void BlockProperties::rename(DesignerState& state, const std::string& newName) {
    const std::string oldName(block_->name());
    if (newName == oldName) return;
    if (!isLegalName(newName)) throwIllegalName(newName);
    checkNameIsFree(state, newName);
    if (block_.get() == &state.root() && state.hooks.renameForm) return state.hooks.renameForm(newName);
    state.checkText(newName);
    const auto index = fernwick::asLong(plainValue(state, describe(state, "Index")));
    block_->name(newName);
    state.controlsChanged();
    state.raiseChanged();
    const auto control = state.controlOf(*block_);
    if (control && state.hooks.controlRenamed) state.hooks.controlRenamed(control, oldName, index);
}

} // namespace host
