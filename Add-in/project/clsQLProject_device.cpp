// The project's design target.
#include "Add-in/project/clsQLProject.h"

namespace fernwick {

using designtargetaccess::IQLDesignTarget;

std::string clsQLProject::TargetDevice() const {
    const auto key = readText("TargetDevice");
    if (key == "SOFTWARE\\Quinloft\\DesignTargets\\PalmOS") return "PalmOS-DragonBall";
    if (key == "SOFTWARE\\Quinloft\\DesignTargets\\PocketPC") return "PocketPC-SH3";
    return key;
}

void clsQLProject::TargetDevice(const std::string& key) {
    write("Let_TargetDevice", "TargetDevice", key);
    SetCompileTargetsList(Array<std::string>{0, {"", key}});

    Procedure here{services_.errors, "clsQLProject.Let_TargetDevice"};
    if (here.test([&] { return !designTarget_ || designTarget_->Key() != key; }))
        here([&] { designTarget_ = services_.devices.GetDesignTarget(key); });
}

void clsQLProject::InitDesignTarget() {
    Procedure here{services_.errors, "clsQLProject.InitDesignTarget"};
    const auto key = TargetDevice();
    if (here.test([&] { return !designTarget_ || designTarget_->Key() != key; }))
        here([&] { designTarget_ = services_.devices.GetDesignTarget(key); });
}

std::string clsQLProject::templatePath(const char* property, std::string (IQLDesignTarget::*path)() const) const {
    Procedure here{services_.errors, std::string("clsQLProject.Get_") + property};
    if (!designTarget_) return {};
    return here.value([&] { return (designTarget_.shared().get()->*path)(); });
}

std::string clsQLProject::VBPTemplate() const { return templatePath("VBPTemplate", &IQLDesignTarget::VBPTemplate); }
std::string clsQLProject::FormTemplate() const { return templatePath("FormTemplate", &IQLDesignTarget::FormTemplate); }
std::string clsQLProject::ModuleTemplate() const {
    return templatePath("ModuleTemplate", &IQLDesignTarget::ModuleTemplate);
}
std::string clsQLProject::ClassModuleTemplate() const {
    return templatePath("ClassModuleTemplate", &IQLDesignTarget::ClassModuleTemplate);
}

} // namespace fernwick
