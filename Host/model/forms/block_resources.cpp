#include "Host/model/forms/block_resources.h"
#include "Basic/case_folding.h"
#include "Host/files/property_value.h"
#include "Host/files/resource_file.h"
#include "Host/files/system_error.h"
#include <algorithm>
#include <fmt/format.h>

namespace host {
namespace {

constexpr std::string_view kOwnClasses = "VB.";
constexpr const char* kList = "List";
constexpr const char* kItemData = "ItemData";
constexpr std::size_t kLongestInLine = 128;

bool isText(const FormBlock& block, const ClassProperty& property) {
    if (property.kind == PropertyKind::Text || property.kind == PropertyKind::LongText) return true;
    if (property.kind != PropertyKind::Unknown) return false;
    const auto before = parsePropertyValue(block.literal(property.name).value_or("\"\""));
    return before.kind == PropertyValue::Kind::String || before.resource.isString;
}

bool fitsLine(const std::string& text) {
    const auto isControl = [](char c) { return static_cast<unsigned char>(c) < 0x20 && c != '\t'; };
    return text.size() <= kLongestInLine && std::none_of(text.begin(), text.end(), isControl);
}

bool isMultiLine(const FormBlock& block) {
    return parsePropertyValue(block.literal("MultiLine").value_or("0")).number != 0;
}

std::string encoded(const DesignerState& state, const std::string& text) {
    state.checkText(text);
    return state.codePage.encode(text);
}

std::vector<std::string> encodedItems(const DesignerState& state, const std::vector<std::string>& items) {
    if (items.size() > kMostListItems)
        throw hostError(basic::kInvalidPropertyValue, fmt::format("A list has at most {} items.", kMostListItems));
    std::vector<std::string> bytes;
    for (const auto& item : items) bytes.push_back(encoded(state, item));
    if (std::any_of(bytes.begin(), bytes.end(), [](const auto& item) { return item.size() > kLongestListItem; }))
        throw hostError(basic::kInvalidPropertyValue,
                        fmt::format("An item of a list has at most {} characters.", kLongestListItem));
    return bytes;
}

std::vector<std::string> numbersOf(const std::vector<std::string>& items) {
    std::vector<std::string> numbers;
    for (const auto& item : items) numbers.push_back(std::to_string(fernwick::asLong(item)));
    return numbers;
}

bool isItemData(const std::string& property) { return basic::equalNoCase(property, kItemData); }

void write(DesignerState& state, FormBlock& block, const std::string& property, const std::vector<std::string>& items) {
    const auto record = isItemData(property) ? itemDataRecord(items) : listRecord(items);
    state.set(block, property, state.addResource(record));
}

} // namespace

bool isBuiltInControl(const FormBlock& block) { return basic::startsWithNoCase(block.type(), kOwnClasses); }

std::optional<WrittenValue> textInResources(const DesignerState& state, const FormBlock& block,
                                            const ClassProperty& property, const vbide::Variant& value) {
    const auto* text = std::get_if<std::string>(&value);
    if (!text || !state.hooks.addResource || !isText(block, property) || fitsLine(*text)) return {};
    const auto bytes = encoded(state, *text);
    const bool isLines = property.kind == PropertyKind::LongText && isMultiLine(block) && bytes.size() <= kLongestText;
    const auto record = isLines ? textRecord(bytes) : stringRecord(bytes);
    return WrittenValue{state.addResource(record, !isLines), {}};
}

void setPicture(DesignerState& state, FormBlock& block, const std::string& property, const std::string& image) {
    if (image.empty()) return state.remove(block, property);
    state.set(block, property, state.addResource(pictureRecord(image, !isBuiltInControl(block))));
}

std::vector<std::string> listOf(const DesignerState& state, const FormBlock& block, const std::string& property) {
    const auto literal = parsePropertyValue(block.literal(property).value_or(""));
    if (literal.kind != PropertyValue::Kind::Resource || !state.hooks.resources) return {};
    const auto file = state.hooks.resources(literal.resource.file);
    std::vector<std::string> items;
    if (!file) return items;
    for (const auto item : file->list(literal.resource.offset).value) items.push_back(state.codePage.decode(item));
    return items;
}

void setList(DesignerState& state, FormBlock& block, const std::string& property,
             const std::vector<std::string>& items) {
    const bool ofNumbers = isItemData(property);
    auto texts = ofNumbers ? listOf(state, block, kList) : items;
    auto numbers = numbersOf(ofNumbers ? items : listOf(state, block, kItemData));
    if (ofNumbers && numbers.size() > texts.size())
        throw hostError(basic::kInvalidPropertyValue, "ItemData has one number for each item of List.");
    numbers.resize(texts.size(), "0");
    texts = encodedItems(state, texts);
    if (texts.empty()) {
        state.remove(block, kItemData);
        return state.remove(block, kList);
    }
    if (numbers != listOf(state, block, kItemData)) write(state, block, kItemData, numbers);
    if (!ofNumbers) write(state, block, kList, texts);
}

std::string recordOf(const DesignerState& state, const FormBlock& block, std::string_view property,
                     const ResourceReference& reference) {
    const auto file = state.hooks.resources ? state.hooks.resources(reference.file) : nullptr;
    if (!file) return {};
    const auto at = reference.offset;
    const auto texts = [](const std::vector<std::string_view>& items) {
        return std::vector<std::string>(items.begin(), items.end());
    };
    if (reference.isString) {
        const auto string = file->string(at);
        return string ? stringRecord(string.value) : "";
    }
    if (isList(std::string(property))) {
        const auto items = file->list(at);
        if (!items) return {};
        return isItemData(std::string(property)) ? itemDataRecord(texts(items.value)) : listRecord(texts(items.value));
    }
    if (const auto picture = file->picture(at)) return pictureRecord(picture.value, !isBuiltInControl(block));
    if (isMultiLine(block)) {
        const auto text = file->text(at);
        return text ? textRecord(text.value) : "";
    }
    const auto binary = file->binary(at);
    return binary ? stringRecord(binary.value) : ""; // the same layout
}

bool isList(const std::string& property) { return isItemData(property) || basic::equalNoCase(property, kList); }

} // namespace host
