#include "Add-in/deploy/PipeForm.h"
#include "Add-in/core/error_source.h"
#include "Add-in/deploy/deploy_texts.h"
#include <fmt/format.h>

namespace fernwick {

PipeForm::PipeForm(const PipeServices& services) : Form(services.platform.interaction), use_(services) {
    ControlBox = false;
}

void PipeForm::beginRun(const char* animation, const char* status) {
    runStarted_ = true;
    MousePointer(vbHourglass);
    use_.platform.loop.DoEvents();
    basic::Suppressed quietly; // a missing animation stops nothing
    aniSend.Visible(true);
    quietly([&] { aniSend.Open(use_.install.installed(animation)); });
    quietly([&] { aniSend.Play(Animation::kForever); });
    AddToProgress(status);
}

basic::ErrObject PipeForm::createPipe(const std::string& pipeClassName) {
    const std::string progId = pipeClassName + ".Pipe";
    const auto error = basic::attempt([&] {
        pipe_ = basic::cast<qlpipe::IQLPipe>(use_.platform.classes.CreateObject(progId));
        if (!pipe_) throw basic::RuntimeError(basic::kTypeMismatch);
    });
    if (error.Number != 0)
        user_.MsgBox(deploy_texts::kNoPipe + progId + deploy_texts::kContactSupport, vbCritical, deploy_texts::kTitle);
    return error;
}

void PipeForm::AddToProgress(const std::string& text) {
    stsUpdate.SimpleText(text);
    stsUpdate.Refresh();
}

void PipeForm::showEnd(PictureBox& outcome) {
    aniSend.Stop();
    aniSend.Visible(false);
    outcome.Visible(true);
}

std::string PipeForm::runErrorLine(const basic::ErrObject& error) const {
    return fmt::format("{}{}: ({}) {}", deploy_texts::kErrorIn, errorSource(error.Source, use_.platform.app),
                       error.Number, error.Description);
}

std::string PipeForm::pipeErrorLine(std::int32_t errorNumber, const std::string& message) {
    return fmt::format("{}{} ({})", deploy_texts::kPipeError, message, errorNumber);
}

void PipeForm::SendProgress(const std::string& status, std::int32_t percent) {
    Procedure here{use_.errors, location("IQLPipeEvents_SendProgress")};
    prgbarUpdate.Value(float(percent));
    AddToProgress(status);
    here([&] { use_.platform.loop.DoEvents(); });
}

} // namespace fernwick
