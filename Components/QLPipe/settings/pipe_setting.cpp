#include "Components/QLPipe/settings/pipe_setting.h"
#include "Basic/printable.h"
#include "Basic/text.h"
#include <algorithm>
#include <cctype>

namespace qlpipe {

namespace {

constexpr std::size_t kLongestValue = 1024;
constexpr basic::Long kLongestShown = 60;

/// The host raises an error for a missing value.
std::string projectValue(const PipeSettings& settings, const PipeSetting& setting, const vbide::VBProject& project) {
    std::string value;
    (void)basic::attempt([&] { value = project.ReadProperty(settings.section, setting.key); });
    return value;
}

void restore(const PipeSettings& settings, vbide::VBProject& project, const SettingValues& before) {
    for (std::size_t i = 0; i < before.size(); ++i)
        if (const auto& row = settings.rows[i]; !row.isOfUser && projectValue(settings, row, project) != before[i])
            (void)basic::attempt([&] { project.WriteProperty(settings.section, row.key, before[i]); });
}

std::string sentence(std::string text) {
    if (text.empty()) return text;
    text[0] = char(std::toupper(static_cast<unsigned char>(text[0])));
    return text + ".";
}

bool isAscii(const std::string& value) {
    return std::ranges::all_of(value, [](unsigned char c) { return c < 0x80; });
}

bool hasControlCharacter(const std::string& value) {
    return std::ranges::any_of(value, [](unsigned char c) { return c < ' ' || c == 0x7F; });
}

} // namespace

SettingValues readProjectValues(const PipeSettings& settings, const basic::Ref<vbide::VBProject>& project) {
    SettingValues values(settings.rows.size());
    for (std::size_t i = 0; project && i < values.size(); ++i)
        if (!settings.rows[i].isOfUser) values[i] = projectValue(settings, settings.rows[i], *project);
    return values;
}

/// A project file can lack the characters of a text beyond ASCII. Such texts are written first, so that usually nothing
/// has to be undone.
void writeProjectValues(const PipeSettings& settings, const basic::Ref<vbide::VBProject>& project,
                        const SettingValues& before, const SettingValues& values) {
    std::vector<std::size_t> changed;
    for (std::size_t i = 0; i < values.size(); ++i)
        if (!settings.rows[i].isOfUser && values[i] != before[i]) changed.push_back(i);
    std::stable_partition(changed.begin(), changed.end(), [&](std::size_t i) { return !isAscii(values[i]); });
    for (const auto i : changed) {
        const auto* key = settings.rows[i].key;
        const auto failed = basic::attempt([&] { project->WriteProperty(settings.section, key, values[i]); });
        if (failed.Number == 0) continue;
        restore(settings, *project, before);
        throw basic::RuntimeError(failed.Number, failed.Description);
    }
}

std::vector<const PipeSetting*> ignoredInProject(const PipeSettings& settings,
                                                 const basic::Ref<vbide::VBProject>& project) {
    std::vector<const PipeSetting*> ignored;
    for (const auto& row : settings.rows)
        if (project && row.isOfUser && !projectValue(settings, row, *project).empty()) ignored.push_back(&row);
    return ignored;
}

std::string problemOf(const PipeSetting& setting, const std::string& value, const TargetLimits& limits) {
    if (value.empty()) return {};
    if (hasControlCharacter(value)) return "it must not contain control characters";
    if (value.size() > kLongestValue) return "it must have at most 1,024 bytes";
    return setting.problem ? setting.problem(value, limits) : std::string();
}

std::string problemsOf(const PipeSettings& settings, const SettingValues& values, const TargetLimits& limits) {
    std::string text;
    for (std::size_t i = 0; i < values.size(); ++i)
        if (const auto problem = problemOf(settings.rows[i], values[i], limits); !problem.empty())
            text += (text.empty() ? "" : "\n") + titleOf(settings.rows[i]) + ": " + problem + ".";
    return text;
}

std::string titleOf(const PipeSetting& setting) {
    std::string title = setting.caption;
    std::erase(title, '&');
    std::erase(title, ':');
    return title;
}

std::string tipOf(const PipeSetting& setting) { return sentence(setting.meaning) + " " + detailsOf(setting); }

std::string detailsOf(const PipeSetting& setting) {
    return sentence(setting.range) + " Default: " + setting.usual + ". " + sentence(setting.use);
}

std::string shortened(const std::string& value) {
    return basic::Len(value) > kLongestShown ? basic::Left(value, kLongestShown) + "..." : value;
}

} // namespace qlpipe
