#include "Components/Tamarik/numbers/decimal96.h"
#include "tests/tamarik/error_of.h"
#include <algorithm>
#include <gtest/gtest.h>
#include <limits>
#include <random>

using tamarik::Decimal96;
using test::errorOf;

namespace {

// Twice the width of the operands below, so that the expected results are exact.
__extension__ using Exact = unsigned __int128;
const Exact kMost = (Exact{1} << 96) - 1;

Decimal96 number(std::string_view text) { return Decimal96::parse(text); }

Exact power(int exponent) {
    Exact result = 1;
    for (; exponent > 0; --exponent) result *= 10;
    return result;
}

Decimal96 decimal(Exact digits, int scale, bool negative) {
    return {{std::uint32_t(digits), std::uint32_t(digits >> 32), std::uint32_t(digits >> 64)}, scale, negative};
}

/// Rounds halves to even until the digits fit.
Decimal96 fitted(Exact exact, int scale, bool negative) {
    for (int drop = std::max(0, scale - 28);; ++drop) {
        const Exact divisor = power(drop), rest = exact % divisor;
        Exact digits = exact / divisor;
        if (drop > 0 && (rest * 2 > divisor || (rest * 2 == divisor && digits % 2 == 1))) ++digits;
        if (digits <= kMost) return decimal(digits, scale - drop, negative);
    }
}

/// Operands of random sizes and scales.
struct Operands {
    std::uint64_t a, b;
    int scaleA, scaleB;
    bool negativeA, negativeB;

    explicit Operands(std::mt19937_64& random)
        : a(random() >> (1 + random() % 63)),
          b(random() >> (1 + random() % 63)),
          scaleA(int(random() % 19)),
          scaleB(int(random() % 19)),
          negativeA(random() % 2),
          negativeB(random() % 2) {}
    Decimal96 first() const { return decimal(a, scaleA, negativeA); }
    Decimal96 second() const { return decimal(b, scaleB, negativeB); }
};

void expectSame(const Decimal96& got, const Decimal96& expected) {
    EXPECT_EQ(got.text(), expected.text());
    EXPECT_EQ(got, expected);
}

} // namespace

TEST(Decimal96, SumsAreExact) {
    std::mt19937_64 random(1);
    for (int i = 0; i < 20000; ++i) {
        const Operands o(random);
        const int scale = std::max(o.scaleA, o.scaleB);
        const Exact a = o.a * power(scale - o.scaleA), b = o.b * power(scale - o.scaleB);
        if (a > kMost || b > kMost) continue;
        const bool same = o.negativeA == o.negativeB;
        const Exact size = same ? a + b : std::max(a, b) - std::min(a, b);
        expectSame(o.first() + o.second(), fitted(size, scale, a >= b ? o.negativeA : o.negativeB));
        expectSame(o.first() + o.second() - o.second(), o.first());
    }
}

TEST(Decimal96, ProductsAreRoundedOnce) {
    std::mt19937_64 random(2);
    for (int i = 0; i < 20000; ++i) {
        const Operands o(random);
        if (Exact{o.a} * o.b / power(o.scaleA + o.scaleB) > kMost) continue;
        expectSame(o.first() * o.second(), fitted(Exact{o.a} * o.b, o.scaleA + o.scaleB, o.negativeA != o.negativeB));
    }
}

TEST(Decimal96, QuotientsAreRoundedOnce) {
    std::mt19937_64 random(3);
    for (int i = 0; i < 20000; ++i) {
        const Operands o(random);
        if (o.b == 0) continue;
        // As many digits as can be needed, then 1 if more follow.
        Exact quotient = o.a / o.b, rest = o.a % o.b;
        int scale = o.scaleA - o.scaleB;
        while (quotient < kMost * 100 && scale < 30) {
            quotient = quotient * 10 + rest * 10 / o.b;
            rest = rest * 10 % o.b;
            ++scale;
        }
        if (rest != 0 && quotient % 5 == 0) ++quotient;
        if (scale < 0 && quotient > kMost / power(-scale)) continue;
        while (scale < 0) {
            quotient *= 10;
            ++scale;
        }
        if (quotient / power(scale) > kMost) continue;
        expectSame(o.first() / o.second(), fitted(quotient, scale, o.negativeA != o.negativeB));
    }
}

TEST(Decimal96, ComparesByValue) {
    std::mt19937_64 random(4);
    for (int i = 0; i < 20000; ++i) {
        const Operands o(random);
        EXPECT_EQ(o.first() < o.second(), (o.first() - o.second()).isNegative());
        EXPECT_EQ(o.first() == o.second(), (o.first() - o.second()).isZero());
    }
    EXPECT_EQ(number("1.0"), number("1.00"));
    EXPECT_EQ(decimal(0, 3, true), number("0"));
}

TEST(Decimal96, DividesWholeNumbersAfterRounding) {
    const auto text = [](const Decimal96& n) { return n.text(); };
    EXPECT_EQ(text(integerDivide(number("-7"), number("2"))), "-3");
    EXPECT_EQ(text(mod(number("-7"), number("2"))), "-1");
    EXPECT_EQ(text(mod(number("19"), number("6.7"))), "5");
    EXPECT_EQ(text(integerDivide(number("2.5"), number("1"))), "2");
    EXPECT_EQ(errorOf([&] { mod(number("1"), number("0.4")); }), 11);
    EXPECT_EQ(errorOf([&] { number("1") / number("0"); }), 11);
    EXPECT_EQ(text(mod(number("79228162514264337593543950335"), number("10000000000000000000000"))),
              "2514264337593543950335");
}

TEST(Decimal96, KeepsNoMoreDecimalsThanAQuotientNeeds) {
    EXPECT_EQ((number("1") / number("4")).text(), "0.25");
    EXPECT_EQ((number("10") / number("5")).scale(), 0);
    EXPECT_EQ((number("1") / number("3")).text(), "0.3333333333333333333333333333");
    EXPECT_EQ((number("2") / number("3")).text(), "0.6666666666666666666666666667");
    EXPECT_EQ((number("200") / number("3")).text(), "66.666666666666666666666666667");
}

TEST(Decimal96, OverflowsBeyond96Bits) {
    const auto most = number("79228162514264337593543950335");
    EXPECT_EQ(most.text(), "79228162514264337593543950335");
    EXPECT_EQ(errorOf([&] { most + number("1"); }), 6);
    EXPECT_EQ((most + number("0.4")), most);
    EXPECT_EQ(errorOf([&] { most + number("0.5"); }), 6);
    EXPECT_EQ(errorOf([&] { most* number("2"); }), 6);
    EXPECT_EQ(errorOf([] { number("79228162514264337593543950336"); }), 6);
    EXPECT_EQ(errorOf([] { number("1e300"); }), 6);
    EXPECT_EQ(errorOf([] { Decimal96::fromDouble(8e28); }), 6);
    EXPECT_EQ(errorOf([] { Decimal96::fromDouble(std::numeric_limits<double>::quiet_NaN()); }), 6);
    EXPECT_EQ(errorOf([] { number("x"); }), 13);
}

TEST(Decimal96, ReadsAndWritesTexts) {
    const std::pair<const char*, const char*> rows[] = {
        {"0", "0"},
        {"-0", "0"},
        {" (1,234.50) ", "-1234.5"},
        {"1e28", "10000000000000000000000000000"},
        {"1e-28", "0.0000000000000000000000000001"},
        {"1.5e-28", "0.0000000000000000000000000002"},
        {"0.5e-28", "0"},
        {"0.50000000000000000000000000000000000000000000000000000000000000000001e-28",
         "0.0000000000000000000000000001"},
        {"1e-29", "0"},
        {"1e-100000", "0"},
        {"79228162514264337593543950335.4", "79228162514264337593543950335"},
        {"7.92281625142643375935439503355", "7.922816251426433759354395034"},
        {"&HFFFF", "65535"},
        {"000000000000000000000000000000000000000000000000000000000000000000000001", "1"},
        {"0.1000000000000000000000000000000000000000000000000000000000000000000000001", "0.1"},
    };
    for (const auto& [text, written] : rows) EXPECT_EQ(number(text).text(), written) << text;
}

TEST(Decimal96, ConvertsToAndFromOtherTypes) {
    EXPECT_EQ(Decimal96(std::numeric_limits<std::int64_t>::min()).text(), "-9223372036854775808");
    EXPECT_EQ(Decimal96(basic::Currency{-15000}).text(), "-1.5");
    EXPECT_EQ(Decimal96(basic::Currency{-15000}).scale(), 1);
    EXPECT_EQ(Decimal96::fromDouble(0.1 + 0.2).text(), "0.3");
    EXPECT_EQ(Decimal96::fromDouble(-1e-5).text(), "-0.00001");
    EXPECT_EQ(Decimal96::fromSingle(0.1F).text(), "0.1");
    EXPECT_EQ(number("-1.25").toDouble(), -1.25);
    EXPECT_EQ(number("79228162514264337593543950335").toDouble(), 7.9228162514264338e28);
    EXPECT_EQ(number("1.00005").toCurrency().scaled, 10000);
    EXPECT_EQ(number("1.00015").toCurrency().scaled, 10002);
    EXPECT_EQ(errorOf([] { number("1e20").toCurrency(); }), 6);
}

TEST(Decimal96, Rounds) {
    EXPECT_EQ(number("2.5").rounded(0).text(), "2");
    EXPECT_EQ(number("-3.5").rounded(0).text(), "-4");
    EXPECT_EQ(number("2.345").rounded(2).text(), "2.34");
    EXPECT_EQ(number("2.3").rounded(5).text(), "2.3");
    EXPECT_EQ(number("-2.5").fix().text(), "-2");
    EXPECT_EQ(number("-2.5").floor().text(), "-3");
    EXPECT_EQ(number("-2").floor().text(), "-2");
    EXPECT_EQ(number("2.5").floor().text(), "2");
}
