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
