#pragma once
// User-defined formats of dates.
#include "Components/Tamarik/dates/calendar.h"
#include "Components/Tamarik/format/picture.h"
#include <string>

namespace tamarik {

/// The days on which weeks and years start.
struct WeekRules {
    int firstDay = vbSunday;
    int firstWeek = vbFirstJan1;
};

/// Formats a date by a section. Error 5 for rules out of range where they are needed.
std::u16string formatDate(Date date, const Picture& section, WeekRules rules = {});

} // namespace tamarik
