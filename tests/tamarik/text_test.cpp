#include "Components/Tamarik/text/building.h"
#include "Components/Tamarik/text/codes.h"
#include "Components/Tamarik/text/letters.h"
#include "Components/Tamarik/text/pieces.h"
#include "Components/Tamarik/text/search.h"
#include "Components/Tamarik/text/strconv.h"
#include "Components/Tamarik/text/values.h"
#include "tests/tamarik/error_of.h"
#include <gtest/gtest.h>
#include <limits>

using namespace tamarik;
using basic::CodePage;
using test::errorOf;

namespace {

std::u16string convert(std::u16string_view text, Long conversion, int page = 1252) {
    return unitsOf(StrConv(bytesOf(text), conversion, CodePage(page)));
}

const std::u16string kAbc = u"abcdef";

} // namespace

TEST(TamarikText, PiecesCountUnits) {
    EXPECT_EQ(Left(kAbc, 2), u"ab");
    EXPECT_EQ(Left(kAbc, 99), kAbc);
    EXPECT_EQ(Right(kAbc, 2), u"ef");
    EXPECT_EQ(Right(kAbc, 0), u"");
    EXPECT_EQ(Mid(kAbc, 2, 3), u"bcd");
    EXPECT_EQ(Mid(kAbc, 4), u"def");
    EXPECT_EQ(Mid(kAbc, 7), u"");
    EXPECT_EQ(Mid(kAbc, std::numeric_limits<Long>::max()), u"");
    EXPECT_EQ(Left(u"😀", 1), std::u16string(1, 0xD83D));
}

TEST(TamarikText, PiecesRefuseNegativeLengthsAndPlacesBeforeTheText) {
    EXPECT_EQ(errorOf([] { Left(u"a", -1); }), 5);
    EXPECT_EQ(errorOf([] { Right(u"a", -1); }), 5);
    EXPECT_EQ(errorOf([] { Mid(u"a", 0); }), 5);
    EXPECT_EQ(errorOf([] { Mid(u"a", 1, -1); }), 5);
    EXPECT_EQ(errorOf([] { MidB("a", 0); }), 5);
}

TEST(TamarikText, BytesMayBeOdd) {
    const auto bytes = bytesOf(u"AB");
    EXPECT_EQ(bytes, std::string("A\0B\0", 4));
    EXPECT_EQ(LeftB(bytes, 3), std::string("A\0B", 3));
    EXPECT_EQ(MidB(bytes, 2, 1), std::string(1, '\0'));
    EXPECT_EQ(RightB(bytes, 1), std::string(1, '\0'));
    EXPECT_EQ(InStrB(1, bytes, "B"), 3);
    EXPECT_EQ(InStrB(4, bytes, "B"), 0);
    EXPECT_EQ(AscB("\xFF"), 255);
    EXPECT_EQ(ChrB(200), '\xC8');
    EXPECT_EQ(errorOf([] { ChrB(256); }), 6);
    EXPECT_EQ(unitsOf(std::string("A\0B", 3)), u"A");
}

TEST(TamarikText, TrimsBlanksOnly) {
    EXPECT_EQ(Trim(u"  a b\t "), u"a b\t");
    EXPECT_EQ(LTrim(u"  a "), u"a ");
    EXPECT_EQ(RTrim(u" a  "), u" a");
    EXPECT_EQ(Trim(u"   "), u"");
}

TEST(TamarikText, CaseMapsEachUnit) {
    EXPECT_EQ(UCase(u"straße éÿ жα"), u"STRAßE ÉŸ ЖΑ");
    EXPECT_EQ(LCase(u"ÀÉ İΣ"), u"àé iσ");
    EXPECT_EQ(UCase(u"𐐨"), u"𐐨");
    EXPECT_EQ(convert(u"hello wORLD\tx'y-z\nq", vbProperCase), u"Hello World\tX'y-z\nQ");
    EXPECT_EQ(convert(u"aB", vbUpperCase), u"AB");
    EXPECT_EQ(convert(u"aB", vbLowerCase), u"ab");
}

TEST(TamarikText, BuildsTexts) {
    EXPECT_EQ(Space(3), u"   ");
    EXPECT_EQ(String(3, u"xy"), u"xxx");
    EXPECT_EQ(String(2, 128), u"€€");
    EXPECT_EQ(String(2, 256 + 65), u"AA");
    EXPECT_EQ(errorOf([] { Space(-1); }), 5);
    EXPECT_EQ(errorOf([] { String(1, u""); }), 5);
    EXPECT_EQ(StrReverse(u"abc"), u"cba");
    const std::u16string pieces[] = {u"a", u"", u"c"};
    EXPECT_EQ(Join(pieces), u"a  c");
    EXPECT_EQ(Join(pieces, u", "), u"a, , c");
}

TEST(TamarikText, AssignsWithinTexts) {
    std::u16string text = u"abcdef";
    replaceMid(text, 2, 2, u"XYZ");
    EXPECT_EQ(text, u"aXYdef");
    replaceMid(text, 5, {}, u"12345");
    EXPECT_EQ(text, u"aXYd12");
    EXPECT_EQ(errorOf([&] { replaceMid(text, 7, {}, u"x"); }), 5);
    EXPECT_EQ(errorOf([&] { replaceMid(text, 1, -1, u"x"); }), 5);
    fillLeft(text, u"ab");
    EXPECT_EQ(text, u"ab    ");
    fillRight(text, u"ab");
    EXPECT_EQ(text, u"    ab");
    fillRight(text, u"abcdefgh");
    EXPECT_EQ(text, u"abcdef");
}

TEST(TamarikText, FindsTexts) {
    EXPECT_EQ(InStr(1, u"abcabc", u"c"), 3);
    EXPECT_EQ(InStr(4, u"abcabc", u"c"), 6);
    EXPECT_EQ(InStr(1, u"abc", u"B"), 0);
    EXPECT_EQ(InStr(1, u"abÉ", u"é", vbTextCompare), 3);
    EXPECT_EQ(InStr(3, u"ÉÉab", u"B", vbTextCompare), 4);
    EXPECT_EQ(InStr(1, u"éab", u"È", vbTextCompare), 0);
    EXPECT_EQ(InStr(2, u"abc", u""), 2);
    EXPECT_EQ(InStr(4, u"abc", u""), 0);
    EXPECT_EQ(InStr(1, u"", u""), 0);
    EXPECT_EQ(errorOf([] { InStr(0, u"a", u"a"); }), 5);
    EXPECT_EQ(InStrRev(u"abcabc", u"c"), 6);
    EXPECT_EQ(InStrRev(u"abcabc", u"C", 5, vbTextCompare), 3);
    EXPECT_EQ(InStrRev(u"abc", u"", 2), 2);
    EXPECT_EQ(InStrRev(u"abc", u"a", 4), 0);
    EXPECT_EQ(errorOf([] { InStrRev(u"a", u"a", 0); }), 5);
}

TEST(TamarikText, SplitsReplacesAndFilters) {
    using Views = std::vector<std::u16string_view>;
    EXPECT_EQ(Split(u"a,b,,c", u","), (Views{u"a", u"b", u"", u"c"}));
    EXPECT_EQ(Split(u"a,b,c", u",", 2), (Views{u"a", u"b,c"}));
    EXPECT_EQ(Split(u"aXbxc", u"x", -1, vbTextCompare), (Views{u"a", u"b", u"c"}));
    EXPECT_EQ(Split(u"", u",").size(), 0U);
    EXPECT_EQ(Split(u"a b", u"").size(), 1U);
    EXPECT_EQ(errorOf([] { Split(u"a", u",", -2); }), 5);
    EXPECT_EQ(Replace(u"aaa", u"a", u"bb", 1, 2), u"bbbba");
    EXPECT_EQ(Replace(u"xaxa", u"A", u"-", 3, -1, vbTextCompare), u"x-");
    EXPECT_EQ(Replace(u"aaaa", u"aa", u"b"), u"bb");
    EXPECT_EQ(Split(u"a::::b", u"::"), (Views{u"a", u"", u"b"}));
    EXPECT_EQ(Replace(u"abc", u"", u"-"), u"abc");
    EXPECT_EQ(Replace(u"abc", u"b", u"-", 9), u"");
    const std::u16string pieces[] = {u"apple", u"Pear", u"plum"};
    EXPECT_EQ(Filter(pieces, u"p", true), (std::vector<std::u16string>{u"apple", u"plum"}));
    EXPECT_EQ(Filter(pieces, u"P", false, vbTextCompare).size(), 0U);
}

TEST(TamarikText, ComparesByUnitOrFolded) {
    EXPECT_EQ(compare(u"a", u"B"), 1);
    EXPECT_EQ(compare(u"a", u"B", vbTextCompare), -1);
    EXPECT_EQ(compare(u"É", u"é", vbTextCompare), 0);
    EXPECT_EQ(compare(u"é", u"È", vbTextCompare), 1);
    EXPECT_EQ(compare(u"я", u"Ю", vbTextCompare), 1);
    EXPECT_EQ(compare(u"日", u"本", vbTextCompare), -1);
    EXPECT_EQ(compare(u"ab", u"abc"), -1);
    EXPECT_EQ(compare(u"\uFFFF", u"😀"), 1); // by unit, not by code point
}

TEST(TamarikText, LikeComparesUnits) {
    EXPECT_TRUE(Like(u"aBBBa", u"a*a"));
    EXPECT_TRUE(Like(u"F", u"[A-Z]"));
    EXPECT_FALSE(Like(u"F", u"[!A-Z]"));
    EXPECT_TRUE(Like(u"É", u"é", vbTextCompare));
    EXPECT_FALSE(Like(u"É", u"é"));
    EXPECT_TRUE(Like(u"😀", u"??"));
    EXPECT_FALSE(Like(u"😀", u"?"));
    EXPECT_EQ(errorOf([] { Like(u"a", u"[z-a]"); }), 93);
}

TEST(TamarikText, CodesAreThoseOfThePage) {
    EXPECT_EQ(Asc(u"€uro"), 128);
    EXPECT_EQ(AscW(u"€"), 0x20AC);
    EXPECT_EQ(AscW(u"\uFFFF"), -1);
    EXPECT_EQ(Asc(u"日"), '?');
    EXPECT_EQ(Asc(u"日", CodePage(932)), static_cast<Integer>(0x93FA));
    EXPECT_EQ(Chr(0x93FA, CodePage(932)), u"日");
    EXPECT_EQ(Chr(128), u"€");
    EXPECT_EQ(ChrW(-1), u'\uFFFF');
    EXPECT_EQ(ChrW(0xD83D), 0xD83D);
    EXPECT_EQ(errorOf([] { Chr(256); }), 5);
    EXPECT_EQ(errorOf([] { ChrW(65536); }), 5);
    EXPECT_EQ(errorOf([] { Asc(u""); }), 5);
    EXPECT_EQ(errorOf([] { AscW(u""); }), 5);
    EXPECT_EQ(errorOf([] { AscB(""); }), 5);
}

TEST(TamarikText, BytesOfAPageHaveAQuestionMarkForEachMissingUnit) {
    EXPECT_EQ(StrConv(bytesOf(u"a€日😀"), vbFromUnicode), "a\x80???");
    EXPECT_EQ(StrConv(bytesOf(u"日本"), vbFromUnicode, CodePage(932)), "\x93\xFA\x96\x7B");
    EXPECT_EQ(unitsOf(StrConv("a\x80", vbUnicode)), u"a€");
    EXPECT_EQ(unitsOf(StrConv("\xA4\xA4\xA4\xE5", vbUnicode, CodePage(950))), u"中文");
    EXPECT_EQ(StrConv(bytesOf(u"ab"), vbUpperCase | vbFromUnicode), "AB");
    EXPECT_EQ(StrConv(std::string("a\0b", 3), vbUpperCase), std::string("A\0b", 3));
}

TEST(TamarikText, EveryByteSurvivesTheWayThroughUnicode) {
    for (const int page : {874, 932, 936, 949, 950, 1250, 1251, 1252, 1256, 65001})
        for (int byte = 0; byte < 256; ++byte) {
            const std::string one(1, static_cast<char>(byte));
            EXPECT_EQ(StrConv(StrConv(one, vbUnicode, CodePage(page)), vbFromUnicode, CodePage(page)), one) << page;
        }
}

TEST(TamarikText, WidthsAndKanaHaveTheirPages) {
    EXPECT_EQ(convert(u"Ab 1", vbWide, 932), u"Ａｂ　１");
    EXPECT_EQ(convert(u"ｶﾞﾊﾟｱ", vbWide, 932), u"ガパア");
    EXPECT_EQ(convert(u"ガパアＡ　日", vbNarrow, 932), u"ｶﾞﾊﾟｱA 日");
    EXPECT_EQ(convert(u"ひらゔ", vbKatakana, 932), u"ヒラヴ");
    EXPECT_EQ(convert(u"カタ日", vbHiragana, 932), u"かた日");
    EXPECT_EQ(convert(u"か", vbKatakana | vbNarrow, 932), u"ｶ");
    EXPECT_EQ(convert(u"a", vbWide, 936), u"ａ");
    EXPECT_EQ(errorOf([] { convert(u"a", vbWide); }), 5);
    EXPECT_EQ(errorOf([] { convert(u"a", vbKatakana, 936); }), 5);
    EXPECT_EQ(errorOf([] { convert(u"a", vbWide | vbNarrow, 932); }), 5);
    EXPECT_EQ(errorOf([] { convert(u"a", vbUnicode | vbFromUnicode); }), 5);
    EXPECT_EQ(errorOf([] { convert(u"a", 256); }), 5);
}

TEST(TamarikText, NumbersAreReadAndWritten) {
    EXPECT_EQ(tamarik::CStr(1.5), u"1.5");
    EXPECT_EQ(tamarik::CStr(basic::Currency{-12345}), u"-1.2345");
    EXPECT_EQ(Str(Long{7}), u" 7");
    EXPECT_EQ(Str(CDec(u"-0.50")), u"-.5");
    EXPECT_EQ(Str(CDec(u"0")), u" 0");
    EXPECT_EQ(tamarik::CStr(CDec(u"1,234.50")), u"1234.5");
    EXPECT_EQ(Hex(Integer{-1}), u"FFFF");
    EXPECT_EQ(Oct(Long{8}), u"10");
    EXPECT_EQ(Val(u" 1 2.5e1x"), 125);
    EXPECT_TRUE(IsNumeric(u" $1 "));
    EXPECT_FALSE(IsNumeric(u"１"));
}
