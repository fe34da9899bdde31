#pragma once
// The user controls of a project, which its forms show as they are designed.
#include "Add-in/platform/host_project.h"
#include "Apps/workbench/drawing/control_look.h"
#include <map>
#include <string>

namespace workbench {

/// Draws the user controls of one form, each once.
class UserControls {
public:
    /// `depth` counts the user controls around the form: a damaged one may contain itself.
    UserControls(vbide::VBComponent& component, int depth) : component_(component), depth_(depth) {}

    /// Makes the look that of a user control, if the class is one of the project.
    void read(ControlLook& look, const std::string& className);

private:
    QPixmap drawn(const vbide::Ref<vbide::VBComponent>& control) const;

    vbide::VBComponent& component_;
    int depth_;
    std::map<std::string, QPixmap> pictures_;
};

} // namespace workbench
