#include "Add-in/lifecycle/known_lines.h"
#include "Add-in/build/dependencies/resource_list.h"
#include "Add-in/build/messages/stored_messages.h"
#include <algorithm>
#include <iterator>

namespace fernwick {

namespace {

/// The results of a build, and the settings of each family of pipes, which only the pipe knows.
constexpr std::string_view kWholeSections[] = {kErrorsSection, "Quinloft Palm OS", "Quinloft PocketPC",
                                               "Quinloft Linux Handheld"};
/// Keys of the global section that are no settings.
constexpr std::string_view kMarks[] = {"StartUpProject", "MODID"};

bool isOneOf(std::string_view text, std::span<const std::string_view> some) {
    return std::any_of(some.begin(), some.end(), [&](auto one) { return basic::equalNoCase(text, one); });
}

} // namespace

bool KnownLines::holds(std::string_view section, std::string_view key) const {
    if (isOneOf(section, kWholeSections)) return true;
    if (section == kProjectDependencies)
        return basic::equalNoCase(key, kNumDependencies) || isNumberedKey(key, kDependencyKey);
    if (section == kGlobalSection && isOneOf(key, kMarks)) return true;
    const auto all = settings_.settings();
    return std::any_of(all.begin(), all.end(), [&](const auto* setting) { return setting->owns(section, key); });
}

} // namespace fernwick
