#include "Basic/arithmetic.h"
#include "Basic/conversions.h"
#include "Basic/elementary/elementary.h"
#include "Components/Tamarik/numbers/math.h"
#include "Components/Tamarik/numbers/partition.h"
#include "Components/Tamarik/numbers/random.h"
#include "tests/tamarik/error_of.h"
#include <bit>
#include <cmath>
#include <cstdint>
#include <gtest/gtest.h>
#include <limits>

using namespace tamarik;
using test::errorOf;
namespace elementary = basic::elementary;

namespace {

/// Numbers from `low` to `high`, the same on every machine.
class Arguments {
public:
    Arguments(double low, double high) : low_(low), width_(high - low) {}
    double next() {
        state_ = state_ * 6364136223846793005U + 1442695040888963407U;
        return low_ + width_ * (static_cast<double>(state_ >> 11) * 0x1p-53);
    }

private:
    std::uint64_t state_ = 1;
    double low_, width_;
};

double unitInTheLastPlace(double x) {
    const double size = std::abs(x);
    return std::nextafter(size, std::numeric_limits<double>::infinity()) - size;
}

template <class F, class Expected>
void expectNear(F function, Expected expected, double low, double high) {
    Arguments arguments(low, high);
    for (int i = 0; i < 20000; ++i) {
        const double x = arguments.next(), want = expected(x);
        ASSERT_LE(std::abs(function(x) - want), unitInTheLastPlace(want)) << std::hexfloat << x;
    }
}

/// FNV-1a of the bits of 10,000 results.
template <class F>
std::uint64_t hashOf(F function, double low, double high) {
    Arguments arguments(low, high);
    std::uint64_t hash = 0xCBF29CE484222325;
    for (int i = 0; i < 10000; ++i)
        hash = (hash ^ std::bit_cast<std::uint64_t>(function(arguments.next()))) * 0x100000001B3;
    return hash;
}

double nearOneToLarge(double x) { return elementary::power(1.25, x); }

} // namespace

TEST(Math, IsWithinOneUnitOfTheCLibrary) {
    for (const double size : {1.0, 100.0, 1e6, 1e15, 1e300}) {
        SCOPED_TRACE(size);
        expectNear(
            elementary::sine, [](double x) { return std::sin(x); }, -size, size);
        expectNear(
            elementary::cosine, [](double x) { return std::cos(x); }, -size, size);
        expectNear(
            elementary::tangent, [](double x) { return std::tan(x); }, -size, size);
        expectNear(
            elementary::arctangent, [](double x) { return std::atan(x); }, -size, size);
        expectNear(
            elementary::logarithm, [](double x) { return std::log(x); }, 1e-300, size);
    }
    expectNear(
        elementary::exponential, [](double x) { return std::exp(x); }, -745, 709);
    expectNear(
        elementary::exponential, [](double x) { return std::exp(x); }, -1, 1);
    expectNear(
        nearOneToLarge, [](double x) { return std::pow(1.25, x); }, -3000, 3000);
    expectNear([](double x) { return elementary::power(x, -3.5); }, [](double x) { return std::pow(x, -3.5); }, 1e-9,
               99);
    expectNear([](double x) { return elementary::power(x, 3e9); }, [](double x) { return std::pow(x, 3e9); }, 1 - 1e-8,
               1 + 1e-8);
}

TEST(Math, HasTheSameBitsOnEveryMachine) {
    EXPECT_EQ(hashOf(elementary::sine, -1000, 1000), 10207073107353910854U);
    EXPECT_EQ(hashOf(elementary::cosine, -1000, 1000), 2138681103761221519U);
    EXPECT_EQ(hashOf(elementary::tangent, -1e20, 1e20), 3885683952485139095U);
    EXPECT_EQ(hashOf(elementary::arctangent, -10, 10), 1652545174673152622U);
    EXPECT_EQ(hashOf(elementary::exponential, -700, 700), 18332393658487055095U);
    EXPECT_EQ(hashOf(elementary::logarithm, 1e-10, 1e3), 14221315228602567308U);
    EXPECT_EQ(hashOf(nearOneToLarge, -2000, 2000), 4078776779724871366U);
}

TEST(Math, TheSquareRootIsAPower) {
    for (const double x : {2.0, 3.0, 0.1, 1e300}) EXPECT_EQ(elementary::power(x, 0.5), std::sqrt(x)) << x;
}

TEST(Math, WholePowersAreExact) {
    for (int base = 2; base <= 100; ++base) {
        double expected = base;
        for (int exponent = 1; expected < 0x1p53; ++exponent, expected *= base)
            EXPECT_EQ(basic::Power(base, exponent), expected) << base << '^' << exponent;
    }
    EXPECT_EQ(basic::Power(10, 22), 1e22);
    EXPECT_EQ(basic::Power(2, -1074), std::numeric_limits<double>::denorm_min());
    EXPECT_EQ(basic::Power(-2, 3), -8);
    EXPECT_EQ(basic::Power(-2, 2), 4);
    EXPECT_EQ(basic::Power(0, 0), 1);
    EXPECT_EQ(basic::Power(0, 2.5), 0);
    EXPECT_EQ(basic::Power(0.5, 1e300), 0);
    EXPECT_EQ(errorOf([] { basic::Power(2, 1024); }), 6);
    EXPECT_EQ(errorOf([] { basic::Power(-8, 1.0 / 3); }), 5);
    EXPECT_EQ(errorOf([] { basic::Power(0, -1); }), 5);
}

TEST(Math, RefusesWhatHasNoResult) {
    EXPECT_EQ(errorOf([] { Log(0); }), 5);
    EXPECT_EQ(errorOf([] { Log(-1); }), 5);
    EXPECT_EQ(errorOf([] { Sqr(-1); }), 5);
    EXPECT_EQ(errorOf([] { Exp(709.782712893); }), 0);
    EXPECT_EQ(errorOf([] { Exp(709.79); }), 6);
    EXPECT_EQ(Exp(-800), 0);
    EXPECT_EQ(Sqr(2), 1.4142135623730951);
    EXPECT_EQ(4 * Atn(1), 3.141592653589793);
    EXPECT_EQ(Sin(0), 0);
    EXPECT_EQ(Cos(0), 1);
    EXPECT_EQ(Tan(1), std::tan(1.0));
}

TEST(Random, StartsWithTheSameNumbers) {
    Random random;
    // Knowledge Base article Q231847
    EXPECT_EQ(basic::CStr(random.next()), "0.7055475");
    EXPECT_EQ(basic::CStr(random.next()), "0.533424");
    EXPECT_EQ(basic::CStr(random.next()), "0.5795186");
    EXPECT_EQ(random.next(0), random.next(0));
    EXPECT_EQ(basic::CStr(random.next(0)), "0.5795186");
    EXPECT_EQ(basic::CStr(random.next(1)), "0.2895625");
}

TEST(Random, RandomizeReplacesTheMiddleBits) {
    Random random;
    // 12820163 and 6000250 of 2^24: https://rlmueller.net/CrackRnd.htm
    random.randomize(0);
    EXPECT_EQ(basic::CStr(random.next()), "0.7641413");
    EXPECT_EQ(basic::CStr(random.next()), "0.3576428");
}

TEST(Random, NegativeArgumentsStartOver) {
    Random a, b;
    b.next();
    EXPECT_EQ(a.next(-1), b.next(-1));
    EXPECT_EQ(a.next(), b.next());
    EXPECT_EQ(basic::CStr(a.next(-1)), "0.224007");
    EXPECT_NE(a.next(-1), a.next(-2));
}

TEST(Random, RandomizeRepeatsOnlyAfterANegativeArgument) {
    Random a, b;
    a.randomize(42);
    const auto first = a.next();
    a.randomize(42);
    EXPECT_NE(a.next(), first);
    a.next(-1);
    a.randomize(42);
    b.next(-1);
    b.randomize(42);
    EXPECT_EQ(a.next(), b.next());
}

TEST(Random, GoesThroughAllNumbers) {
    Random random;
    const auto first = random.next();
    int count = 1;
    while (random.next() != first) ++count;
    EXPECT_EQ(count, 1 << 24);
}

TEST(Partition, ReturnsTheRange) {
    EXPECT_EQ(Partition(3, 0, 99, 5), "  0:  4");
    EXPECT_EQ(Partition(97, 0, 99, 5), " 95: 99");
    EXPECT_EQ(Partition(-5, 0, 99, 5), "   : -1");
    EXPECT_EQ(Partition(100, 0, 99, 5), "100:   ");
    EXPECT_EQ(Partition(1005, 100, 1010, 20), " 1000: 1010");
    EXPECT_EQ(Partition(1011, 100, 1010, 20), " 1011:     ");
    EXPECT_EQ(Partition(100, 0, 1000, 1), "  100:  100");
    EXPECT_EQ(Partition(2147483647, 0, 2147483646, 10), " 2147483647:           ");
    EXPECT_EQ(errorOf([] { Partition(1, -1, 9, 1); }), 5);
    EXPECT_EQ(errorOf([] { Partition(1, 9, 9, 1); }), 5);
    EXPECT_EQ(errorOf([] { Partition(1, 0, 9, 0); }), 5);
}
