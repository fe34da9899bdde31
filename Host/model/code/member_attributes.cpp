#include "Host/model/code/member_attributes.h"
#include "Basic/case_folding.h"
#include "Host/model/code/statement_reader.h"
#include <algorithm>
#include <initializer_list>

namespace host {

namespace {

bool isOneOf(std::string_view word, std::initializer_list<std::string_view> some) {
    return std::any_of(some.begin(), some.end(), [&](auto one) { return basic::equalNoCase(one, word); });
}

std::string nameIn(std::string_view& rest) {
    const auto word = takeWord(rest);
    const bool isName = !word.empty() && (isNameCharacter(word[0]) || static_cast<unsigned char>(word[0]) >= 0x80);
    return std::string(isName ? word : std::string_view());
}

} // namespace

std::string memberOfLine(std::string_view line) {
    bool declares = false;
    for (auto rest = line;;) {
        auto next = rest;
        const auto word = takeWord(next);
        if (isOneOf(word, {"Sub", "Function"})) return nameIn(next);
        if (isOneOf(word, {"Property"})) {
            takeWord(next); // Get, Let or Set
            return nameIn(next);
        }
        if (isOneOf(word, {"Declare", "Const", "Type", "Enum", "Event"})) return {};
        if (!isOneOf(word, {"Public", "Private", "Friend", "Global", "Static", "Dim", "WithEvents"})) {
            const auto name = declares ? nameIn(rest) : std::string();
            return skipToComma(rest) ? std::string() : name;
        }
        declares = true;
        rest = next;
    }
}

} // namespace host
