#include "Components/QLToolkit/source/messages.h"
#include "tests/qltoolkit/ast_dump.h"
#include <gtest/gtest.h>
#include <set>

using qltoolkit::allMessages;
using qltoolkit::Message;
using qltoolkit::messageText;
using qltoolkit::dump::Parsed;

TEST(Messages, EveryRowIsComplete) {
    std::set<std::string_view> texts;
    for (const auto& row : allMessages()) {
        const auto number = static_cast<int>(row.message);
        EXPECT_GE(number, 1000) << row.text;
        EXPECT_LE(number, 2998) << row.text;
        EXPECT_TRUE(texts.insert(row.text).second) << row.text;
        for (const auto part : {row.text, row.meaning, row.remedy}) {
            ASSERT_FALSE(part.empty()) << number;
            EXPECT_NE(part.find_last_of(".:1)"), std::string_view::npos) << part;
            EXPECT_EQ(part.find("  "), std::string_view::npos) << part;
        }
        EXPECT_EQ(&qltoolkit::messageInfo(row.message), &row);
    }
}

TEST(Messages, OnlyWarningsAreOptional) {
    for (const auto& row : allMessages())
        EXPECT_TRUE(!row.isOptional || row.severity == qltoolkit::Severity::Warning) << row.text;
    EXPECT_TRUE(qltoolkit::messageInfo(Message::ImplicitVariable).isOptional);
    EXPECT_FALSE(qltoolkit::messageInfo(Message::UnknownLibraryName).isOptional);
}

TEST(Messages, TheDetailReplacesThePlaceholder) {
    EXPECT_EQ(messageText(Message::ThenExpected, "end of line"), "Expected: Then, found: end of line.");
    EXPECT_EQ(messageText(Message::DateInvalid, "ignored").find("ignored"), std::string::npos);
    EXPECT_EQ(messageText(Message::ThenExpected, "{found}"), "Expected: Then, found: {found}.");
}

TEST(Messages, TextsQuoteTheSource) {
    const auto text = [](const char* line) {
        const Parsed parsed{std::string("Sub A()\n") + line + "\nEnd Sub\n"};
        return parsed.result.diagnostics.empty() ? "" : parsed.result.diagnostics[0].text;
    };
    EXPECT_EQ(text("If x = 5"), "Expected: Then, found: end of line.");
    EXPECT_EQ(text("x = 5 +"), "Expected: an expression, found: end of the statement.");
    EXPECT_EQ(text("x = (1: y = 2"), "Expected: ), found: :.");
    EXPECT_EQ(text("Dim Next As Long"), "Next is a reserved word and cannot be used as a name.");
    EXPECT_EQ(text("x = 40000%"), "The number 40000% is too large for its type.");
    EXPECT_EQ(text("x = \xC9t\xE9 \xE9t\xE9"), "Expected: end of the statement, found: \xC3\xA9t\xC3\xA9.");
    EXPECT_EQ(text("End Sub\nSub B(ParamArray x)"), "ParamArray needs parentheses after the name: ParamArray x().");
    EXPECT_EQ(text("End Sub\nFunction F()\nEnd Function\nFunction G()"),
              "This line should be End Function. The procedure ends here nevertheless.");
    EXPECT_EQ(text("Sub B()"), "This procedure has no End Sub.");
    EXPECT_EQ(text("x = y \"a very long text that would fill the whole line and more if it were not cut\""),
              "Expected: end of the statement, found: \"a very long text that would fill the whole line and more if.");
}
