#include "Components/Language/library.h"
#include "tests/language_library/lookup.h"
#include "tests/language_library/tsv.h"
#include <cctype>
#include <charconv>
#include <gtest/gtest.h>

namespace {

std::string parametersOf(const language::Member& member) {
    std::string text;
    for (const auto& parameter : member.parameters) {
        const bool optional = parameter.optional || parameter.paramArray;
        const auto name = parameter.name + (parameter.isArray ? "()" : "");
        text += (text.empty() ? "" : ", ") + (optional ? "[" + name + "]" : name);
    }
    for (auto& c : text) c = char(std::tolower(static_cast<unsigned char>(c)));
    return text;
}

std::string resultOf(const language::Member& member) {
    if (member.kind == language::MemberKind::Sub) return "";
    return (member.type.empty() ? "Variant" : member.type) + (member.isArray ? "()" : "");
}

const language::Member* find(const std::string& name) {
    const auto point = name.find('.');
    for (const auto* library : language::builtInLibraries())
        for (const auto& group : library->groups) {
            const bool fits = point == std::string::npos ? group.kind == language::GroupKind::Module || group.global
                                                         : group.name == name.substr(0, point);
            const auto* member = fits ? lookup::member(group, name.substr(point + 1)) : nullptr;
            if (member) return member;
        }
    return nullptr;
}

const language::Member* findConstant(const std::string& name) {
    const auto lower = [](std::string text) {
        for (auto& c : text) c = char(std::tolower(static_cast<unsigned char>(c)));
        return text;
    };
    for (const auto* library : language::builtInLibraries())
        for (const auto& group : library->groups)
            for (const auto& member : group.members)
                if (member.kind == language::MemberKind::Constant && lower(member.name) == lower(name)) return &member;
    return nullptr;
}

/// Hexadecimal digits are a Long by their bits.
long valueOf(std::string_view text) {
    const bool hex = text.starts_with("&H");
    if (hex) text.remove_prefix(2);
    long long value = 0;
    std::from_chars(text.data(), text.data() + text.size(), value, hex ? 16 : 10);
    return std::int32_t(std::uint32_t(value));
}

TEST(Signatures, AreThoseOfThePublicDocumentation) {
    const auto rows = tsv::rows("signatures.tsv");
    EXPECT_GE(rows.size(), 90U);
    for (const auto& row : rows) {
        ASSERT_EQ(row.size(), 4U);
        const auto* member = find(row[0]);
        ASSERT_TRUE(member) << row[0];
        EXPECT_EQ(parametersOf(*member), row[1]) << row[0] << ", " << row[3];
        EXPECT_EQ(resultOf(*member), row[2]) << row[0] << ", " << row[3];
    }
}

TEST(Constants, HaveTheValuesOfThePublicDocumentation) {
    const auto rows = tsv::rows("constants.tsv");
    EXPECT_GE(rows.size(), 220U);
    for (const auto& row : rows) {
        ASSERT_EQ(row.size(), 3U);
        const auto* member = findConstant(row[0]);
        ASSERT_TRUE(member) << row[0] << ", " << row[2];
        EXPECT_EQ(std::to_string(valueOf(member->value)), row[1]) << row[0] << ", " << row[2];
    }
}

} // namespace
