#pragma once
// Whether a project may be sent, and the compile and validation that precede it.
#include "Add-in/deploy/compiled_image.h"
#include "Add-in/deploy/deploy_services.h"

namespace fernwick {

class SendPermission {
public:
    using QLProject = basic::Ref<clsQLProject>;
    using Project = basic::Ref<vbide::VBProject>;

    SendPermission(Interaction& user, const DeployServices& services, CompiledImage& image)
        : user_(user), services_(services), image_(image) {}

    bool readyToSend(Procedure& here, const QLProject& qlProject, const Project& project,
                     const std::string& deviceName);

private:
    int askToCompile(Procedure& here);
    bool sendOldImage(Procedure& here, const Project& project);

    Interaction& user_;
    DeployServices services_;
    CompiledImage& image_;
};

} // namespace fernwick
