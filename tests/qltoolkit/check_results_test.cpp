// Results of checks as bytes.
#include "Components/QLToolkit/check_results.h"
#include <gtest/gtest.h>

using namespace qltoolkit;

namespace {

CheckResults someResults() {
    CheckResults results(3);
    results[0].lines = 70'000;
    results[1].diagnostics = {
        {Severity::Error, 2000, "a b.bas", 3, 300, "Umlaut \xC3\xA4 and \xFF", qltoolkit::Lack::None, "", ""},
        {Severity::Warning, 2900, "", 0, 0, "", qltoolkit::Lack::None, "", ""}};
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
