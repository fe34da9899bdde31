#pragma once
// Texts: UTF-16, counted in bytes, shared until they change.
#include "Components/Tamarik/values/heap.h"
#include <cstdint>
#include <string>
#include <string_view>

namespace tamarik {

/// The head of a text; its bytes follow. The empty text is a null pointer. The number of bytes may be odd.
struct TextBlock {
    std::uint32_t count, bytes, room;
    std::uint32_t hash; ///< of the folded characters, for keys; 0 if not known

    [[nodiscard]] std::uint8_t* data() { return reinterpret_cast<std::uint8_t*>(this + 1); }
    [[nodiscard]] const std::uint8_t* data() const { return reinterpret_cast<const std::uint8_t*>(this + 1); }
    [[nodiscard]] char16_t* units() { return reinterpret_cast<char16_t*>(this + 1); }
};
static_assert(sizeof(TextBlock) == 16);

[[nodiscard]] inline std::uint32_t bytesOf(const TextBlock* text) { return text ? text->bytes : 0; }
/// The characters; an odd last byte is none.
[[nodiscard]] inline std::u16string_view unitsOf(const TextBlock* text) {
    if (!text) return {};
    return {reinterpret_cast<const char16_t*>(text->data()), text->bytes / 2};
}

inline TextBlock* retain(TextBlock* text) {
    if (text) ++text->count;
    return text;
}
void destroy(Heap& heap, TextBlock* text) noexcept;
inline void release(Heap& heap, TextBlock* text) noexcept {
    if (text && --text->count == 0) destroy(heap, text);
}

// All of these return a new reference, and fail with error 14 if the heap has no room.

/// A text with room for so many bytes, which are 0 at first.
[[nodiscard]] TextBlock* makeRoom(Heap& heap, std::uint64_t bytes);
[[nodiscard]] TextBlock* makeText(Heap& heap, const void* data, std::uint64_t bytes);
[[nodiscard]] TextBlock* makeText(Heap& heap, std::u16string_view characters);
[[nodiscard]] TextBlock* makeTextOfUtf8(Heap& heap, std::string_view utf8);
[[nodiscard]] TextBlock* makeFilled(Heap& heap, std::uint64_t characters, char16_t character);
[[nodiscard]] TextBlock* join(Heap& heap, TextBlock* a, TextBlock* b);
/// Cuts a text or fills it with blanks to so many characters.
[[nodiscard]] TextBlock* fixLength(Heap& heap, TextBlock* text, std::uint32_t characters);

/// Appends in place if `text` has no other references. `text` keeps its value if this fails.
void append(Heap& heap, TextBlock*& text, TextBlock* more);

/// -1, 0 or 1, by the numbers of the characters.
[[nodiscard]] int compare(const TextBlock* a, const TextBlock* b);
[[nodiscard]] int compareNoCase(const TextBlock* a, const TextBlock* b);

} // namespace tamarik
