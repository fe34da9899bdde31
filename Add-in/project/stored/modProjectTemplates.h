#pragma once
// The folders of project templates: the part of modProjectHandler that project objects need too.
#include "Add-in/core/AddIn.h"
#include "Add-in/core/modQLInstallInfo.h"
#include "Add-in/platform/interaction.h"

namespace fernwick {

class modProjectTemplates {
public:
    modProjectTemplates(AddIn& addIn, const modQLInstallInfo& install, const FileSystemObject& files, Interaction& user,
                        ErrorReport& errors)
        : addIn_(addIn), install_(install), files_(files), user_(user), errors_(errors) {}

    /// Whether the project's file is in a template folder, the host's or the system's. Shows a box for each of the two
    /// that is missing.
    bool ProjectIsFromTemplate(const basic::Ref<vbide::VBProject>& project);
    /// Returns the host's folder of project templates. Shows a box and returns "" when it is not known.
    std::string GetTemplatePath();

private:
    void warn(std::string_view text);

    AddIn& addIn_;
    const modQLInstallInfo& install_;
    const FileSystemObject& files_;
    Interaction& user_;
    ErrorReport& errors_;
};

} // namespace fernwick
