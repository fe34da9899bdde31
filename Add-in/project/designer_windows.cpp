#include "Add-in/project/designer_windows.h"

namespace fernwick {

void DesignerWindows::closeAll() {
    Procedure here{store_.errors(), "clsQLProject.CloseOpenDesignerWins"};
    closed_.clear();
    for (const auto& component : here.value([&] { return store_.project->VBComponents()->items(); })) {
        if (!here.test([&] { return component->Type() == vbide::vbext_ct_VBForm; })) continue;
        if (here.test([&] { return component->HasOpenDesigner(); })) closed_.push_back(component);
        here([&] { component->DesignerWindow()->Close(); });
    }
}

void DesignerWindows::reopen() {
    Procedure here{store_.errors(), "clsQLProject.ReopenDesignerWins"};
    for (const auto& component : std::vector(closed_)) here([&] { component->DesignerWindow()->Visible(true); });
}

} // namespace fernwick
