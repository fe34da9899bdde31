#pragma once
// The size, font and colour of new forms, from a project's settings.
#include "Add-in/platform/host_project.h"
#include "Add-in/platform/screen.h"
#include "Add-in/project/stored/project_settings.h"

namespace fernwick {

class FormFitting {
public:
    FormFitting(const ProjectSettings& settings, const Screen& screen) : settings_(settings), screen_(screen) {}

    void apply(Procedure& here, const basic::Ref<vbide::VBComponent>& component) const;
    /// Whether the client area has the size of the settings.
    bool hasValidSize(Procedure& here, const basic::Ref<vbide::VBComponent>& component) const;

private:
    void applySize(Procedure& here, const basic::Ref<vbide::Properties>& form) const;
    void applyFont(Procedure& here, const basic::Ref<vbide::Properties>& form) const;

    const ProjectSettings& settings_;
    const Screen& screen_;
};

} // namespace fernwick
