#pragma once
// FormatNumber and its relatives, as en-US shows numbers.
#include "Basic/decimal.h"
#include "Basic/types.h"
#include <string>

namespace tamarik {

enum VbTriState { vbUseDefault = -2, vbTrue = -1, vbFalse = 0 };
enum VbDateTimeFormat { vbGeneralDate, vbLongDate, vbShortDate, vbLongTime, vbShortTime };

/// How the functions below show a number.
struct NumberStyle {
    basic::Long decimals = -1; ///< -1 for two
    VbTriState leadingDigit = vbUseDefault;
    VbTriState parentheses = vbUseDefault; ///< for negative numbers; usual only for currency
    VbTriState groups = vbUseDefault;
};

/// Round halves away from zero. Error 5 for decimals outside -1 to 255.
std::u16string FormatNumber(const basic::Decimal& number, const NumberStyle& style = {});
std::u16string FormatCurrency(const basic::Decimal& number, const NumberStyle& style = {});
std::u16string FormatPercent(const basic::Decimal& number, const NumberStyle& style = {});

/// Error 5 for an unknown format.
std::u16string FormatDateTime(basic::Date date, int format = vbGeneralDate);

} // namespace tamarik
