#pragma once
// What Format is given.
#include "Basic/decimal.h"
#include "Components/Tamarik/numbers/decimal96.h"
#include <concepts>
#include <optional>
#include <string>
#include <string_view>

namespace tamarik {

/// A value for Format: a number with the digits that it shows, a date, a text or Null.
class FormatValue {
public:
    enum class Kind { Null, Text, Number, Date };

    /// Null.
    FormatValue() = default;
    explicit FormatValue(std::u16string_view text) : kind_(Kind::Text), text_(text) {}
    explicit FormatValue(std::same_as<bool> auto value) : FormatValue(ofBoolean(value)) {}
    explicit FormatValue(basic::Byte number);
    explicit FormatValue(basic::Integer number);
    explicit FormatValue(basic::Long number);
    /// Shows 15 significant digits, as a Single does in formats other than General Number.
    explicit FormatValue(basic::Double number);
    explicit FormatValue(basic::Single number);
    explicit FormatValue(basic::Currency number);
    explicit FormatValue(const Decimal96& number);
    explicit FormatValue(basic::Date date);

    Kind kind() const { return kind_; }

    /// The value as CStr returns it.
    const std::u16string& text() const { return text_; }

    /// The value in the format General Number: without the words of a Boolean or date.
    std::u16string generalText() const;

    /// The value as a number; nothing for Null and a text that is not one. Error 6 for a text beyond the range of a Double.
    std::optional<basic::Decimal> number() const;

    /// The value as a date; nothing for Null and a text that is not one. Error 6 for a number that is not a date.
    std::optional<basic::Date> date(basic::Date today) const;

private:
    FormatValue(basic::Decimal number, const std::string& text);
    static FormatValue ofBoolean(bool value);

    Kind kind_ = Kind::Null;
    basic::Decimal number_;
    basic::Date date_;
    std::u16string text_;
    bool isTextOfNumber_ = false;
};

} // namespace tamarik
