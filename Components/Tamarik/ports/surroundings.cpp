#include "Components/Tamarik/ports/surroundings.h"
#include "Basic/case_folding.h"
#include <chrono>
#include <ctime>
#include <thread>

namespace tamarik {

namespace {

constexpr double kSecondsOfDay = 86400, kDayOfEpoch = 25569;

/// The present time, of which `dateOf` makes the date of the whole seconds.
template <class DateOf>
basic::Date presentTime(DateOf dateOf) {
    using namespace std::chrono;
    const auto now = system_clock::now();
    const auto whole = floor<seconds>(now);
    const double rest = duration<double>(now - whole).count();
    return {dateOf(system_clock::to_time_t(whole)).days + rest / kSecondsOfDay};
}

} // namespace

basic::Date localDate(std::int64_t seconds) {
    const auto time = static_cast<std::time_t>(seconds);
    std::tm local{};
    localtime_r(&time, &local);
    return {kDayOfEpoch + static_cast<double>(seconds + local.tm_gmtoff) / kSecondsOfDay};
}

basic::Date localTime() { return presentTime(localDate); }

basic::Date universalTime() {
    return presentTime(
        [](std::time_t seconds) { return basic::Date{kDayOfEpoch + static_cast<double>(seconds) / kSecondsOfDay}; });
}

double steadyTime() {
    using namespace std::chrono;
    return duration<double, std::milli>(steady_clock::now().time_since_epoch()).count();
}

void sleepFor(std::int64_t milliseconds) { std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds)); }

std::vector<std::string> deviceEnvironment() {
    return {"APPDATA=C:\\", "COMPUTERNAME=HANDHELD", "HOMEDRIVE=C:",    "HOMEPATH=\\", "TEMP=C:\\",
            "TMP=C:\\",     "USERNAME=User",         "USERPROFILE=C:\\"};
}

std::string_view Surroundings::variable(std::string_view name) const {
    for (const std::string_view each : environment) {
        const std::size_t end = each.find('=');
        if (end != std::string_view::npos && basic::equalNoCase(each.substr(0, end), name)) return each.substr(end + 1);
    }
    return {};
}

std::string commandLineOf(const std::vector<std::string>& words) {
    std::string line;
    for (const auto& word : words) {
        const bool isQuoted = word.empty() || word.find(' ') != word.npos;
        line += (line.empty() ? "" : " ") + (isQuoted ? '"' + word + '"' : word);
    }
    return line;
}

} // namespace tamarik
