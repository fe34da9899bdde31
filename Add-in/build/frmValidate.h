#pragma once
// The validator: whether a project's device supports what the project uses.
#include "Add-in/build/frmCompile.h"
#include "Add-in/devices/clsDeviceConfig.h"

namespace fernwick {

/// The dependencies of the validator.
struct ValidationServices {
    Platform& platform;
    ErrorReport& errors;
    modRegistry2& registry;
    modQLInstallInfo& install;
    const ProjectServices& projectServices;
    const DeviceServices& deviceServices;
    modCompileErrorManagement& messages;
    frmCompile& compile;
};

/// A modal progress dialog without buttons. It validates in its first Activate event and unloads itself. Findings
/// become messages of the project; a scan continues after a finding, so one run reports all of them.
class frmValidate : public Form {
public:
    using Project = basic::Ref<vbide::VBProject>;
    using QLProject = basic::Ref<clsQLProject>;
    using Component = basic::Ref<vbide::VBComponent>;

    explicit frmValidate(const ValidationServices& services);
    const char* typeName() const override { return "frmValidate"; }

    StatusBar stsUpdate{this, "stsUpdate"};
    Animation aniValidate{this, "aniValidate"};
    ProgressBar prgbarUpdate{this, "prgbarUpdate"};
    PictureBox finishedImg{this, "finishedImg", "finished", false};
    PictureBox failedImg{this, "failedImg", "failed", false};

    /// Validates for a device and saves the project's files. True when no error was found. With an empty key the checks
    /// against a device are skipped.
    bool ValidateProject(const Project& project, const std::string& deviceKey);
    /// Checks one form: its name, properties and control names, and with `scanEvents` its events. False when an error
    /// was found; warnings do not count. Not part of ValidateProject.
    bool ScanForm(const QLProject& qlProject, const Component& component, bool scanEvents);

    /// Stores and shows the message, and shows the messages window. `line` is the line in the code window, or 0 for
    /// none.
    void ShowValidationWarning(const Project& project, const std::string& message, const std::string& fileName,
                               std::int32_t line, std::int32_t errorNumber);
    void ShowValidationError(const Project& project, const std::string& message, const std::string& fileName,
                             std::int32_t line, std::int32_t errorNumber);

protected:
    void Form_Activate() override;
    void Form_GotFocus() override { Refresh(); }
    void Form_Unload() override;

private:
    using Target = basic::Ref<designtargetaccess::IQLDesignTarget>;

    // The run
    void startAnimation(Procedure& here);
    void validate(Procedure& here);
    void finish(Procedure& here);
    void AddToProgress(const std::string& text);

    // References
    bool ScanReferences(const Project& project);
    void initialiseTargets(Procedure& here);
    bool scanForBroken(Procedure& here, const Project& project);
    void readDeviceConfig(Procedure& here);
    bool isSupported(Procedure& here, const Project& project, const Target& target, const std::string& moduleId);
    void reportNotSupported(Procedure& here, const Project& project, const Target& target, const std::string& moduleId);
    std::string GetTypeLibDisplayName(const std::string& guid);

    // Forms
    bool checkFormName(Procedure& here, const Project& project, const Component& component);
    bool checkFormProperties(Procedure& here, const Project& project, const Component& component);
    bool ScanControls(const Project& project, const Component& component, const basic::Ref<vbide::VBForm>& designer);
    bool ScanEvents(const Project& project, const Component& component);
    void warnOfControlEvent(Procedure& here, const Project& project, const Component& component,
                            const vbide::Member& member, const basic::Ref<vbide::VBControl>& control);
    void GenerateFormEventWarning(const Project& project, const Component& component, const vbide::Member& member);

    ValidationServices services_;
    Project project_;
    QLProject qlProject_;
    std::string deviceKey_;
    bool activated_ = false;
    bool validationGood_ = false;
};

} // namespace fernwick
