#pragma once
// VB's conversion functions. What they read and write is always en-US, whatever the machine's customs: "." before
// decimals, "," between groups of digits, "$", dates month first.
#include "Basic/types.h"
#include <concepts>
#include <optional>
#include <string>
#include <string_view>

namespace basic {

template <class T>
concept Number = std::is_arithmetic_v<T> && !std::same_as<T, bool> && !std::same_as<T, char>;

/// What a conversion takes: a number, a Boolean (True is -1) or a text.
class Convertible {
public:
    Convertible(std::same_as<bool> auto value) : number_(value ? -1 : 0) {}
    Convertible(Number auto value) : number_(static_cast<Double>(value)) {}
    Convertible(Currency value) : number_(static_cast<Double>(value.scaled) / 10000) {}
    Convertible(Date value) : number_(value.days) {}
    Convertible(std::string_view text) : text_(text) {}
    Convertible(const std::string& text) : text_(text) {}
    Convertible(const char* text) : text_(text) {}

    const std::optional<std::string_view>& text() const { return text_; }

    /// The number, a text read as one: error 13 when it is none, 6 when it is too large.
    Double number() const;

private:
    Double number_ = 0;
    std::optional<std::string_view> text_;
};

/// False for 0 and the word "False", True for other numbers and the word "True", letter case and surrounding blanks
/// aside. Error 13 for other texts.
bool CBool(const Convertible& value);

/// The nearest whole number, of two the even one. Texts that are no number are error 13, numbers beyond the type's
/// range error 6. A text such as "&HFFFF" is a bit pattern of the type: CInt makes -1 of it, CLng 65535.
Byte CByte(const Convertible& value);
Integer CInt(const Convertible& value);
Long CLng(const Convertible& value);

/// Errors 13 and 6 as above.
Single CSng(const Convertible& value);
Double CDbl(const Convertible& value);

/// To the nearest ten-thousandth, of two the even one; a text is read exactly. Errors 13 and 6 as above.
Currency CCur(const Convertible& value);

/// VB's texts: "True" and "False"; 7 significant digits of a Single and 15 of a Double, as "1E+20" when that number of
/// digits does not do without an exponent; a Currency's decimals without closing zeros.
std::string CStr(std::same_as<bool> auto value) { return value ? "True" : "False"; }
std::string CStr(Byte number);
std::string CStr(Integer number);
std::string CStr(Long number);
std::string CStr(Single number);
std::string CStr(Double number);
std::string CStr(Currency number);

/// Without decimals: Fix drops them, Int goes down to the next whole number.
Double Fix(const Convertible& value);
Double Int(const Convertible& value);

/// To `digits` decimals, 0 to 22, halves to the even one. Error 5 for other digits.
Double Round(const Convertible& value, Long digits = 0);

/// -1, 0 or 1.
Integer Sgn(const Convertible& value);

/// The magnitude. Error 6 for the lowest Integer and the lowest Long.
Integer Abs(Integer number);
Long Abs(Long number);
Double Abs(Double number) noexcept;

} // namespace basic
