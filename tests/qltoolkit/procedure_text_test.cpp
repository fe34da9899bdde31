// The procedure around a position of a module's text.
#include "Components/QLToolkit/insight/procedure_text.h"
#include <gtest/gtest.h>
#include <string>

namespace {

/// The part around the first | of a text, which is removed.
std::string around(std::string text) {
    const auto pos = text.find('|');
    text.erase(pos, 1);
    const auto found = qltoolkit::procedureAround(text, pos);
    return text.substr(found.begin, found.end - found.begin);
}

} // namespace

TEST(ProcedureText, IsFromTheHeadToTheEnd) {
    EXPECT_EQ(around("Dim a\nSub A()\n  x|\n  y\nEnd Sub\nDim b\n"), "Sub A()\n  x\n  y\nEnd Sub\n");
    EXPECT_EQ(around("Sub A()|\nEnd Sub\nSub B()\nEnd Sub\n"), "Sub A()\nEnd Sub\n");
    EXPECT_EQ(around("Sub A()\nEnd Sub\nSub B()\nEnd| Sub\n"), "Sub B()\nEnd Sub\n");
    EXPECT_EQ(around("Sub A()\n  If x Then\n  End If\n  y|\nEnd Sub\n"),
              "Sub A()\n  If x Then\n  End If\n  y\nEnd Sub\n");
}

TEST(ProcedureText, KnowsEveryHeadAndEnd) {
    for (const std::string kind : {"Sub", "Function", "Property"})
        for (const std::string head : {"", "Public ", "Private ", "Friend ", "Static ", "private static ", "\t"}) {
            const auto first = head + kind + " A()\n  x\nend " + kind + " ' done\n";
            EXPECT_EQ(around(first + "Dim |b\n"), "Dim b\n") << first;
            EXPECT_EQ(around("Dim a\n" + head + kind + " A()\n  |x\nend " + kind + "\nDim b\n"),
                      head + kind + " A()\n  x\nend " + kind + "\n");
        }
}

TEST(ProcedureText, WithoutItsEndIsUpToTheNextHead) {
    EXPECT_EQ(around("Sub A()\n  x|\nPrivate Sub B()\nEnd Sub\n"), "Sub A()\n  x\n");
    EXPECT_EQ(around("Sub A()\n  x|"), "Sub A()\n  x");
}

TEST(ProcedureText, OutsideOfProceduresIsTheStatement) {
    EXPECT_EQ(around("Dim a\nDim b|\nDim c\n"), "Dim b\n");
    EXPECT_EQ(around("Dim a, _\n  b, _\n  c|, _\n  d\nDim e\n"), "Dim a, _\n  b, _\n  c, _\n  d\n");
    EXPECT_EQ(around("Sub A()\nEnd Sub\nDim| b\nSub C()\nEnd Sub\n"), "Dim b\n");
    EXPECT_EQ(around("|"), "");
}
