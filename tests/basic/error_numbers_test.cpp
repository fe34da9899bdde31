#include "Basic/error_numbers.h"
#include <gtest/gtest.h>

TEST(ErrorNumbers, HaveTheirStandardTexts) {
    struct Row {
        int number;
        std::string_view text;
    };
    const Row rows[] = {
        {basic::kReturnWithoutGoSub, "Return without GoSub"},
        {basic::kInvalidProcedureCall, "Invalid procedure call or argument"},
        {basic::kTypeMismatch, "Type mismatch"},
        {basic::kPathFileAccessError, "Path/File access error"},
        {basic::kInvalidPatternString, "Invalid pattern string"},
        {basic::kInvalidPropertyValue, "Invalid property value"},
        {basic::kPropertyWriteOnly, "Property get can't be executed on write-only property"},
        {basic::kKeyAlreadyAssociated, "This key is already associated with an element of this collection"},
        {basic::kSearchTextNotFound, "Search text not found"},
        {basic::kErrorLoadingFromFile, "Error loading from file"},
    };
    for (const Row& row : rows) EXPECT_EQ(basic::standardDescription(row.number), row.text);
}

TEST(ErrorNumbers, OthersAreApplicationDefined) {
    for (const int number : {-2147221504, -1, 0, 1, 4, 1000, 31038, 65535})
        EXPECT_EQ(basic::standardDescription(number), "Application-defined or object-defined error") << number;
}
