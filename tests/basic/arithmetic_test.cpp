#include "Basic/arithmetic.h"
#include <gtest/gtest.h>

using namespace basic;

namespace {

/// Checks for this error, or for 0 and this result.
template <class T, class F>
void expectResult(F operation, T result, int error) {
    const ErrObject err = attempt([&] { EXPECT_EQ(operation(), result); });
    EXPECT_EQ(err.Number, error);
}

} // namespace

template <class T>
class Arithmetic : public testing::Test {
protected:
    static constexpr T kMost = std::numeric_limits<T>::max();
    static constexpr T kLeast = std::numeric_limits<T>::min();
};
using SignedTypes = testing::Types<Integer, Long>;
TYPED_TEST_SUITE(Arithmetic, SignedTypes);

TYPED_TEST(Arithmetic, OverflowsAndDividesAsItsType) {
    using T = TypeParam;
    constexpr T most = TestFixture::kMost, least = TestFixture::kLeast;
    struct Row {
        T a, b;
        T sum, difference, product, quotient, rest;
        int ofSum, ofDifference, ofProduct, ofQuotient, ofRest; // the error
    };
    const Row rows[] = {
        {7, 2, 9, 5, 14, 3, 1, 0, 0, 0, 0, 0},
        {-7, 2, -5, -9, -14, -3, -1, 0, 0, 0, 0, 0},
        {7, -2, 5, 9, -14, -3, 1, 0, 0, 0, 0, 0},
        {7, 0, 7, 7, 0, 0, 0, 0, 0, 0, 11, 11},
        {most, 1, 0, most - 1, most, most, 0, 6, 0, 0, 0, 0},
        {least, 1, least + 1, 0, least, least, 0, 0, 6, 0, 0, 0},
        {least, -1, 0, least + 1, 0, 0, 0, 6, 0, 6, 6, 0},
        {most, 2, 0, most - 2, 0, most / 2, 1, 6, 0, 6, 0, 0},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(testing::Message() << row.a << " and " << row.b);
        expectResult([&] { return Add(row.a, row.b); }, row.sum, row.ofSum);
        expectResult([&] { return Subtract(row.a, row.b); }, row.difference, row.ofDifference);
        expectResult([&] { return Multiply(row.a, row.b); }, row.product, row.ofProduct);
        expectResult([&] { return IntegerDivide(row.a, row.b); }, row.quotient, row.ofQuotient);
        expectResult([&] { return Mod(row.a, row.b); }, row.rest, row.ofRest);
    }
    EXPECT_EQ(Negate(most), -most);
    EXPECT_EQ(attempt([&] { (void)Negate(least); }).Number, 6);
}

TEST(ArithmeticOfBytes, NegationGivesAnInteger) {
    EXPECT_EQ(Add(Byte{250}, 5), 255);
    EXPECT_EQ(attempt([] { (void)Add(Byte{250}, 6); }).Number, 6);
    EXPECT_EQ(attempt([] { (void)Subtract(Byte{1}, 2); }).Number, 6);
    EXPECT_EQ(attempt([] { (void)Multiply(Byte{16}, 16); }).Number, 6);
    EXPECT_EQ(Negate(Byte{255}), -255);
    EXPECT_EQ(IntegerDivide(Byte{255}, 2), 127);
    EXPECT_EQ(Mod(Byte{255}, 2), 1);
    EXPECT_EQ(attempt([] { (void)Mod(Byte{1}, 0); }).Number, 11);
}

TEST(ArithmeticOfDoubles, PowerAndDivide) {
    struct Row {
        double a, b, power;
        int ofPower;
        double quotient;
        int ofQuotient;
    };
    const Row rows[] = {
        {2, 10, 1024, 0, 0.2, 0},   {-8, 3, -512, 0, -8.0 / 3, 0}, {-8, 0.5, 0, 5, -16, 0},
        {0, 0, 1, 0, 0, 6},         {0, -1, 0, 5, 0, 0},           {5, 0, 1, 0, 0, 11},
        {1e200, 2, 0, 6, 5e199, 0}, {1e300, 1e-300, 1, 0, 0, 6},   {2, -1, 0.5, 0, -2, 0},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(testing::Message() << row.a << " and " << row.b);
        const ErrObject ofPower = attempt([&] { EXPECT_DOUBLE_EQ(Power(row.a, row.b), row.power); });
        EXPECT_EQ(ofPower.Number, row.ofPower);
        const ErrObject ofQuotient = attempt([&] { EXPECT_DOUBLE_EQ(Divide(row.a, row.b), row.quotient); });
        EXPECT_EQ(ofQuotient.Number, row.ofQuotient);
    }
}

TEST(ArithmeticOfDoubles, OverflowsAreErrors) {
    EXPECT_EQ(Add(0.5, 0.25), 0.75);
    EXPECT_EQ(attempt([] { (void)Add(1.7e308, 1e308); }).Number, 6);
    EXPECT_EQ(attempt([] { (void)Subtract(-1.7e308, 1e308); }).Number, 6);
    EXPECT_EQ(attempt([] { (void)Multiply(1e200, -1e200); }).Number, 6);
    EXPECT_EQ(Multiply(1e-200, 1e-200), 0);
}

TEST(ArithmeticOfSingles, ResultsAreRoundedToSingle) {
    EXPECT_EQ(Add(16777216.0F, 1.0F), 16777216.0F);
    EXPECT_EQ(Subtract(0.3F, 0.1F), 0.3F - 0.1F);
    EXPECT_EQ(Multiply(0.1F, 0.1F), 0.1F * 0.1F);
    EXPECT_EQ(Divide(1.0F, 3.0F), 1.0F / 3.0F);
    EXPECT_EQ(Negate(0.1F), -0.1F);
    EXPECT_EQ(Divide(1.0, 3.0F), 1.0 / 3.0);
    EXPECT_EQ(attempt([] { (void)Multiply(3e38F, 2.0F); }).Number, 6);
    EXPECT_EQ(attempt([] { (void)Add(3e38F, 3e38F); }).Number, 6);
    EXPECT_EQ(attempt([] { (void)Divide(1.0F, 0.0F); }).Number, 11);
    EXPECT_EQ(attempt([] { (void)Divide(0.0F, 0.0F); }).Number, 6);
}

TEST(ArithmeticOfCurrency, SumsAreExact) {
    constexpr Currency kMost{std::numeric_limits<std::int64_t>::max()},
        kLeast{std::numeric_limits<std::int64_t>::min()};
    EXPECT_EQ(Add(Currency{1000}, Currency{2000}), Currency{3000});
    EXPECT_EQ(Add(kMost, kLeast), Currency{-1});
    EXPECT_EQ(Negate(kMost), Currency{-kMost.scaled});
    expectResult([&] { return Add(kMost, Currency{1}); }, Currency{}, 6);
    expectResult([&] { return Subtract(kLeast, Currency{1}); }, Currency{}, 6);
    expectResult([&] { return Negate(kLeast); }, Currency{}, 6);
}

TEST(ArithmeticOfCurrency, ProductsAreRoundedHalfToEven) {
    struct Row {
        std::int64_t a, b, product;
        int error;
    };
    constexpr auto kMost = std::numeric_limits<std::int64_t>::max(), kLeast = std::numeric_limits<std::int64_t>::min();
    const Row rows[] = {
        {15000, 20000, 30000, 0},
        {-15000, 20000, -30000, 0},
        {5000, 1, 0, 0},
        {5000, 3, 2, 0},
        {5001, 1, 1, 0},
        {-5000, 3, -2, 0},
        {4999, 1, 0, 0},
        {kMost, 10000, kMost, 0},
        {kLeast, 10000, kLeast, 0},
        {kLeast, -10000, 0, 6},
        {kMost, 10001, 0, 6},
        {kMost, kMost, 0, 6},
        {kLeast, kLeast, 0, 6},
        {kMost, 5000, kMost / 2 + 1, 0},
        {kLeast, 5000, kLeast / 2, 0},
        {3037000499, 10000, 3037000499, 0},
        {99999999999, 123456789, 1234567889987654, 0},
        {4294967295, 8589934592000, 3689348813882916864, 0},
        {8589934592000, 4294967295, 3689348813882916864, 0},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(testing::Message() << row.a << " and " << row.b);
        expectResult([&] { return Multiply(Currency{row.a}, Currency{row.b}); }, Currency{row.product}, row.error);
    }
}

TEST(ArithmeticOfBits, EqvAndImp) {
    EXPECT_EQ(Eqv(Integer{10}, 8), -3);
    EXPECT_EQ(Imp(Integer{10}, 8), -3);
    EXPECT_EQ(Imp(Long{8}, 10), -1);
    EXPECT_EQ(Eqv(Byte{10}, 8), 253);
    for (const bool a : {false, true}) {
        for (const bool b : {false, true}) {
            EXPECT_EQ(Eqv(a, b), a == b);
            EXPECT_EQ(Imp(a, b), b || !a);
        }
    }
}
