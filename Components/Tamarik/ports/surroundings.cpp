#include "Components/Tamarik/ports/surroundings.h"
#include <chrono>
#include <ctime>

namespace tamarik {

namespace {

constexpr double kSecondsOfDay = 86400, kDayOfEpoch = 25569;

} // namespace

basic::Date localDate(std::int64_t seconds) {
    const auto time = static_cast<std::time_t>(seconds);
    std::tm local{};
    localtime_r(&time, &local);
    return {kDayOfEpoch + static_cast<double>(seconds + local.tm_gmtoff) / kSecondsOfDay};
}

basic::Date localTime() {
    using namespace std::chrono;
    const auto now = system_clock::now();
    const auto whole = floor<seconds>(now);
    const double rest = duration<double>(now - whole).count();
    return {localDate(system_clock::to_time_t(whole)).days + rest / kSecondsOfDay};
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
