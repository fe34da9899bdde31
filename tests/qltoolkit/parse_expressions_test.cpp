#include "tests/qltoolkit/ast_dump.h"
#include <gtest/gtest.h>

using qltoolkit::dump::expression;
using qltoolkit::dump::Pair;

namespace {

void expectExpressions(std::initializer_list<Pair> pairs) {
    for (const auto& [source, dump] : pairs) EXPECT_EQ(expression(source), dump) << source;
}

} // namespace

TEST(ParseExpressions, Numbers) {
    expectExpressions({{"0", "0"},
                       {"32767", "32767"},
                       {"32768", "32768&"},
                       {"2147483648", "2147483648#"},
                       {"99999999999999999999", "1e+20#"},
                       {"5%", "5"},
                       {"5&", "5&"},
                       {"5!", "5!"},
                       {"5#", "5#"},
                       {"5@", "50000/10000"},
                       {"1.25@", "12500/10000"},
                       {"1.5", "1.5#"},
                       {".5", "0.5#"},
                       {"1.", "1#"},
                       {"1E3", "1000#"},
                       {"1e-3", "0.001#"},
                       {"2D+2", "200#"},
                       {"1.5E2!", "150!"},
                       {"1E-400", "0#"},
                       {"1.6&", "2&"}});
}

TEST(ParseExpressions, HexadecimalAndOctal) {
    expectExpressions({{"&H10", "16"},
                       {"&hFFFF", "-1"},
                       {"&HFFFF&", "65535&"},
                       {"&H10000", "65536&"},
                       {"&HFFFFFFFF", "-1&"},
                       {"&H80000000", "-2147483648&"},
                       {"&H1F%", "31"},
                       {"&O17", "15"},
                       {"&o17&", "15&"},
                       {"&O177777", "-1"},
                       {"\"a\" & other", "(& \"a\" other)"},
                       {"\"a\" &other", "(& \"a\" other)"}});
}

TEST(ParseExpressions, Strings) {
    expectExpressions({{"\"\"", "\"\""},
                       {"\"say \"\"x\"\"\"", "\"say \"x\"\""},
                       {"\"\"\"\"", "\"\"\""},
                       {"\"no ' comment\"", "\"no ' comment\""},
                       {"\"a\" & \"b\"", "(& \"a\" \"b\")"}});
}

TEST(ParseExpressions, Dates) {
    expectExpressions({{"#12/31/1999#", "#36525#"},
                       {"#1/1/1900#", "#2#"},
                       {"#12/29/1899 6:00:00 AM#", "#-1.25#"},
                       {"#12:00:00 PM#", "#0.5#"},
                       {"#12:00:00 AM#", "#0#"},
                       {"#6 PM#", "#0.75#"},
                       {"#18:00#", "#0.75#"},
                       {"#1/2/30#", "#10960#"},
                       {"#1/2/29#", "#47120#"},
                       {"#2000-01-02#", "#36527#"},
                       {"#Jan 2, 2000#", "#36527#"},
                       {"#2 January 2000#", "#36527#"},
                       {"#1/2/2000 6:30:00 PM#", "#36527.770833333336#"},
                       {"#1/1/2000# - #1/1/1999#", "(- #36526# #36161#)"}});
}

TEST(ParseExpressions, OperatorPrecedence) {
    expectExpressions({{"-2 ^ 2", "(neg (^ 2 2))"},
                       {"2 ^ -3", "(^ 2 (neg 3))"},
                       {"2 ^ 3 ^ 4", "(^ (^ 2 3) 4)"},
                       {"-a * b", "(* (neg a) b)"},
                       {"a + b * c", "(+ a (* b c))"},
                       {"a * b + c", "(+ (* a b) c)"},
                       {"a - b - c", "(- (- a b) c)"},
                       {"a \\ b * c", "(\\ a (* b c))"},
                       {"a Mod b \\ c", "(mod a (\\ b c))"},
                       {"a + b Mod c", "(+ a (mod b c))"},
                       {"a & b + c", "(& a (+ b c))"},
                       {"a = b & c", "(= a (& b c))"},
                       {"a < b = c", "(= (< a b) c)"},
                       {"Not a = b", "(not (= a b))"},
                       {"Not a And b", "(and (not a) b)"},
                       {"a = Not b And c", "(and (= a (not b)) c)"},
                       {"a And Not b Or c", "(or (and a (not b)) c)"},
                       {"a Or b And c", "(or a (and b c))"},
                       {"a Xor b Or c", "(xor a (or b c))"},
                       {"a Eqv b Xor c", "(eqv a (xor b c))"},
                       {"a Imp b Eqv c", "(imp a (eqv b c))"},
                       {"a Like \"x*\" & b", "(like a (& \"x*\" b))"},
                       {"a Is Nothing", "(is a Nothing)"},
                       {"+a", "(plus a)"},
                       {"- -a", "(neg (neg a))"},
                       {"a / b / c", "(/ (/ a b) c)"}});
}

TEST(ParseExpressions, ComparisonsInEverySpelling) {
    expectExpressions({{"a <> b", "(<> a b)"},
                       {"a >< b", "(<> a b)"},
                       {"a <= b", "(<= a b)"},
                       {"a =< b", "(<= a b)"},
                       {"a >= b", "(>= a b)"},
                       {"a => b", "(>= a b)"},
                       {"a > b", "(> a b)"}});
}

TEST(ParseExpressions, NamesAndTypeCharacters) {
    expectExpressions({{"a%", "a%"},
                       {"a& ", "a&"},
                       {"a!", "a!"},
                       {"a#", "a#"},
                       {"a@", "a@"},
                       {"a$", "a$"},
                       {"Left$(s, 2)", "(call Left$ s 2)"},
                       {"CInt%(5)", "(call CInt% 5)"},
                       {"String$(3, \"x\")", "(call String$ 3 \"x\")"},
                       {"Date", "Date"},
                       {"Date$", "Date$"},
                       {"Input(5, #1)", "(call Input 5 1)"},
                       {"Input$(LOF(1), #f)", "(call Input$ (call LOF 1) f)"},
                       {"Seek(1)", "(call Seek 1)"},
                       {"[My Name] + [_x]", "(+ My Name _x)"},
                       {"Len(Text) + Step", "(+ (call Len Text) Step)"}});
}

TEST(ParseExpressions, Members) {
    expectExpressions({{"a.b.c", "(. (. a b) c)"},
                       {"a(1).b(2)", "(call (. (call a 1) b) 2)"},
                       {"a(1)(2)", "(call (call a 1) 2)"},
                       {"rs!Name", "(! rs Name)"},
                       {"rs![First Name]", "(! rs First Name)"},
                       {"rs.Fields!x.Value", "(. (! (. rs Fields) x) Value)"},
                       {"rs!a!b", "(! (! rs a) b)"},
                       {"a! * 2", "(* a! 2)"},
                       {"Me.Caption", "(. Me Caption)"},
                       {"a.Next.End.Print", "(. (. (. a Next) End) Print)"},
                       {"a.[_NewEnum]", "(. a _NewEnum)"},
                       {"a.Type + a.Name", "(+ (. a Type) (. a Name))"},
                       {"a.b$", "(. a b$)"},
                       {"(a).b", "(. (paren a) b)"},
                       {"f()", "(call f)"}});
}

TEST(ParseExpressions, MembersOfTheInnermostWith) {
    using qltoolkit::dump::statements;
    EXPECT_EQ(statements("With a\n.x = .y + !z\n!k = .m.n(.o)\nEnd With"),
              "(with a {(let (. x) (+ (. y) (! z))) (let (! k) (call (. (. m) n) (. o)))})");
}

TEST(ParseExpressions, Arguments) {
    expectExpressions({{"f(, 1)", "(call f _ 1)"},
                       {"f(1, , 3)", "(call f 1 _ 3)"},
                       {"f(1, )", "(call f 1 _)"},
                       {"f(a:=1, b:=x)", "(call f a:=1 b:=x)"},
                       {"f(1, Type:=2)", "(call f 1 Type:=2)"},
                       {"f(ByVal 0&)", "(call f (byval 0&))"},
                       {"f((a))", "(call f (paren a))"},
                       {"f(x = 1)", "(call f (= x 1))"}});
}

TEST(ParseExpressions, KeywordsAsOperands) {
    expectExpressions({{"True", "True"},
                       {"False", "False"},
                       {"Null", "Null"},
                       {"Empty", "Empty"},
                       {"New Collection", "(new Collection)"},
                       {"New Lib.Thing", "(new Lib.Thing)"},
                       {"AddressOf Callback", "(addressof Callback)"},
                       {"AddressOf Module1.Callback", "(addressof (. Module1 Callback))"},
                       {"TypeOf a Is Label", "(typeof a Label)"},
                       {"TypeOf a.b(1) Is Lib.Label And c", "(and (typeof (call (. a b) 1) Lib.Label) c)"},
                       {"Not TypeOf a Is Label", "(not (typeof a Label))"}});
}

TEST(ParseExpressions, MissingParts) {
    expectExpressions({{"", "2:4 1800"},
                       {"5 +", "2:8 1800"},
                       {"(1 + 2", "2:11 1801"},
                       {"f(1", "2:8 1801"},
                       {"f(1 2)", "2:9 1801"},
                       {"a.", "2:7 1802"},
                       {"a.5", "2:6 1501"},
                       {"a!(1) b", "2:11 1501"},
                       {"TypeOf a = Label", "2:14 1803"},
                       {"New 5", "2:9 1302"},
                       {"f(a:=1, 2)", "2:13 1805"},
                       {"1 2", "2:7 1501"},
                       {"#13/32/1999#", "2:5 1105"},
                       {"#2/30/2000#", "2:5 1105"},
                       {"#25:00#", "2:5 1105"},
                       {"End", "2:5 1800"},
                       {"40000%", "2:5 1104"},
                       {"3000000000&", "2:5 1104"},
                       {"1E400", "2:5 1104"},
                       {"&H123456789", "2:5 1104"},
                       {"1e30@", "2:5 1104"}});
}
