// What the compiled application keeps of a module.
#include "Components/QLToolkit/module_image.h"
#include "Components/QLToolkit/parser/module_name.h"
#include "Components/QLToolkit/parser/tree_walk.h"
#include "tests/qltoolkit/ast_dump.h"
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <numeric>

using namespace qltoolkit;
using image::MemberKind;

namespace {

/// Replaces each # by the next number in quotation marks.
std::string numbered(std::string_view code, int& count) {
    std::string text;
    for (const char c : code)
        text += c == '#' ? '"' + std::to_string(++count) + '"' : c == '\n' ? "\r\n" : std::string(1, c);
    return text;
}

/// Collects the numbers in quotation marks.
struct LiteralNumbers {
    const SourceText& source;
    std::vector<int>& found;

    void symbol(const Symbol&) {}
    void expression(const Expr& expr) {
        if (expr.kind == ExprKind::String) found.push_back(std::stoi(stringValue(source, as<StringExpr>(expr))));
    }
};

} // namespace

TEST(ModuleImage, EachPlaceOfAnExpressionIsVisitedOnce) {
    int count = 0;
    const dump::Parsed parsed{numbered(R"(VERSION 1.0 CLASS
BEGIN
END
Attribute VB_Name = "Thing"
Private Declare Sub Far Lib # Alias # (Optional ByVal a As String = #)
Const kOne = #, kTwo As String = #
Enum Kind
    First = #
End Enum
Type Row
    Text As String * 4
    Cells(# To #) As Long
End Type
Event Changed(ByVal a As String)
Dim list(# To #) As Long
Sub A(Optional ByVal b = #)
    Dim here(# To #) As Long
    Const kLocal = #
    If b = # Then
        f #
    ElseIf b = # Then
        f #
    Else
        f #
    End If
    Select Case #
    Case #, # To #, Is > #
        f #
    Case Else
        f #
    End Select
    For i = # To # Step #
        f #
    Next
    For Each x In f(#)
        f #
    Next
    Do While f(#)
        f #
    Loop
    Do
        f #
    Loop Until f(#)
    While f(#)
        f #
    Wend
    With f(#)
        .a = #
    End With
    Debug.Print #; #
    Open # For Random As f(#) Len = f(#)
    Name # As #
    Close f(#), f(#)
    g(#) = # & (#) & -#
    Set o = f(#)
    LSet s = #
    RSet s = #
    Mid(s, f(#), f(#)) = #
    ReDim list(# To #) As String
    On f(#) GoTo 10
    On f(#) GoSub 10
    RaiseEvent Changed(#)
    x = TypeOf f(#) Is Form
    f(#).b!c = #
10  Erase list
    Line (f(#), f(#))-(f(#), f(#)), #
End Sub
)",
                                       count),
                              "Test.cls"};
    ASSERT_TRUE(parsed.result.module) << parsed.diagnostics();
    EXPECT_EQ(parsed.diagnostics(), "");
    std::vector<int> visited, all(std::size_t(count), 0);
    LiteralNumbers numbers{parsed.source, visited};
    TreeWalk{numbers}.module(*parsed.result.module);
    std::sort(visited.begin(), visited.end());
    std::iota(all.begin(), all.end(), 1);
    EXPECT_EQ(visited, all);
}

TEST(ModuleImage, HasTheMembersOfAModule) {
    const dump::Parsed parsed{"VERSION 1.0 CLASS\r\nBEGIN\r\nEND\r\nAttribute VB_Name = \"Thing\"\r\n"
                              "Private Declare Sub Far Lib \"x\" (ByVal a As Long, ByVal b As Long)\r\n"
                              "Event Changed(ByVal a As Long)\r\n"
                              "Sub One()\r\nEnd Sub\r\n"
                              "Private Function Two(a) As Long\r\nEnd Function\r\n"
                              "Property Get Three() As Long\r\nEnd Property\r\n"
                              "Property Let Three(ByVal a As Long)\r\nEnd Property\r\n"
                              "Property Set Four(ByVal a As Object)\r\nEnd Property\r\n",
                              "/folder/sub\\Thing.cls"};
    ASSERT_TRUE(parsed.result.module) << parsed.diagnostics();
    const auto image = imageOf(*parsed.result.module, parsed.symbols);
    EXPECT_EQ(image.kind, image::ModuleKind::Class);
    EXPECT_EQ(std::string(image.name), "Thing");
    EXPECT_EQ(std::string(image.file), "Thing.cls");
    EXPECT_EQ(image.lines, 16u);
    EXPECT_THAT(image.members, testing::ElementsAre(image::Member{MemberKind::Declare, false, "Far", 5, 2},
                                                    image::Member{MemberKind::Event, true, "Changed", 6, 1},
                                                    image::Member{MemberKind::Sub, true, "One", 7, 0},
                                                    image::Member{MemberKind::Function, false, "Two", 9, 1},
                                                    image::Member{MemberKind::PropertyGet, true, "Three", 11, 0},
                                                    image::Member{MemberKind::PropertyLet, true, "Three", 13, 1},
                                                    image::Member{MemberKind::PropertySet, true, "Four", 15, 1}));
}

TEST(ModuleImage, HasTheNameOfItsOwnAttribute) {
    const dump::Parsed parsed{"Attribute VB_Description = \"No\"\r\nAttribute a.VB_Name = \"Wrong\"\r\n"
                              "Attribute VB_Name = \"Right\"\r\nDim a\r\n"};
    ASSERT_TRUE(parsed.result.module);
    EXPECT_EQ(moduleName(*parsed.result.module, parsed.symbols), "Right");
    const dump::Parsed nameless{"Dim a\r\nConst b = \"VB_Name\"\r\n"};
    ASSERT_TRUE(nameless.result.module);
    EXPECT_EQ(moduleName(*nameless.result.module, nameless.symbols), "");
}
