#include "Components/QLToolkit/lexer/lexer.h"
#include "Components/QLToolkit/source/characters.h"
#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <string>

namespace qltoolkit {

namespace {

constexpr std::ptrdiff_t kSureDigits = 9; // they are at least a Long
constexpr std::uint64_t kLargestInteger = 32767;
constexpr std::uint64_t kLargestLong = 2147483647;
constexpr double kLargestCurrency = 922337203685477.5807;
constexpr std::uint64_t kLargestScaled = 9223372036854775807;

bool isNumberSuffix(char c) { return c == '%' || c == '&' || c == '!' || c == '#' || c == '@'; }
bool isExponentMark(char c) { return (c | 0x20) == 'e' || (c | 0x20) == 'd'; }

const char* skipDigits(const char* p) {
    while (charIs(*p, kDigit)) ++p;
    return p;
}

// An exponent needs a digit, so that "1Else" is read as 1 and Else.
const char* skipExponent(const char* p) {
    if (!isExponentMark(*p)) return p;
    const char* digits = p[1] == '+' || p[1] == '-' ? p + 2 : p + 1;
    return charIs(*digits, kDigit) ? skipDigits(digits) : p;
}

// from_chars supports neither the D of a Double's exponent nor values that underflow.
double toDouble(const char* begin, const char* end, bool& tooLarge) {
    std::string text(begin, end);
    for (char& c : text)
        if (isExponentMark(c)) c = 'e';
    if (const auto e = text.find("e+"); e != std::string::npos) text.erase(e + 1, 1);
    double value = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
    if (result.ec == std::errc::result_out_of_range) {
        value = std::strtod(text.c_str(), nullptr);
        tooLarge = std::isinf(value);
    }
    return value;
}

// A Double is not exact enough. `value` is the number, at most kLargestCurrency.
std::uint64_t scaledBy10000(const char* begin, const char* end, double value) {
    if (std::any_of(begin, end, isExponentMark)) return static_cast<std::uint64_t>(std::llround(value * 10000));
    const char* const point = std::find(begin, end, '.');
    const auto digit = [&](const char* at) {
        return at < end && *at != '.' ? static_cast<std::uint64_t>(*at - '0') : 0;
    };
    std::uint64_t scaled = 0;
    for (const char* p = begin; p < point; ++p) scaled = scaled * 10 + digit(p);
    for (int place = 1; place <= 4; ++place) scaled = scaled * 10 + digit(std::min(point + place, end));
    return scaled + (digit(std::min(point + 5, end)) >= 5 ? 1 : 0);
}

} // namespace

void Lexer::readNumber(Token& token, const char* p) {
    std::uint64_t value = 0;
    const char* const begin = p;
    for (; charIs(*p, kDigit) && p - begin < kSureDigits; ++p) value = value * 10 + static_cast<unsigned>(*p - '0');
    token.suffix = '\0';
    if (charIs(*p, kNumberPart | kDigit)) return readLongNumber(token, begin);
    token.integer = static_cast<std::int64_t>(value);
    end(token, value <= kLargestInteger ? TokenKind::Integer : TokenKind::Long, p);
}

void Lexer::readLongNumber(Token& token, const char* p) {
    const char* const begin = p;
    std::uint64_t value = 0;
    for (; charIs(*p, kDigit) && p - begin < 19; ++p) value = value * 10 + static_cast<std::uint64_t>(*p - '0');
    const bool small = !charIs(*p, kDigit);
    p = skipDigits(p);
    const char* const integerEnd = p;
    if (*p == '.') p = skipDigits(p + 1);
    p = skipExponent(p);
    token.suffix = isNumberSuffix(*p) ? *p : '\0';
    token.end = pos_ = static_cast<Pos>(p - base_) + (token.suffix ? 1 : 0);
    const bool integral = p == integerEnd && small;
    if (integral && (token.suffix == 0 || token.suffix == '%' || token.suffix == '&'))
        finishInteger(token, value);
    else
        finishReal(token, begin, p);
}

void Lexer::finishInteger(Token& token, std::uint64_t value) {
    token.integer = static_cast<std::int64_t>(value);
    const auto limit = token.suffix == '%' ? kLargestInteger : kLargestLong;
    if (token.suffix == 0 && value > limit) {
        token.kind = TokenKind::Double;
        token.real = static_cast<double>(value);
        return;
    }
    if (value > limit) report(Message::NumberTooLarge, token.begin, source_.text(token.begin, token.end));
    const bool isInteger = token.suffix == '%' || (token.suffix == 0 && value <= kLargestInteger);
    token.kind = isInteger ? TokenKind::Integer : TokenKind::Long;
}

void Lexer::finishReal(Token& token, const char* begin, const char* end) {
    bool tooLarge = false;
    const double value = toDouble(begin, end, tooLarge);
    token.kind = token.suffix == '!' ? TokenKind::Single : TokenKind::Double;
    token.real = value;
    if (token.suffix == '@') {
        token.kind = TokenKind::Currency;
        tooLarge |= value > kLargestCurrency;
        const auto scaled = tooLarge ? 0 : scaledBy10000(begin, end, value);
        tooLarge |= scaled > kLargestScaled;
        token.integer = tooLarge ? 0 : static_cast<std::int64_t>(scaled);
    } else if (token.suffix == '!') {
        tooLarge |= value > static_cast<double>(std::numeric_limits<float>::max());
    } else if (token.suffix == '%' || token.suffix == '&') {
        token.kind = TokenKind::Long;
        tooLarge |= value > static_cast<double>(kLargestLong);
        token.integer = tooLarge ? 0 : std::llround(value);
    }
    if (tooLarge) report(Message::NumberTooLarge, token.begin, source_.text(token.begin, token.end));
}

namespace {

bool isDigitOf(char c, int bits) { return bits == 4 ? charIs(c, kHexDigit) : c >= '0' && c <= '7'; }

} // namespace

// &H and &O need at least one digit; otherwise the & concatenates strings.
void Lexer::readRadix(Token& token, const char* p, int bits) {
    const char mark = static_cast<char>(*p | 0x20);
    token.kind = TokenKind::Ampersand;
    if ((mark == 'h' || mark == 'o') && isDigitOf(p[1], bits)) readDigits(token, p + 1, bits);
}

bool Lexer::readOctal(Token& ampersand) {
    const char* const p = base_ + ampersand.end;
    if (!isDigitOf(*p, 3)) return false;
    readDigits(ampersand, p, 3);
    return true;
}

// Without a suffix, up to four hexadecimal digits are a signed Integer: &HFFFF is -1.
void Lexer::readDigits(Token& token, const char* p, int bits) {
    std::uint64_t value = 0;
    bool tooLarge = false;
    for (; isDigitOf(*p, bits); ++p) {
        const int digit = *p <= '9' ? *p - '0' : (*p | 0x20) - 'a' + 10;
        value = value << bits | static_cast<std::uint64_t>(digit);
        tooLarge |= value > 0xFFFFFFFFu;
        value &= 0xFFFFFFFFu;
    }
    token.suffix = *p == '&' || *p == '%' ? *p : '\0';
    token.end = pos_ = static_cast<Pos>(p - base_) + (token.suffix ? 1 : 0);
    const bool isLong = token.suffix == '&' || (token.suffix == 0 && value > 0xFFFF);
    token.kind = isLong ? TokenKind::Long : TokenKind::Integer;
    token.integer = isLong ? static_cast<std::int32_t>(value) : static_cast<std::int16_t>(value);
    if (tooLarge || (token.suffix == '%' && value > 0xFFFF))
        report(Message::NumberTooLarge, token.begin, source_.text(token.begin, token.end));
}

} // namespace qltoolkit
