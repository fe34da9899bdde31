#pragma once
// One open project of the host, and every setting that is stored in its file.
#include "Add-in/core/array.h"
#include "Add-in/devices/clsDeviceConfig.h"
#include "Add-in/project/project_services.h"

namespace fernwick {

/// What GetAppInfo reads of the project file; numbers stay text.
struct AppInfo {
    std::string ProductName, Major, Minor, Revision, Title, Comments, CompanyName, ExeName, LegalCopyright,
        LegalTrademarks, FileDescription;
};

/// Settings are text values of the project file; nothing of them is cached. A read never fails: an absent value and
/// one that doesn't convert are the type's zero, where nothing else is said. What can't be written is reported.
class clsQLProject {
public:
    explicit clsQLProject(const ProjectServices& services) : services_(services) {}
    clsQLProject(const clsQLProject&) = delete;

    /// Set once, right after construction; until then no property can be read.
    basic::Ref<vbide::VBProject> VBProject() const { return project_; }
    void VBProject(basic::Ref<vbide::VBProject> project) { project_ = std::move(project); }

    // What the project is.
    std::string ProjectName() const;
    /// The name, its "_" as blanks where SpacesInNameEnabled says so.
    std::string DisplayName() const;
    /// The folder of the project file, without a separator at the end; "" for a project that was never saved.
    std::string ProjectPath() const;
    /// Whether the project is one of this system's. Only the project template writes it.
    bool IsQuinloftProject() const;
    /// "1.0" for the old format, and where nothing is stored.
    std::string ProjectVersion() const;
    /// Whether this is the blank project that the host starts with.
    bool IsStartUpProject() const;
    std::int32_t NumForms() const;
    /// Stores a new identity of the project as a dependency.
    void CreateNewModId();

    // The device.
    basic::Ref<designtargetaccess::IQLDesignTarget> designTarget() const { return designTarget_; }
    void designTarget(basic::Ref<designtargetaccess::IQLDesignTarget> target) { designTarget_ = std::move(target); }
    /// Key of the design target. The registry paths of earlier versions read as the keys of today.
    std::string TargetDevice() const;
    /// Makes it the one compile target too, and fetches the design target.
    void TargetDevice(const std::string& key);
    /// Fetches the design target of TargetDevice where another one or none is there.
    void InitDesignTarget();
    /// The design target's templates; "" while there is none.
    std::string VBPTemplate() const;
    std::string FormTemplate() const;
    std::string ModuleTemplate() const;
    std::string ClassModuleTemplate() const;

    // Plain settings.
    std::int32_t TavletStyleID() const;
    void TavletStyleID(std::int32_t style);
    std::string DefaultFontName() const;
    void DefaultFontName(const std::string& name);
    /// Points.
    std::int32_t DefaultFontSize() const;
    void DefaultFontSize(std::int32_t size);
    /// Bit 0 bold, bit 1 italic.
    std::int32_t DefaultFontStyle() const;
    void DefaultFontStyle(std::int32_t style);
    /// Back colour of new forms; 0 leaves the colour alone.
    std::int32_t DefaultFormColor() const;
    void DefaultFormColor(std::int32_t color);
    /// Client size of new forms in device pixels; -1 for no fixed one.
    std::int32_t DefaultFormWidth() const;
    void DefaultFormWidth(std::int32_t width);
    std::int32_t defaultFormHeight() const;
    void defaultFormHeight(std::int32_t height);
    bool SpacesInNameEnabled() const;
    void SpacesInNameEnabled(bool enabled);
    /// Whether the user was warned about the application icon.
    bool IconWarning() const;
    void IconWarning(bool warned);
    /// Whether the project is saved without asking when a compile needs it.
    bool Autosave() const;
    void Autosave(bool autosave);
    std::string GetLastSettingsDialog() const;
    /// An empty name leaves the stored one.
    void SetLastSettingsDialog(const std::string& name);
    /// Screen resolution at which the forms were laid out; 0 for no record.
    float TwipsPerPixelX() const;
    void TwipsPerPixelX(float twips);
    float TwipsPerPixelY() const;
    void TwipsPerPixelY(float twips);
    /// Compiler version of the last good build. A read that fails otherwise than by an absent value is reported.
    std::string LastCompileVersion() const;
    void LastCompileVersion(const std::string& version);
    /// Whether validation tests references; True where nothing readable is stored. Reports like LastCompileVersion.
    bool ScanReferences() const;
    void ScanReferences(bool scan);
    /// Whether the project was made from a template of this system. Reports like LastCompileVersion.
    bool OpenedFromQLTemplate() const;
    void OpenedFromQLTemplate(bool opened);

    // The application icon.
    std::string DefaultIconFileName() const;
    /// Absolute path; the installation's default icon where none is stored.
    std::string IconFileName() const;
    /// Stored relative to the project folder where it lies there; the default icon is stored as "".
    void IconFileName(const std::string& path);
    /// A copy of the icon in the temporary folder, for the caller to delete; "" where there is no icon.
    std::string GetTempIcon() const;

    // Version and application data, read from the project file on disk. Errors go to the caller.
    std::string version() const;
    AppInfo GetAppInfo() const;
    bool AutoIncrementVersion() const;
    /// Adds 1 to the revision in the file, whatever `incrementBy` says, where AutoIncrementVersion is on.
    void IncerementRevision(std::int32_t incrementBy);

    // Stored lists.
    void WriteComponentDependencies(const std::vector<std::string>& ComponentModIDs);
    std::vector<std::string> GetComponentDependencies() const;
    void WriteTavletFileDependencies(const std::vector<std::string>& TavletFileDependencies);
    std::vector<std::string> GetTavletFileDependencies() const;
    void WriteProjectFontDependencies(const std::vector<std::string>& ProjectFontDependencies);
    std::vector<std::string> GetFontDependencies() const;
    std::int32_t NumCompileTargets() const;
    /// From index 1; without a stored count the list stays as it is. An entry that is no number reads as "".
    void GetCompileTargetsList(Array<std::string>& newCompileTargetsList) const;
    /// Stores the entries from 1 to the upper bound.
    void SetCompileTargetsList(const Array<std::string>& newCompileTargets);
    bool IsSetCompileTarget(const std::string& compareTargetName) const;
    std::int32_t PostCompileStepCount() const;
    std::int32_t PreCompileStepCount() const;
    /// From index 0. False without steps, where the list stays as it is, and where a step is missing.
    bool GetPostCompileSteps(Array<std::string>& list) const;
    bool GetPreCompileSteps(Array<std::string>& list) const;
    void SetPostCompileSteps(const Array<std::string>& list);
    void SetPreCompileSteps(const Array<std::string>& list);
    /// No steps any more: the count goes, the entries stay in the file.
    void ZeroPostCompileSteps();
    void ZeroPreCompileSteps();

    // Set-up for a device configuration.
    /// For a project that takes a device for the first time or changes it.
    void SetProjectForDeviceConfig(const clsDeviceConfig& newDeviceConfig);
    /// For a project that has its properties from a template.
    void SetTemplateForDeviceConfig(const clsDeviceConfig& newDeviceConfig);
    void SetupProjectToolbar();
    void SetupProjectReferences();
    /// Gives a new form the device's size, font and colour.
    void SetupDefaultForm(const basic::Ref<vbide::VBComponent>& MyForm);
    bool ValidFormSize(const basic::Ref<vbide::VBComponent>& MyForm);
    /// Offers to convert forms that were laid out at another screen resolution.
    void CheckTwipsMatch();
    void CloseOpenDesignerWins();
    void ReopenDesignerWins();
    /// Tells the controls of the process in which style to draw.
    void PublishTavletStyle();

    // Saving.
    /// Whether the project file and every component's file are on disk.
    bool FilesHaveBeenSaved() const;
    /// Saves what is dirty and has a file; nothing in a project of version "1.0".
    void SaveFiles();

private:
    enum class CompileStep { Post, Pre };
    struct DependencyFamily;
    static const DependencyFamily kComponents, kTavletFiles, kFonts;

    FileSystemObject& files() const { return services_.platform.files; }
    std::string withProjectName(const char* procedure) const;
    int box(std::string_view text, int buttons);

    std::string readText(const char* key) const;
    std::int32_t readLong(const char* key) const;
    float readSingle(const char* key) const;
    bool readBoolean(const char* key) const;
    template <class T, class Convert>
    T readOrReport(const char* property, T absent, Convert convert) const;
    /// Error 5 is the host's answer for a value that is not there.
    void reportUnlessAbsent(const std::string& location, const basic::RuntimeError& error) const;
    void write(const char* procedure, const char* key, const std::string& value);

    std::string templatePath(const char* property,
                             std::string (designtargetaccess::IQLDesignTarget::*path)() const) const;

    std::int32_t dependencyCount(const DependencyFamily& family) const;
    void setDependencyCount(const DependencyFamily& family, std::int32_t count);
    void clearDependencies(const DependencyFamily& family);
    void writeDependencies(const DependencyFamily& family, const std::vector<std::string>& entries);
    std::vector<std::string> getDependencies(const DependencyFamily& family) const;

    static std::string stepKey(CompileStep kind, const std::string& end);
    std::int32_t GetCompileStepCount(CompileStep kind) const;
    bool GetCompileSteps(Array<std::string>& list, CompileStep kind) const;
    void SetCompileSteps(const Array<std::string>& list, CompileStep kind);
    void ZeroCompileSteps(CompileStep kind);

    void sizeDefaultForm(Procedure& here, const basic::Ref<vbide::Properties>& form);
    void fontDefaultForm(Procedure& here, const basic::Ref<vbide::Properties>& form);
    void saveComponent(Procedure& here, const basic::Ref<vbide::VBComponent>& component);
    void saveProjectFile(Procedure& here);
    bool warnIfReadOnly(const std::string& path);

    const ProjectServices& services_;
    basic::Ref<vbide::VBProject> project_;
    basic::Ref<designtargetaccess::IQLDesignTarget> designTarget_;
    std::int32_t tavletCount_ = 0, referenceCount_ = 0;
    Array<ValidTavlet> tavlets_;
    Array<tReference> references_;
    std::vector<basic::Ref<vbide::VBComponent>> reopenList_;
};

} // namespace fernwick
