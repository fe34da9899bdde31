// Functions of the library, in tables: a call, its result with its type, and where that is documented. "docs" is the page of
// the function in the language reference, "VBAL" the published language specification.
#include "tests/tamarik_library/library_world.h"
#include <cstdlib>

namespace tamarik {

namespace {

constexpr std::string_view kCalls = R"(
# function; arguments; result; source
Left; "abc", 2; String ab; docs
Left; Null, 2; Null; docs
Left; 1234, 2; String 12; docs
Left$; "abc", 9; String abc; docs
Right; "abc", 2; String bc; docs
Mid; "abcdef", 3; String cdef; docs
Mid; "abcdef", 3, 2; String cd; docs
Mid$; "abc", 4; String ; docs
Trim; "  a b "; String a b; docs
LTrim$; "  a "; String a ; docs
RTrim$; " a  "; String  a; docs
UCase; "aé"; String AÉ; docs
LCase$; "AÉ"; String aé; docs
Space; 3; String    ; docs
String; 3, "xy"; String xxx; docs
String$; 2, 65; String AA; docs
String; 2, 321; String AA; docs
String; 2, Null; Null; docs
StrReverse; "abc"; String cba; docs
Len; "abc"; Long 3; docs
Len; Null; Null; docs
Len; 12345; Long 5; docs: a Variant counts as a text
LenB; "abc"; Long 6; docs
Asc; "A"; Long 65; docs
AscW; "€"; Long 8364; docs
Chr; 65; String A; docs
Chr$; 128; String €; docs, code page 1252
ChrW$; 8364; String €; docs
InStr; "abcabc", "c"; Long 3; docs
InStr; 4, "abcabc", "c"; Long 6; docs
InStr; 1, "aBc", "b", 1; Long 2; docs
InStr; 1, "aBc", "b", 0; Long 0; docs
InStr; Null, "b"; Null; docs
InStr; 2, "abc", ""; Long 2; docs
InStrB; "abc", "b"; Long 3; docs
InStrRev; "abcabc", "c", -1; Long 6; docs
StrComp; "a", "B", 1; Integer -1; docs
StrComp; "a", "B", 0; Integer 1; docs
StrComp; Null, "B"; Null; docs
Replace; "aXbX", "X", "--", 1, -1, 0; String a--b--; docs
Replace; "aXbX", "x", "-", 2, 1, 1; String -bX; docs
Split; "a,b,,c", ",", -1, 0; String() String a|String b|String |String c; docs
Split; "a b", Missing, -1, 0; String() String a|String b; docs
Split; "", ",", -1, 0; String(); docs
Join; List("a" 1 True), "-"; String a-1-True; docs
Join; List("a" "b"); String a b; docs
Filter; List("ab" "cd" "b"), "b", True, 0; String() String ab|String b; docs
StrConv; "aB cD", 3; String Ab Cd; docs
CBool; "True"; Long -1; docs
CDbl; "1.5"; Double 1.5; docs
CDec; "1.25"; Decimal 1.25; docs
CVErr; 11; Error Error 11; docs
CVDate; Null; Null; VBAL
Error; 11; String Division by zero; docs
Error$; 9; String Subscript out of range; docs
Error$; Missing; String ; docs
Hex; 255; String FF; docs
Hex; -1; String FFFF; docs
Hex; Long(-1); String FFFFFFFF; docs
Hex; Null; Null; docs
Hex; Empty; String 0; docs
Oct; 8; String 10; docs
Str; 459; String  459; docs
Str; -459.65; String -459.65; docs
Str; "12"; String  12; docs
Val; " 1615 198th"; Double 1615198; docs
Abs; -3; Integer 3; docs
Abs; Null; Null; docs
Abs; "-1.5"; Double 1.5; docs
Int; -99.8; Double -100; docs
Fix; -99.2; Double -99; docs
Int; Cur(-1.5); Currency -2; docs
Fix; Cur(-1.5); Currency -1; docs
Int; True; Integer -1; VBAL
Int; Null; Null; docs
Round; 2.5; Double 2; docs
Round; 0.125, 2; Double 0.12; docs
Round; Cur(2.5); Currency 2; docs
Round; Cur(-1.2355), 3; Currency -1.236; docs
Sgn; -2.5; Integer -1; docs
Sgn; Cur(1); Integer 1; docs
Sqr; 9; Double 3; docs
Sin; 0; Double 0; docs
Year; #2003-02-05; Integer 2003; docs
Month; "2/5/2003"; Integer 2; docs
Day; Null; Null; docs
Weekday; #2003-02-05, 1; Integer 4; docs
MonthName; 2, False; String February; docs
MonthName; 2, True; String Feb; docs
WeekdayName; 1, False, 1; String Sunday; docs
DateSerial; 2003, 14, 1; Date 2/1/2004; docs
TimeSerial; 12, -30, 0; Date 11:30:00 AM; docs
DateValue; "Feb 5, 2003"; Date 2/5/2003; docs
DateValue; "2/5"; Date 2/5/2003; docs: the present year
TimeValue; "4:35 PM"; Date 4:35:00 PM; docs
DateAdd; "m", 1, #2003-01-31; Date 2/28/2003; docs
DateAdd; "d", 1, Null; Null; VBAL
DateDiff; "yyyy", #2002-12-31, #2003-01-01, 1, 1; Long 1; docs
DatePart; "q", #2003-05-01, 1, 1; Integer 2; docs
Now; ; Date 1/1/2003 12:00:00 PM; docs
Date; ; Date 1/1/2003; docs
Time; ; Date 12:00:00 PM; docs
Date$; ; String 01-01-2003; docs
Time$; ; String 12:00:00; docs
Timer; ; Double 43200; docs
SLN; 10000, 1000, 5; Double 1800; docs
FV; 0, 10, -100; Double 1000; docs
IsArray; List(1); Long -1; docs
IsDate; "2/5/2003"; Long -1; docs
IsDate; "x"; Long 0; docs
IsDate; 1; Long 0; docs
IsEmpty; Empty; Long -1; docs
IsError; Err(5); Long -1; docs
IsMissing; Missing; Long -1; docs
IsNull; Null; Long -1; docs
IsNumeric; "1.5"; Long -1; docs
IsNumeric; "x"; Long 0; docs
IsNumeric; Empty; Long -1; docs
IsNumeric; #2003-02-05; Long 0; docs
IsObject; 1; Long 0; docs
TypeName; Missing; String Error; docs
TypeName; List(1); String Variant(); docs
TypeName; Nothing; String Nothing; docs
VarType; "a"; Long 8; docs
VarType; List(1); Long 8204; docs
LBound; List(1 2), 1; Long 0; docs
UBound; List(1 2), 1; Long 1; docs
RGB; 1, 2, 300; Long 16712193; docs
QBColor; 4; Long 128; docs
IIf; True, 1, 2; Integer 1; docs
IIf; Null, 1, 2; Integer 2; docs
Choose; 2, List("a" "b"); String b; docs
Choose; 3, List("a" "b"); Null; docs
Switch; List(False 1 True "x"); String x; docs
Switch; List(False 1); Null; docs
Partition; 20, 0, 99, 5; String  20: 24; docs
Partition; Null, 0, 99, 5; Null; docs
Format; 1234.5, "#,##0.00"; String 1,234.50; docs
Format; Null; Null; docs
Format$; #2003-02-05, "yyyy-mm-dd"; String 2003-02-05; docs
FormatNumber; 1234.567, 1, -2, -2, -2; String 1,234.6; docs
FormatCurrency; -5, -1, -2, -2, -2; String ($5.00); docs
FormatPercent; 0.5, 0, -2, -2, -2; String 50%; docs
FormatDateTime; #2003-02-05, 2; String 2/5/2003; docs
DoEvents; ; Long 0; docs
GetSetting; "App", "Start", "Left", "5"; String 5; docs
)";

constexpr std::string_view kErrors = R"(
# function; arguments; error
Left$; "a", -1; 5
Mid$; "a", 0; 5
Space; -1; 5
String$; 2, ""; 5
String$; 2, Null; 94
Asc; ""; 5
Chr; 256; 5
InStr; 0, "a", "b"; 5
InStr; 1, "a", "b", 2; 5
InStr; Null, "a", "b"; 94
Join; 1; 13
Filter; 1, "x", True, 0; 13
CInt; 40000; 6
CLng; "x"; 13
CStr; Null; 94
CVErr; 70000; 5
Error; 70000; 5
Abs; "x"; 13
Abs; -32768; 6
Round; 1, 23; 5
Log; 0; 5
Exp; 1000; 6
Val; "1E999"; 6
DateAdd; "zz", 1, #2003-01-01; 5
DateValue; "x"; 13
MonthName; 13, False; 5
LBound; 1, 1; 13
UBound; List(1), 2; 9
RGB; -1, 0, 0; 5
QBColor; 16; 5
Switch; List(True); 5
DeleteSetting; "None"; 5
SaveSetting; "", "", "", ""; 5
CreateObject; "Word.Application"; 429
Hex; 3E9; 6
Space$; 2000000000; 14
)";

std::string_view trimmed(std::string_view text, bool atEnd = true) {
    while (text.starts_with(' ')) text.remove_prefix(1);
    while (atEnd && text.ends_with(' ')) text.remove_suffix(1);
    return text;
}

std::vector<std::string_view> partsOf(std::string_view text, char separator) {
    std::vector<std::string_view> parts;
    int depth = 0;
    bool isQuoted = false;
    std::size_t from = 0;
    for (std::size_t i = 0; i <= text.size(); ++i) {
        const char c = i < text.size() ? text[i] : separator;
        if (c == '"') isQuoted = !isQuoted;
        if (!isQuoted && c == '(') ++depth;
        if (!isQuoted && c == ')') --depth;
        if (i < text.size() && (c != separator || isQuoted || depth > 0)) continue;
        parts.push_back(text.substr(from, i - from));
        from = i + 1;
    }
    return parts;
}

class FunctionsTest : public LibraryWorld {
protected:
    Variant argument(std::string_view token) {
        token = trimmed(token);
        const auto inside = [&](std::string_view word) -> std::optional<std::string_view> {
            if (!token.starts_with(word)) return std::nullopt;
            return token.substr(word.size(), token.size() - word.size() - 1);
        };
        if (token == "Null") return ofKind(kNull);
        if (token == "Empty") return {};
        if (token == "Missing") return missing();
        if (token == "Nothing") return ofObject(nullptr);
        if (token == "True" || token == "False") return ofBoolean(token == "True");
        if (token.starts_with('"')) return text(toUtf16(token.substr(1, token.size() - 2)));
        if (token.starts_with('#')) return kept(converted(session.heap, text(toUtf16(token.substr(1))), kDate));
        if (const auto cur = inside("Cur(")) return kept(converted(session.heap, text(toUtf16(*cur)), kCurrency));
        if (const auto number = inside("Err(")) return ofNumber(std::atoi(std::string(*number).c_str()), kError);
        if (const auto number = inside("Long(")) return ofNumber(std::atoi(std::string(*number).c_str()), kLong);
        if (const auto items = inside("List(")) {
            std::vector<Variant> list;
            for (const auto item : partsOf(*items, ' ')) list.push_back(argument(item));
            return LibraryWorld::list(list);
        }
        const double number = std::strtod(std::string(token).c_str(), nullptr);
        const bool isInteger =
            token.find_first_of(".E") == std::string_view::npos && number >= -32768 && number <= 32767;
        return isInteger ? ofNumber(static_cast<int>(number), kInteger) : ofFraction(number);
    }

    std::vector<Variant> arguments(std::string_view list) {
        std::vector<Variant> values;
        if (trimmed(list).empty()) return values;
        for (const auto token : partsOf(list, ',')) values.push_back(argument(token));
        return values;
    }

    template <class Check>
    void forEachRow(std::string_view table, Check check) {
        std::size_t rows = 0;
        for (const auto line : partsOf(table, '\n')) {
            if (line.empty() || line.starts_with('#')) continue;
            SCOPED_TRACE(line);
            ++rows;
            const auto parts = partsOf(line, ';');
            ASSERT_GE(parts.size(), 3U);
            check(parts[0], arguments(parts[1]), parts[2].substr(1));
        }
        EXPECT_GT(rows, 30U);
    }
};

} // namespace

TEST_F(FunctionsTest, ReturnWhatTheLanguageDocuments) {
    forEachRow(kCalls, [&](std::string_view name, const std::vector<Variant>& values, std::string_view expected) {
        try {
            EXPECT_EQ(shown(call(name, values)), expected);
        } catch (const basic::RuntimeError& error) { ADD_FAILURE() << "error " << error.Number; }
    });
}

TEST_F(FunctionsTest, RaiseTheErrorsOfTheLanguage) {
    forEachRow(kErrors, [&](std::string_view name, const std::vector<Variant>& values, std::string_view expected) {
        EXPECT_EQ(std::to_string(errorOf(name, values)), trimmed(expected));
    });
}

TEST_F(FunctionsTest, AskTheHostWithTheDefaultButton) {
    const auto buttonOf = [&](std::int32_t style) {
        (void)call("MsgBox", {text(u"Go?"), ofNumber(style), text(u"App")});
        return std::exchange(session.wait, std::nullopt)->wait.usualButton;
    };
    EXPECT_EQ(buttonOf(0), 1);
    EXPECT_EQ(buttonOf(3 + 512), 2);
    EXPECT_EQ(buttonOf(4 + 256 + 32), 7);
    EXPECT_EQ(buttonOf(256), 1); // no second button
    EXPECT_EQ(errorOf("MsgBox", {text(u"?"), ofNumber(6)}), 5);
    EXPECT_FALSE(session.wait);
}

TEST_F(FunctionsTest, KeepSettings) {
    (void)call("SaveSetting", {text(u"App"), text(u"Start"), text(u"Left"), text(u"10")});
    EXPECT_EQ(shown(call("GetSetting", {text(u"app"), text(u"START"), text(u"left"), text(u"5")})), "String 10");
    EXPECT_EQ(shown(call("GetAllSettings", {text(u"App"), text(u"Start")})), "String() String Left|String 10");
    (void)call("DeleteSetting", {text(u"App"), text(u"Start"), text(u"Left")});
    EXPECT_EQ(shown(call("GetAllSettings", {text(u"App"), text(u"Start")})), "Empty");
    EXPECT_EQ(errorOf("DeleteSetting", {text(u"App"), text(u"Start"), text(u"Left")}), 5);
}

TEST_F(FunctionsTest, DeleteSectionsAndApplications) {
    const auto save = [&](std::u16string_view application, std::u16string_view section) {
        (void)call("SaveSetting", {text(application), text(section), text(u"Key"), text(u"1")});
    };
    const auto saved = [&](std::u16string_view application, std::u16string_view section) {
        return shown(call("GetSetting", {text(application), text(section), text(u"Key"), text(u"none")}));
    };
    for (const auto* const section : {u"One", u"Two"}) save(u"App", section);
    save(u"Other", u"One");
    (void)call("DeleteSetting", {text(u"app"), text(u"ONE")});
    EXPECT_EQ(saved(u"App", u"One"), "String none");
    EXPECT_EQ(saved(u"App", u"Two"), "String 1");
    EXPECT_EQ(errorOf("DeleteSetting", {text(u"App"), text(u"One")}), 5);
    EXPECT_EQ(errorOf("DeleteSetting", {text(u"App"), text(u"One"), text(u"Key")}), 5);
    (void)call("DeleteSetting", {text(u"APP")});
    EXPECT_EQ(saved(u"App", u"Two"), "String none");
    EXPECT_EQ(saved(u"Other", u"One"), "String 1");
    EXPECT_EQ(errorOf("DeleteSetting", {text(u"App")}), 5);
    EXPECT_EQ(errorOf("DeleteSetting", {text(u"App"), text(u"Two")}), 5);
}

TEST_F(FunctionsTest, FindVariablesOfTheEnvironment) {
    session.surroundings.environment = {"HOME=/x", "Lang=en=us"};
    session.surroundings.commandLine = "a b";
    EXPECT_EQ(shown(call("Environ", {text(u"home")})), "String /x");
    EXPECT_EQ(shown(call("Environ$", {text(u"LANG")})), "String en=us");
    EXPECT_EQ(shown(call("Environ", {ofNumber(2)})), "String Lang=en=us");
    EXPECT_EQ(shown(call("Environ", {ofNumber(3)})), "String ");
    EXPECT_EQ(shown(call("Command", {})), "String a b");
}

TEST_F(FunctionsTest, StartTheRandomNumbersAsDocumented) {
    EXPECT_EQ(shown(call("Rnd", {missing()})), "Double 0.705547511577606"); // Knowledge Base Q231847
    const auto last = shown(call("Rnd", {missing()}));
    EXPECT_EQ(shown(call("Rnd", {ofNumber(0)})), last);
    (void)call("Rnd", {ofNumber(-1)});
    (void)call("Randomize", {ofNumber(7)});
    const auto first = shown(call("Rnd", {missing()}));
    (void)call("Rnd", {ofNumber(-1)});
    (void)call("Randomize", {ofNumber(7)});
    EXPECT_EQ(shown(call("Rnd", {missing()})), first);
}

TEST_F(FunctionsTest, TakeBytesOfArrays) {
    const Bounds bounds{0, 2};
    ArrayBlock* const array = makeArray(session.heap, {{image::BaseType::Byte}}, {&bounds, 1});
    std::copy_n("abc", 3, array->as<char>());
    EXPECT_EQ(shown(call("StrConv", {kept(ofArray(array)), ofNumber(64)})), "String abc");
}

TEST_F(FunctionsTest, GiveNumbersInThePlaceOfAddresses) {
    const Variant a = text(u"a"), b = text(u"b");
    const auto ofA = shown(call("StrPtr", {a}));
    EXPECT_EQ(shown(call("StrPtr", {a})), ofA);
    EXPECT_NE(shown(call("StrPtr", {b})), ofA);
    EXPECT_EQ(shown(call("StrPtr", {text(u"")})), "Long 0");
}

TEST_F(FunctionsTest, ChargeTheBudgetForWhatTheyMove) {
    (void)session.takeWork();
    (void)call("Space$", {ofNumber(64000)});
    EXPECT_GE(session.takeWork(), 4000U);
}

/// The slot of a variable, as a reference to it.
TEST_F(FunctionsTest, AssignIntoTextsInPlace) {
    Slot variable{};
    const auto reference = [&] {
        Variant v;
        v.low = reinterpret_cast<std::uintptr_t>(&variable);
        return v;
    };
    variable.text = makeText(session.heap, u"abcdef");
    TextBlock* const shared = retain(variable.text);
    (void)call("Mid=", {reference(), ofNumber(2), ofNumber(-1), text(u"XY")});
    EXPECT_EQ(unitsOf(variable.text), u"aXYdef");
    EXPECT_EQ(unitsOf(shared), u"abcdef");
    TextBlock* const inPlace = variable.text;
    (void)call("Mid=", {reference(), ofNumber(5), ofNumber(1), text(u"123")});
    EXPECT_EQ(unitsOf(variable.text), u"aXYd1f");
    EXPECT_EQ(variable.text, inPlace);
    (void)call("MidB=", {reference(), ofNumber(1), ofNumber(1), text(u"Z")});
    EXPECT_EQ(unitsOf(variable.text), u"ZXYd1f");
    EXPECT_EQ(errorOf("Mid=", {reference(), ofNumber(7), ofNumber(-1), text(u"x")}), 5);
    EXPECT_EQ(shown(call("LSet", {text(u"12345"), text(u"ab")})), "String ab   ");
    EXPECT_EQ(shown(call("RSet", {text(u"12345"), text(u"ab")})), "String    ab");
    EXPECT_EQ(shown(call("RSet", {text(u"123"), text(u"abcd")})), "String abc");
    release(session.heap, shared);
    release(session.heap, variable.text);
}

} // namespace tamarik
