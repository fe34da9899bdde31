#pragma once
// Every stored setting of a project, in the order in which lists show them.
#include "Add-in/project/stored/compile_step_list.h"
#include "Add-in/project/stored/dependency_list.h"
#include "Add-in/project/stored/icon_setting.h"
#include "Add-in/project/stored/project_format.h"
#include "Add-in/project/stored/target_device_setting.h"

namespace fernwick {

/// An empty name does not replace the stored one.
class LastPageSetting final : public Setting<std::string> {
public:
    using Setting::Setting;

protected:
    void let(const std::string& page) override {
        if (!page.empty()) Setting::let(page);
    }
};

class ProjectSettings : public SettingList {
protected:
    CompileTargetList compileTargets_{store()};

public:
    /// Without services the settings can only be described, neither read nor written.
    explicit ProjectSettings(const ProjectServices* services) : SettingList(services) {}

    /// Whether the project is one of this system's. Only the project template writes it.
    ReadOnlySetting<bool> IsQuinloftProject{this, "IsQuinloftProject", "the project is a Fernwick project"};
    ReadOnlySetting<std::string> ProjectVersion{this, "ProjectVersion", "version of the project format",
                                                kOldProjectFormat};
    TargetDeviceSetting TargetDevice{this, compileTargets_};
    Setting<std::int32_t> TavletStyleID{this, "TavletStyleID", "style of the controls"};
    Setting<std::string> DefaultFontName{this, "DefaultFontName", "font of new forms"};
    Setting<std::int32_t> DefaultFontSize{this, "DefaultFontSize", "its size in points"};
    Setting<std::int32_t> DefaultFontStyle{this, "DefaultFontStyle", "1 bold, 2 italic, 3 both"};
    Setting<std::int32_t> DefaultFormColor{this, "DefaultFormColor", "back colour of new forms, 0 for none"};
    Setting<std::int32_t> DefaultFormWidth{this, "DefaultFormWidth", "device pixels, -1 for no fixed width"};
    Setting<std::int32_t> defaultFormHeight{
        this, "DefaultFormHeight", "device pixels, -1 for no fixed height", 0, {.writer = "Let_defaultFormHeight"}};
    Setting<bool> SpacesInNameEnabled{this, "SpacesInNameEnabled", "underscores of the name show as blanks"};
    Setting<bool> IconWarning{this, "IconWarning", "the user was warned about the icon"};
    IconSetting IconFileName{this, "IconFileName", "application icon"};
    Setting<bool> Autosave{
        this, "Autosave", "save without asking when a compile needs it", false, {.key = "AutoSaveProject"}};
    LastPageSetting LastSettingsDialog{
        this, "LastSettingsDialog", "settings page shown last", "", {.writer = "SetLastSettingsDialog"}};
    /// Twips per pixel of the screen at which the forms were laid out; 0 if unknown.
    Setting<float> TwipsPerPixelX{this, "TwipsPerPixelX", "screen resolution of the forms"};
    Setting<float> TwipsPerPixelY{this, "TwipsPerPixelY", "screen resolution of the forms"};
    Setting<std::string> LastCompileVersion{
        this, "LastCompileVersion", "compiler of the last good build", "", {.reportsFailedReads = true}};
    Setting<bool> ScanReferences{this,
                                 "ScanReferences",
                                 "validation tests references",
                                 true,
                                 {.reportsFailedReads = true, .isStoredAsNumber = true}};
    Setting<bool> OpenedFromQLTemplate{
        this, "OpenedFromQLTemplate", "made from a template", false, {.reportsFailedReads = true}};

protected:
    CompileStepList preCompileSteps_{this, "PreCompileSteps", "command lines before a compile, in order",
                                     "PreCompileStep"};
    CompileStepList postCompileSteps_{this, "PostCompileSteps", "command lines after a good compile, in order",
                                      "PostCompileStep"};
    DependencyList componentDependencies_{this, "ComponentDependencies", "libraries that the last build used",
                                          "ComponentDependency", "WriteComponentDependencies"};
    DependencyList tavletFileDependencies_{this, "TavletFileDependencies", "files that the last build used",
                                           "TavletFileDependency", "WriteTavletFileDependencies"};
    DependencyList fontDependencies_{this, "FontDependencies", "fonts that the application needs", "FontDependency",
                                     "WriteProjectFontDependencies"};
};

} // namespace fernwick
