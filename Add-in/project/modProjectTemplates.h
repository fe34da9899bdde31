#pragma once
// Where project templates lie: the part of modProjectHandler that project objects need too.
#include "Add-in/core/AddIn.h"
#include "Add-in/core/modQLInstallInfo.h"
#include "Add-in/platform/interaction.h"

namespace fernwick {

class modProjectTemplates {
public:
    modProjectTemplates(AddIn& addIn, const modQLInstallInfo& install, const FileSystemObject& files, Interaction& user,
                        ErrorReport& errors)
        : addIn_(addIn), install_(install), files_(files), user_(user), errors_(errors) {}

    /// Whether the project's file lies in a template folder, the host's or the system's. A box for each of the two
    /// that is not there.
    bool ProjectIsFromTemplate(const basic::Ref<vbide::VBProject>& project);
    /// The host's folder of project templates; a box and "" when it is not known.
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
