#include "Host/system/description_table.h"
#include "Host/files/system_error.h"
#include "Host/files/text_file.h"
#include <fmt/format.h>

namespace host {
namespace {

constexpr int kInvalidDescription = 321;

[[noreturn]] void descriptionError(const std::string& file, std::size_t line, std::string_view reason) {
    throw hostError(kInvalidDescription, fmt::format("{}:{}: {}", file, line, reason));
}

} // namespace

toml::table parseDescription(const std::string& file) {
    try {
        return toml::parse(readFile(file).bytes, file);
    } catch (const toml::parse_error& error) { descriptionError(file, error.source().begin.line, error.description()); }
}

std::string DescriptionTable::required(std::string_view key) const {
    auto found = text(key);
    if (found.empty()) fail(table_, fmt::format("\"{}\" is missing", key));
    return found;
}

std::vector<DescriptionTable> DescriptionTable::tables(std::string_view key) const {
    std::vector<DescriptionTable> all;
    for (const auto& one : array(key)) {
        if (!one.is_table()) failKind(one, key, "a list of tables");
        all.emplace_back(*one.as_table(), file_);
    }
    return all;
}

std::vector<std::string> DescriptionTable::texts(std::string_view key) const {
    std::vector<std::string> all;
    for (const auto& one : array(key)) {
        if (!one.is_string()) failKind(one, key, "a list of texts");
        all.push_back(one.as_string()->get());
    }
    return all;
}

fernwick::Variant DescriptionTable::variant(std::string_view key) const {
    const auto* node = table_.get(key);
    if (!node) return {};
    if (const auto* text = node->as_string()) return text->get();
    if (const auto* flag = node->as_boolean()) return flag->get();
    if (const auto* real = node->as_floating_point()) return real->get();
    if (const auto* number = node->as_integer()) return static_cast<std::int32_t>(number->get());
    failKind(*node, key, "a text, a number, true or false");
}

const toml::array& DescriptionTable::array(std::string_view key) const {
    static const toml::array kNone;
    const auto* node = table_.get(key);
    if (node && !node->is_array()) failKind(*node, key, "a list");
    return node ? *node->as_array() : kNone;
}

void DescriptionTable::fail(const toml::node& at, std::string_view reason) const {
    descriptionError(file_, at.source().begin.line, reason);
}

void DescriptionTable::failKind(const toml::node& at, std::string_view key, std::string_view kind) const {
    fail(at, fmt::format("\"{}\" must be {}", key, kind));
}

} // namespace host
