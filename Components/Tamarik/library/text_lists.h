#pragma once
// Arrays of texts.
#include "Components/Tamarik/library/library_function.h"
#include <span>
#include <string>
#include <vector>

namespace tamarik {

/// The elements of an array with one dimension. Error 13 for what is not an array, 5 unless its elements are texts or
/// Variants.
[[nodiscard]] std::vector<std::u16string> textsIn(Session& session, const Variant& v);

/// A new array, from 0 on.
[[nodiscard]] ArrayBlock* makeTexts(Session& session, std::span<const std::u16string_view> texts);

/// Joins pieces into a new text without a copy of it.
[[nodiscard]] TextBlock* joined(Session& session, std::span<const std::u16string_view> pieces,
                                std::u16string_view delimiter);

} // namespace tamarik
