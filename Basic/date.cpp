#include "Basic/date.h"
#include "Basic/case_folding.h"
#include "Basic/runtime_error.h"
#include <array>
#include <chrono>
#include <cmath>
#include <optional>
#include <utility>
#include <vector>

namespace basic {

namespace {

using std::chrono::sys_days;
using std::chrono::year_month_day;

constexpr sys_days kDayZero = sys_days(std::chrono::year(1899) / 12 / 30);
constexpr Double kFirstDay = -657434, kAfterLastDay = 2958466; // January 1 of 100 and of 10000
constexpr int kSecondsOfDay = 86400;
constexpr std::array<std::string_view, 12> kMonths = {"january",   "february", "march",    "april",
                                                      "may",       "june",     "july",     "august",
                                                      "september", "october",  "november", "december"};

Double requireDay(Double days) {
    if (!(days > kFirstDay - 1 && days < kAfterLastDay)) throw RuntimeError(kOverflow);
    return days;
}

[[noreturn]] void refuseDate() { throw RuntimeError(kTypeMismatch); }

/// A number, word or punctuation mark of a date.
struct DateToken {
    enum Kind { kNumber, kWord, kMark } kind;
    std::string_view text;

    bool is(std::string_view word) const { return equalNoCase(text, word); }
    int number() const {
        int value = 0;
        for (const char c : text) value = value * 10 + (c - '0');
        return value;
    }
};

DateToken::Kind kindOf(char c) {
    if (c >= '0' && c <= '9') return DateToken::kNumber;
    const bool letter = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
    return letter ? DateToken::kWord : DateToken::kMark;
}

std::vector<DateToken> tokensOf(std::string_view text) {
    constexpr std::size_t kLongest = 64; // no date has more characters
    std::vector<DateToken> tokens;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t first = at++;
        if (text[first] == ' ' || text[first] == '\t') continue;
        const auto kind = kindOf(text[first]);
        while (kind != DateToken::kMark && at < text.size() && kindOf(text[at]) == kind) ++at;
        if (kind == DateToken::kNumber && at - first > 4) refuseDate();
        if (tokens.size() == kLongest) refuseDate();
        tokens.push_back({kind, text.substr(first, at - first)});
    }
    return tokens;
}

int monthOf(std::string_view word) {
    for (std::size_t i = 0; i < kMonths.size(); ++i) {
        const bool shortForm = word.size() == 3 && startsWithNoCase(kMonths[i], word);
        if (shortForm || equalNoCase(kMonths[i], word)) return static_cast<int>(i) + 1;
    }
    return 0;
}

/// Parses the tokens of a text from left to right.
class DateReader {
public:
    DateReader(std::string_view text, std::optional<Date> today) : tokens_(tokensOf(text)), today_(today) {}

    Double read() {
        if (tokens_.empty()) refuseDate();
        bool hasDate = false, hasTime = false;
        Double days = 0, time = 0;
        while (at_ < tokens_.size()) {
            if (startsTime()) {
                if (std::exchange(hasTime, true)) refuseDate();
                time = readTime();
            } else {
                if (std::exchange(hasDate, true)) refuseDate();
                days = readDate();
            }
        }
        return days < 0 ? days - time : days + time;
    }

private:
    const DateToken* peek(std::size_t ahead = 0) const {
        return at_ + ahead < tokens_.size() ? &tokens_[at_ + ahead] : nullptr;
    }
    /// Whether a number follows that does not start a time.
    bool hasNumber() const { return peek() && peek()->kind == DateToken::kNumber && !startsTime(); }
    bool takeMark(std::string_view mark) {
        const bool good = peek() && peek()->text == mark;
        at_ += good;
        return good;
    }
    DateToken takeNumber() {
        if (!peek() || peek()->kind != DateToken::kNumber) refuseDate();
        return tokens_[at_++];
    }
    static bool isHalfOfDay(const DateToken* token) { return token && (token->is("AM") || token->is("PM")); }

    bool startsTime() const { return (peek(1) && peek(1)->text == ":") || isHalfOfDay(peek(1)); }

    Double readTime() {
        int hour = takeNumber().number(), minute = 0, second = 0;
        if (takeMark(":")) minute = takeNumber().number();
        if (takeMark(":")) second = takeNumber().number();
        if (isHalfOfDay(peek())) {
            if (hour > 12) refuseDate();
            hour = hour % 12 + (tokens_[at_].is("PM") ? 12 : 0);
            ++at_;
        }
        if (hour > 23 || minute > 59 || second > 59) refuseDate();
        return static_cast<Double>(hour * 3600 + minute * 60 + second) / kSecondsOfDay;
    }

    Double readDate() {
        if (peek()->kind == DateToken::kWord) return readMonthFirst();
        const DateToken first = takeNumber();
        if (peek() && peek()->kind == DateToken::kWord) return readDayFirst(first);
        const bool slash = takeMark("/");
        if (!slash && !takeMark("-")) refuseDate();
        if (peek() && peek()->kind == DateToken::kWord) return readDayFirst(first);
        const DateToken secondToken = takeNumber();
        const int second = secondToken.number();
        if (!takeMark(slash ? "/" : "-")) return dayOfTwo(first, secondToken);
        const DateToken third = takeNumber();
        if (first.text.size() == 4) return dayOf(first, second, third.number());
        const int month = first.number();
        return month > 12 ? dayOf(third, second, month) : dayOf(third, month, second);
    }

    Double readMonthFirst() {
        const int month = monthOf(tokens_[at_++].text);
        const bool hyphen = takeMark("-");
        const DateToken day = takeNumber();
        if (!(hyphen && takeMark("-"))) takeMark(",");
        return hasNumber() ? dayOf(takeNumber(), month, day.number()) : dayOfMonth(month, day);
    }

    Double readDayFirst(const DateToken& day) {
        const int month = monthOf(tokens_[at_++].text);
        if (!takeMark("-")) takeMark(",");
        return hasNumber() ? dayOf(takeNumber(), month, day.number()) : dayOfMonth(month, day);
    }

    /// A date of this year, or the first day of a month with its year.
    Double dayOfMonth(int month, const DateToken& number) const {
        if (isDay(month, number)) return dayOf(thisYear(), month, number.number());
        return dayOf(number, month, 1);
    }

    Double dayOfTwo(const DateToken& first, const DateToken& second) const {
        if (first.text.size() == 4) return dayOf(first, second.number(), 1);
        if (first.number() > 12 && isDay(second.number(), first)) return dayOfMonth(second.number(), first);
        return dayOfMonth(first.number(), second);
    }

    /// Whether the number can be a day of the month, in some year at least.
    static bool isDay(int month, const DateToken& token) {
        constexpr int kLeapYear = 2000;
        const year_month_day date{std::chrono::year(kLeapYear), std::chrono::month(static_cast<unsigned>(month)),
                                  std::chrono::day(static_cast<unsigned>(token.number()))};
        return token.text.size() <= 2 && date.ok();
    }

    int thisYear() const {
        if (!today_) refuseDate();
        return static_cast<int>(year_month_day{kDayZero + std::chrono::days(static_cast<int>(today_->days))}.year());
    }

    static Double dayOf(const DateToken& yearToken, int month, int day) {
        int year = yearToken.number();
        if (yearToken.text.size() <= 2) year += year < 30 ? 2000 : 1900;
        return dayOf(year, month, day);
    }

    static Double dayOf(int year, int month, int day) {
        const year_month_day date{std::chrono::year(year), std::chrono::month(static_cast<unsigned>(month)),
                                  std::chrono::day(static_cast<unsigned>(day))};
        if (!date.ok() || year < 100) refuseDate();
        return static_cast<Double>((sys_days(date) - kDayZero).count());
    }

    std::vector<DateToken> tokens_;
    std::size_t at_ = 0;
    std::optional<Date> today_;
};

std::string twoDigits(int number) { return (number < 10 ? "0" : "") + std::to_string(number); }

std::string dayText(Double day) {
    const year_month_day date{kDayZero + std::chrono::days(static_cast<int>(day))};
    return std::to_string(static_cast<unsigned>(date.month())) + '/' +
           std::to_string(static_cast<unsigned>(date.day())) + '/' + std::to_string(static_cast<int>(date.year()));
}

std::string timeText(int seconds) {
    const int hour = seconds / 3600, ofTwelve = hour % 12 == 0 ? 12 : hour % 12;
    return std::to_string(ofTwelve) + ':' + twoDigits(seconds / 60 % 60) + ':' + twoDigits(seconds % 60) +
           (hour < 12 ? " AM" : " PM");
}

} // namespace

Date CDate(const Convertible& value, std::optional<Date> today) {
    if (value.text()) return {DateReader(*value.text(), today).read()};
    return {requireDay(value.number())};
}

std::string CStr(Date date) {
    Double day = std::trunc(requireDay(date.days));
    auto seconds = static_cast<int>(std::round(std::abs(date.days - day) * kSecondsOfDay));
    if (seconds == kSecondsOfDay) {
        seconds = 0;
        ++day;
    }
    if (day == 0) return timeText(seconds);
    return seconds == 0 ? dayText(day) : dayText(day) + ' ' + timeText(seconds);
}

} // namespace basic
