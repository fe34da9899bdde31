#include "Components/Tamarik/format/date_picture.h"
#include "Basic/date.h"
#include "Basic/utf16.h"
#include "Components/Tamarik/dates/serial.h"
#include "Components/Tamarik/text/letters.h"
#include <string_view>

namespace tamarik {

namespace {

constexpr std::u16string_view kShortDate = u"m/d/yyyy", kLongDate = u"dddd, mmmm dd, yyyy",
                              kLongTime = u"h:mm:ss AM/PM";

/// Writes one date by one section.
class DateWriter {
public:
    DateWriter(Date date, WeekRules rules)
        : date_(date), moment_(momentOf(date)), parts_(partsOf(moment_.day)), rules_(rules) {}

    std::u16string write(const Picture& section) {
        isHalfDay_ = hasHalf(section);
        for (std::size_t i = 0; i < section.size();) {
            const std::size_t length = dateCodeAt(section, i);
            if (length == 0)
                text_ += section[i++].unit;
            else
                i += writeCode(section, i, length);
        }
        return std::move(text_);
    }

private:
    static std::u16string codeAt(const Picture& section, std::size_t at, std::size_t length) {
        std::u16string code;
        for (std::size_t i = at; i < at + length; ++i) code += section[i].unit;
        return code;
    }

    static bool hasHalf(const Picture& section) {
        for (std::size_t i = 0; i < section.size();) {
            const std::size_t length = dateCodeAt(section, i);
            if (length > 0 && isHalf(LCase(codeAt(section, i, length)))) return true;
            i += length > 0 ? length : 1;
        }
        return false;
    }

    static bool isHalf(std::u16string_view code) { return code == u"am/pm" || code == u"ampm" || code == u"a/p"; }

    /// Returns the length of the code.
    std::size_t writeCode(const Picture& section, std::size_t at, std::size_t length) {
        const std::u16string written = codeAt(section, at, length), code = LCase(written);
        if (isHalf(code))
            writeHalf(written);
        else if (length == 1)
            writeOne(code[0]);
        else
            writeLong(code);
        afterHour_ = code[0] == u'h';
        return length;
    }

    void writeOne(char16_t code) {
        switch (code) {
        case u'd': return number(parts_.day, 1);
        case u'w': return number(weekdayOf(moment_.day, rules_.firstDay), 1);
        case u'm': return number(afterHour_ ? minute() : parts_.month, 1);
        case u'q': return number((parts_.month + 2) / 3, 1);
        case u'y': return number(static_cast<int>(moment_.day - dayOf(parts_.year, 1, 1)) + 1, 1);
        case u'h': return number(hour(), 1);
        case u'n': return number(minute(), 1);
        case u's': return number(moment_.second % 60, 1);
        default: text_ += basic::toUtf16(basic::CStr(date_));
        }
    }

    void writeLong(std::u16string_view code) {
        switch (code[0]) {
        case u'd': return writeDay(code.size());
        case u'a': return writeDay(4);
        case u'w': return number(weekOf(moment_.day, rules_.firstDay, rules_.firstWeek), 1);
        case u'm': return writeMonth(code.size());
        case u'y': return code.size() == 2 ? number(parts_.year % 100, 2) : number(parts_.year, 1);
        case u'h': return number(hour(), 2);
        case u'n': return number(minute(), 2);
        case u's': return number(moment_.second % 60, 2);
        default: embed(kLongTime);
        }
    }

    void writeDay(std::size_t length) {
        switch (length) {
        case 2: return number(parts_.day, 2);
        case 3:
        case 4: text_ += WeekdayName(weekdayOf(moment_.day), length == 3); break;
        case 5: return embed(kShortDate);
        default: embed(kLongDate);
        }
    }

    void writeMonth(std::size_t length) {
        if (length == 2) return number(afterHour_ ? minute() : parts_.month, 2);
        text_ += MonthName(parts_.month, length == 3);
    }

    /// In the case of the code.
    void writeHalf(std::u16string_view code) {
        const bool isLow = code[0] == u'a';
        const bool isMorning = moment_.second < 12 * 3600;
        std::u16string half = isMorning ? u"AM" : u"PM";
        if (code.size() == 3) half.resize(1);
        text_ += isLow && code.size() != 4 ? LCase(half) : half;
    }

    void embed(std::u16string_view format) { text_ += DateWriter(date_, rules_).write(sectionsOf(format)[0]); }

    void number(int value, std::size_t digits) {
        const std::string text = std::to_string(value);
        if (text.size() < digits) text_.append(digits - text.size(), u'0');
        text_.append(text.begin(), text.end());
    }

    int hour() const {
        const int hour = moment_.second / 3600;
        return !isHalfDay_ ? hour : hour % 12 == 0 ? 12 : hour % 12;
    }
    int minute() const { return moment_.second / 60 % 60; }

    Date date_;
    Moment moment_;
    YearMonthDay parts_;
    WeekRules rules_;
    bool isHalfDay_ = false, afterHour_ = false;
    std::u16string text_;
};

} // namespace

std::u16string formatDate(Date date, const Picture& section, WeekRules rules) {
    return DateWriter(date, rules).write(section);
}

} // namespace tamarik
