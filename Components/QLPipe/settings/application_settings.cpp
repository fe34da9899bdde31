#include "Components/QLPipe/settings/application_settings.h"
#include "Basic/case_folding.h"
#include "Basic/text.h"
#include <algorithm>
#include <charconv>

namespace qlpipe {

namespace {

constexpr std::int64_t kKilobyte = 1024, kLeastMemory = 16, kMostMemory = 4'194'304;
constexpr std::size_t kCreatorIdLength = 4;
constexpr basic::Long kLongestVersion = 31;

std::optional<std::int64_t> wholeNumber(const std::string& text) {
    std::int64_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc{} || end != text.data() + text.size()) return {};
    return number;
}

} // namespace

ApplicationSettings readApplicationSettings(const PipeSettings& settings, const basic::Ref<vbide::VBProject>& project) {
    ApplicationSettings read;
    const auto values = readProjectValues(settings, project);
    for (std::size_t i = 0; i < values.size(); ++i)
        if (const auto member = settings.rows[i].application) read.*member = values[i];
    return read;
}

std::optional<std::int64_t> memoryLimitBytes(const std::string& text) {
    const auto kilobytes = wholeNumber(text);
    if (!kilobytes || *kilobytes < kLeastMemory || *kilobytes > kMostMemory) return {};
    return *kilobytes * kKilobyte;
}

std::string creatorIdProblem(const std::string& value, const TargetLimits&) {
    const auto isPlain = [](char c) { return c > ' ' && c < 0x7F; };
    if (basic::Len(value) != basic::Long(kCreatorIdLength)) return "it must have exactly 4 characters";
    if (!std::ranges::all_of(value, isPlain)) return "only the letters A to Z, digits and signs of ASCII are allowed";
    if (std::ranges::all_of(value, [](char c) { return c >= 'a' && c <= 'z'; }))
        return "four small letters are reserved for the system; use at least one capital letter, digit or sign";
    return {};
}

std::string versionProblem(const std::string& value, const TargetLimits&) {
    return basic::Len(value) > kLongestVersion ? "it must have at most 31 characters" : "";
}

std::string memoryLimitProblem(const std::string& value, const TargetLimits& limits) {
    const auto kilobytes = wholeNumber(value);
    const auto most = std::min(kMostMemory, limits.heapBytes.value_or(kMostMemory * kKilobyte) / kKilobyte);
    if (!kilobytes || *kilobytes < kLeastMemory)
        return "it must be a whole number of KB, at least " + std::to_string(kLeastMemory);
    if (*kilobytes <= most) return {};
    return "a program on " + limits.platform + " has at most " + std::to_string(most) + " KB";
}

std::string orientationProblem(const std::string& value, const TargetLimits&) {
    const auto isIt = [&](const char* choice) { return basic::equalNoCase(choice, value); };
    return std::ranges::any_of(kOrientations, isIt) ? "" : "it must be Portrait or Landscape";
}

} // namespace qlpipe
