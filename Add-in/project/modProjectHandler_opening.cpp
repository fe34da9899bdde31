// Opening projects on the user's behalf.
#include "Add-in/project/modProjectHandler.h"
#include "Add-in/project/stored/project_texts.h"

namespace fernwick {

namespace {

/// Sets the flag while the add-in opens a project, and clears it however that ends.
class Opening {
public:
    explicit Opening(bool& flag) : flag_(flag) { flag_ = true; }
    Opening(const Opening&) = delete;
    ~Opening() { flag_ = false; }

private:
    bool& flag_;
};

} // namespace

void modProjectHandler::OpenNewQuinloftProject() {
    Procedure here{services_.errors, "modProjectHandler.OpenNewQuinloftProject"};
    const Opening opening{gOpeningProject};
    auto& files = services_.platform.files;
    const auto path = here.value([&] { return files.BuildPath(GetTemplatePath(), "Fernwick Project.vbp"); });
    if (files.FileExists(path))
        here([&] { services_.addIn.gVBInstance->VBProjects()->AddFromTemplate(path, true); });
    else
        here([&] { box(texts::kTemplateMissing, vbCritical); });
}

void modProjectHandler::OpenQuinloftProjectFromPath(const std::string& path) {
    const Opening opening{gOpeningProject};
    services_.addIn.gVBInstance->VBProjects()->AddFromFile(path, true);
}

} // namespace fernwick
