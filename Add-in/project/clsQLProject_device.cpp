// The project's design target.
#include "Add-in/project/clsQLProject.h"

namespace fernwick {

using designtargetaccess::IQLDesignTarget;

void clsQLProject::designTarget(basic::Ref<IQLDesignTarget> target) { TargetDevice.designTarget = std::move(target); }

void clsQLProject::InitDesignTarget() {
    Procedure here{services_.errors, "clsQLProject.InitDesignTarget"};
    TargetDevice.fetchDesignTarget(here, TargetDevice());
}

std::string clsQLProject::templatePath(const char* property, std::string (IQLDesignTarget::*path)() const) const {
    Procedure here{services_.errors, std::string("clsQLProject.Get_") + property};
    const auto target = designTarget();
    if (!target) return {};
    return here.value([&] { return (target.shared().get()->*path)(); });
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
