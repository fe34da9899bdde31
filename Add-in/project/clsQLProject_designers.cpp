// The designer windows of the project's forms.
#include "Add-in/project/clsQLProject.h"

namespace fernwick {

void clsQLProject::CloseOpenDesignerWins() {
    Procedure here{services_.errors, "clsQLProject.CloseOpenDesignerWins"};
    reopenList_.clear();
    for (const auto& component : here.value([&] { return project_->VBComponents()->items(); })) {
        if (!here.test([&] { return component->Type() == vbide::vbext_ct_VBForm; })) continue;
        if (here.test([&] { return component->HasOpenDesigner(); })) reopenList_.push_back(component);
        here([&] { component->DesignerWindow()->Close(); });
    }
}

void clsQLProject::ReopenDesignerWins() {
    Procedure here{services_.errors, "clsQLProject.ReopenDesignerWins"};
    for (const auto& component : std::vector(reopenList_)) here([&] { component->DesignerWindow()->Visible(true); });
}

} // namespace fernwick
