#pragma once
#include "Add-in/core/AddIn.h"
#include "Add-in/lifecycle/missing_features.h"
#include "Add-in/platform/interaction.h"

namespace fernwick {

/// The placeholder for the feature that this build lacks. In the desktop, a command shows a message box; calls that
/// the add-in makes by itself do nothing.
class NotInThisBuild final : public MissingFeatures {
public:
    NotInThisBuild(Interaction& user, const AddIn& addIn) : user_(user), addIn_(addIn) {}

    void createZoomWindow() override {}
    void InitZoomWindow() override {}
    void SaveZoomWindowState() override {}
    void SetZoomForm(const basic::Ref<vbide::VBComponent>&) override {}
    void notInThisBuild() override;

private:
    Interaction& user_;
    const AddIn& addIn_;
};

} // namespace fernwick
