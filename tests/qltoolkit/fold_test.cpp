#include "Components/QLToolkit/types/operators.h"
#include "tests/language/value.h"
#include <gtest/gtest.h>
#include <set>

using namespace test::language;
using qltoolkit::fold;

namespace {

/// The result of a row of folding.tsv.
Folded foldedRow(const std::vector<std::string>& row) {
    const auto words = split(row[2], ' ');
    const bool compareText = words.size() > 1 && words[1] == "text";
    if (row[1].empty()) return fold(unaryNamed(words[0]), valueOf(row[3]));
    return fold(binaryNamed(words[0]), valueOf(row[1]), valueOf(row[3]), compareText);
}

} // namespace

TEST(Fold, OperatorsGiveTheResultsOfTheLanguage) {
    const Table table("folding.tsv");
    for (const auto& row : table.rows())
        EXPECT_EQ(printed(foldedRow(row)), printed(resultOf(row[4]))) << row[1] << " " << row[2] << " " << row[3];
}

TEST(Fold, ConversionsGiveTheResultsOfTheLanguage) {
    const Table table("conversions.tsv");
    for (const auto& row : table.rows())
        EXPECT_EQ(printed(convert(valueOf(row[1]), typeNamed(row[2]))), printed(resultOf(row[3])))
            << row[1] << " to " << row[2];
}

TEST(Fold, EveryOperatorHasRows) {
    std::set<std::string> seen;
    const Table table("folding.tsv");
    for (const auto& row : table.rows()) seen.insert((row[1].empty() ? "unary " : "") + split(row[2], ' ')[0]);
    for (const std::string name : kBinaryNames) EXPECT_TRUE(seen.contains(name)) << name;
    for (const std::string name : kUnaryNames) EXPECT_TRUE(seen.contains("unary " + name)) << name;
}

TEST(Fold, ResultsHaveTheTypesOfTheOperators) {
    const char* const values[] = {"Boolean True", "Byte 2",     "Integer 2", "Long 2",  "Single 2",
                                  "Double 2",     "Currency 2", "Date 2",    "String 2"};
    for (const auto op : kBinary)
        for (const std::string left : values)
            for (const std::string right : values) {
                const auto result = fold(op, valueOf(left), valueOf(right));
                const auto operation = operationOf(op, typeOf(valueOf(left)), typeOf(valueOf(right)));
                if (!operation || result.error) continue;
                EXPECT_EQ(typeOf(result.value), operation->result) << left << ", " << right << ", " << int(op);
            }
}

TEST(Fold, AnErrorHasNoValue) {
    const auto result = fold(Operator::Divide, basic::Integer{1}, basic::Integer{0});
    EXPECT_EQ(result, (Folded{{}, 11}));
}

TEST(Fold, LongTextsAreNotJoined) {
    const std::string most(65534, 'a');
    EXPECT_EQ(std::get<std::string>(fold(Operator::Concat, most, std::string("b")).value).size(), 65535u);
    EXPECT_EQ(fold(Operator::Concat, most, std::string("bc")).error, 14);
    EXPECT_EQ(fold(Operator::Add, most, std::string("bc")).error, 14);
}

TEST(Fold, LongPatternsAreNotCompared) {
    EXPECT_EQ(fold(Operator::Like, std::string(10000, 'a'), std::string(1000, '*')).error, 0);
    EXPECT_EQ(fold(Operator::Like, std::string(10000, 'a'), std::string(1001, '*')).error, 16);
}
