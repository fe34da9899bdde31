// A text is refused as a date with error 13, or its date is read again from what CStr returns for it.
#include "Basic/date.h"
#include "Basic/runtime_error.h"
#include "Basic/utf16.h"
#include "Components/Tamarik/dates/date_text.h"
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size > 256) return 0;
    const auto text = basic::toUtf16({reinterpret_cast<const char*>(data), size});
    constexpr basic::Date kToday = {36526};
    basic::Date date;
    const auto err = basic::attempt([&] { date = tamarik::CDate(text, kToday); });
    if (tamarik::IsDate(text) != (err.Number == 0)) std::abort();
    if (err.Number == 13) return 0;
    if (err.Number != 0 || basic::CDate(basic::CStr(date)) != date) std::abort();
    return 0;
}
