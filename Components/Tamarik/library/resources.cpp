// Resources of the application.
#include "Components/Image/code/code_image.h"
#include "Components/Tamarik/library/library_function.h"
#include "Components/Tamarik/library/library_natives.h"
#include "Components/Tamarik/text/letters.h"
#include "Components/Tamarik/values/encoding.h"
#include <cstring>

namespace tamarik {

using image::BaseType;

namespace {

constexpr int kResourceNotFound = 326;
/// Texts are stored in blocks, of which number 1 has the first ones. Each text is its length and its characters.
constexpr std::string_view kTextBlocks = "#6";
constexpr std::int32_t kTextsOfBlock = 16, kMostNumber = 0xFFFF;

[[noreturn]] void notFound(const std::string& name) {
    throw basic::RuntimeError(kResourceNotFound, "Resource with identifier '" + name + "' not found");
}

std::string numbered(std::int32_t number) { return "#" + std::to_string(number); }

/// The name of a resource or type, as an image has it.
std::string identifierOf(const Variant& v) {
    return v.kind == kString ? toUtf8(UCase(unitsOf(v.text))) : numbered(longOf(v));
}

const std::vector<image::Resource>& resourcesOf(const NativeCall& call) { return call.code->resources; }

char16_t unitAt(std::string_view bytes, std::size_t at) {
    return static_cast<char16_t>(static_cast<unsigned char>(bytes[at]) | static_cast<unsigned char>(bytes[at + 1])
                                                                             << 8);
}

/// A text of a block; empty if the block has none with this place.
std::u16string textIn(std::string_view block, std::int32_t place) {
    std::u16string text;
    for (; place >= 0; --place) {
        if (block.size() < 2) return {};
        const std::size_t length = unitAt(block, 0);
        block.remove_prefix(2);
        if (block.size() < 2 * length) return {};
        text.clear();
        for (std::size_t i = 0; i < length; ++i) text += unitAt(block, 2 * i);
        block.remove_prefix(2 * length);
    }
    return text;
}

void loadString(NativeCall& call) {
    const std::int32_t number = call.arguments[0].number;
    const bool isNumber = number >= 0 && number <= kMostNumber;
    const auto* const block =
        isNumber ? image::findResource(resourcesOf(call), kTextBlocks, numbered(number / kTextsOfBlock + 1)) : nullptr;
    // A block has a length of 0 for each text that was not given.
    const std::u16string text = block ? textIn(block->data, number % kTextsOfBlock) : std::u16string();
    if (text.empty()) notFound(std::to_string(number));
    call.result[0].text = made(call.session, text);
}

const image::Resource& resourceAt(NativeCall& call, const Variant& name, const std::string& type) {
    const std::string wanted = identifierOf(name);
    const auto* const found = image::findResource(resourcesOf(call), type, wanted);
    if (!found) notFound(wanted.starts_with('#') ? wanted.substr(1) : wanted);
    return *found;
}

/// An array of Bytes, from 0 on.
void loadData(NativeCall& call) {
    const Variant& type = variantAt(call.arguments + 2);
    const image::Resource& found = resourceAt(call, variantAt(call.arguments), identifierOf(type));
    const Bounds bounds{0, static_cast<std::int32_t>(found.data.size()) - 1};
    ArrayBlock* const array = makeArray(call.session.heap, {{BaseType::Byte}}, {&bounds, 1});
    call.session.charge(found.data.size());
    if (!found.data.empty()) std::memcpy(array->data, found.data.data(), found.data.size());
    variantAt(call.result) = ofArray(array);
}

/// Pictures cannot be made yet; that there is none is reported before.
void loadPicture(NativeCall& call) {
    constexpr std::string_view kTypes[]{"#2", "#14", "#12"};
    const auto kind = static_cast<std::uint32_t>(call.arguments[2].number);
    requireArgument(kind < std::size(kTypes));
    (void)resourceAt(call, variantAt(call.arguments), std::string(kTypes[kind]));
    throw basic::RuntimeError(basic::kActionNotSupported);
}

} // namespace

void addResources(Natives& natives) {
    natives.add("LoadResString", {{BaseType::Text}, {{BaseType::Long}}, &loadString});
    natives.add("LoadResData", {{BaseType::Variant}, {{BaseType::Variant}, {BaseType::Variant}}, &loadData});
    natives.add("LoadResPicture", {{BaseType::Object}, {{BaseType::Variant}, {BaseType::Long}}, &loadPicture});
}

} // namespace tamarik
