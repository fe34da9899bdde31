#include "Components/QLToolkit/types/coercions.h"
#include "tests/language/table.h"
#include <gtest/gtest.h>

using namespace test::language;
using qltoolkit::Coercion;
using qltoolkit::coercionOf;
using qltoolkit::Type;

namespace {

using qltoolkit::ByRef;

constexpr std::array kNeeds{"Same", "Always", "Checked", "Parsed", "Default", "Never"};

const char* text(Coercion coercion) { return kNeeds[std::size_t(coercion)]; }

Type of(ValueType value, std::uint32_t id = 0) { return {.value = value, .id = id}; }
Type arrayOf(ValueType value, std::uint32_t id = 0) { return {.value = value, .isArray = true, .id = id}; }

} // namespace

TEST(Coercions, NeedWhatTheLanguageSays) {
    const Table table("coercions.tsv");
    std::map<std::pair<ValueType, ValueType>, std::string> cells;
    for (const auto& row : table.rows())
        for (const auto from : table.types(row[1]))
            for (const auto to : table.types(row[2])) cells[{from, to}] = row[3];
    EXPECT_EQ(cells.size(), kTypeNames.size() * kTypeNames.size()) << "there are cells without a row";
    for (const auto& [types, expected] : cells)
        EXPECT_EQ(text(coercionOf(types.first, types.second)), expected)
            << kTypeNames[std::size_t(types.first)] << " to " << kTypeNames[std::size_t(types.second)];
}

TEST(Coercions, ArraysNeedTheSameElements) {
    EXPECT_EQ(coercionOf(arrayOf(ValueType::Long), arrayOf(ValueType::Long)), Coercion::Same);
    EXPECT_EQ(coercionOf(arrayOf(ValueType::Long), arrayOf(ValueType::Integer)), Coercion::Never);
    EXPECT_EQ(coercionOf(arrayOf(ValueType::Record, 1), arrayOf(ValueType::Record, 2)), Coercion::Never);
    EXPECT_EQ(coercionOf(arrayOf(ValueType::Unknown), arrayOf(ValueType::Integer)), Coercion::Same);
    EXPECT_EQ(coercionOf(of(ValueType::Variant), arrayOf(ValueType::Integer)), Coercion::Parsed);
    EXPECT_EQ(coercionOf(arrayOf(ValueType::Integer), of(ValueType::Variant)), Coercion::Always);
    EXPECT_EQ(coercionOf(arrayOf(ValueType::Integer), of(ValueType::Integer)), Coercion::Never);
}

TEST(Coercions, ElementsOfAnEnumAreLongs) {
    auto first = arrayOf(ValueType::Long, 1);
    first.isEnum = true;
    EXPECT_EQ(coercionOf(first, arrayOf(ValueType::Long)), Coercion::Same);
}

TEST(Coercions, ArraysOfByteAndStringsConvertToEachOther) {
    EXPECT_EQ(coercionOf(arrayOf(ValueType::Byte), of(ValueType::String)), Coercion::Always);
    EXPECT_EQ(coercionOf(of(ValueType::FixedString, 5), arrayOf(ValueType::Byte)), Coercion::Always);
    EXPECT_EQ(coercionOf(of(ValueType::String), arrayOf(ValueType::Integer)), Coercion::Never);
    EXPECT_EQ(coercionOf(arrayOf(ValueType::Byte), arrayOf(ValueType::String)), Coercion::Never);
}

TEST(Coercions, RecordsNeedTheSameType) {
    EXPECT_EQ(coercionOf(of(ValueType::Record, 1), of(ValueType::Record, 1)), Coercion::Same);
    EXPECT_EQ(coercionOf(of(ValueType::Record, 1), of(ValueType::Record, 2)), Coercion::Never);
    EXPECT_EQ(coercionOf(of(ValueType::Object, 1), of(ValueType::Object, 2)), Coercion::Same);
}

TEST(CoercionsByRef, AVariableOfTheParametersTypeIsPassedItself) {
    EXPECT_EQ(byRefOf(of(ValueType::Long), of(ValueType::Long)), ByRef::Address);
    EXPECT_EQ(byRefOf(of(ValueType::Object, 1), of(ValueType::Object, 1)), ByRef::Address);
    EXPECT_EQ(byRefOf(of(ValueType::Record, 1), of(ValueType::Record, 1)), ByRef::Address);
    EXPECT_EQ(byRefOf(arrayOf(ValueType::Long), arrayOf(ValueType::Long)), ByRef::Address);
    EXPECT_EQ(byRefOf(of(ValueType::Unknown), of(ValueType::Long)), ByRef::Address);
    EXPECT_EQ(byRefOf({.value = ValueType::Long, .isEnum = true, .id = 1}, of(ValueType::Long)), ByRef::Address);
}

TEST(CoercionsByRef, AVariantParameterTakesEveryVariable) {
    EXPECT_EQ(byRefOf(of(ValueType::Integer), of(ValueType::Variant)), ByRef::Address);
    EXPECT_EQ(byRefOf(arrayOf(ValueType::Integer), of(ValueType::Variant)), ByRef::Address);
    EXPECT_EQ(byRefOf(arrayOf(ValueType::Integer), arrayOf(ValueType::Variant)), ByRef::Never);
}

TEST(CoercionsByRef, ObjectsAndFixedStringsAreStoredBack) {
    EXPECT_EQ(byRefOf(of(ValueType::Object, 1), of(ValueType::Object)), ByRef::Temporary);
    EXPECT_EQ(byRefOf(of(ValueType::Object, 1), of(ValueType::Object, 2)), ByRef::Temporary);
    EXPECT_EQ(byRefOf(of(ValueType::FixedString, 5), of(ValueType::String)), ByRef::Temporary);
}

TEST(CoercionsByRef, OtherTypesAreAMismatch) {
    EXPECT_EQ(byRefOf(of(ValueType::Integer), of(ValueType::Long)), ByRef::Never);
    EXPECT_EQ(byRefOf(of(ValueType::Variant), of(ValueType::Long)), ByRef::Never);
    EXPECT_EQ(byRefOf(of(ValueType::Variant), of(ValueType::Object, 1)), ByRef::Never);
    EXPECT_EQ(byRefOf(of(ValueType::Record, 1), of(ValueType::Record, 2)), ByRef::Never);
    EXPECT_EQ(byRefOf(arrayOf(ValueType::FixedString, 5), arrayOf(ValueType::String)), ByRef::Never);
    EXPECT_EQ(byRefOf(of(ValueType::Long), arrayOf(ValueType::Long)), ByRef::Never);
    EXPECT_EQ(byRefOf(arrayOf(ValueType::Long), of(ValueType::Long)), ByRef::Never);
}
