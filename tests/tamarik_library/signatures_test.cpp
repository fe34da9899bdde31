// The compiler and the runtime agree about all functions of the library.
#include "Components/Language/library.h"
#include "Components/QLToolkit/code/library_signature.h"
#include "Components/QLToolkit/names/library_scopes.h"
#include "Components/Tamarik/functions/standard_natives.h"
#include <gtest/gtest.h>
#include <map>
#include <string_view>

using namespace qltoolkit;

namespace {

/// Members that are not functions of the runtime.
const std::map<std::string_view, std::string_view> kOthers{
    {"CallByName", "a call by name"}, {"Debug", "the compiler knows its members"}, {"Spc", "a part of Print"},
    {"Tab", "a part of Print"},       {"VarPtr", "given a reference of any type"},
};

std::vector<image::SlotType> parametersOf(const Callable& callable) {
    std::vector<image::SlotType> types;
    for (const auto& parameter : callable.parameters) types.push_back(librarySlotType(parameter));
    return types;
}

image::SlotType resultOf(const Callable& callable) {
    const Type result = libraryResult(callable);
    return result.value == ValueType::None ? image::SlotType{} : librarySlotType(result);
}

} // namespace

TEST(LibrarySignatures, AreThoseThatTheCompilerCallsWith) {
    SymbolTable symbols;
    Program program(symbols);
    addLibraries(program, {&language::languageLibrary()});
    const auto natives = tamarik::standardNatives();
    std::size_t count = 0;
    for (const auto& group : language::languageLibrary().groups) {
        if (group.kind != language::GroupKind::Module) continue;
        const std::string_view bare = group.name.starts_with('[')
                                          ? std::string_view(group.name).substr(1, group.name.size() - 2)
                                          : std::string_view(group.name);
        const Entity* const module = program.libraries.front()->types.find(symbols.intern(bare));
        ASSERT_TRUE(module) << group.name;
        for (const auto& member : group.members) {
            const Entity* const entity = module->inner->names.find(symbols.intern(member.name));
            ASSERT_TRUE(entity) << member.name;
            const Callable* const callable = entity->get;
            if (!callable || !member.onDevices || kOthers.contains(member.name)) continue;
            ++count;
            EXPECT_FALSE(natives.find(member.name).empty()) << member.name << " is missing";
            EXPECT_TRUE(natives.find(member.name, resultOf(*callable), parametersOf(*callable)))
                << member.name << " has other types";
        }
    }
    EXPECT_GT(count, 150U);
}

TEST(LibrarySignatures, ExceptionsAreMembers) {
    for (const auto& [name, reason] : kOthers) {
        bool found = false;
        for (const auto& group : language::languageLibrary().groups)
            for (const auto& member : group.members) found = found || member.name == name;
        EXPECT_TRUE(found) << name;
        EXPECT_FALSE(reason.empty());
    }
}
