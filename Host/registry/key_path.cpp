#include "Host/registry/key_path.h"
#include "Basic/case_folding.h"
#include "Host/registry/reg_status.h"
#include "Host/registry/utf16.h"
#include <algorithm>

namespace host {
namespace {

constexpr std::size_t kLongestKeyName = 255;
constexpr std::size_t kLongestValueName = 16383;
constexpr std::size_t kDeepestKey = 512;

void requireRegName(std::string_view name, std::size_t longest) {
    const auto isContinuation = [](char c) { return (static_cast<unsigned char>(c) & 0xC0) == 0x80; };
    const auto isControl = [](char c) { return static_cast<unsigned char>(c) < 0x20; };
    const auto characters =
        name.size() - static_cast<std::size_t>(std::count_if(name.begin(), name.end(), isContinuation));
    if (characters > longest || std::any_of(name.begin(), name.end(), isControl) ||
        validUtf8Length(name) != name.size())
        throw RegFailure{RegStatus::InvalidParameter};
}

std::string joined(const std::vector<std::string>& names) {
    std::string path;
    for (const auto& name : names) path.append(path.empty() ? "" : "\\").append(name);
    return path;
}

} // namespace

void KeyPath::append(std::string_view name) {
    requireRegName(name, kLongestKeyName);
    if (names_.size() == kDeepestKey) throw RegFailure{RegStatus::InvalidParameter};
    foldedNames_.push_back(basic::foldCase(name));
    names_.emplace_back(name);
}

KeyPath KeyPath::operator/(std::string_view subkey) const {
    if (subkey.starts_with('\\')) throw RegFailure{RegStatus::BadPathname};
    auto path = *this;
    while (!subkey.empty()) {
        const auto end = std::min(subkey.find('\\'), subkey.size());
        if (end > 0) path.append(subkey.substr(0, end));
        subkey.remove_prefix(std::min(end + 1, subkey.size()));
    }
    return path;
}

KeyPath KeyPath::parent() const {
    KeyPath up;
    for (std::size_t i = 0; i + 1 < names_.size(); ++i) up.append(names_[i]);
    return up;
}

std::string KeyPath::folded() const { return joined(foldedNames_); }

std::string KeyPath::text() const { return joined(names_); }

void requireValueName(std::string_view name) { requireRegName(name, kLongestValueName); }

} // namespace host
