#include "Components/Tamarik/format/number_places.h"

namespace tamarik {

namespace {

using Part = NumberPlaces::Part;

class PlacesReader {
public:
    explicit PlacesReader(const Picture& section) : section_(section) {}

    NumberPlaces read() {
        for (std::size_t i = 0; i < section_.size(); ++i) i += take(i);
        scale();
        return std::move(places_);
    }

private:
    /// Takes the unit at `at`, and returns how many more.
    std::size_t take(std::size_t at) {
        const auto& part = section_[at];
        if (part.is(u'0') || part.is(u'#'))
            takePlace(static_cast<char>(part.unit));
        else if (part.is(u'.') && !hasPoint_ && !places_.hasExponent)
            takePoint();
        else if (part.is(u',') && !places_.hasExponent)
            commas_ += !hasPoint_ && !places_.whole.empty();
        else if (!places_.hasExponent && isExponentAt(section_, at))
            return takeExponent(at);
        else
            takeLiteral(part);
        return 0;
    }

    void takePlace(char place) {
        if (places_.hasExponent)
            places_.exponentDigits += place == '0' || places_.exponentDigits > 0;
        else if (hasPoint_) {
            places_.decimals += place;
            places_.parts.push_back({Part::Decimal, u'\0'});
        } else {
            places_.isGrouped = places_.isGrouped || commas_ > 0;
            commas_ = 0;
            places_.whole += place;
            places_.parts.push_back({Part::Whole, u'\0'});
        }
    }

    void takePoint() {
        scale();
        hasPoint_ = true;
        places_.parts.push_back({Part::Point, u'.'});
    }

    std::size_t takeExponent(std::size_t at) {
        scale();
        places_.hasExponent = true;
        places_.showsPlus = section_[at + 1].is(u'+');
        places_.parts.push_back({Part::Exponent, section_[at].unit});
        return 1;
    }

    void takeLiteral(const PictureUnit& part) {
        if (part.is(u'%')) places_.powersOfTen += 2;
        places_.parts.push_back({Part::Literal, part.unit});
    }

    /// Commas after the last whole place divide by a thousand each.
    void scale() {
        places_.powersOfTen -= 3 * commas_;
        commas_ = 0;
    }

    const Picture& section_;
    NumberPlaces places_;
    basic::Long commas_ = 0; // since the last whole place
    bool hasPoint_ = false;
};

} // namespace

NumberPlaces placesOf(const Picture& section) { return PlacesReader(section).read(); }

} // namespace tamarik
