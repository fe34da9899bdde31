// Expected values: the examples that the reference pages of Microsoft Excel's functions of the same names give.
#include "Components/Tamarik/numbers/annuity.h"
#include "Components/Tamarik/numbers/cash_flow.h"
#include "Components/Tamarik/numbers/depreciation.h"
#include "tests/tamarik/error_of.h"
#include <gtest/gtest.h>

using namespace tamarik;
using test::errorOf;

TEST(Financial, Annuities) {
    EXPECT_NEAR(Pmt(0.08 / 12, 10, 10000), -1037.03, 0.005);
    EXPECT_NEAR(Pmt(0.08 / 12, 10, 10000, 0, true), -1030.16, 0.005);
    EXPECT_NEAR(Pmt(0.06 / 12, 18 * 12, 0, 50000), -129.08, 0.005);
    EXPECT_NEAR(FV(0.06 / 12, 10, -200, -500, true), 2581.40, 0.005);
    EXPECT_NEAR(FV(0.12 / 12, 12, -1000), 12682.50, 0.005);
    EXPECT_NEAR(PV(0.08 / 12, 12 * 20, 500), -59777.15, 0.005);
    EXPECT_NEAR(NPer(0.12 / 12, -100, -1000, 10000, true), 59.6738657, 5e-8);
    EXPECT_NEAR(NPer(0.12 / 12, -100, -1000, 10000), 60.0821229, 5e-8);
    EXPECT_NEAR(NPer(0.12 / 12, -100, -1000), -9.57859404, 5e-9);
    EXPECT_NEAR(Rate(48, -200, 8000) * 12, 0.0924, 5e-5);
    EXPECT_NEAR(IPmt(0.1 / 12, 1, 36, 8000), -66.67, 0.005);
    EXPECT_NEAR(IPmt(0.1, 3, 3, 8000), -292.45, 0.005);
    EXPECT_NEAR(PPmt(0.1 / 12, 1, 24, 2000), -75.62, 0.005);
    EXPECT_NEAR(PPmt(0.08, 10, 10, 200000), -27598.05, 0.005);
}

TEST(Financial, AnnuitiesAgreeWithEachOther) {
    for (const bool atStart : {false, true})
        for (const double rate : {0.0, 0.01, -0.02}) {
            const double payment = Pmt(rate, 24, 5000, -1000, atStart);
            EXPECT_NEAR(PV(rate, 24, payment, -1000, atStart), 5000, 1e-7);
            EXPECT_NEAR(FV(rate, 24, payment, 5000, atStart), -1000, 1e-7);
            EXPECT_NEAR(NPer(rate, payment, 5000, -1000, atStart), 24, 1e-7);
            EXPECT_NEAR(Rate(24, payment, 5000, -1000, atStart), rate, 1e-8);
            double principal = 0;
            for (int period = 1; period <= 24; ++period) principal += PPmt(rate, period, 24, 5000, -1000, atStart);
            // The interest of the last period is due after the last payment at a start.
            EXPECT_NEAR(principal, -5000 + 1000 / (atStart ? 1 + rate : 1), 1e-7);
        }
}

TEST(Financial, AnnuitiesRefuseWhatHasNoResult) {
    EXPECT_EQ(errorOf([] { Pmt(0.1, 0, 1000); }), 5);
    EXPECT_EQ(errorOf([] { NPer(0, 0, 1000); }), 5);
    EXPECT_EQ(errorOf([] { NPer(-1, 10, 1000); }), 5);
    EXPECT_EQ(errorOf([] { NPer(0.1, -10, 1000); }), 5);
    EXPECT_EQ(errorOf([] { IPmt(0.1, 0, 12, 1000); }), 5);
    EXPECT_EQ(errorOf([] { IPmt(0.1, 13, 12, 1000); }), 5);
    EXPECT_EQ(errorOf([] { PPmt(0.1, 13, 12, 1000); }), 5);
    EXPECT_EQ(errorOf([] { Rate(0, -200, 8000); }), 5);
    EXPECT_EQ(errorOf([] { Rate(48, 200, 8000); }), 5);
    EXPECT_EQ(errorOf([] { FV(1e300, 1e10, 1); }), 6);
    EXPECT_EQ(IPmt(0.1, 1, 12, 1000, 0, true), 0);
}

TEST(Financial, CashFlows) {
    const double project[] = {-10000, 3000, 4200, 6800}, shop[] = {8000, 9200, 10000, 12000, 14500};
    EXPECT_NEAR(NPV(0.1, project), 1188.44, 0.005);
    EXPECT_NEAR(NPV(0.08, shop) - 40000, 1922.06, 0.005);
    const double business[] = {-70000, 12000, 15000, 18000, 21000, 26000};
    EXPECT_NEAR(IRR(std::span(business).first(5)), -0.0212448, 5e-8);
    EXPECT_NEAR(IRR(business), 0.0866309, 5e-8);
    EXPECT_NEAR(IRR(std::span(business).first(3), -0.1), -0.4435069, 5e-8);
    const double loan[] = {-120000, 39000, 30000, 21000, 37000, 46000};
    EXPECT_NEAR(MIRR(loan, 0.1, 0.12), 0.126094, 5e-7);
    EXPECT_NEAR(MIRR(std::span(loan).first(4), 0.1, 0.12), -0.048045, 5e-7);
    EXPECT_NEAR(MIRR(loan, 0.1, 0.14), 0.134759, 5e-7);
}

TEST(Financial, CashFlowsRefuseWhatHasNoResult) {
    const double gains[] = {1, 2}, losses[] = {-1, -2}, both[] = {-1, 2};
    EXPECT_EQ(errorOf([] { NPV(0.1, {}); }), 5);
    EXPECT_EQ(errorOf([&] { NPV(-1, gains); }), 5);
    EXPECT_EQ(errorOf([&] { IRR(gains); }), 5);
    EXPECT_EQ(errorOf([&] { IRR(losses); }), 5);
    EXPECT_EQ(errorOf([&] { IRR(both, -1); }), 5);
    EXPECT_EQ(errorOf([&] { MIRR(gains, 0.1, 0.1); }), 11);
    EXPECT_EQ(errorOf([&] { MIRR(both, -1, 0.1); }), 5);
    EXPECT_EQ(errorOf([] { MIRR({}, 0.1, 0.1); }), 5);
}

TEST(Financial, Depreciation) {
    EXPECT_EQ(SLN(30000, 7500, 10), 2250);
    EXPECT_NEAR(SYD(30000, 7500, 10, 1), 4090.91, 0.005);
    EXPECT_NEAR(SYD(30000, 7500, 10, 10), 409.09, 0.005);
    EXPECT_NEAR(DDB(2400, 300, 3650, 1), 1.32, 0.005);
    EXPECT_NEAR(DDB(2400, 300, 120, 1), 40, 0.005);
    EXPECT_NEAR(DDB(2400, 300, 10, 1), 480, 0.005);
    EXPECT_NEAR(DDB(2400, 300, 10, 2, 1.5), 306, 0.005);
    EXPECT_NEAR(DDB(2400, 300, 10, 10), 22.12, 0.005);
    EXPECT_EQ(DDB(1000, 100, 1, 1), 900);
}

TEST(Financial, DepreciationRefusesWhatHasNoResult) {
    EXPECT_EQ(errorOf([] { SLN(1, 1, 0); }), 5);
    EXPECT_EQ(errorOf([] { SYD(1000, -1, 10, 1); }), 5);
    EXPECT_EQ(errorOf([] { SYD(1000, 1, 10, 11); }), 5);
    EXPECT_EQ(errorOf([] { SYD(1000, 1, 10, 0); }), 5);
    EXPECT_EQ(errorOf([] { DDB(1000, 1, 10, 11); }), 5);
    EXPECT_EQ(errorOf([] { DDB(1000, 1, 10, 1, 0); }), 5);
}
