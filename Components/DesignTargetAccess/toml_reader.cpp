#include "Components/DesignTargetAccess/toml_reader.h"
#include <fmt/format.h>

namespace designtargetaccess {

std::string TargetProblem::text() const {
    return line == 0 ? fmt::format("{}: {}", file, reason) : fmt::format("{}:{}: {}", file, line, reason);
}

void TomlReader::failAt(const toml::node& node, const std::string& reason) const {
    throw TargetProblem{file_, node.source().begin.line, reason};
}

void TomlReader::fail(const char* key, const std::string& reason) const {
    const toml::node* node = table_.get(key);
    failAt(node ? *node : table_, fmt::format("\"{}\" {}", key, reason));
}

const toml::node* TomlReader::find(const char* key) {
    asked_.insert(key);
    return table_.get(key);
}

const toml::node& TomlReader::need(const char* key) {
    const toml::node* node = find(key);
    if (!node) fail(key, "is missing");
    return *node;
}

std::string TomlReader::text(const char* key) {
    const auto value = need(key).value_exact<std::string>();
    if (!value) fail(key, "must be a string");
    if (value->empty()) fail(key, "must not be empty");
    return *value;
}

std::string TomlReader::optionalText(const char* key) {
    const toml::node* node = find(key);
    if (!node) return {};
    const auto value = node->value_exact<std::string>();
    if (!value) fail(key, "must be a string");
    return *value;
}

std::int64_t TomlReader::number(const char* key, std::int64_t least, std::int64_t most) {
    const auto value = need(key).value_exact<std::int64_t>();
    if (!value) fail(key, "must be a whole number");
    if (*value < least || *value > most) fail(key, fmt::format("must be from {} to {}", least, most));
    return *value;
}

std::vector<std::string> TomlReader::texts(const char* key) {
    const toml::node* node = find(key);
    if (!node) return {};
    if (!node->is_array()) fail(key, "must be a list of strings");
    std::vector<std::string> result;
    for (const toml::node& item : *node->as_array()) {
        const auto value = item.value_exact<std::string>();
        if (!value) failAt(item, fmt::format("\"{}\" must contain only strings", key));
        result.push_back(*value);
    }
    return result;
}

void TomlReader::readTable(const toml::node& node, const char* key, const std::function<void(TomlReader&)>& read) {
    if (!node.is_table()) failAt(node, fmt::format("\"{}\" must be a table", key));
    TomlReader inner{*node.as_table(), file_};
    read(inner);
    inner.finish();
}

void TomlReader::table(const char* key, const std::function<void(TomlReader&)>& read) {
    readTable(need(key), key, read);
}

void TomlReader::optionalTable(const char* key, const std::function<void(TomlReader&)>& read) {
    if (const toml::node* node = find(key)) readTable(*node, key, read);
}

void TomlReader::tables(const char* key, const std::function<void(TomlReader&)>& read) {
    const toml::node* node = find(key);
    if (!node) return;
    if (!node->is_array()) fail(key, "must be a list of tables");
    for (const toml::node& item : *node->as_array()) readTable(item, key, read);
}

void TomlReader::values(const std::string& numberPrefix,
                        const std::function<void(const std::string&, std::string)>& read) {
    for (const auto& [key, node] : table_) {
        const std::string name{key.str()};
        asked_.insert(name);
        if (const auto text = node.value_exact<std::string>())
            read(name, *text);
        else if (const auto number = node.value_exact<std::int64_t>())
            read(name, fmt::format("{}{}", numberPrefix, *number));
        else
            failAt(node, fmt::format("\"{}\" must be a string or a whole number", name));
    }
}

void TomlReader::finish() const {
    for (const auto& [key, node] : table_)
        if (!asked_.contains(std::string{key.str()})) failAt(node, fmt::format("\"{}\" is not a known key", key.str()));
}

} // namespace designtargetaccess
