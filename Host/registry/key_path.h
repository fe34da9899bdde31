#pragma once
// The path of a key below its root: the names as spelled, and one identity for all spellings.
#include <string>
#include <string_view>
#include <vector>

namespace host {

/// A key's path below its root. The root itself is the empty path.
class KeyPath {
public:
    KeyPath() = default;

    /// Appends `subkey`. Backslashes separate names; empty names are ignored. RegFailure BadPathname for a leading
    /// backslash; InvalidParameter for a name that is longer than 255 characters or contains a control character, or
    /// for a path of more than 512 names.
    KeyPath operator/(std::string_view subkey) const;

    const std::vector<std::string>& names() const { return names_; }
    /// The names in their folded case.
    const std::vector<std::string>& foldedNames() const { return foldedNames_; }
    /// The identity of the key, equal for all spellings: the folded names, joined with backslashes.
    std::string folded() const;
    KeyPath parent() const;
    /// The names, joined with backslashes.
    std::string text() const;

private:
    void append(std::string_view name);

    std::vector<std::string> names_;
    std::vector<std::string> foldedNames_;
};

/// Throws RegFailure InvalidParameter for a value's name that a registry file cannot hold: longer than 16383
/// characters, with a control character, or not UTF-8.
void requireValueName(std::string_view name);

} // namespace host
