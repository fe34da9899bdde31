#include "Components/Tamarik/text/values.h"

namespace tamarik {

std::u16string Str(const Decimal96& number) {
    std::string text = number.text();
    if (!number.isNegative()) text.insert(0, 1, ' ');
    if (text.compare(1, 2, "0.") == 0) text.erase(1, 1);
    return basic::toUtf16(text);
}

} // namespace tamarik
