#include "Components/Tamarik/values/text_block.h"
#include "Basic/runtime_error.h"
#include "Components/Tamarik/values/encoding.h"
#include "Components/Tamarik/values/folding.h"
#include <algorithm>
#include <cstring>

namespace tamarik {

namespace {

constexpr std::uint64_t kMostTextBytes = 0x7FFFFFE0;

TextBlock* allocate(Heap& heap, std::uint64_t room) {
    if (room > kMostTextBytes) throw basic::RuntimeError(basic::kOutOfStringSpace);
    const std::uint64_t size = sizeof(TextBlock) + room;
    auto* const text =
        static_cast<TextBlock*>(heap.allocate(static_cast<std::size_t>(size), size, basic::kOutOfStringSpace));
    text->count = 1;
    text->room = static_cast<std::uint32_t>(room);
    return text;
}

int sign(int difference) { return (difference > 0) - (difference < 0); }

/// A half more than is needed now, so that appending many times takes linear time.
std::uint64_t roomFor(std::uint64_t bytes) { return std::min(bytes + bytes / 2 + 32, std::max(bytes, kMostTextBytes)); }

void grow(Heap& heap, TextBlock*& text, std::uint64_t bytes) {
    const std::uint64_t room = roomFor(bytes);
    if (bytes > kMostTextBytes) throw basic::RuntimeError(basic::kOutOfStringSpace);
    text = static_cast<TextBlock*>(heap.resize(text, static_cast<std::size_t>(sizeof(TextBlock) + room),
                                               sizeof(TextBlock) + text->room, sizeof(TextBlock) + room,
                                               basic::kOutOfStringSpace));
    text->room = static_cast<std::uint32_t>(room);
}

} // namespace

void destroy(Heap& heap, TextBlock* text) noexcept { heap.free(text, sizeof(TextBlock) + text->room); }

TextBlock* makeRoom(Heap& heap, std::uint64_t bytes) {
    if (bytes == 0) return nullptr;
    TextBlock* const text = allocate(heap, bytes);
    text->bytes = static_cast<std::uint32_t>(bytes);
    return text;
}

TextBlock* makeText(Heap& heap, const void* data, std::uint64_t bytes) {
    TextBlock* const text = makeRoom(heap, bytes);
    if (text) std::memcpy(text->data(), data, static_cast<std::size_t>(bytes));
    return text;
}

TextBlock* makeText(Heap& heap, std::u16string_view characters) {
    return makeText(heap, characters.data(), std::uint64_t{2} * characters.size());
}

TextBlock* makeTextOfUtf8(Heap& heap, std::string_view utf8) { return makeText(heap, toUtf16(utf8)); }

TextBlock* makeFilled(Heap& heap, std::uint64_t characters, char16_t character) {
    TextBlock* const text = makeRoom(heap, 2 * characters);
    if (text) std::fill_n(text->units(), characters, character);
    return text;
}

TextBlock* join(Heap& heap, TextBlock* a, TextBlock* b) {
    if (!a || !b) return retain(a ? a : b);
    TextBlock* const text = makeRoom(heap, std::uint64_t{a->bytes} + b->bytes);
    std::memcpy(text->data(), a->data(), a->bytes);
    std::memcpy(text->data() + a->bytes, b->data(), b->bytes);
    return text;
}

TextBlock* fixLength(Heap& heap, TextBlock* text, std::uint32_t characters) {
    const std::uint64_t bytes = std::uint64_t{2} * characters;
    if (bytesOf(text) == bytes) return retain(text);
    TextBlock* const fixed = makeFilled(heap, characters, u' ');
    if (fixed && text) std::memcpy(fixed->data(), text->data(), std::min(text->bytes, fixed->bytes));
    return fixed;
}

void append(Heap& heap, TextBlock*& text, TextBlock* more) {
    if (!more) return;
    if (!text || text->count != 1) {
        TextBlock* const joined = join(heap, text, more);
        release(heap, text);
        text = joined;
        return;
    }
    const std::uint32_t length = more->bytes;
    const bool isItself = more == text;
    const std::uint64_t bytes = std::uint64_t{text->bytes} + length;
    if (bytes > text->room) grow(heap, text, bytes);
    std::memcpy(text->data() + text->bytes, isItself ? text->data() : more->data(), length);
    text->bytes = static_cast<std::uint32_t>(bytes);
    text->hash = 0;
}

int compare(const TextBlock* a, const TextBlock* b) {
    if (a == b) return 0;
    const std::u16string_view left = unitsOf(a), right = unitsOf(b);
    const int difference = sign(left.compare(right));
    if (difference != 0 || bytesOf(a) == bytesOf(b)) return difference;
    // An odd last byte counts as a character that begins with it.
    return bytesOf(a) < bytesOf(b) ? -1 : 1;
}

int compareNoCase(const TextBlock* a, const TextBlock* b) {
    if (a == b) return 0;
    const std::u16string_view left = unitsOf(a), right = unitsOf(b);
    const std::size_t common = std::min(left.size(), right.size());
    for (std::size_t i = 0; i < common; ++i) {
        if (left[i] == right[i]) continue;
        const char16_t x = foldUnit(left[i]), y = foldUnit(right[i]);
        if (x != y) return x < y ? -1 : 1;
    }
    return (bytesOf(a) > bytesOf(b)) - (bytesOf(a) < bytesOf(b));
}

} // namespace tamarik
