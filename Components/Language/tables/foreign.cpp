#include "Components/Language/foreign.h"
#include "Components/Language/reader/library_reader.h"
#include "Components/Language/tables/tables.h"
#include <algorithm>
#include <initializer_list>

namespace language {
namespace {

std::vector<Library> readAll(std::initializer_list<std::string_view> tables) {
    LibraryReader reader;
    for (const auto table : tables) reader.read(table);
    return std::move(reader).take();
}

char lower(char c) { return c >= 'A' && c <= 'Z' ? char(c - 'A' + 'a') : c; }

/// All names of these libraries are ASCII.
bool equal(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](char x, char y) { return lower(x) == lower(y); });
}

const auto* findNamed(const auto& list, std::string_view name) {
    const auto found = std::find_if(list.begin(), list.end(), [&](const auto& one) { return equal(one.name, name); });
    return found == list.end() ? nullptr : &*found;
}

const Library* libraryNamed(std::string_view name) {
    for (const auto* library : builtInLibraries())
        if (equal(library->name, name)) return library;
    return findNamed(foreignLibraries(), name);
}

const Group& declaredFunctions(const Library& library) { return library.groups.front(); }

std::span<const Library> declaredLibraries() {
    static const auto libraries = readAll({kDeclaresTable});
    return libraries;
}

} // namespace

std::span<const Library> foreignLibraries() {
    static const auto libraries = readAll({kEventsTable, kForeignControlsTable, kForeignTable, kScriptingTable});
    return libraries;
}

const Library* foreignLibrary(std::string_view guidOrName) {
    for (const auto& library : foreignLibraries())
        if (std::find(library.guids.begin(), library.guids.end(), guidOrName) != library.guids.end()) return &library;
    return findNamed(foreignLibraries(), guidOrName);
}

const Group* findClass(std::string_view name) {
    const auto point = name.find('.');
    if (point == std::string_view::npos) return nullptr;
    const auto* library = libraryNamed(name.substr(0, point));
    const auto* group = library ? findNamed(library->groups, name.substr(point + 1)) : nullptr;
    return group && group->kind == GroupKind::Class ? group : nullptr;
}

const Member* findDeclared(std::string_view library, std::string_view function) {
    const auto* found = findNamed(declaredLibraries(), library.substr(0, library.find('.')));
    if (!found) return nullptr;
    const auto& members = declaredFunctions(*found).members;
    if (const auto* exact = findNamed(members, function)) return exact;
    const bool hasVariant = function.ends_with('A') || function.ends_with('W');
    return hasVariant ? findNamed(members, function.substr(0, function.size() - 1)) : nullptr;
}

std::string_view insteadOfDeclare() { return "Write it in Basic, or remove it: devices have no libraries of Windows"; }

} // namespace language
