#include "Add-in/lifecycle/SampleOpening.h"
#include "Add-in/lifecycle/lifecycle_texts.h"

namespace fernwick {

void SampleOpening::open(const clsSampleMenuItem& sample) {
    Procedure here{use_.errors, "clsSampleMenuItem.myOfficeEvents_Click"};
    const std::string path = sample.fullPath; // the menu may be built again meanwhile
    if (path.empty())
        return (void)here([&] {
            use_.platform.interaction.MsgBox(lifecycle_texts::kSampleError + use_.platform.app.SupportWebAddress,
                                             vbCritical, lifecycle_texts::kTitle);
        });
    const auto host = use_.addIn.gVBInstance;
    const auto active = here.value([&] { return host->ActiveVBProject(); });
    if (active) {
        if (isOpen(here, path)) return;
        if (!use_.save.SaveProject(active, true, lifecycle_texts::kSaveBeforeSample, true,
                                   lifecycle_texts::kSampleWillNotOpen))
            return;
        closeActiveProject(here);
    }
    here([&] { host->VBProjects()->AddFromFile(path, true); });
}

bool SampleOpening::isOpen(Procedure& here, const std::string& path) {
    return here.test(
        [&] { return use_.platform.files.SamePath(use_.addIn.gVBInstance->ActiveVBProject()->FileName(), path); });
}

/// What it has of changes by now may be lost.
void SampleOpening::closeActiveProject(Procedure& here) {
    const auto host = use_.addIn.gVBInstance;
    const auto project = here.value([&] { return host->ActiveVBProject(); });
    if (!project) return;
    here([&] { host->ActiveVBProject(project); });
    if (here.test([&] { return project->IsDirty(); })) here([&] { project->IsDirty(false); });
    here([&] { use_.platform.loop.DoEvents(); });
    here([&] { use_.commands.gFileFourthItem()->Execute(); });
    here([&] { use_.platform.loop.DoEvents(); });
}

} // namespace fernwick
