#include "Host/system/type_description.h"
#include "Components/Language/foreign.h"
#include "Host/files/path_lookup.h"
#include "Host/files/system_error.h"
#include "Host/system/description_table.h"
#include "Host/system/path_text.h"
#include <algorithm>
#include <charconv>
#include <filesystem>
#include <fmt/format.h>
#include <map>

namespace host {
namespace {

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

bool hasMember(const TypeClass& in, const std::string& name) {
    const auto isNamed = [&](const auto& member) { return member.name == name; };
    return std::any_of(in.properties.begin(), in.properties.end(), isNamed) ||
           std::any_of(in.methods.begin(), in.methods.end(), isNamed);
}

TypeClass membersOf(const DescriptionTable& table, const Groups& groups) {
    TypeClass made;
    made.name = table.required("name");
    made.help = table.text("help");
    made.defaultMember = table.text("default_member");
    for (const auto& group : table.texts("groups")) addGroup(table, groups, group, made);
    addMembers(table, made);
    if (!made.defaultMember.empty() && !hasMember(made, made.defaultMember))
        table.fail(fmt::format("there is no property or method \"{}\"", made.defaultMember));
    return made;
}

TypeClass readClass(const std::string& file, const Groups& groups) {
    const auto parsed = parseDescription(file);
    const DescriptionTable table(parsed, file);
    auto made = membersOf(table, groups);
    made.progId = table.required("progid");
    made.clsid = table.required("clsid");
    made.category = table.text("category");
    made.width = int(table.number("width"));
    made.height = int(table.number("height"));
    return made;
}

TypeClass readForm(const std::string& file, const Groups& groups) {
    const auto parsed = parseDescription(file);
    const DescriptionTable table(parsed, file);
    auto made = membersOf(table, groups);
    made.extends = table.text("extends");
    if (!made.extends.empty() && !language::findClass(made.extends))
        table.fail(fmt::format("there is no class \"{}\"", made.extends));
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
    if (!pointed || minor.ec != std::errc{} || minor.ptr != end)
        table.fail("\"version\" must be two numbers separated by a point");
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
    if (const auto form = table.text("form"); !form.empty())
        description.form = readForm(joinedPath(parentFolderName(file), form), groups);
    return description;
}

} // namespace host
