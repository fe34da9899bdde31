#pragma once
// Carries a project to a device, or into a package.
#include "Add-in/build/dependencies/modDependencyManagement.h"
#include "Add-in/build/frmCompileWarning.h"
#include "Add-in/build/frmValidate.h"
#include "Add-in/core/settings_dialog.h"
#include "Add-in/deploy/PipeForm.h"

namespace fernwick {

/// What the deployment driver stands on besides pipes.
struct DeployServices {
    AddIn& addIn;
    modAddinPrefsManagement& prefs;
    modProjectHandler& projects;
    modCompileErrorManagement& messages;
    modDependencyManagement& dependencies;
    frmCompile& compile;
    frmCompileWarning& compileWarning;
    frmValidate& validate;
    SettingsDialog& settings;
};

/// Compiles and validates where that is needed, gathers what belongs on the device and hands it to the device's pipe.
class frmSendToDevice : public PipeForm {
public:
    using QLProject = basic::Ref<clsQLProject>;
    using Project = basic::Ref<vbide::VBProject>;

    frmSendToDevice(const PipeServices& pipes, const DeployServices& services) : PipeForm(pipes), deploy_(services) {}
    const char* typeName() const override { return "frmSendToDevice"; }

    /// What came of it stands in the project's messages, and whether the pipe succeeded in LastResult. `DeviceName`
    /// is a design target's key, MakePackageMode makes a package in the project's folder instead of sending.
    void SendProjectToDevice(const QLProject& WorkingProject, bool MakePackageMode, const std::string& DeviceName);

    /// Whether this compiler version made the image on disk, and no component is newer or has unsaved changes. A
    /// component without a file doesn't count.
    bool IsCompiledImageCurrent(const QLProject& WorkingProject);
    /// Whether the compiler writes files of this name for the project.
    bool IsCompilerFile(const std::string& FileName, const std::string& VBProjectName);

protected:
    void Form_Activate() override;
    void Form_Unload() override;

private:
    using Names = std::vector<std::string>;
    /// The files that belong on the device, each path once: letter case ignored, in the order of first mention.
    struct Package {
        std::string projectFolder, fontsFolder;
        basic::Collection<std::string> paths;
        void add(const std::string& path) {
            if (!paths.contains(path)) paths.Add(path, path);
        }
    };

    // Before the run
    bool readyToSend(Procedure& here, const Project& project);
    int askToCompile(Procedure& here);
    bool sendOldImage(Procedure& here, const Project& project);
    void showOutcome(const Project& project);
    std::string caption(const Project& project) const;
    std::string imageOf(Procedure& here, const QLProject& project);

    // The run
    void send();
    tResourceList readDependencies();
    void transfer(const std::string& projectPath, const qlpipe::ProjectFiles& files);
    void makePackage(const std::string& projectPath, const qlpipe::ProjectFiles& files);
    void sendProject(const std::string& projectPath, const qlpipe::ProjectFiles& files);
    qlpipe::ApplicationInfo application(const std::string& projectPath) const;
    bool ValidateForDevicePipe(const qlpipe::ProjectFiles& files);
    void commonEnd();

    // How it fails
    void generalFailure(const basic::ErrObject& error);
    void missingFiles();
    void validationFailed();
    void userCanceled();
    void packageFailed();
    void deploymentFailed();
    void boxOfFailure(const char* seeMessages, const char* otherwise);
    void showHostMessages();
    void deleteTempIcon();

    // What belongs on the device
    /// The lists stay as they are where the answer is False.
    bool CreateResourceList(const std::string& VBProjectName, const std::string& ProjectPath, Names& ProjectFileList,
                            Names& ProjectResourceList, const tResourceList& ProjectDependencies);
    void addCompilerFiles(Procedure& here, Package& package, const std::string& projectName);
    bool addDependencies(Procedure& here, Package& package, const tResourceList& dependencies);
    bool addTavletFiles(Procedure& here, Package& package);
    bool addFonts(Procedure& here, Package& package);
    bool addOrAsk(Procedure& here, Package& package, const std::string& path, const char* question);
    std::string inProject(Procedure& here, const Package& package, const std::string& name);
    std::string inFonts(Procedure& here, const Package& package, const std::string& name);
    std::string nameOnDevice(Procedure& here, const Package& package, const std::string& path);

    // What the pipe tells
    void SendComplete() override;
    void SendError(std::int32_t errorNumber, const std::string& message) override;
    void SendWarning(const std::string& message, const std::string& source, std::int32_t line,
                     std::int32_t warningNumber) override;

    DeployServices deploy_;
    QLProject workingProject_;
    bool makePackageMode_ = false;
    std::string pipeClassName_;
    /// The pipe's copy of the icon; "" while there is none.
    std::string tempIconFile_;
};

} // namespace fernwick
