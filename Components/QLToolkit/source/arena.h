#pragma once
// Memory for trees: allocated piece by piece, freed all at once.
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>
#include <type_traits>
#include <vector>

namespace qltoolkit {

/// An array of T in an arena.
template <class T>
class Span {
public:
    Span() = default;
    Span(const T* data, std::uint32_t size) : data_(data), size_(size) {}
    [[nodiscard]] const T* begin() const { return data_; }
    [[nodiscard]] const T* end() const { return data_ + size_; }
    [[nodiscard]] const T& operator[](std::size_t i) const { return data_[i]; }
    [[nodiscard]] std::uint32_t size() const { return size_; }
    [[nodiscard]] bool empty() const { return size_ == 0; }

private:
    const T* data_ = nullptr;
    std::uint32_t size_ = 0;
};

/// Objects made here live as long as the arena. No destructor runs, so only trivially destructible types are allowed.
class Arena {
public:
    Arena() = default;
    Arena(const Arena&) = delete;
    Arena& operator=(const Arena&) = delete;

    template <class T, class... Args>
    T* make(Args&&... args) {
        static_assert(std::is_trivially_destructible_v<T>);
        static_assert(alignof(T) <= __STDCPP_DEFAULT_NEW_ALIGNMENT__);
        return new (take(sizeof(T), alignof(T))) T{static_cast<Args&&>(args)...};
    }

    template <class T>
    Span<T> copy(const T* items, std::size_t count) {
        static_assert(std::is_trivially_copyable_v<T>);
        if (count == 0) return {};
        void* room = take(sizeof(T) * count, alignof(T));
        std::memcpy(room, items, sizeof(T) * count);
        return {static_cast<const T*>(room), static_cast<std::uint32_t>(count)};
    }

    /// Bytes allocated from the system.
    [[nodiscard]] std::size_t footprint() const { return footprint_; }

private:
    void* take(std::size_t size, std::size_t alignment) {
        std::uintptr_t at = (next_ + alignment - 1) & ~(alignment - 1);
        if (at + size > end_) [[unlikely]]
            at = grow(size);
        next_ = at + size;
        return reinterpret_cast<void*>(at);
    }
    std::uintptr_t grow(std::size_t size);

    std::uintptr_t next_ = 0;
    std::uintptr_t end_ = 0;
    std::size_t footprint_ = 0;
    std::vector<std::unique_ptr<std::byte[]>> chunks_;
};

} // namespace qltoolkit
