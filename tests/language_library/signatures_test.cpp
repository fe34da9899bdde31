#include "Components/Language/library.h"
#include "tests/language_library/lookup.h"
#include <cctype>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>

namespace {

struct Row {
    std::string member, parameters, result, source;
};

std::vector<Row> rows() {
    std::ifstream file(FERNWICK_SOURCE_DIR "/tests/language_library/data/signatures.tsv");
    std::vector<Row> rows;
    std::string line;
    std::getline(file, line); // the head
    while (std::getline(file, line)) {
        std::istringstream fields(line);
        Row row;
        for (auto* field : {&row.member, &row.parameters, &row.result, &row.source}) std::getline(fields, *field, '\t');
        rows.push_back(row);
    }
    return rows;
}

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

TEST(Signatures, AreThoseOfThePublicDocumentation) {
    const auto expected = rows();
    EXPECT_GE(expected.size(), 90U);
    for (const auto& row : expected) {
        const auto* member = find(row.member);
        ASSERT_TRUE(member) << row.member;
        EXPECT_EQ(parametersOf(*member), row.parameters) << row.member << ", " << row.source;
        EXPECT_EQ(resultOf(*member), row.result) << row.member << ", " << row.source;
        EXPECT_FALSE(row.source.empty()) << row.member;
    }
}

} // namespace
