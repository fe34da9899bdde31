#include "Host/registry/reg_roots.h"
#include "Basic/case_folding.h"
#include <algorithm>
#include <array>

namespace host {
namespace {

struct RegRoot {
    std::uint32_t number;
    std::string_view name, shortName;
    RegHiveId hive;
    std::string_view key;
};

constexpr std::array<RegRoot, 3> kRegRoots{{
    {0x80000000, "HKEY_CLASSES_ROOT", "HKCR", RegHiveId::Machine, "SOFTWARE\\Classes"},
    {0x80000001, "HKEY_CURRENT_USER", "HKCU", RegHiveId::User, ""},
    {0x80000002, "HKEY_LOCAL_MACHINE", "HKLM", RegHiveId::Machine, ""},
}};

constexpr std::size_t rootLength(std::string_view wholePath) {
    return std::min(wholePath.find('\\'), wholePath.size());
}

const RegRoot* rootOfNumber(std::uint32_t number) {
    for (const auto& root : kRegRoots)
        if (root.number == number) return &root;
    return nullptr;
}

const RegRoot* rootOfPath(std::string_view wholePath) {
    const auto name = wholePath.substr(0, rootLength(wholePath));
    for (const auto& root : kRegRoots)
        if (basic::equalNoCase(name, root.name) || basic::equalNoCase(name, root.shortName)) return &root;
    return nullptr;
}

KeyPath belowRoot(const KeyPath& start, std::string_view wholePath) {
    return start / wholePath.substr(std::min(rootLength(wholePath) + 1, wholePath.size()));
}

} // namespace

std::optional<RegPlace> placeOfRegRoot(std::uint32_t number) {
    const auto* root = rootOfNumber(number);
    if (!root) return std::nullopt;
    return RegPlace{root->hive, KeyPath() / root->key};
}

std::optional<RegPlace> placeOfRegKey(std::string_view wholePath) {
    const auto* root = rootOfPath(wholePath);
    if (!root) return std::nullopt;
    return RegPlace{root->hive, belowRoot(KeyPath() / root->key, wholePath)};
}

std::string withLongRootName(std::string_view wholePath) {
    const auto* root = rootOfPath(wholePath);
    const auto below = belowRoot({}, wholePath).text();
    return std::string(root ? root->name : "") + (below.empty() ? "" : "\\") + below;
}

} // namespace host
