// Results of checks as bytes.
#include "Components/QLToolkit/check_results.h"
#include <gtest/gtest.h>

using namespace qltoolkit;

namespace {

CheckResults someResults() {
    CheckResults results(3);
    results[0].lines = 70'000;
    results[1].diagnostics.resize(2);
    auto& first = results[1].diagnostics[0];
    first.number = 2000;
    first.file = "a b.bas";
    first.line = 3;
    first.column = 300;
    first.text = "Umlaut \xC3\xA4 and \xFF";
    first.lack = Lack::Printing;
    first.lacking = "Printer";
    first.instead = "Nothing";
    results[1].diagnostics[1].severity = Severity::Warning;
    results[1].errors = 1;
    results[1].lines = 4;
    return results;
}

} // namespace

TEST(CheckResults, AreReadAsTheyWereWritten) {
    const auto read = resultsOf(bytesOf(someResults()));
    ASSERT_TRUE(read);
    ASSERT_EQ(read->size(), 3U);
    EXPECT_EQ((*read)[0].lines, 70'000U);
    EXPECT_EQ((*read)[1].lines, 4U);
    EXPECT_EQ((*read)[1].errors, 1U);
    EXPECT_EQ((*read)[1].diagnostics, someResults()[1].diagnostics);
    EXPECT_TRUE((*read)[2].diagnostics.empty());
    EXPECT_EQ(resultsOf(bytesOf({}))->size(), 0U);
}

TEST(CheckResults, PartsAndFurtherBytesAreRefused) {
    const auto whole = bytesOf(someResults());
    for (std::size_t size = 0; size < whole.size(); ++size) EXPECT_FALSE(resultsOf(whole.substr(0, size))) << size;
    EXPECT_FALSE(resultsOf(whole + '\0'));
    EXPECT_FALSE(resultsOf("\xFF\xFF\xFF\xFF"));
    auto unknownSeverity = whole;
    unknownSeverity[4 + 12 + 12] = 2;
    EXPECT_FALSE(resultsOf(unknownSeverity));
}
