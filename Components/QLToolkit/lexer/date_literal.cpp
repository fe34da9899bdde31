#include "Components/QLToolkit/lexer/date_literal.h"
#include <array>
#include <cmath>
#include <cstdint>

namespace qltoolkit {

namespace {

constexpr std::array<std::string_view, 12> kMonths{"january",   "february", "march",    "april",
                                                   "may",       "june",     "july",     "august",
                                                   "september", "october",  "november", "december"};

struct DateParts {
    std::array<int, 3> numbers{};
    int count = 0;
    int month = 0;       // from its name
    int monthPlace = -1; // count of numbers before the name
    int firstDigits = 0; // digits of the first number; four mean a year
};

class DateReader {
public:
    explicit DateReader(std::string_view text) : text_(text) {}

    std::optional<double> read() {
        skipBlanks();
        if (atEnd()) return {};
        const bool timeOnly = looksLikeTime();
        std::optional<std::int64_t> day = 0;
        if (!timeOnly) day = readDay();
        if (!day) return {};
        skipBlanks();
        if (atEnd()) return static_cast<double>(*day);
        const auto time = readTime();
        if (!time || !atEnd()) return {};
        return static_cast<double>(*day) + (*day < 0 ? -*time : *time);
    }

private:
    bool atEnd() const { return at_ >= text_.size(); }
    char peek() const { return atEnd() ? '\0' : text_[at_]; }
    static bool digit(char c) { return c >= '0' && c <= '9'; }
    static bool letter(char c) { return (c | 0x20) >= 'a' && (c | 0x20) <= 'z'; }
    void skipBlanks() {
        while (peek() == ' ' || peek() == '\t') ++at_;
    }
    bool looksLikeTime() const {
        auto p = at_;
        while (p < text_.size() && digit(text_[p])) ++p;
        if (p == at_) return false;
        while (p < text_.size() && text_[p] == ' ') ++p;
        if (p < text_.size() && text_[p] == ':') return true;
        return p + 1 < text_.size() && ((text_[p] | 0x20) == 'a' || (text_[p] | 0x20) == 'p') &&
               (text_[p + 1] | 0x20) == 'm' && (p + 2 == text_.size() || text_[p + 2] == ' ');
    }
    std::optional<int> readNumber(int maxDigits) {
        int value = 0, digits = 0;
        while (digit(peek()) && digits <= maxDigits) {
            value = value * 10 + (peek() - '0');
            ++at_, ++digits;
        }
        lastDigits_ = digits;
        if (digits == 0 || digits > maxDigits) return {};
        return value;
    }
    std::optional<int> readMonthName() {
        std::array<char, 10> word{};
        std::size_t length = 0;
        while (letter(peek()) && length < word.size()) word[length++] = static_cast<char>(text_[at_++] | 0x20);
        const std::string_view name(word.data(), length);
        for (std::size_t m = 0; m < kMonths.size(); ++m)
            if (length >= 3 && kMonths[m].substr(0, length == kMonths[m].size() ? length : 3) == name)
                return static_cast<int>(m) + 1;
        return {};
    }
    std::optional<std::int64_t> readDay() {
        DateParts parts;
        while (!atEnd() && !(parts.count > 0 && looksLikeTime())) {
            if (digit(peek())) {
                const auto number = readNumber(4);
                if (!number || parts.count == 3) return {};
                if (parts.count == 0) parts.firstDigits = lastDigits_;
                parts.numbers[static_cast<std::size_t>(parts.count++)] = *number;
            } else if (letter(peek())) {
                const auto month = readMonthName();
                if (!month || parts.month) return {};
                parts.month = *month;
                parts.monthPlace = parts.count;
            } else {
                return {};
            }
            skipBlanks();
            if (peek() == '/' || peek() == '-' || peek() == ',') ++at_;
            skipBlanks();
        }
        return dayNumber(parts);
    }
    static std::optional<std::int64_t> dayNumber(const DateParts& p) {
        const auto& n = p.numbers;
        const int total = p.count + (p.month ? 1 : 0);
        if (total < 2) return {};
        if (p.month) {
            if (p.count == 1) return n[0] > 31 ? days(n[0], p.month, 1) : std::nullopt;
            return p.firstDigits > 2 ? days(n[0], p.month, n[1]) : days(n[1], p.month, n[0]);
        }
        if (total < 3) return {};
        if (p.firstDigits > 2) return days(n[0], n[1], n[2]);
        if (n[0] > 12) return days(n[2], n[1], n[0]);
        return days(n[2], n[0], n[1]);
    }
    static std::optional<std::int64_t> days(int year, int month, int day) {
        if (year < 30)
            year += 2000;
        else if (year < 100)
            year += 1900;
        static constexpr std::array<int, 12> kDays{31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
        if (month < 1 || month > 12 || day < 1) return {};
        const bool leap = (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
        const int length = kDays[static_cast<std::size_t>(month - 1)] + (month == 2 && leap ? 1 : 0);
        if (day > length) return {};
        // Days from civil, counted from 1 March 0000; 693899 is 30 December 1899.
        const std::int64_t y = month <= 2 ? year - 1 : year;
        const std::int64_t m = (month + 9) % 12;
        return 365 * y + y / 4 - y / 100 + y / 400 + (153 * m + 2) / 5 + day - 1 - 693899;
    }
    std::optional<double> readTime() {
        std::array<int, 3> part{};
        for (std::size_t i = 0; i < 3; ++i) {
            skipBlanks();
            const auto number = readNumber(2);
            if (!number) return {};
            part[i] = *number;
            skipBlanks();
            if (peek() != ':') break;
            ++at_;
        }
        if (!applyHalf(part[0]) || part[0] > 23 || part[1] > 59 || part[2] > 59) return {};
        skipBlanks();
        return (part[0] * 3600 + part[1] * 60 + part[2]) / 86400.0;
    }
    bool applyHalf(int& hour) {
        if (!letter(peek())) return true;
        const char half = static_cast<char>(peek() | 0x20);
        if ((half != 'a' && half != 'p') || at_ + 1 >= text_.size() || (text_[at_ + 1] | 0x20) != 'm') return false;
        at_ += 2;
        if (hour > 12) return half == 'p';
        hour = hour % 12 + (half == 'p' ? 12 : 0);
        return true;
    }

    std::string_view text_;
    std::size_t at_ = 0;
    int lastDigits_ = 0;
};

} // namespace

std::optional<double> parseDateLiteral(std::string_view text) { return DateReader{text}.read(); }

} // namespace qltoolkit
