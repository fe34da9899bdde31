// Format fails only with the errors 5 and 6, for values of all kinds. Its result is not much longer than both.
#include "Basic/conversions.h"
#include "Basic/runtime_error.h"
#include "Basic/utf16.h"
#include "Components/Tamarik/format/format.h"
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string_view>

namespace {

void check(const tamarik::FormatValue& value, std::u16string_view format, tamarik::WeekRules rules) {
    // The whole digits of a Double and a long date for each code.
    const std::size_t most = (value.text().size() + 350) * (format.size() + 1);
    const auto err = basic::attempt([&] {
        if (tamarik::Format(value, format, rules).size() > most) std::abort();
    });
    if (err.Number != 0 && err.Number != 5 && err.Number != 6) std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 10 || size > 1024) return 0;
    double number;
    std::memcpy(&number, data, sizeof number);
    const tamarik::WeekRules rules{data[8] % 10, data[8] / 10 % 5};
    const std::string_view rest(reinterpret_cast<const char*>(data + 9), size - 9);
    const std::size_t cut = std::min(rest.find('\n'), rest.size());
    const auto format = basic::toUtf16(rest.substr(0, cut)), text = basic::toUtf16(rest.substr(cut));
    check(tamarik::FormatValue(), format, rules);
    check(tamarik::FormatValue(text), format, rules);
    if (!(number > -1e308 && number < 1e308)) return 0;
    check(tamarik::FormatValue(number), format, rules);
    const auto dated = basic::attempt([&] { check(tamarik::FormatValue(basic::Date{number}), format, rules); });
    if (dated.Number != 0 && dated.Number != 6) std::abort();
    return 0;
}
