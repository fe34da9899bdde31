// Whether what lies on disk is what the project would compile to.
#include "Add-in/deploy/frmSendToDevice.h"
#include "Basic/like.h"

namespace fernwick {

bool frmSendToDevice::IsCompiledImageCurrent(const QLProject& WorkingProject) {
    Procedure here{use_.errors, location("IsCompiledImageCurrent")};
    const auto& files = use_.platform.files;
    const auto project = here.value([&] { return WorkingProject->VBProject(); });
    if (!deploy_.compile.lastCompileVersionGood(project)) return false;
    const auto image = imageOf(here, WorkingProject);
    if (here.test([&] { return !files.FileExists(image); })) return false;
    const auto imageTime = here.value([&] { return files.GetDateLastModified(image); });

    bool current = false;
    for (const auto& component : here.value([&] { return project->VBComponents()->items(); })) {
        std::int64_t time = 0;
        const auto read = basic::attempt([&] { time = files.GetDateLastModified(component->FileNames(1)); });
        if (read.Number != 0) continue; // not saved yet, so that no image can be older
        current = here.test([&] { return imageTime >= time && component->Saved(); });
        if (!current) break;
    }
    return current;
}

/// The path of the image under its short name, where there is one, else under the compiler's.
std::string frmSendToDevice::imageOf(Procedure& here, const QLProject& project) {
    const auto& files = use_.platform.files;
    const auto folder = here.value([&] { return files.GetParentFolderName(project->VBProject()->FileName()); });
    const auto path = here.value([&] { return files.BuildPath(folder, project->ProjectName() + ".qlx"); });
    if (!here.test([&] { return !files.FileExists(path); })) return path;
    return here.value([&] { return files.BuildPath(folder, project->VBProject()->Name() + ".0000.qlx"); });
}

bool frmSendToDevice::IsCompilerFile(const std::string& FileName, const std::string& VBProjectName) {
    Procedure here{use_.errors, location("IsCompilerFile")};
    for (const char* tail : {".*.rpp", ".rsp", ".*.qlx"})
        if (here.value([&] { return basic::Like(FileName, VBProjectName + tail, basic::vbTextCompare); })) return true;
    return false;
}

} // namespace fernwick
