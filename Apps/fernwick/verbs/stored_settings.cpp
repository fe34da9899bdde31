#include "Apps/fernwick/verbs/stored_settings.h"
#include "Apps/fernwick/devices/device_settings.h"
#include "Basic/case_folding.h"
#include "Basic/conversions.h"
#include <fmt/format.h>

namespace cli {

namespace {

using fernwick::Array;
using fernwick::clsQLProject;
using Values = StoredSetting::Values;

std::string settingText(const std::string& value) { return value; }
std::string settingText(bool value) { return value ? "True" : "False"; }
std::string settingText(std::int32_t value) { return std::to_string(value); }
std::string settingText(float value) { return basic::CStr(value); }

void convertSetting(const std::string& text, std::string& value) { value = text; }
void convertSetting(const std::string& text, bool& value) { value = basic::CBool(text); }
void convertSetting(const std::string& text, std::int32_t& value) { value = basic::CLng(text); }
void convertSetting(const std::string& text, float& value) { value = basic::CSng(text); }

template <class T>
constexpr SettingKind kindOfSetting() {
    if constexpr (std::is_same_v<T, bool>) return SettingKind::Boolean;
    if constexpr (std::is_same_v<T, std::int32_t>) return SettingKind::Number;
    if constexpr (std::is_same_v<T, float>) return SettingKind::Decimal;
    return SettingKind::Text;
}

template <class T, T (clsQLProject::*Get)() const>
Values readPlain(const clsQLProject& project) {
    return {settingText((project.*Get)())};
}

template <class T, class Argument, void (clsQLProject::*Let)(Argument)>
void writePlain(clsQLProject& project, const Values& values) {
    T value{};
    convertSetting(values.front(), value);
    (project.*Let)(value);
}

template <class T, class Argument, T (clsQLProject::*Get)() const, void (clsQLProject::*Let)(Argument)>
StoredSetting plain(std::string_view name, std::string_view meaning, T otherwise = {}) {
    return {name,   kindOfSetting<T>(), readPlain<T, Get>, writePlain<T, Argument, Let>, {settingText(otherwise)},
            meaning};
}

template <class T, T (clsQLProject::*Get)() const>
StoredSetting readOnly(std::string_view name, std::string_view meaning, T otherwise = {}) {
    return {name, kindOfSetting<T>(), readPlain<T, Get>, nullptr, {settingText(otherwise)}, meaning};
}

template <std::vector<std::string> (clsQLProject::*Get)() const>
StoredSetting builtList(std::string_view name, std::string_view meaning) {
    return {name, SettingKind::List, [](const clsQLProject& p) { return (p.*Get)(); }, nullptr, {}, meaning};
}

template <bool (clsQLProject::*Get)(Array<std::string>&) const, void (clsQLProject::*Set)(const Array<std::string>&),
          void (clsQLProject::*Zero)()>
StoredSetting steps(std::string_view name, std::string_view meaning) {
    return {name,
            SettingKind::List,
            [](const clsQLProject& project) {
                Array<std::string> list;
                (project.*Get)(list);
                return Values(list.begin(), list.end());
            },
            [](clsQLProject& project, const Values& values) {
                if (values.empty())
                    (project.*Zero)();
                else
                    (project.*Set)(Array<std::string>(0, values));
            },
            {},
            meaning};
}

using Text = const std::string&;
using P = clsQLProject;

/// What a project says for itself of its handheld goes before what the user says for all.
template <std::string qlpipe::LinuxHandheldSettings::*Value>
StoredSetting handheld(std::string_view name, std::string_view meaning) {
    return {name,
            SettingKind::Text,
            [](const clsQLProject& project) { return Values{qlpipe::readProjectSettings(project.VBProject()).*Value}; },
            [](clsQLProject& project, const Values& values) {
                auto settings = qlpipe::readProjectSettings(project.VBProject());
                settings.*Value = values.front();
                requireMeantSettings(settings, project.TargetDevice());
                qlpipe::writeProjectSettings(project.VBProject(), settings);
            },
            {""},
            meaning};
}

/// The default icon is not stored.
Values readIcon(const clsQLProject& project) {
    const auto icon = project.IconFileName();
    return {icon == project.DefaultIconFileName() ? std::string() : icon};
}

const std::vector<StoredSetting>& settingTable() {
    static const std::vector<StoredSetting> table{
        readOnly<bool, &P::IsQuinloftProject>("IsQuinloftProject", "the project is a Fernwick project"),
        readOnly<std::string, &P::ProjectVersion>("ProjectVersion", "version of the project format", "1.0"),
        plain<std::string, Text, &P::TargetDevice, &P::TargetDevice>("TargetDevice", "key of the design target"),
        plain<std::int32_t, std::int32_t, &P::TavletStyleID, &P::TavletStyleID>("TavletStyleID",
                                                                                "style of the controls"),
        plain<std::string, Text, &P::DefaultFontName, &P::DefaultFontName>("DefaultFontName", "font of new forms"),
        plain<std::int32_t, std::int32_t, &P::DefaultFontSize, &P::DefaultFontSize>("DefaultFontSize",
                                                                                    "its size in points"),
        plain<std::int32_t, std::int32_t, &P::DefaultFontStyle, &P::DefaultFontStyle>("DefaultFontStyle",
                                                                                      "1 bold, 2 italic, 3 both"),
        plain<std::int32_t, std::int32_t, &P::DefaultFormColor, &P::DefaultFormColor>(
            "DefaultFormColor", "back colour of new forms, 0 for none"),
        plain<std::int32_t, std::int32_t, &P::DefaultFormWidth, &P::DefaultFormWidth>(
            "DefaultFormWidth", "device pixels, -1 for no fixed width"),
        plain<std::int32_t, std::int32_t, &P::defaultFormHeight, &P::defaultFormHeight>(
            "DefaultFormHeight", "device pixels, -1 for no fixed height"),
        plain<bool, bool, &P::SpacesInNameEnabled, &P::SpacesInNameEnabled>("SpacesInNameEnabled",
                                                                            "underscores of the name show as blanks"),
        plain<bool, bool, &P::IconWarning, &P::IconWarning>("IconWarning", "the user was warned about the icon"),
        {"IconFileName",
         SettingKind::Text,
         readIcon,
         writePlain<std::string, Text, &P::IconFileName>,
         {""},
         "application icon"},
        plain<bool, bool, &P::Autosave, &P::Autosave>("Autosave", "save without asking when a compile needs it"),
        plain<std::string, Text, &P::GetLastSettingsDialog, &P::SetLastSettingsDialog>("LastSettingsDialog",
                                                                                       "settings page shown last"),
        plain<float, float, &P::TwipsPerPixelX, &P::TwipsPerPixelX>("TwipsPerPixelX", "screen resolution of the forms"),
        plain<float, float, &P::TwipsPerPixelY, &P::TwipsPerPixelY>("TwipsPerPixelY", "screen resolution of the forms"),
        plain<std::string, Text, &P::LastCompileVersion, &P::LastCompileVersion>("LastCompileVersion",
                                                                                 "compiler of the last good build"),
        plain<bool, bool, &P::ScanReferences, &P::ScanReferences>("ScanReferences", "validation tests references",
                                                                  true),
        plain<bool, bool, &P::OpenedFromQLTemplate, &P::OpenedFromQLTemplate>("OpenedFromQLTemplate",
                                                                              "made from a template"),
        steps<&P::GetPreCompileSteps, &P::SetPreCompileSteps, &P::ZeroPreCompileSteps>(
            "PreCompileSteps", "command lines before a compile, in order"),
        steps<&P::GetPostCompileSteps, &P::SetPostCompileSteps, &P::ZeroPostCompileSteps>(
            "PostCompileSteps", "command lines after a good compile, in order"),
        handheld<&qlpipe::LinuxHandheldSettings::Host>("HandheldHost", "name or address of the Linux handheld"),
        handheld<&qlpipe::LinuxHandheldSettings::Port>("HandheldPort", "port of its SSH server"),
        handheld<&qlpipe::LinuxHandheldSettings::User>("HandheldUser", "user on it"),
        handheld<&qlpipe::LinuxHandheldSettings::KeyFile>("HandheldKeyFile", "private key for it"),
        handheld<&qlpipe::LinuxHandheldSettings::Folder>("HandheldFolder", "where applications go on it"),
        handheld<&qlpipe::LinuxHandheldSettings::KnownHosts>("HandheldKnownHosts", "file of known hosts"),
        builtList<&P::GetComponentDependencies>("ComponentDependencies", "libraries that the last build used"),
        builtList<&P::GetTavletFileDependencies>("TavletFileDependencies", "files that the last build used"),
        builtList<&P::GetFontDependencies>("FontDependencies", "fonts that the application needs"),
    };
    return table;
}

} // namespace

std::span<const StoredSetting> storedSettings() { return settingTable(); }

const StoredSetting* storedSettingNamed(std::string_view name) {
    for (const auto& setting : storedSettings())
        if (basic::equalNoCase(setting.name, name)) return &setting;
    return nullptr;
}

std::string wrongWithValues(const StoredSetting& setting, const Values& values) {
    if (!setting.write) return fmt::format("{} is not set by hand", setting.name);
    for (const auto& value : values)
        if (value.find_first_of("\r\n") != value.npos) return "a stored value has no line breaks";
    if (setting.kind == SettingKind::List) return {};
    if (values.size() != 1) return fmt::format("{} takes one value", setting.name);
    const auto err = basic::attempt([&] {
        if (setting.kind == SettingKind::Number) (void)basic::CLng(values.front());
        if (setting.kind == SettingKind::Decimal) (void)basic::CSng(values.front());
        if (setting.kind == SettingKind::Boolean) (void)basic::CBool(values.front());
    });
    return err.Number == 0 ? std::string()
                           : fmt::format("{} takes a {}, not {}", setting.name,
                                         setting.kind == SettingKind::Boolean ? "Boolean (True or False)" : "number",
                                         values.front());
}

} // namespace cli
