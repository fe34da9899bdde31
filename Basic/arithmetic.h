#pragma once
// VB's arithmetic: a result beyond the type's range is error 6, a division by 0 error 11.
#include "Basic/runtime_error.h"
#include "Basic/types.h"
#include <concepts>
#include <limits>
#include <type_traits>

namespace basic {

template <class T>
concept WholeNumber = std::same_as<T, Byte> || std::same_as<T, Integer> || std::same_as<T, Long>;

template <WholeNumber T>
T Add(T a, std::type_identity_t<T> b) {
    T sum;
    if (__builtin_add_overflow(a, b, &sum)) throw RuntimeError(kOverflow);
    return sum;
}

template <WholeNumber T>
T Subtract(T a, std::type_identity_t<T> b) {
    T difference;
    if (__builtin_sub_overflow(a, b, &difference)) throw RuntimeError(kOverflow);
    return difference;
}

template <WholeNumber T>
T Multiply(T a, std::type_identity_t<T> b) {
    T product;
    if (__builtin_mul_overflow(a, b, &product)) throw RuntimeError(kOverflow);
    return product;
}

/// Returns -a. The result for a Byte is an Integer, since a Byte cannot be negative.
template <WholeNumber T>
auto Negate(T a) {
    using Result = std::conditional_t<std::same_as<T, Byte>, Integer, T>;
    return Subtract<Result>(0, a);
}

/// VB's \: the quotient, truncated.
template <WholeNumber T>
T IntegerDivide(T a, std::type_identity_t<T> b) {
    if (b == 0) throw RuntimeError(kDivisionByZero);
    if constexpr (std::is_signed_v<T>) {
        if (a == std::numeric_limits<T>::min() && b == -1) throw RuntimeError(kOverflow);
    }
    return static_cast<T>(a / b);
}

/// VB's Mod: the remainder of \, with the sign of `a`.
template <WholeNumber T>
T Mod(T a, std::type_identity_t<T> b) {
    if (b == 0) throw RuntimeError(kDivisionByZero);
    if constexpr (std::is_signed_v<T>) {
        if (b == -1) return 0;
    }
    return static_cast<T>(a % b);
}

/// Rounds the result of two Singles, which a Double holds precisely enough for a second rounding. Error 6 as above.
Single toSingle(Double result);

// A Single beside another number counts as a Double.
Single Add(std::same_as<Single> auto a, std::same_as<Single> auto b) { return toSingle(Double{a} + b); }
Single Subtract(std::same_as<Single> auto a, std::same_as<Single> auto b) { return toSingle(Double{a} - b); }
Single Multiply(std::same_as<Single> auto a, std::same_as<Single> auto b) { return toSingle(Double{a} * b); }

Double Add(Double a, Double b);
Currency Add(Currency a, Currency b);

Double Subtract(Double a, Double b);
Currency Subtract(Currency a, Currency b);

Double Multiply(Double a, Double b);
/// The exact product is rounded to the nearest ten-thousandth, halves to even.
Currency Multiply(Currency a, Currency b);

constexpr Single Negate(Single a) noexcept { return -a; }
constexpr Double Negate(Double a) noexcept { return -a; }
Currency Negate(Currency a);

/// VB's ^, whose result is always a Double. Error 5 for a negative base with a fractional exponent and for 0 with a
/// negative exponent; 6 for an overflow.
Double Power(Double base, Double exponent);

/// VB's /, whose result is a Double, or a Single for two Singles. Error 11 for a divisor of 0, but 6 for 0 / 0; 6 for an
/// overflow.
Double Divide(Double a, Double b);
Single Divide(std::same_as<Single> auto a, std::same_as<Single> auto b) {
    return toSingle(Divide(Double{a}, Double{b}));
}

template <WholeNumber T>
constexpr T Eqv(T a, std::type_identity_t<T> b) noexcept {
    return static_cast<T>(~(a ^ b));
}
constexpr bool Eqv(bool a, bool b) noexcept { return a == b; }

template <WholeNumber T>
constexpr T Imp(T a, std::type_identity_t<T> b) noexcept {
    return static_cast<T>(~a | b);
}
constexpr bool Imp(bool a, bool b) noexcept { return !a || b; }

} // namespace basic
