#include "Components/Tamarik/text/pieces.h"
#include "Components/Tamarik/numbers/arguments.h"
#include <algorithm>

namespace tamarik {

namespace {

template <class View>
View firstOf(View text, Long length) {
    return text.substr(0, requireCount(length));
}

template <class View>
View lastOf(View text, Long length) {
    return text.substr(text.size() - std::min(text.size(), requireCount(length)));
}

template <class View>
View within(View text, Long start, Long length) {
    requireArgument(start >= 1);
    return firstOf(text.substr(std::min(text.size(), static_cast<std::size_t>(start - 1))), length);
}

} // namespace

std::u16string_view Left(std::u16string_view text, Long length) { return firstOf(text, length); }
std::string_view LeftB(std::string_view bytes, Long length) { return firstOf(bytes, length); }

std::u16string_view Right(std::u16string_view text, Long length) { return lastOf(text, length); }
std::string_view RightB(std::string_view bytes, Long length) { return lastOf(bytes, length); }

std::u16string_view Mid(std::u16string_view text, Long start, Long length) { return within(text, start, length); }
std::string_view MidB(std::string_view bytes, Long start, Long length) { return within(bytes, start, length); }

std::u16string_view Trim(std::u16string_view text) { return LTrim(RTrim(text)); }

std::u16string_view LTrim(std::u16string_view text) {
    return text.substr(std::min(text.find_first_not_of(u' '), text.size()));
}

std::u16string_view RTrim(std::u16string_view text) { return text.substr(0, text.find_last_not_of(u' ') + 1); }

} // namespace tamarik
