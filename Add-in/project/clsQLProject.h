#pragma once
// One open project of the host.
#include "Add-in/devices/clsDeviceConfig.h"
#include "Add-in/project/designer_windows.h"
#include "Add-in/project/stored/application_info.h"
#include "Add-in/project/stored/project_settings.h"

namespace fernwick {

/// The stored settings are members of ProjectSettings: `project.Autosave()` reads and `project.Autosave(true)` writes.
class clsQLProject : public ProjectSettings {
public:
    explicit clsQLProject(const ProjectServices& services) : ProjectSettings(&services), services_(services) {}

    /// Set once, right after construction; until then no property can be read.
    basic::Ref<vbide::VBProject> VBProject() const { return store().project; }
    void VBProject(basic::Ref<vbide::VBProject> project) { store().project = std::move(project); }

    // The project itself.
    std::string ProjectName() const;
    /// The name; with SpacesInNameEnabled its "_" become blanks.
    std::string DisplayName() const;
    /// The folder of the project file, without a separator at the end; "" for a project that was never saved.
    std::string ProjectPath() const { return store().folder(); }
    /// Whether ProjectVersion is that of the old format.
    bool HasOldFormat() const { return ProjectVersion() == kOldProjectFormat; }
    /// Whether this is the blank project that the host opens at its start.
    bool IsStartUpProject() const;
    std::int32_t NumForms() const;
    /// Stores a new identity of the project as a dependency.
    void CreateNewModId();

    // The device.
    basic::Ref<designtargetaccess::IQLDesignTarget> designTarget() const { return TargetDevice.designTarget; }
    void designTarget(basic::Ref<designtargetaccess::IQLDesignTarget> target);
    /// Fetches the design target of TargetDevice, unless it is already set.
    void InitDesignTarget();
    /// The design target's templates; "" without one.
    std::string VBPTemplate() const;
    std::string FormTemplate() const;
    std::string ModuleTemplate() const;
    std::string ClassModuleTemplate() const;

    std::string GetLastSettingsDialog() const { return LastSettingsDialog(); }
    void SetLastSettingsDialog(const std::string& name) { LastSettingsDialog(name); }

    // The application icon.
    std::string DefaultIconFileName() const { return IconFileName.defaultIcon(); }
    /// Returns the path of a copy in the temporary folder, which the caller deletes; "" if there is no icon.
    std::string GetTempIcon() const { return IconFileName.temporaryCopy(); }

    // Version and application data, read from the project file on disk. Errors go to the caller.
    std::string version() const { return application().version(); }
    AppInfo GetAppInfo() const { return application().read(); }
    bool AutoIncrementVersion() const { return application().incrementsRevision(); }
    /// Adds 1 to the revision in the file, whatever `incrementBy` is, if AutoIncrementVersion is on.
    void IncerementRevision(std::int32_t incrementBy); // sic

    // Stored lists.
    void WriteComponentDependencies(const std::vector<std::string>& ComponentModIDs);
    std::vector<std::string> GetComponentDependencies() const { return componentDependencies_.values(); }
    void WriteTavletFileDependencies(const std::vector<std::string>& TavletFileDependencies);
    std::vector<std::string> GetTavletFileDependencies() const { return tavletFileDependencies_.values(); }
    void WriteProjectFontDependencies(const std::vector<std::string>& ProjectFontDependencies);
    std::vector<std::string> GetFontDependencies() const { return fontDependencies_.values(); }
    std::int32_t NumCompileTargets() const { return compileTargets_.count(); }
    /// From index 1; without a stored count the list is unchanged. An entry that is not a number reads as "".
    void GetCompileTargetsList(Array<std::string>& newCompileTargetsList) const;
    /// Stores the entries from 1 to the upper bound.
    void SetCompileTargetsList(const Array<std::string>& newCompileTargets);
    bool IsSetCompileTarget(const std::string& compareTargetName) const;
    std::int32_t PostCompileStepCount() const { return postCompileSteps_.count(); }
    std::int32_t PreCompileStepCount() const { return preCompileSteps_.count(); }
    /// From index 0. Returns false if there are no steps, leaving the list unchanged, or if a step is missing.
    bool GetPostCompileSteps(Array<std::string>& list) const { return postCompileSteps_.get(list); }
    bool GetPreCompileSteps(Array<std::string>& list) const { return preCompileSteps_.get(list); }
    void SetPostCompileSteps(const Array<std::string>& list) { postCompileSteps_.set(list); }
    void SetPreCompileSteps(const Array<std::string>& list) { preCompileSteps_.set(list); }
    /// Sets the count to 0; the entries remain in the file.
    void ZeroPostCompileSteps() { postCompileSteps_.clear(); }
    void ZeroPreCompileSteps() { preCompileSteps_.clear(); }

    // Set-up for a device configuration.
    /// Sets up a project whose device was set for the first time or changed.
    void SetProjectForDeviceConfig(const clsDeviceConfig& newDeviceConfig);
    /// Sets up a project whose properties are those of a template.
    void SetTemplateForDeviceConfig(const clsDeviceConfig& newDeviceConfig);
    void SetupProjectToolbar();
    void SetupProjectReferences();
    /// Gives a new form the device's size, font and colour.
    void SetupDefaultForm(const basic::Ref<vbide::VBComponent>& MyForm);
    bool ValidFormSize(const basic::Ref<vbide::VBComponent>& MyForm);
    /// Offers to convert forms that were laid out at another screen resolution.
    void CheckTwipsMatch();
    void CloseOpenDesignerWins() { designerWindows_.closeAll(); }
    void ReopenDesignerWins() { designerWindows_.reopen(); }
    /// Publishes the style in which the controls of this process are drawn.
    void PublishTavletStyle();

    // Saving.
    /// Whether the project file and every component's file are on disk.
    bool FilesHaveBeenSaved() const;
    /// Saves dirty components that have a file. Does nothing for a project of the old format.
    void SaveFiles();

private:
    FileSystemObject& files() const { return services_.platform.files; }
    ApplicationInfo application() const { return {files(), VBProject()->FileName()}; }
    int box(std::string_view text, int buttons);
    std::string templatePath(const char* property,
                             std::string (designtargetaccess::IQLDesignTarget::*path)() const) const;
    void saveComponent(Procedure& here, const basic::Ref<vbide::VBComponent>& component);
    void saveProjectFile(Procedure& here);
    bool warnIfReadOnly(const std::string& path);

    const ProjectServices& services_;
    std::int32_t tavletCount_ = 0, referenceCount_ = 0;
    Array<ValidTavlet> tavlets_;
    Array<tReference> references_;
    DesignerWindows designerWindows_{store()};
};

} // namespace fernwick
