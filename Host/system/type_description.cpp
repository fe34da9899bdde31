#include "Host/system/type_description.h"
#include "Host/files/path_lookup.h"
#include "Host/files/system_error.h"
#include "Host/files/text_file.h"
#include "Host/system/path_text.h"
#include <algorithm>
#include <charconv>
#include <filesystem>
#include <fmt/format.h>
#include <map>
#include <toml++/toml.h>

namespace host {
namespace {

constexpr int kInvalidDescription = 321;

[[noreturn]] void descriptionError(const std::string& file, std::size_t line, std::string_view reason) {
    throw hostError(kInvalidDescription, fmt::format("{}:{}: {}", file, line, reason));
}

/// A table of a description, with the file for its errors.
class DescriptionTable {
public:
    DescriptionTable(const toml::table& table, const std::string& file) : table_(table), file_(file) {}

    std::string text(std::string_view key) const { return value<std::string>(key, "a text").value_or(""); }
    bool flag(std::string_view key, bool otherwise) const {
        return value<bool>(key, "true or false").value_or(otherwise);
    }
    std::string required(std::string_view key) const {
        auto found = text(key);
        if (found.empty()) fail(table_, fmt::format("\"{}\" is missing", key));
        return found;
    }
    std::vector<DescriptionTable> tables(std::string_view key) const {
        std::vector<DescriptionTable> all;
        for (const auto& one : array(key)) {
            if (!one.is_table()) fail(one, fmt::format("\"{}\" is a list of tables", key));
            all.emplace_back(*one.as_table(), file_);
        }
        return all;
    }
    std::vector<std::string> texts(std::string_view key) const {
        std::vector<std::string> all;
        for (const auto& one : array(key)) {
            if (!one.is_string()) fail(one, fmt::format("\"{}\" is a list of texts", key));
            all.push_back(one.as_string()->get());
        }
        return all;
    }
    fernwick::Variant variant(std::string_view key) const {
        const auto* node = table_.get(key);
        if (!node) return {};
        if (const auto* text = node->as_string()) return text->get();
        if (const auto* flag = node->as_boolean()) return flag->get();
        if (const auto* real = node->as_floating_point()) return real->get();
        if (const auto* number = node->as_integer()) return static_cast<std::int32_t>(number->get());
        fail(*node, fmt::format("\"{}\" is a text, a number, true or false", key));
    }
    long number(std::string_view key) const { return long(value<std::int64_t>(key, "a number").value_or(0)); }
    [[noreturn]] void fail(std::string_view reason) const { fail(table_, reason); }

private:
    template <class T>
    std::optional<T> value(std::string_view key, std::string_view kind) const {
        const auto* node = table_.get(key);
        if (!node) return std::nullopt;
        if (const auto found = node->value_exact<T>()) return found;
        fail(*node, fmt::format("\"{}\" is {}", key, kind));
    }
    const toml::array& array(std::string_view key) const {
        static const toml::array kNone;
        const auto* node = table_.get(key);
        if (node && !node->is_array()) fail(*node, fmt::format("\"{}\" is a list", key));
        return node ? *node->as_array() : kNone;
    }
    [[noreturn]] void fail(const toml::node& at, std::string_view reason) const {
        descriptionError(file_, at.source().begin.line, reason);
    }

    const toml::table& table_;
    const std::string& file_;
};

toml::table parseDescription(const std::string& file) {
    try {
        return toml::parse(readFile(file).bytes, file);
    } catch (const toml::parse_error& error) { descriptionError(file, error.source().begin.line, error.description()); }
}

TypeMember memberOf(const DescriptionTable& from) {
    TypeMember member;
    member.name = from.required("name");
    member.type = from.text("type") + from.text("returns");
    member.help = from.text("help");
    member.defaultValue = from.variant("default");
    member.readOnly = from.text("access") == "read";
    member.design = from.flag("design", true);
    for (const auto& one : from.tables("parameters"))
        member.parameters.push_back(
            {one.required("name"), one.required("type"), one.flag("optional", false), one.flag("byref", false)});
    return member;
}

void addMembers(const DescriptionTable& from, TypeClass& to) {
    for (const auto& one : from.tables("properties")) to.properties.push_back(memberOf(one));
    for (const auto& one : from.tables("methods")) to.methods.push_back(memberOf(one));
    for (const auto& one : from.tables("functions")) to.methods.push_back(memberOf(one));
    for (const auto& one : from.tables("events")) to.events.push_back(memberOf(one));
}

using Groups = std::map<std::string, TypeClass>;

void addGroup(const DescriptionTable& user, const Groups& groups, const std::string& name, TypeClass& to) {
    const auto group = groups.find(name);
    if (group == groups.end()) user.fail(fmt::format("there is no group \"{}\"", name));
    const auto append = [](auto& list, const auto& more) { list.insert(list.end(), more.begin(), more.end()); };
    append(to.properties, group->second.properties);
    append(to.methods, group->second.methods);
    append(to.events, group->second.events);
}

TypeClass readClass(const std::string& file, const Groups& groups) {
    const auto parsed = parseDescription(file);
    const DescriptionTable table(parsed, file);
    TypeClass made;
    made.name = table.required("name");
    made.progId = table.required("progid");
    made.clsid = table.required("clsid");
    made.category = table.text("category");
    made.help = table.text("help");
    for (const auto& group : table.texts("groups")) addGroup(table, groups, group, made);
    addMembers(table, made);
    return made;
}

TypeEnumeration enumerationOf(const DescriptionTable& from) {
    TypeEnumeration made{from.required("name"), {}};
    for (const auto& one : from.tables("values")) made.values.push_back({one.required("name"), one.number("value")});
    return made;
}

std::vector<std::string> classFilesIn(const std::string& folder) {
    std::vector<std::string> files;
    std::error_code error;
    for (std::filesystem::directory_iterator at(folder, error), end; !error && at != end; at.increment(error))
        if (at->path().extension() == ".toml") files.push_back(at->path().string());
    if (error) throw hostError(basic::kPathNotFound, folder + ": there is no such folder");
    std::sort(files.begin(), files.end());
    return files;
}

void readVersion(const DescriptionTable& table, TypeDescription& into) {
    const auto version = table.required("version");
    const auto* end = version.data() + version.size();
    const auto major = std::from_chars(version.data(), end, into.majorVersion);
    const bool pointed = major.ec == std::errc{} && major.ptr != end && *major.ptr == '.';
    const auto minor = pointed ? std::from_chars(major.ptr + 1, end, into.minorVersion) : major;
    if (!pointed || minor.ec != std::errc{} || minor.ptr != end) table.fail("\"version\" is two numbers with a point");
}

TypeDescription headOf(const DescriptionTable& table) {
    TypeDescription head;
    head.name = table.required("name");
    head.guid = table.required("guid");
    head.help = table.text("help");
    readVersion(table, head);
    return head;
}

} // namespace

std::string descriptionFileOf(const std::string& path) {
    const auto name = baseName(path) + ".toml";
    std::error_code error;
    const auto found =
        PathLookup().find(std::filesystem::current_path(error).string(), joinedPath(parentFolderName(path), name));
    return std::filesystem::is_regular_file(found, error) ? found : "";
}

TypeDescription readTypeDescriptionHead(const std::string& file) {
    const auto parsed = parseDescription(file);
    return headOf(DescriptionTable(parsed, file));
}

TypeDescription readTypeDescription(const std::string& file) {
    const auto parsed = parseDescription(file);
    const DescriptionTable table(parsed, file);
    auto description = headOf(table);
    for (const auto& one : table.tables("enums")) description.enumerations.push_back(enumerationOf(one));
    Groups groups;
    for (const auto& one : table.tables("groups")) addMembers(one, groups[one.required("name")]);
    for (const auto& one : table.tables("modules")) {
        description.modules.emplace_back().name = one.required("name");
        addMembers(one, description.modules.back());
    }
    if (const auto folder = table.text("classes"); !folder.empty())
        for (const auto& one : classFilesIn(joinedPath(parentFolderName(file), folder)))
            description.classes.push_back(readClass(one, groups));
    return description;
}

} // namespace host
