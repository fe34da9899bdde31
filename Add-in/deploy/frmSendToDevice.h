#pragma once
// Sends a project to a device, or writes it into a package.
#include "Add-in/deploy/PipeForm.h"
#include "Add-in/deploy/send_permission.h"
#include "Add-in/deploy/send_run.h"

namespace fernwick {

/// Compiles and validates if needed, collects the files for the device and passes them to the device's pipe.
class frmSendToDevice : public PipeForm {
public:
    using QLProject = basic::Ref<clsQLProject>;
    using Project = basic::Ref<vbide::VBProject>;

    frmSendToDevice(const PipeServices& pipes, const DeployServices& services);
    const char* typeName() const override { return "frmSendToDevice"; }

    /// The outcome is in the project's messages, and LastResult returns whether the pipe succeeded. `DeviceName` is a
    /// design target's key; MakePackageMode makes a package in the project's folder instead of sending.
    void SendProjectToDevice(const QLProject& WorkingProject, bool MakePackageMode, const std::string& DeviceName);

    /// Whether this compiler version made the image on disk, and no component is newer or has unsaved changes. A
    /// component without a file is ignored.
    bool IsCompiledImageCurrent(const QLProject& WorkingProject) {
        return image_.IsCompiledImageCurrent(WorkingProject);
    }
    /// Whether the compiler writes files of this name for the project.
    bool IsCompilerFile(const std::string& FileName, const std::string& VBProjectName) {
        return fernwick::IsCompilerFile(errors_, FileName, VBProjectName);
    }

private:
    void showOutcome(const Project& project);

    ErrorReport& errors_;
    modCompileErrorManagement& messages_;
    CompiledImage image_;
    SendPermission permission_;
    SendRun run_;
};

} // namespace fernwick
