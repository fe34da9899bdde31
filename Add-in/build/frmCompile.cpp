#include "Add-in/build/frmCompile.h"
#include "Add-in/build/messages/build_texts.h"
#include <fmt/format.h>

namespace fernwick {

frmCompile::frmCompile(const CompileServices& services) : Form(services.platform.interaction), services_(services) {
    ControlBox = false;
}

bool frmCompile::CompileProject(const Project& project) {
    using namespace fmt::literals;
    Procedure here{services_.errors, "frmCompile.CompileProject"};
    here([&] { Load(); });
    const auto qlProject = services_.projects.GetQLProject(project);
    run_.begin(project, qlProject);
    here([&] { Caption(fmt::format(build_texts::kCompiling, "project"_a = project->Name())); });
    activated_ = false;
    here([&] { ShowModal(); });

    if (run_.succeeded()) {
        here([&] { qlProject->LastCompileVersion(kCompilerVersion); });
        return true;
    }
    here([&] { user_.MsgBox(build_texts::kCompileFailed, vbCritical, build_texts::kTitle); });
    services_.messages.ShowFirstProjectError();
    return false;
}

/// A later Activate, for example after a message box, must not start a second run.
void frmCompile::Form_Activate() {
    if (activated_) return;
    activated_ = true;
    Procedure here{services_.errors, "frmCompile.Form_Activate"};
    run_.run(here);
}

void frmCompile::AddToProgress(const std::string& text) {
    Procedure here{services_.errors, "frmCompile.AddToProgress"};
    stsUpdate.SimpleText(text);
    stsUpdate.Refresh();
    here([&] { services_.platform.loop.DoEvents(); });
}

} // namespace fernwick
