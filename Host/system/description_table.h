#pragma once
// Typed access to a table of a TOML description file.
#include "Add-in/platform/variant.h"
#include <string>
#include <string_view>
#include <toml++/toml.h>
#include <vector>

namespace host {

/// Reads and parses a file. Errors: as readFile; 321 for a syntax error, "file:line: reason".
toml::table parseDescription(const std::string& file);

/// A table with the name of its file for messages. A value of the wrong type is error 321, "file:line: reason". Refers
/// to both and must not outlive them.
class DescriptionTable {
public:
    DescriptionTable(const toml::table& table, const std::string& file) : table_(table), file_(file) {}

    std::string text(std::string_view key) const { return value<std::string>(key, "a text").value_or(""); }
    bool flag(std::string_view key, bool otherwise) const {
        return value<bool>(key, "true or false").value_or(otherwise);
    }
    long number(std::string_view key) const { return long(value<std::int64_t>(key, "a number").value_or(0)); }
    /// A text that must not be missing or empty.
    std::string required(std::string_view key) const;
    std::vector<DescriptionTable> tables(std::string_view key) const;
    std::vector<std::string> texts(std::string_view key) const;
    fernwick::Variant variant(std::string_view key) const;
    [[noreturn]] void fail(std::string_view reason) const { fail(table_, reason); }

private:
    template <class T>
    std::optional<T> value(std::string_view key, std::string_view kind) const {
        const auto* node = table_.get(key);
        if (!node) return std::nullopt;
        if (const auto found = node->value_exact<T>()) return found;
        failKind(*node, key, kind);
    }
    const toml::array& array(std::string_view key) const;
    [[noreturn]] void fail(const toml::node& at, std::string_view reason) const;
    [[noreturn]] void failKind(const toml::node& at, std::string_view key, std::string_view kind) const;

    const toml::table& table_;
    const std::string& file_;
};

} // namespace host
