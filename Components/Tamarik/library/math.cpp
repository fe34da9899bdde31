// The module Math, and random numbers.
#include "Components/Tamarik/numbers/math.h"
#include "Components/Tamarik/library/library_function.h"
#include "Components/Tamarik/library/library_natives.h"
#include <cmath>

namespace tamarik {

namespace {

template <double (*F)(double)>
double function(Session&, double number) {
    return F(number);
}

double rnd(Session& session, const Variant& number) {
    if (number.isMissing()) return session.random.next();
    return session.random.next(static_cast<float>(fractionOf(number, image::BaseType::Single)));
}

double secondsOfDay(Session& session) {
    const double days = session.surroundings.now().days;
    return (days - std::floor(days)) * 86400;
}

void randomize(Session& session, const Variant& seed) {
    session.random.randomize(seed.isMissing() ? static_cast<double>(static_cast<float>(secondsOfDay(session)))
                                              : fractionOf(seed));
}

} // namespace

void addMath(Natives& natives) {
    natives.add("Atn", native<&function<&Atn>>());
    natives.add("Cos", native<&function<&Cos>>());
    natives.add("Exp", native<&function<&Exp>>());
    natives.add("Log", native<&function<&Log>>());
    natives.add("Sin", native<&function<&Sin>>());
    natives.add("Sqr", native<&function<&Sqr>>());
    natives.add("Tan", native<&function<&Tan>>());
    natives.add("Rnd", native<&rnd>());
    natives.add("Randomize", native<&randomize>());
}

} // namespace tamarik
