#pragma once
// What the code uses of C++20's library and Emscripten's C++ library does not have yet: included before every source of a
// WebAssembly build. Names that the library has are left alone.
#include <algorithm>
#include <compare>
#include <cstring>
#include <functional>
#include <iterator>
#include <version>

namespace std {

#ifndef __cpp_lib_bit_cast
template <class To, class From>
constexpr To bit_cast(const From& from) noexcept {
    static_assert(sizeof(To) == sizeof(From));
    return __builtin_bit_cast(To, from);
}
#endif

#ifndef __cpp_lib_three_way_comparison
template <class I, class J>
constexpr auto lexicographical_compare_three_way(I a, I aEnd, J b, J bEnd) -> decltype(*a <=> *b) {
    for (; a != aEnd && b != bEnd; ++a, ++b)
        if (const auto order = *a <=> *b; order != 0) return order;
    return (a != aEnd) <=> (b != bEnd);
}
#endif

#if !defined(__cpp_lib_ranges) || __cpp_lib_ranges < 201911L
namespace ranges {

template <class Range>
constexpr void sort(Range&& range) {
    std::sort(std::begin(range), std::end(range));
}
template <class Range, class Less>
constexpr void sort(Range&& range, Less less) {
    std::sort(std::begin(range), std::end(range), less);
}
template <class Range, class Value>
constexpr bool binary_search(Range&& range, const Value& value) {
    return std::binary_search(std::begin(range), std::end(range), value);
}
template <class Range, class Is>
constexpr bool all_of(Range&& range, Is is) {
    return std::all_of(std::begin(range), std::end(range), is);
}
template <class Range, class Is>
constexpr bool any_of(Range&& range, Is is) {
    return std::any_of(std::begin(range), std::end(range), is);
}
template <class Range, class Is>
constexpr bool none_of(Range&& range, Is is) {
    return std::none_of(std::begin(range), std::end(range), is);
}
template <class Range, class Is>
constexpr auto count_if(Range&& range, Is is) {
    return std::count_if(std::begin(range), std::end(range), is);
}
template <class Range, class Is>
constexpr auto find_if(Range&& range, Is is) {
    return std::find_if(std::begin(range), std::end(range), is);
}
template <class Range, class Value>
constexpr auto find(Range&& range, const Value& value) {
    return std::find(std::begin(range), std::end(range), value);
}
template <class Range, class Out>
constexpr Out move(Range&& range, Out out) {
    return std::move(std::begin(range), std::end(range), out);
}
template <class A, class B>
constexpr bool equal(A&& a, B&& b) {
    return std::equal(std::begin(a), std::end(a), std::begin(b), std::end(b));
}
template <class A, class B, class Same = std::equal_to<>>
constexpr bool equal(A&& a, B&& b, Same same) {
    return std::equal(std::begin(a), std::end(a), std::begin(b), std::end(b), same);
}
struct Itself {
    template <class T>
    constexpr const T& operator()(const T& value) const {
        return value;
    }
};
template <class A, class B, class Same = std::equal_to<>, class ProjectA, class ProjectB = Itself>
constexpr bool equal(A&& a, B&& b, Same same, ProjectA projectA, ProjectB projectB = {}) {
    return std::equal(std::begin(a), std::end(a), std::begin(b), std::end(b), [&](const auto& x, const auto& y) {
        return same(std::invoke(projectA, x), std::invoke(projectB, y));
    });
}
template <class Range, class Value>
constexpr auto upper_bound(Range&& range, const Value& value) {
    return std::upper_bound(std::begin(range), std::end(range), value);
}
template <class Range, class Value, class Less = std::less<>, class Projection>
constexpr auto upper_bound(Range&& range, const Value& value, Less less, Projection projection) {
    return std::upper_bound(std::begin(range), std::end(range), value, [&](const auto& wanted, const auto& each) {
        return less(wanted, std::invoke(projection, each));
    });
}

} // namespace ranges
#endif

} // namespace std
