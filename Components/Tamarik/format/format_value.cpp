#include "Components/Tamarik/format/format_value.h"
#include "Basic/conversions.h"
#include "Basic/date.h"
#include "Basic/utf16.h"
#include "Components/Tamarik/dates/date_text.h"
#include "Components/Tamarik/text/values.h"

namespace tamarik {

namespace {

/// The digits of a text that CStr made.
basic::Decimal digitsIn(const std::string& text) { return basic::readNumber(text).value_or(basic::Decimal{}); }

} // namespace

FormatValue::FormatValue(basic::Decimal number, const std::string& text)
    : kind_(Kind::Number), number_(std::move(number)), text_(basic::toUtf16(text)), isTextOfNumber_(true) {}

FormatValue FormatValue::ofBoolean(bool value) {
    FormatValue result(digitsIn(value ? "-1" : "0"), basic::CStr(value));
    result.isTextOfNumber_ = false;
    return result;
}
FormatValue::FormatValue(basic::Byte number) : FormatValue(basic::Long{number}) {}
FormatValue::FormatValue(basic::Integer number) : FormatValue(basic::Long{number}) {}
FormatValue::FormatValue(basic::Long number) : FormatValue(digitsIn(basic::CStr(number)), basic::CStr(number)) {}
FormatValue::FormatValue(basic::Double number) : FormatValue(digitsIn(basic::CStr(number)), basic::CStr(number)) {}
FormatValue::FormatValue(basic::Single number)
    : FormatValue(digitsIn(basic::CStr(basic::Double{number})), basic::CStr(number)) {}
FormatValue::FormatValue(basic::Currency number) : FormatValue(digitsIn(basic::CStr(number)), basic::CStr(number)) {}
FormatValue::FormatValue(const Decimal96& number) : FormatValue(digitsIn(number.text()), number.text()) {}

FormatValue::FormatValue(basic::Date date)
    : kind_(Kind::Date),
      number_(digitsIn(basic::CStr(date.days))),
      date_(date),
      text_(basic::toUtf16(basic::CStr(date))) {}

std::u16string FormatValue::generalText() const {
    const auto digits = isTextOfNumber_ ? std::nullopt : number();
    return digits ? basic::toUtf16(basic::CStr(basic::toDouble(*digits))) : text_;
}

std::optional<basic::Decimal> FormatValue::number() const {
    if (kind_ == Kind::Null) return std::nullopt;
    if (kind_ != Kind::Text) return number_;
    const std::string ascii = basic::asciiOf(text_);
    const auto digits = basic::readNumber(ascii);
    if (!digits) return std::nullopt;
    return digitsIn(basic::CStr(basic::toDouble(*digits)));
}

std::optional<basic::Date> FormatValue::date(basic::Date today) const {
    if (kind_ == Kind::Null) return std::nullopt;
    if (kind_ == Kind::Date) return date_;
    if (kind_ == Kind::Text && IsDate(text_)) return CDate(text_, today);
    const auto digits = number();
    return digits ? std::optional(basic::CDate(basic::toDouble(*digits))) : std::nullopt;
}

} // namespace tamarik
