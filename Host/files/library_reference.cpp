#include "Host/files/library_reference.h"
#include "Basic/case_folding.h"
#include "Basic/guid.h"
#include "Host/files/text_parts.h"
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

bool readHex(std::string_view text, std::uint32_t& number) noexcept {
    const auto result = std::from_chars(text.data(), text.data() + text.size(), number, 16);
    return result.ec == std::errc{} && result.ptr == text.data() + text.size();
}

bool readVersion(std::string_view text, LibraryReference& reference) noexcept {
    const auto version = parseLibraryVersion(text);
    if (!version) return false;
    reference.major = version->major;
    reference.minor = version->minor;
    return true;
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

} // namespace

std::string normalGuid(std::string_view text) {
    const auto guid = basic::parseGuid(text);
    return guid ? basic::guidText(*guid) : std::string();
}

std::optional<LibraryVersion> parseLibraryVersion(std::string_view text) noexcept {
    LibraryVersion version;
    const auto major = takeField(text, '.');
    if (!readHex(major, version.major) || !readHex(text, version.minor)) return {};
    return version;
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
