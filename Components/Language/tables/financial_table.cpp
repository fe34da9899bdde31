#include "Components/Language/tables/tables.h"

namespace language {

const std::string_view kFinancialTable = R"(
Module Financial
  Function DDB(Cost As Double, Salvage As Double, Life As Double, Period As Double, Optional Factor) As Double pure ' The depreciation of an asset by the double-declining balance method
  Function FV(Rate As Double, NPer As Double, Pmt As Double, Optional PV, Optional Due) As Double pure ' The future value of an annuity
  Function IPmt(Rate As Double, Per As Double, NPer As Double, PV As Double, Optional FV, Optional Due) As Double pure ' The interest of one payment of an annuity
  Function IRR(ValueArray() As Double, Optional Guess) As Double pure ' The internal rate of return of a series of payments
  Function MIRR(ValueArray() As Double, FinanceRate As Double, ReinvestRate As Double) As Double pure ' The modified internal rate of return
  Function NPer(Rate As Double, Pmt As Double, PV As Double, Optional FV, Optional Due) As Double pure ' The number of payments of an annuity
  Function NPV(Rate As Double, ValueArray() As Double) As Double pure ' The net present value of a series of payments
  Function Pmt(Rate As Double, NPer As Double, PV As Double, Optional FV, Optional Due) As Double pure ' The payment of an annuity
  Function PPmt(Rate As Double, Per As Double, NPer As Double, PV As Double, Optional FV, Optional Due) As Double pure ' The principal of one payment of an annuity
  Function PV(Rate As Double, NPer As Double, Pmt As Double, Optional FV, Optional Due) As Double pure ' The present value of an annuity
  Function Rate(NPer As Double, Pmt As Double, PV As Double, Optional FV, Optional Due, Optional Guess) As Double pure ' The interest rate of an annuity
  Function SLN(Cost As Double, Salvage As Double, Life As Double) As Double pure ' The straight-line depreciation of an asset
  Function SYD(Cost As Double, Salvage As Double, Life As Double, Period As Double) As Double pure ' The sum-of-years' digits depreciation of an asset
)";

} // namespace language
