#include "Apps/workbench/code/line_differences.h"
#include <gmock/gmock.h>

using testing::ElementsAre;
using workbench::differencesOf;

namespace {

std::vector<std::string> lines(const QString& oldText, const QString& newText, qsizetype most = 200) {
    std::vector<std::string> all;
    for (const auto& line : differencesOf(oldText, newText, most)) all.push_back(line.toStdString());
    return all;
}

} // namespace

TEST(LineDifferences, EqualTextsHaveNone) {
    EXPECT_TRUE(lines("a\r\nb\r\n", "a\nb").empty());
    EXPECT_TRUE(lines("", "").empty());
}

TEST(LineDifferences, ListAddedRemovedAndChangedLines) {
    EXPECT_THAT(lines("a\nb\nc\nd\ne", "a\nB\nc\ne\nf"),
                ElementsAre("line 2:", "- b", "+ B", "line 4:", "- d", "line 5:", "+ f"));
    EXPECT_THAT(lines("", "a\nb"), ElementsAre("line 1:", "+ a", "+ b"));
    EXPECT_THAT(lines("a\nb", ""), ElementsAre("line 1:", "- a", "- b"));
    EXPECT_THAT(lines("b", "a\nb"), ElementsAre("line 1:", "+ a"));
}

TEST(LineDifferences, LongListsAreCut) {
    EXPECT_THAT(lines("", "a\nb\nc\nd", 3), ElementsAre("line 1:", "+ a", "+ b", "..."));
}

TEST(LineDifferences, HugeTextsAreOneRun) {
    QString oldText, newText;
    for (int i = 0; i < 3000; ++i) oldText += QString("old %1\n").arg(i), newText += QString("new %1\n").arg(i);
    EXPECT_EQ(lines(oldText, newText, 10000).size(), 6001u);
}
