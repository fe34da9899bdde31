#include "Add-in/deploy/compiled_image.h"
#include "Basic/like.h"

namespace fernwick {

bool CompiledImage::IsCompiledImageCurrent(const QLProject& WorkingProject) {
    Procedure here{errors_, "frmSendToDevice.IsCompiledImageCurrent"};
    const auto project = here.value([&] { return WorkingProject->VBProject(); });
    if (!compile_.lastCompileVersionGood(project)) return false;
    const auto image = imageOf(here, WorkingProject);
    if (here.test([&] { return !files_.FileExists(image); })) return false;
    const auto imageTime = here.value([&] { return files_.GetDateLastModified(image); });

    bool current = false;
    for (const auto& component : here.value([&] { return project->VBComponents()->items(); })) {
        std::int64_t time = 0;
        const auto read = basic::attempt([&] { time = files_.GetDateLastModified(component->FileNames(1)); });
        if (read.Number != 0) continue; // not saved yet, so no image can be older
        current = here.test([&] { return imageTime >= time && component->Saved(); });
        if (!current) break;
    }
    return current;
}

/// Returns the path of the image under its short name if that file exists, else under the compiler's name.
std::string CompiledImage::imageOf(Procedure& here, const QLProject& project) {
    const auto folder = here.value([&] { return files_.GetParentFolderName(project->VBProject()->FileName()); });
    const auto path = here.value([&] { return files_.BuildPath(folder, project->ProjectName() + ".qlx"); });
    if (!here.test([&] { return !files_.FileExists(path); })) return path;
    return here.value([&] { return files_.BuildPath(folder, project->VBProject()->Name() + ".0000.qlx"); });
}

bool IsCompilerFile(ErrorReport& errors, const std::string& FileName, const std::string& VBProjectName) {
    Procedure here{errors, "frmSendToDevice.IsCompilerFile"};
    for (const char* tail : {".*.rpp", ".rsp", ".*.qlx"})
        if (here.value([&] { return basic::Like(FileName, VBProjectName + tail, basic::vbTextCompare); })) return true;
    return false;
}

} // namespace fernwick
