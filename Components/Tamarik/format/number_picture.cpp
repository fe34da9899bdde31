#include "Components/Tamarik/format/number_picture.h"
#include "Components/Tamarik/format/digits.h"
#include "Components/Tamarik/format/number_places.h"
#include <algorithm>
#include <cstdlib>
#include <utility>

namespace tamarik {

namespace {

/// Writes one number by one section.
class NumberWriter {
public:
    NumberWriter(const NumberPlaces& places, basic::Decimal number) : places_(places) {
        number.exponent += places.powersOfTen;
        if (places.hasExponent) exponent_ = takeExponent(number);
        digits_ = digitsOf(number, places.decimals.size());
        missing_ = places.whole.size() - std::min(places.whole.size(), digits_.whole.size());
        shownDecimals_ = std::max(digits_.decimals.find_last_not_of('0') + 1, places.decimals.rfind('0') + 1);
    }

    std::u16string write() {
        for (const auto& part : places_.parts) write(part);
        return std::move(text_);
    }

private:
    using Part = NumberPlaces::Part;

    void write(const Part& part) {
        switch (part.kind) {
        case Part::Literal: text_ += part.unit; break;
        case Part::Whole: writeWhole(); break;
        case Part::Point: writePoint(); break;
        case Part::Decimal: writeDecimal(); break;
        case Part::Exponent: writeExponent(part.unit); break;
        }
    }

    /// The first place takes the digits for which there are no others.
    void writeWhole() {
        const std::size_t place = wholeWritten_++;
        const std::size_t count = digits_.whole.size(), places = places_.whole.size();
        for (std::size_t i = 0; place == 0 && i + places < count; ++i) writeWholeDigit(digits_.whole[i], count - i);
        const std::size_t right = places - place;
        if (place >= missing_)
            writeWholeDigit(digits_.whole[count - right], right);
        else if (place >= places_.whole.find('0'))
            writeWholeDigit('0', right);
    }

    /// `right` digits follow, with this one.
    void writeWholeDigit(char digit, std::size_t right) {
        text_ += static_cast<char16_t>(digit);
        if (places_.isGrouped && right > 1 && right % 3 == 1) text_ += u',';
    }

    void writePoint() {
        if (places_.whole.empty())
            for (const char digit : digits_.whole) text_ += static_cast<char16_t>(digit);
        text_ += u'.';
    }

    void writeDecimal() {
        const std::size_t place = decimalsWritten_++;
        if (place < shownDecimals_) text_ += static_cast<char16_t>(digits_.decimals[place]);
    }

    void writeExponent(char16_t letter) {
        text_ += letter;
        if (exponent_ < 0 || places_.showsPlus) text_ += exponent_ < 0 ? u'-' : u'+';
        const std::string digits = std::to_string(std::abs(exponent_));
        if (digits.size() < places_.exponentDigits) text_.append(places_.exponentDigits - digits.size(), u'0');
        text_.append(digits.begin(), digits.end());
    }

    /// Divides the number so that it has as many whole digits as there are places, and returns the power of ten.
    basic::Long takeExponent(basic::Decimal& number) const {
        if (number.digits.empty()) return 0;
        const auto places = static_cast<basic::Long>(places_.whole.size());
        const basic::Long exponent = static_cast<basic::Long>(number.digits.size()) + number.exponent - places;
        number.exponent -= exponent;
        const bool roundsUp = digitsOf(number, places_.decimals.size()).whole.size() > places_.whole.size();
        number.exponent -= roundsUp;
        return exponent + roundsUp;
    }

    const NumberPlaces& places_;
    Digits digits_;
    std::size_t missing_ = 0;       // whole places without a digit
    std::size_t shownDecimals_ = 0; // up to the last one that is not 0, or has a place that shows zeros
    std::size_t wholeWritten_ = 0, decimalsWritten_ = 0;
    basic::Long exponent_ = 0;
    std::u16string text_;
};

bool has(const std::vector<Picture>& sections, std::size_t number) {
    return number < sections.size() && !sections[number].empty();
}

} // namespace

std::u16string formatNumber(const basic::Decimal& number, const std::vector<Picture>& sections) {
    enum { kPositive, kNegative, kZero };
    const std::size_t wanted = number.digits.empty() ? kZero : number.negative ? kNegative : kPositive;
    const std::size_t section = has(sections, wanted) ? wanted : std::size_t{kPositive};
    const bool showsSign = wanted == kNegative && section == kPositive;
    return (showsSign ? u"-" : u"") + NumberWriter(placesOf(sections[section]), number).write();
}

} // namespace tamarik
