#pragma once
// Strict, typed reading of TOML tables: missing, mistyped and unknown keys are errors.
#include "Components/DesignTargetAccess/target_problem.h"
#include <cstdint>
#include <functional>
#include <set>
#include <string>
#include <toml++/toml.h>
#include <vector>

namespace designtargetaccess {

/// Reads one table. `finish` reports keys that were not read.
class TomlReader {
public:
    TomlReader(const toml::table& table, const std::string& file) : table_(table), file_(file) {}

    std::string text(const char* key);
    std::string optionalText(const char* key);
    std::int64_t number(const char* key, std::int64_t least, std::int64_t most);
    std::vector<std::string> texts(const char* key);
    /// Calls `read` for the table under `key`. A missing table is an error only if it is required.
    void table(const char* key, const std::function<void(TomlReader&)>& read);
    void optionalTable(const char* key, const std::function<void(TomlReader&)>& read);
    /// Calls `read` for each table of the list under `key`. A missing list counts as empty.
    void tables(const char* key, const std::function<void(TomlReader&)>& read);
    /// Calls `read` with each key of this table and its value: strings unchanged, whole numbers as text with
    /// `numberPrefix` in front.
    void values(const std::string& numberPrefix, const std::function<void(const std::string&, std::string)>& read);
    [[noreturn]] void fail(const char* key, const std::string& reason) const;
    void finish() const;

private:
    const toml::node* find(const char* key);
    const toml::node& need(const char* key);
    void readTable(const toml::node& node, const char* key, const std::function<void(TomlReader&)>& read);
    [[noreturn]] void failAt(const toml::node& node, const std::string& reason) const;

    const toml::table& table_;
    const std::string& file_;
    std::set<std::string> asked_;
};

} // namespace designtargetaccess
