// The module Financial.
#include "Components/Tamarik/library/library_function.h"
#include "Components/Tamarik/library/library_natives.h"
#include "Components/Tamarik/numbers/annuity.h"
#include "Components/Tamarik/numbers/cash_flow.h"
#include "Components/Tamarik/numbers/depreciation.h"
#include <span>

namespace tamarik {

namespace {

bool isAtStart(const Variant& due) { return doubleOr(due, 0) != 0; }

double ddb(Session&, double cost, double salvage, double life, double period, const Variant& factor) {
    return DDB(cost, salvage, life, period, doubleOr(factor, 2));
}
double sln(Session&, double cost, double salvage, double life) { return SLN(cost, salvage, life); }
double syd(Session&, double cost, double salvage, double life, double period) {
    return SYD(cost, salvage, life, period);
}

/// FV, PV, Pmt and NPer: three numbers, what is there at the other end, and when payments are due.
template <double (*F)(double, double, double, double, bool)>
double annuity(Session&, double a, double b, double c, const Variant& other, const Variant& due) {
    return F(a, b, c, doubleOr(other, 0), isAtStart(due));
}

/// IPmt and PPmt.
template <double (*F)(double, double, double, double, double, bool)>
double partOfPayment(Session&, double rate, double period, double periods, double present, const Variant& future,
                     const Variant& due) {
    return F(rate, period, periods, present, doubleOr(future, 0), isAtStart(due));
}

double rate(Session&, double periods, double payment, double present, const Variant& future, const Variant& due,
            const Variant& guess) {
    return Rate(periods, payment, present, doubleOr(future, 0), isAtStart(due), doubleOr(guess, 0.1));
}

std::span<const double> valuesIn(DoubleArray values) {
    const ArrayBlock* const array = values.array;
    if (!array || array->bounds.empty()) throw basic::RuntimeError(basic::kSubscriptOutOfRange);
    if (array->element.type.base != image::BaseType::Double) throw basic::RuntimeError(basic::kTypeMismatch);
    return {array->as<double>(), array->size};
}

double npv(Session&, double rateOfPeriod, DoubleArray values) { return NPV(rateOfPeriod, valuesIn(values)); }
double irr(Session&, DoubleArray values, const Variant& guess) { return IRR(valuesIn(values), doubleOr(guess, 0.1)); }
double mirr(Session&, DoubleArray values, double finance, double reinvest) {
    return MIRR(valuesIn(values), finance, reinvest);
}

} // namespace

void addFinancial(Natives& natives) {
    natives.add("DDB", native<&ddb>());
    natives.add("SLN", native<&sln>());
    natives.add("SYD", native<&syd>());
    natives.add("FV", native<&annuity<&FV>>());
    natives.add("PV", native<&annuity<&PV>>());
    natives.add("Pmt", native<&annuity<&Pmt>>());
    natives.add("NPer", native<&annuity<&NPer>>());
    natives.add("IPmt", native<&partOfPayment<&IPmt>>());
    natives.add("PPmt", native<&partOfPayment<&PPmt>>());
    natives.add("Rate", native<&rate>());
    natives.add("NPV", native<&npv>());
    natives.add("IRR", native<&irr>());
    natives.add("MIRR", native<&mirr>());
}

} // namespace tamarik
