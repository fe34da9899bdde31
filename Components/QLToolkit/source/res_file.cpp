#include "Components/QLToolkit/source/res_file.h"
#include "Basic/runtime_error.h"
#include "Basic/text.h"
#include "Basic/utf16.h"
#include <algorithm>
#include <cstdint>
#include <string>

namespace qltoolkit {

namespace {

constexpr std::size_t kAlignment = 4;
/// Of a head behind its type and name: version of the data, flags, language, version and characteristics.
constexpr std::size_t kFixedHead = 16, kLanguageAt = 6;
constexpr std::uint16_t kNumberFollows = 0xFFFF, kAmericanEnglish = 0x409;
/// The type of the entry that each file begins with, which marks it as one of 32 bits.
constexpr std::string_view kNoType = "#0";

[[noreturn]] void damaged(const char* reason) { throw basic::RuntimeError(basic::kInvalidFileFormat, reason); }

std::uint32_t numberAt(std::string_view bytes, std::size_t at, std::size_t size) {
    if (at > bytes.size() || size > bytes.size() - at) damaged("the resource file is cut off");
    std::uint32_t number = 0;
    for (std::size_t i = size; i-- > 0;) number = number << 8 | static_cast<unsigned char>(bytes[at + i]);
    return number;
}

std::size_t aligned(std::size_t at) { return (at + kAlignment - 1) / kAlignment * kAlignment; }

/// A type or name: a number, or characters up to a 0.
std::string identifierAt(std::string_view head, std::size_t& at) {
    auto unit = numberAt(head, at, 2);
    at += 2;
    if (unit == kNumberFollows) {
        const auto number = numberAt(head, at, 2);
        at += 2;
        return "#" + std::to_string(number);
    }
    std::u16string text;
    for (; unit != 0; at += 2) {
        text += static_cast<char16_t>(unit);
        unit = numberAt(head, at, 2);
    }
    return basic::UCase(basic::toUtf8(text));
}

struct Entry {
    image::Resource resource;
    int preference = 0; ///< of its language; the lowest one counts
};

int preferenceOf(std::uint32_t language) { return language == kAmericanEnglish ? 0 : language == 0 ? 1 : 2; }

/// Reads the entry at `at` and advances to the next one.
Entry entryAt(std::string_view bytes, std::size_t& at) {
    const std::size_t size = numberAt(bytes, at, 4), headSize = numberAt(bytes, at + 4, 4);
    if (headSize > bytes.size() - at) damaged("the resource file is cut off");
    const std::string_view head = bytes.substr(at, headSize);
    std::size_t inHead = 8;
    Entry entry;
    entry.resource.type = identifierAt(head, inHead);
    entry.resource.name = identifierAt(head, inHead);
    inHead = aligned(inHead);
    if (inHead + kFixedHead > headSize) damaged("a resource has no complete head");
    entry.preference = preferenceOf(numberAt(head, inHead + kLanguageAt, 2));
    const std::size_t data = at + headSize;
    if (size > bytes.size() - data) damaged("the resource file is cut off");
    entry.resource.data = bytes.substr(data, size);
    at = std::min(bytes.size(), aligned(data + size));
    return entry;
}

} // namespace

std::vector<image::Resource> readResources(std::string_view bytes) {
    std::size_t at = 0;
    const Entry first = entryAt(bytes, at);
    if (first.resource.type != kNoType || !first.resource.data.empty()) damaged("it is not a resource file of 32 bits");
    std::vector<Entry> entries;
    while (at < bytes.size())
        if (Entry entry = entryAt(bytes, at); entry.resource.type != kNoType) entries.push_back(std::move(entry));
    std::stable_sort(entries.begin(), entries.end(), [](const Entry& a, const Entry& b) {
        const bool isSame = !isBefore(a.resource, b.resource) && !isBefore(b.resource, a.resource);
        return isSame ? a.preference < b.preference : isBefore(a.resource, b.resource);
    });
    std::vector<image::Resource> resources;
    for (auto& entry : entries)
        if (resources.empty() || isBefore(resources.back(), entry.resource))
            resources.push_back(std::move(entry.resource));
    return resources;
}

} // namespace qltoolkit
