#pragma once
// Numbers as texts and back; the one place that knows where these conversions are implemented.
#include "Components/Image/code/slot_type.h"
#include "Components/Tamarik/values/text_block.h"
#include <cstdint>
#include <string_view>

namespace tamarik {

// What CStr returns; a new reference.
[[nodiscard]] TextBlock* textOfLong(Heap& heap, std::int32_t number, image::BaseType type);
[[nodiscard]] TextBlock* textOfFraction(Heap& heap, double number, image::BaseType type);
[[nodiscard]] TextBlock* textOfCurrency(Heap& heap, std::int64_t scaled);

// Error 13 for what is not a number, 6 for one that does not fit.
[[nodiscard]] std::int32_t longOfText(std::u16string_view text, image::BaseType type);
[[nodiscard]] double fractionOfText(std::u16string_view text, image::BaseType type);
[[nodiscard]] std::int64_t currencyOfText(std::u16string_view text);

/// The Like operator. Error 93.
[[nodiscard]] bool isLike(std::u16string_view text, std::u16string_view pattern, bool ignoresCase);

} // namespace tamarik
