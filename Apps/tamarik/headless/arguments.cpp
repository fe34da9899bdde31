#include "Apps/tamarik/headless/arguments.h"
#include <charconv>
#include <system_error>

namespace headless {

namespace {

template <class Number>
bool readNumber(const std::string& word, std::optional<Number>& number) {
    Number value{};
    const char* const end = word.data() + word.size();
    const auto read = std::from_chars(word.data(), end, value);
    number = value;
    return read.ec == std::errc() && read.ptr == end;
}

} // namespace

std::optional<Arguments> parse(const std::vector<std::string>& words) {
    Arguments arguments;
    auto word = words.begin();
    for (; word != words.end() && word->starts_with("--"); ++word) {
        const auto takesValue = [&](const char* name) { return *word == name && word + 1 != words.end(); };
        if (*word == "--switch") {
            arguments.usesSwitch = true;
        } else if (*word == "--each") {
            arguments.runsEach = true;
        } else if (takesValue("--files")) {
            arguments.files = *++word;
        } else if (takesValue("--budget")) {
            if (!readNumber(*++word, arguments.budget)) return std::nullopt;
        } else if (takesValue("--seed")) {
            if (!readNumber(*++word, arguments.seed)) return std::nullopt;
        } else {
            return std::nullopt;
        }
    }
    if (word == words.end()) return std::nullopt;
    const auto last = arguments.runsEach ? words.end() : word + 1;
    arguments.images.assign(word, last);
    arguments.forProgram.assign(last, words.end());
    return arguments;
}

} // namespace headless
