#include "Add-in/lifecycle/sample_opening.h"
#include "Add-in/lifecycle/lifecycle_texts.h"

namespace fernwick {

void SampleOpening::open(const clsSampleMenuItem& sample) {
    Procedure here{services_.errors, "clsSampleMenuItem.myOfficeEvents_Click"};
    const std::string path = sample.fullPath; // the menu may be rebuilt in the meantime
    if (path.empty())
        return (void)here([&] {
            services_.user.MsgBox(lifecycle_texts::kSampleError + services_.app.SupportWebAddress, vbCritical,
                                  lifecycle_texts::kTitle);
        });
    const basic::Ref<vbide::VBE> host = services_.addIn.gVBInstance;
    const auto active = here.value([&] { return host->ActiveVBProject(); });
    if (active) {
        if (isOpen(here, path)) return;
        if (!services_.save.SaveProject(active, true, lifecycle_texts::kSaveBeforeSample, true,
                                        lifecycle_texts::kSampleWillNotOpen))
            return;
        closeActiveProject(here);
    }
    here([&] { host->VBProjects()->AddFromFile(path, true); });
}

bool SampleOpening::isOpen(Procedure& here, const std::string& path) {
    return here.test(
        [&] { return services_.files.SamePath(services_.addIn.gVBInstance->ActiveVBProject()->FileName(), path); });
}

/// Changes that are still unsaved are discarded.
void SampleOpening::closeActiveProject(Procedure& here) {
    const basic::Ref<vbide::VBE> host = services_.addIn.gVBInstance;
    const auto project = here.value([&] { return host->ActiveVBProject(); });
    if (!project) return;
    here([&] { host->ActiveVBProject(project); });
    if (here.test([&] { return project->IsDirty(); })) here([&] { project->IsDirty(false); });
    here([&] { services_.loop.DoEvents(); });
    here([&] { services_.items.gFileFourthItem->Execute(); });
    here([&] { services_.loop.DoEvents(); });
}

} // namespace fernwick
