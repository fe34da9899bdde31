#include "Components/Language/library.h"
#include "tests/language_library/lookup.h"
#include <algorithm>
#include <cctype>
#include <charconv>
#include <functional>
#include <gtest/gtest.h>
#include <map>
#include <set>

namespace {

using language::Group;
using language::GroupKind;
using language::Library;
using language::Member;
using language::MemberKind;

std::string lower(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(), [](unsigned char c) { return char(std::tolower(c)); });
    return text;
}

std::set<std::string> knownTypes() {
    std::set<std::string> types{"",       "Boolean",  "Byte", "Integer", "Long",   "Single",
                                "Double", "Currency", "Date", "String",  "Object", "Any"};
    for (const auto* library : language::builtInLibraries())
        for (const auto& group : library->groups)
            if (group.kind != GroupKind::Module) types.insert(group.name);
    return types;
}

/// Calls `check` with each member of all libraries and its place.
void eachMember(const std::function<void(const Group&, const Member&, const std::string&)>& check) {
    for (const auto* library : language::builtInLibraries())
        for (const auto& group : library->groups)
            for (const auto& member : group.members)
                check(group, member, library->name + "." + group.name + "." + member.name);
}

/// A decimal number, or hexadecimal digits that no type character makes shorter.
bool isNumber(std::string_view text) {
    const bool hex = text.starts_with("&H");
    if (hex) text.remove_prefix(2);
    long long number = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), number, hex ? 16 : 10);
    return read.ec == std::errc{} && read.ptr == text.data() + text.size() && (!hex || number > 0xFFFF);
}

TEST(BuiltInLibraries, HaveKnownTypes) {
    const auto types = knownTypes();
    eachMember([&](const Group&, const Member& member, const std::string& place) {
        EXPECT_TRUE(types.contains(member.type)) << place << ": " << member.type;
        for (const auto& parameter : member.parameters)
            EXPECT_TRUE(types.contains(parameter.type)) << place << ": " << parameter.type;
    });
}

TEST(BuiltInLibraries, HaveUniqueNames) {
    for (const auto* library : language::builtInLibraries()) {
        std::set<std::string> groups;
        for (const auto& group : library->groups) {
            EXPECT_TRUE(groups.insert(lower(group.name)).second) << library->name << "." << group.name;
            std::set<std::string> members;
            for (const auto& member : group.members) {
                const bool isEvent = member.kind == MemberKind::Event;
                EXPECT_TRUE(members.insert((isEvent ? "event " : "") + lower(member.name)).second)
                    << library->name << "." << group.name << "." << member.name;
            }
        }
    }
}

TEST(BuiltInLibraries, GiveEachConstantOneValue) {
    std::map<std::string, std::string> values;
    eachMember([&](const Group&, const Member& member, const std::string& place) {
        if (member.kind != MemberKind::Constant) return;
        EXPECT_EQ(values.try_emplace(lower(member.name), member.value).first->second, member.value) << place;
        EXPECT_TRUE(member.type == "String" || isNumber(member.value)) << place << ": " << member.value;
    });
    EXPECT_GT(values.size(), 600U);
}

TEST(BuiltInLibraries, NameASubstituteForWhatDevicesLack) {
    for (const auto* library : language::builtInLibraries())
        for (const auto& group : library->groups)
            EXPECT_EQ(group.onDevices, group.instead.empty()) << library->name << "." << group.name;
    eachMember([](const Group&, const Member& member, const std::string& place) {
        EXPECT_EQ(member.onDevices, member.instead.empty()) << place;
        EXPECT_FALSE(member.instead.ends_with('.')) << place;
        EXPECT_FALSE(member.help.ends_with('.')) << place;
    });
}

TEST(BuiltInLibraries, HaveAtMostOneDefaultMemberAClass) {
    for (const auto* library : language::builtInLibraries())
        for (const auto& group : library->groups) {
            const auto defaults =
                std::count_if(group.members.begin(), group.members.end(), [](const auto& m) { return m.isDefault; });
            EXPECT_LE(defaults, group.kind == GroupKind::Class ? 1 : 0) << library->name << "." << group.name;
        }
}

TEST(BuiltInLibraries, OrderParametersAsADeclarationMust) {
    eachMember([](const Group&, const Member& member, const std::string& place) {
        bool optional = false;
        std::set<std::string> names;
        for (const auto& parameter : member.parameters) {
            EXPECT_TRUE(names.insert(lower(parameter.name)).second) << place << ": " << parameter.name;
            EXPECT_TRUE(parameter.optional || parameter.paramArray || !optional) << place << ": " << parameter.name;
            EXPECT_TRUE(!parameter.paramArray || &parameter == &member.parameters.back()) << place;
            EXPECT_TRUE(parameter.defaultValue.empty() || (parameter.optional && !parameter.type.empty())) << place;
            optional = optional || parameter.optional;
        }
    });
}

/// The value of an omitted argument is a number, True, False, or a member of the parameter's enumeration.
TEST(BuiltInLibraries, HaveKnownDefaultValues) {
    eachMember([](const Group&, const Member& member, const std::string& place) {
        for (const auto& parameter : member.parameters) {
            const auto& value = parameter.defaultValue;
            if (value.empty() || isNumber(value)) continue;
            if (parameter.type == "Boolean") {
                EXPECT_TRUE(value == "True" || value == "False") << place;
                continue;
            }
            const auto* group = lookup::group(language::languageLibrary(), parameter.type);
            ASSERT_TRUE(group && group->kind == GroupKind::Enum) << place << ": " << value;
            EXPECT_TRUE(lookup::member(*group, value)) << place << ": " << value;
        }
    });
}

TEST(BuiltInLibraries, HaveNoResultOfSubsAndEventsAndNoEffectsOfPureMembers) {
    eachMember([](const Group& group, const Member& member, const std::string& place) {
        const bool hasNoResult = member.kind == MemberKind::Sub || member.kind == MemberKind::Event;
        EXPECT_TRUE(!hasNoResult || (member.type.empty() && !member.pure)) << place;
        EXPECT_TRUE(!member.pure || group.kind == GroupKind::Module) << place;
        EXPECT_TRUE(member.kind != MemberKind::Event || group.kind == GroupKind::Class) << place;
        EXPECT_TRUE(!member.name.ends_with('$') || member.type == "String") << place;
    });
}

/// A function with a type character takes what the one without it takes.
TEST(BuiltInLibraries, GiveBothSpellingsOfAFunctionTheSameParameters) {
    for (const auto& group : language::languageLibrary().groups)
        for (const auto& member : group.members) {
            if (!member.name.ends_with('$')) continue;
            const auto* other = lookup::member(group, member.name.substr(0, member.name.size() - 1));
            ASSERT_TRUE(other) << member.name;
            ASSERT_EQ(other->parameters.size(), member.parameters.size()) << member.name;
            for (std::size_t i = 0; i < member.parameters.size(); ++i)
                EXPECT_EQ(other->parameters[i].name, member.parameters[i].name) << member.name;
        }
}

} // namespace
