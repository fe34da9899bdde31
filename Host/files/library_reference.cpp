#include "Host/files/library_reference.h"
#include "Basic/case_folding.h"
#include "Host/files/trim.h"
#include <algorithm>
#include <cctype>
#include <charconv>
#include <fmt/format.h>

namespace host {
namespace {

using RefKind = LibraryReference::Kind;

bool takePrefix(std::string_view& text, std::string_view prefix) noexcept {
    if (!basic::equalNoCase(text.substr(0, prefix.size()), prefix)) return false;
    text.remove_prefix(prefix.size());
    return true;
}

/// Takes what stands before the next `separator`; all that is left where there is none.
std::string_view takeField(std::string_view& rest, char separator) noexcept {
    const auto at = rest.find(separator);
    const auto field = rest.substr(0, at);
    rest = at == std::string_view::npos ? std::string_view{} : rest.substr(at + 1);
    return field;
}

bool readHex(std::string_view text, std::uint32_t& number) noexcept {
    const auto result = std::from_chars(text.data(), text.data() + text.size(), number, 16);
    return result.ec == std::errc{} && result.ptr == text.data() + text.size();
}

bool readVersion(std::string_view text, LibraryReference& reference) noexcept {
    const auto major = takeField(text, '.');
    return readHex(major, reference.major) && readHex(text, reference.minor);
}

LibraryReference unknownReference(std::string_view value) {
    LibraryReference reference;
    reference.path = value;
    return reference;
}

LibraryReference projectReference(RefKind kind, std::string_view path) {
    LibraryReference reference;
    reference.kind = kind;
    reference.path = path;
    return reference;
}

bool isGuidCharacter(std::string_view text, std::size_t at) noexcept {
    const bool dash = at == 8 || at == 13 || at == 18 || at == 23;
    return dash ? text[at] == '-' : std::isxdigit(static_cast<unsigned char>(text[at])) != 0;
}

} // namespace

std::string normalGuid(std::string_view text) {
    constexpr std::size_t kGuidLength = 36;
    if (text.size() == kGuidLength + 2 && text.front() == '{' && text.back() == '}') text = text.substr(1, kGuidLength);
    if (text.size() != kGuidLength) return {};
    for (std::size_t at = 0; at < kGuidLength; ++at)
        if (!isGuidCharacter(text, at)) return {};
    std::string guid(text);
    std::transform(guid.begin(), guid.end(), guid.begin(), [](unsigned char c) { return char(std::toupper(c)); });
    return "{" + guid + "}";
}

LibraryReference parseReferenceLine(std::string_view value) {
    auto rest = trimBlanks(value);
    if (takePrefix(rest, "*\\A")) return projectReference(RefKind::Project, rest);
    if (!takePrefix(rest, "*\\G")) return unknownReference(value);
    LibraryReference reference;
    reference.kind = RefKind::TypeLibrary;
    reference.guid = normalGuid(takeField(rest, '#'));
    if (reference.guid.empty() || !readVersion(takeField(rest, '#'), reference)) return unknownReference(value);
    reference.lcid = takeField(rest, '#');
    reference.path = takeField(rest, '#');
    reference.description = rest;
    return reference;
}

LibraryReference parseObjectLine(std::string_view value) {
    auto rest = trimBlanks(value);
    if (takePrefix(rest, "*\\A")) return projectReference(RefKind::ControlProject, rest);
    auto library = takeField(rest, ';');
    LibraryReference reference;
    reference.path = trimBlanks(rest);
    if (library.empty() || library.front() != '{') {
        if (reference.path.empty()) return unknownReference(value);
        reference.kind = RefKind::OleObject;
        reference.progId = trimBlanks(library);
        return reference;
    }
    reference.kind = RefKind::Control;
    reference.guid = normalGuid(takeField(library, '#'));
    if (reference.guid.empty() || !readVersion(takeField(library, '#'), reference)) return unknownReference(value);
    reference.lcid = trimBlanks(library);
    return reference;
}

std::string formatReference(const LibraryReference& r) {
    switch (r.kind) {
    case RefKind::TypeLibrary:
        return fmt::format("*\\G{}#{:x}.{:x}#{}#{}#{}", r.guid, r.major, r.minor, r.lcid, r.path, r.description);
    case RefKind::Control: return fmt::format("{}#{:x}.{:x}#{}; {}", r.guid, r.major, r.minor, r.lcid, r.path);
    case RefKind::Project:
    case RefKind::ControlProject: return "*\\A" + r.path;
    case RefKind::OleObject: return r.progId + "; " + r.path;
    case RefKind::Unknown: break;
    }
    return r.path;
}

} // namespace host
